// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "Samples.h"

/// The names in a directory, hidden ones too.
inline QStringList namesIn(const QString& directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// Bytes that do not compress, the same in every run.
inline QByteArray noise(int size)
{
    QByteArray bytes(size, '\0');
    quint32 state = 2463534242U;
    for (char& byte : bytes) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        byte = static_cast<char>(state);
    }
    return bytes;
}

constexpr int slowSize = 8 << 20;

/// A file in the working directory of the open project that takes a while to pack.
inline void makeSlow()
{
    writeFile(BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-9.msh"), noise(slowSize));
}
