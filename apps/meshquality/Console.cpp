// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Console.h>

#include <cstdio>

namespace MeshQuality::Console {

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

void printError(const QString& subject, const QString& what)
{
    write(stderr, QStringLiteral("meshquality: ") + subject + QStringLiteral(": ") + what + QLatin1Char('\n'));
}

void printUsageError(const QString& what)
{
    write(stderr, QStringLiteral("meshquality: ") + what + QStringLiteral("; see meshquality --help\n"));
}

} // namespace MeshQuality::Console
