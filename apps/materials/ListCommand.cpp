// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/ListCommand.h>

#include <console/Columns.h>
#include <console/Console.h>
#include <materials/Library.h>
#include <materials/MaterialJson.h>
#include <materials/MaterialMembers.h>
#include <materials/NumberText.h>
#include <materials/Options.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace Materials {

namespace {

QString labelsOf(const DataModel::MaterialData& material)
{
    QStringList labels;
    for (const auto member : propertyMembers) {
        if (!(material.*member).isNull()) {
            labels.append((material.*member)->label);
        }
    }
    return labels.isEmpty() ? QStringLiteral("no properties") : labels.join(QLatin1String(", "));
}

QString lineOf(const DataModel::MaterialData& material)
{
    // The Chinese name stands behind the columns: its letters are wider than one.
    return QStringLiteral("%1  %2  %3  %4\n")
        .arg(material.id, 5)
        .arg(Console::leftJustified(material.isDeleted ? QCoreApplication::translate("materials", "deleted")
                                                       : QCoreApplication::translate("materials", "live"),
                                    7))
        .arg(material.englishName, -26)
        .arg(material.chineseName);
}

QString valuesOf(const QList<double>& components)
{
    QString text;
    for (int i = 0; i < components.size(); ++i) {
        text += shortestText(components.at(i));
        text += i % 3 == 2 && i + 1 < components.size() ? QStringLiteral(" | ") : QStringLiteral(" ");
    }
    return text.trimmed();
}

void printMaterial(const DataModel::MaterialData& material)
{
    Console::print(QStringLiteral("%1  %2  %3\n").arg(material.id).arg(material.englishName, material.chineseName));
    for (const auto member : propertyMembers) {
        const auto& property = material.*member;
        if (!property.isNull()) {
            Console::print(QCoreApplication::translate("materials", "  %1 (kind %2, flag %3)\n      %4\n      %5\n")
                               .arg(property->label)
                               .arg(property->kind)
                               .arg(property->flag ? 1 : 0)
                               .arg(valuesOf(property->components), property->remark));
        }
    }
}

void printJson(const QJsonObject& object)
{
    Console::print(QString::fromUtf8(QJsonDocument(object).toJson()));
}

} // namespace

ExitCode runList(const Options& options)
{
    const QString fault = openLibrary(options.library, options.isPlain, false);
    if (!fault.isEmpty()) {
        Console::printError(fault);
        return UnreadableInput;
    }
    QJsonArray list;
    for (const Material& material : materialsOf(options.library)) {
        if (options.isJson) {
            list.append(QJsonObject{{QStringLiteral("id"), material->id},
                                    {QStringLiteral("englishName"), material->englishName},
                                    {QStringLiteral("chineseName"), material->chineseName},
                                    {QStringLiteral("isDeleted"), material->isDeleted},
                                    {QStringLiteral("properties"), labelsOf(*material)}});
        } else {
            Console::print(lineOf(*material));
        }
    }
    if (options.isJson) {
        printJson({{QStringLiteral("library"), options.library.text()}, {QStringLiteral("materials"), list}});
    }
    return Success;
}

ExitCode runShow(const Options& options)
{
    if (options.operands.size() != 1) {
        Console::printUsageError(QCoreApplication::translate("materials", "show takes one identifier or name"));
        return UsageError;
    }
    const QString fault = openLibrary(options.library, options.isPlain, false);
    if (!fault.isEmpty()) {
        Console::printError(fault);
        return UnreadableInput;
    }
    const Material material = findMaterial(materialsOf(options.library), options.operands.first());
    if (material.isNull()) {
        Console::printError(QCoreApplication::translate("materials", "the %1 library has no material '%2'")
                                .arg(options.library.text(), options.operands.first()));
        return CheckFailed;
    }
    if (options.isJson) {
        printJson(materialJson(*material));
    } else {
        printMaterial(*material);
    }
    return Success;
}

} // namespace Materials
