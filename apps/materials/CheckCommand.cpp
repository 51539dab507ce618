// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/CheckCommand.h>

#include <console/Console.h>
#include <materials/LibraryCheck.h>
#include <materials/LibraryText.h>
#include <materials/Options.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace Materials {

namespace {

LibraryText readText(const Options& options, QString& path)
{
    if (!options.operands.isEmpty()) {
        path = options.operands.first();
        return readLibraryText(path, false);
    }
    path = options.library.path();
    return readLibraryText(path, options.library.type == BaseModule::ProjectLib && !options.isPlain);
}

void report(const Options& options, const QString& path, const QVector<Fault>& faults)
{
    QJsonArray list;
    for (const Fault& fault : faults) {
        list.append(QJsonObject{{QStringLiteral("place"), fault.place}, {QStringLiteral("fault"), fault.what.english}});
        if (!options.isJson) {
            Console::print(QStringLiteral("%1: %2: %3\n").arg(path, fault.place, fault.what.translated));
        }
    }
    if (options.isJson) {
        const QJsonObject root = {{QStringLiteral("file"), path}, {QStringLiteral("faults"), list}};
        Console::print(QString::fromUtf8(QJsonDocument(root).toJson()));
    }
}

} // namespace

ExitCode runCheck(const Options& options)
{
    if (options.operands.size() > 1) {
        Console::printUsageError(QCoreApplication::translate("materials", "check takes one file"));
        return UsageError;
    }
    QString path;
    const LibraryText text = readText(options, path);
    if (!text.fault.isEmpty()) {
        Console::printError(text.fault);
        return UnreadableInput;
    }
    const QVector<Fault> faults = checkLibrary(text.root);
    report(options, path, faults);
    return faults.isEmpty() ? Success : CheckFailed;
}

} // namespace Materials
