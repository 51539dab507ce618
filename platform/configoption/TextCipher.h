// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <configoption/configoption_export.h>

#include <QString>

namespace ConfigOption {

/// Enciphers texts so that a changed or foreign text is noticed.
///
/// AES-256 in CBC mode with a fresh random initialisation vector, then HMAC-SHA-256 over the format version, the vector
/// and the cipher text, with a key of its own. Both keys are derived from one secret, looked up at every call: the
/// environment variable DATAMANAGER_CIPHER_KEY, else the content of the file that DATAMANAGER_CIPHER_KEY_FILE names
/// (without trailing line ends), else one that is built in and keeps nobody out who has the program. When the named
/// file cannot be read or is empty, both operations fail.
class CONFIGOPTION_EXPORT TextCipher
{
public:
    /// The cipher, created on first use and never destroyed.
    static TextCipher* getInstance();

    /// The enciphered form, in ASCII, of any text; it differs from call to call. Empty after one log line when there is
    /// no secret, no randomness, or the text is longer than 250 million code units.
    QString encryptData_CBC(QString text);

    /// The text that `encryptData_CBC` was given. Anything that it did not make with the present secret gives an empty
    /// text and one log line.
    QString decryptData_CBC(QString text);

private:
    TextCipher() = default;
    ~TextCipher() = default;
};

} // namespace ConfigOption
