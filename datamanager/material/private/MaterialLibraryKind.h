// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

namespace DataManager {

/// What sets one kind of material library apart from the other.
struct MaterialLibraryKind
{
    bool isApplicationWide; ///< a missing file is read like an empty one; failing to make a record keeps the counter
    bool isEnciphered;      ///< outside the development configuration
    bool signalsDeletions;  ///< on the hub, for geometry that uses the material

    // Log lines; %1 is the path.
    const char* readFailure;
    const char* deserializeFailure;
    const char* serializeFailure;
    const char* writeFailure;
    const char* removeFailure;

    // Messages to the user, untranslated; %1 is the identifier.
    const char* deleteFailure;
    const char* importFailure;
};

extern const MaterialLibraryKind softwareLibraryKind;
extern const MaterialLibraryKind projectLibraryKind;

} // namespace DataManager
