// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/ImportCommand.h>

#include <console/Columns.h>
#include <console/Console.h>
#include <materials/Comparison.h>
#include <materials/LibraryLog.h>
#include <materials/MaterialCsv.h>
#include <materials/MaterialJson.h>
#include <materials/Options.h>

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace Materials {

namespace {

/// Where materials come from: one of the libraries or a file.
struct Source
{
    bool isLibrary = false;
    LibraryName library;
    QList<Material> materials;
    QString fault;
};

void readFile(const QString& path, Source& source)
{
    QByteArray bytes;
    if (!BaseModule::GlobalHelper::readFile(path, bytes)) {
        source.fault = QCoreApplication::translate("materials", "%1: cannot be read").arg(path);
    } else if (path.endsWith(QLatin1String(".json"))) {
        source.materials = readMaterialJson(path, bytes, source.fault);
    } else {
        source.materials = readMaterialCsv(path, QString::fromUtf8(bytes), source.fault);
    }
}

Source readSource(const Options& options)
{
    Source source;
    const QString name = options.operands.first();
    source.isLibrary = parseLibraryName(name, source.library);
    if (!source.isLibrary) {
        readFile(name, source);
        return source;
    }
    source.fault = openLibrary(source.library, options.isPlain, false);
    source.materials = source.fault.isEmpty() ? materialsOf(source.library) : QList<Material>();
    return source;
}

/// The comparisons that the operands behind the source name, by identifier or name; all when there are none.
QList<Comparison> chosen(const QList<Comparison>& comparisons, const QStringList& names, QString& missing)
{
    if (names.isEmpty()) {
        return comparisons;
    }
    QList<Comparison> result;
    for (const QString& name : names) {
        const int before = result.size();
        for (const Comparison& comparison : comparisons) {
            if (!findMaterial({comparison.source}, name).isNull()) {
                result.append(comparison);
            }
        }
        missing = missing.isEmpty() && result.size() == before ? name : missing;
    }
    return result;
}

void copyNew(const Options& options, const Source& source, const QList<Comparison>& comparisons)
{
    QList<int> ids;
    QList<Material> materials;
    for (const Comparison& comparison : comparisons) {
        if (comparison.state == Comparison::New) {
            ids.append(comparison.source->id);
            materials.append(comparison.source);
        }
    }
    if (ids.isEmpty()) {
        return;
    }
    if (source.isLibrary && source.library.type != options.library.type) {
        DataManager::MaterialLibraryManager::getInstance()->importMaterial(source.library.type, ids);
        return;
    }
    for (const Material& material : qAsConst(materials)) {
        createMaterial(options.library, *material);
    }
}

void updateChanged(const Options& options, const QList<Comparison>& comparisons)
{
    for (const Comparison& comparison : comparisons) {
        if (options.isUpdating && comparison.state == Comparison::Changed) {
            updateMaterial(options.library, comparison.target->id, *comparison.source);
        }
    }
}

void report(const Options& options, const QList<Comparison>& comparisons)
{
    QJsonArray list;
    for (const Comparison& comparison : comparisons) {
        const DataModel::MaterialData& source = *comparison.source;
        list.append(QJsonObject{{QStringLiteral("state"), comparison.word().english},
                                {QStringLiteral("id"), source.id},
                                {QStringLiteral("englishName"), source.englishName},
                                {QStringLiteral("chineseName"), source.chineseName}});
        if (!options.isJson) {
            Console::print(QStringLiteral("%1  %2  %3\n")
                               .arg(Console::leftJustified(comparison.word().translated, 7))
                               .arg(source.englishName, -26)
                               .arg(source.chineseName));
        }
    }
    if (options.isJson) {
        const QJsonObject root = {{QStringLiteral("library"), options.library.text()},
                                  {QStringLiteral("isDryRun"), options.isDryRun},
                                  {QStringLiteral("materials"), list}};
        Console::print(QString::fromUtf8(QJsonDocument(root).toJson()));
    }
}

ExitCode copy(const Options& options, const Source& source, const QList<Comparison>& comparisons)
{
    takeLibraryLog();
    copyNew(options, source, comparisons);
    updateChanged(options, comparisons);
    const QStringList failures = takeLibraryLog();
    for (const QString& failure : failures) {
        Console::printError(failure);
    }
    return failures.isEmpty() ? Success : UnreadableInput;
}

} // namespace

ExitCode runImport(const Options& options)
{
    if (options.operands.isEmpty()) {
        Console::printUsageError(QCoreApplication::translate("materials", "import takes a library or a file"));
        return UsageError;
    }
    const Source source = readSource(options);
    const QString fault = source.fault.isEmpty() ? openLibrary(options.library, options.isPlain, true) : source.fault;
    if (!fault.isEmpty()) {
        Console::printError(fault);
        return UnreadableInput;
    }
    QString missing;
    const QList<Comparison> comparisons =
        chosen(compareMaterials(source.materials, materialsOf(options.library)), options.operands.mid(1), missing);
    if (!missing.isEmpty()) {
        Console::printError(
            QCoreApplication::translate("materials", "%1 has no material '%2'").arg(options.operands.first(), missing));
        return CheckFailed;
    }
    report(options, comparisons);
    return options.isDryRun ? Success : copy(options, source, comparisons);
}

} // namespace Materials
