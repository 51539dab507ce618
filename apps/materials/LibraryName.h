// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QString>

namespace Materials {

/// One of the libraries, as people name it: "software" or "project:DIR".
struct LibraryName
{
    BaseModule::MaterialLibType type = BaseModule::SoftwareLib;
    QString directory; ///< the project's working directory; empty for the software library

    /// Of the library's file.
    QString path() const;
    QString text() const;
};

/// False when the text names no library.
bool parseLibraryName(const QString& text, LibraryName& name);

} // namespace Materials
