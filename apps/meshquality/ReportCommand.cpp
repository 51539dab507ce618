// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ReportCommand.h>

#include <meshquality/Console.h>
#include <meshquality/JsonReport.h>
#include <meshquality/JsonWriter.h>
#include <meshquality/ModelScore.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/TextReport.h>

#include <basemodule/GlobalHelper.h>

#include <QCommandLineParser>

namespace MeshQuality {

namespace {

struct ReportOptions
{
    QString model = ModelScore::defaultModel();
    /// Empty: no JSON. "-": standard output, in place of the table.
    QString jsonFile;
    QStringList meshes;
};

bool parse(const QStringList& arguments, ReportOptions& options)
{
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("json"), QString(), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("model"), QString(), QStringLiteral("FILE")});
    if (!parser.parse(arguments)) {
        Console::printUsageError(parser.errorText());
        return false;
    }
    options.meshes = parser.positionalArguments();
    options.jsonFile = parser.value(QStringLiteral("json"));
    if (parser.isSet(QStringLiteral("model"))) {
        options.model = parser.value(QStringLiteral("model"));
    }
    const bool lacksName = parser.isSet(QStringLiteral("json")) && options.jsonFile.isEmpty();
    if (options.meshes.isEmpty() || lacksName) {
        Console::printUsageError(lacksName ? QStringLiteral("--json needs a file")
                                           : QStringLiteral("no mesh is given"));
        return false;
    }
    return true;
}

/// One run over all meshes.
class Reporter
{
public:
    explicit Reporter(const ReportOptions& options) : m_options(options) {}

    ExitCode run()
    {
        if (!m_model.load(m_options.model)) {
            return modelTrouble();
        }
        m_json.beginArray();
        for (const QString& file : m_options.meshes) {
            m_exitCode = qMax(m_exitCode, reportOn(file));
        }
        m_json.endArray();
        return qMax(m_exitCode, writeJsonFile());
    }

private:
    ExitCode reportOn(const QString& file)
    {
        ScoredMesh mesh;
        mesh.file = file;
        if (!mesh.report.measure(file)) {
            Console::printError(file, mesh.report.problemText());
            return UnreadableInput;
        }
        if (!m_model.score(mesh.report.features(), mesh.score)) {
            return modelTrouble();
        }
        writeJson(mesh, m_json);
        if (m_options.jsonFile != QLatin1String("-")) {
            Console::print(textReport(mesh));
        }
        return Success;
    }

    ExitCode modelTrouble()
    {
        Console::printError(m_options.model, m_model.errorText());
        return ModelTrouble;
    }

    ExitCode writeJsonFile()
    {
        if (m_options.jsonFile == QLatin1String("-")) {
            Console::print(QString::fromUtf8(m_json.text()));
        } else if (!m_options.jsonFile.isEmpty() &&
                   !BaseModule::GlobalHelper::writeFile(m_options.jsonFile, m_json.text(),
                                                        QIODevice::WriteOnly | QIODevice::Truncate)) {
            Console::printError(m_options.jsonFile, QStringLiteral("cannot be written"));
            return UsageError;
        }
        return Success;
    }

    const ReportOptions& m_options;
    ModelScore m_model;
    JsonWriter m_json;
    ExitCode m_exitCode = Success;
};

} // namespace

ExitCode runReport(const QStringList& arguments)
{
    ReportOptions options;
    return parse(arguments, options) ? Reporter(options).run() : UsageError;
}

} // namespace MeshQuality
