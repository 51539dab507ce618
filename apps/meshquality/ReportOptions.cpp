// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ReportOptions.h>

#include <console/Console.h>
#include <meshquality/ModelScore.h>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace MeshQuality {

using Metric = DataManager::MeshQualityReport::Metric;

namespace {

const QString json = QStringLiteral("json");
const QString model = QStringLiteral("model");
const QString csv = QStringLiteral("csv");
const QString vtu = QStringLiteral("vtu");
const QString html = QStringLiteral("html");
const QString jsonLines = QStringLiteral("jsonl");
const QString worst = QStringLiteral("worst");
const QString by = QStringLiteral("by");
const QString histogram = QStringLiteral("histogram");
const QString byRegion = QStringLiteral("by-region");

void addOptions(QCommandLineParser& parser)
{
    for (const QString& name : {json, model, csv, vtu, html, worst, by, histogram}) {
        parser.addOption({name, QString(), QStringLiteral("VALUE")});
    }
    parser.addOption(QCommandLineOption(byRegion));
    parser.addOption(QCommandLineOption(jsonLines));
}

/// What is wrong, or nothing.
QString readMetric(const QString& name, Metric& metric)
{
    return DataManager::MeshQualityReport::metricOfName(name, metric)
               ? QString()
               : QCoreApplication::translate("meshquality", "there is no metric '%1'").arg(name);
}

QString readNumbers(const QCommandLineParser& parser, ReportOptions& options)
{
    if (parser.isSet(worst)) {
        bool isNumber = false;
        options.worstCount = parser.value(worst).toInt(&isNumber);
        if (!isNumber || options.worstCount < 1) {
            return QCoreApplication::translate("meshquality", "--worst needs a number from 1");
        }
    }
    if (parser.isSet(by) && !parser.isSet(worst)) {
        return QCoreApplication::translate("meshquality", "--by goes with --worst");
    }
    QString problem = parser.isSet(by) ? readMetric(parser.value(by), options.worstBy) : QString();
    if (parser.isSet(histogram) && problem.isEmpty()) {
        Metric metric{};
        problem = readMetric(parser.value(histogram), metric);
        options.histogram = metric;
    }
    return problem;
}

QString readFiles(const QCommandLineParser& parser, ReportOptions& options)
{
    options.meshes = parser.positionalArguments();
    options.model = parser.isSet(model) ? parser.value(model) : ModelScore::defaultModel();
    options.jsonFile = parser.value(json);
    options.csvFile = parser.value(csv);
    options.vtuFile = parser.value(vtu);
    options.htmlFile = parser.value(html);
    options.jsonLines = parser.isSet(jsonLines);
    for (const QString& name : {json, csv, vtu, html, model}) {
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            return QCoreApplication::translate("meshquality", "--%1 needs a file").arg(name);
        }
    }
    if (parser.isSet(vtu) && options.meshes.size() > 1) {
        return QCoreApplication::translate("meshquality", "--vtu goes with one mesh");
    }
    if (options.jsonLines && options.jsonFile == QLatin1String("-")) {
        return QCoreApplication::translate("meshquality", "--jsonl and --json - both need standard output");
    }
    return options.meshes.isEmpty() ? QCoreApplication::translate("meshquality", "no mesh is given") : QString();
}

} // namespace

bool readReportOptions(const QStringList& arguments, ReportOptions& options)
{
    QCommandLineParser parser;
    addOptions(parser);
    QString problem = parser.parse(arguments) ? QString() : parser.errorText();
    if (problem.isEmpty()) {
        problem = readFiles(parser, options);
    }
    if (problem.isEmpty()) {
        problem = readNumbers(parser, options);
    }
    options.byRegion = parser.isSet(byRegion);
    if (!problem.isEmpty()) {
        Console::printUsageError(problem);
    }
    return problem.isEmpty();
}

} // namespace MeshQuality
