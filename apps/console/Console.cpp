// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <console/Console.h>

#include <cstdio>

#include <QCoreApplication>

namespace Console {

namespace {

QString& programName()
{
    static QString name;
    return name;
}

bool isWritten = true;

bool write(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t size = static_cast<std::size_t>(bytes.size());
    const bool isTaken = std::fwrite(bytes.constData(), 1, size, stream) == size;
    return std::fflush(stream) == 0 && isTaken;
}

} // namespace

void setProgramName(const QString& name)
{
    programName() = name;
}

bool print(const QString& text)
{
    if (isWritten && !write(stdout, text)) {
        isWritten = false;
        printError(QCoreApplication::translate("console", "standard output"),
                   QCoreApplication::translate("console", "cannot be written"));
    }
    return isWritten;
}

bool isOutputWritten()
{
    return isWritten;
}

void printError(const QString& what)
{
    write(stderr, programName() + QStringLiteral(": ") + what + QLatin1Char('\n'));
}

void printError(const QString& subject, const QString& what)
{
    printError(subject + QStringLiteral(": ") + what);
}

void printUsageError(const QString& what)
{
    const bool hasStop = what.endsWith(QLatin1Char('.')) || what.endsWith(QStringLiteral("。"));
    const QString sentence = hasStop ? what.chopped(1) : what;
    printError(sentence + QCoreApplication::translate("console", "; see %1 --help").arg(programName()));
}

void printLanguageError()
{
    printUsageError(QCoreApplication::translate("console", "--language takes 'English' or 'Chinese'"));
}

} // namespace Console
