// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>

namespace ConfigOption {

/// The keys of the text cipher.
struct CipherKeys
{
    std::array<unsigned char, 32> encryption; ///< for AES-256
    std::array<unsigned char, 32> integrity;  ///< for HMAC-SHA-256
};

/// The keys that follow from the configured secret; null when the secret is configured but cannot be read. Valid until
/// the next call.
const CipherKeys* cipherKeys();

} // namespace ConfigOption
