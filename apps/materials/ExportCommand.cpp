// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/ExportCommand.h>

#include <console/Console.h>
#include <materials/Library.h>
#include <materials/MaterialCsv.h>
#include <materials/MaterialJson.h>
#include <materials/Options.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>

namespace Materials {

namespace {

bool isJsonWanted(const Options& options)
{
    const bool isNamedJson = options.format.isEmpty() && options.output.endsWith(QLatin1String(".json"));
    return options.isJson || options.format == QLatin1String("json") || isNamedJson;
}

QList<Material> liveMaterials(const Options& options)
{
    QList<Material> live;
    for (const Material& material : materialsOf(options.library)) {
        if (!material->isDeleted) {
            live.append(material);
        }
    }
    return live;
}

} // namespace

ExitCode runExport(const Options& options)
{
    QString fault = openLibrary(options.library, options.isPlain, false);
    if (!fault.isEmpty()) {
        Console::printError(fault);
        return UnreadableInput;
    }
    const QList<Material> materials = liveMaterials(options);
    const QByteArray bytes =
        isJsonWanted(options) ? libraryJson(materials) : writeMaterialCsv(materials, fault).toUtf8();
    if (!fault.isEmpty()) {
        Console::printError(fault);
        return CheckFailed;
    }
    if (options.output.isEmpty()) {
        Console::print(QString::fromUtf8(bytes));
    } else if (!BaseModule::GlobalHelper::writeFile(options.output, bytes,
                                                    QIODevice::WriteOnly | QIODevice::Truncate)) {
        Console::printError(QCoreApplication::translate("materials", "%1: cannot be written").arg(options.output));
        return UnreadableInput;
    }
    return Success;
}

} // namespace Materials
