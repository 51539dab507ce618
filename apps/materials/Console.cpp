// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Console.h>

#include <cstdio>

namespace Materials::Console {

namespace {

void write(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void print(const QString& text)
{
    write(stdout, text);
}

void printError(const QString& what)
{
    write(stderr, QStringLiteral("materials: ") + what + QLatin1Char('\n'));
}

} // namespace Materials::Console
