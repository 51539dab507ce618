// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ReportCommand.h>

#include <meshquality/Console.h>
#include <meshquality/CsvReport.h>
#include <meshquality/JsonReport.h>
#include <meshquality/JsonWriter.h>
#include <meshquality/ModelScore.h>
#include <meshquality/ReportOptions.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/TextDetails.h>
#include <meshquality/TextReport.h>

#include <basemodule/GlobalHelper.h>

namespace MeshQuality {

namespace {

/// One run over all meshes.
class Reporter
{
public:
    explicit Reporter(const ReportOptions& options) : m_options(options), m_csv(options.csvFile) {}

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
        return qMax(m_exitCode, writeFiles());
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
        if (!m_options.jsonFile.isEmpty()) {
            writeJson(mesh, m_options, m_json);
        }
        if (m_options.jsonFile != QLatin1String("-")) {
            Console::print(textReport(mesh) + textDetails(mesh.report, m_options));
        }
        m_csv.write(mesh);
        return Success;
    }

    ExitCode modelTrouble()
    {
        Console::printError(m_options.model, m_model.errorText());
        return ModelTrouble;
    }

    ExitCode writeFiles()
    {
        const bool isCsvWritten = m_csv.commit();
        if (!isCsvWritten) {
            Console::printError(m_options.csvFile, QStringLiteral("cannot be written"));
        }
        return writeJsonFile() && isCsvWritten ? Success : UsageError;
    }

    bool writeJsonFile()
    {
        if (m_options.jsonFile == QLatin1String("-")) {
            Console::print(QString::fromUtf8(m_json.text()));
        } else if (!m_options.jsonFile.isEmpty() &&
                   !BaseModule::GlobalHelper::writeFile(m_options.jsonFile, m_json.text(),
                                                        QIODevice::WriteOnly | QIODevice::Truncate)) {
            Console::printError(m_options.jsonFile, QStringLiteral("cannot be written"));
            return false;
        }
        return true;
    }

    const ReportOptions& m_options;
    ModelScore m_model;
    JsonWriter m_json;
    CsvReport m_csv;
    ExitCode m_exitCode = Success;
};

} // namespace

ExitCode runReport(const QStringList& arguments)
{
    ReportOptions options;
    return readReportOptions(arguments, options) ? Reporter(options).run() : UsageError;
}

} // namespace MeshQuality
