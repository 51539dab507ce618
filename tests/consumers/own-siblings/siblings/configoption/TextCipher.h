// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace ConfigOption {

/// Marks what passes through it.
class TextCipher
{
public:
    static TextCipher* getInstance()
    {
        static TextCipher cipher;
        return &cipher;
    }
    QString encryptData_CBC(QString text) const { return QStringLiteral("secret:") + text; }
    QString decryptData_CBC(QString text) const { return text.mid(7); }
};

} // namespace ConfigOption
