// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ReportCommand.h>

#include <console/Console.h>
#include <meshquality/CsvReport.h>
#include <meshquality/HtmlReport.h>
#include <meshquality/JsonReport.h>
#include <meshquality/JsonWriter.h>
#include <meshquality/MeshInput.h>
#include <meshquality/ModelScore.h>
#include <meshquality/ProblemText.h>
#include <meshquality/ReportOptions.h>
#include <meshquality/ScoredMesh.h>
#include <meshquality/TextDetails.h>
#include <meshquality/TextReport.h>
#include <meshquality/VtuReport.h>

#include <basemodule/GlobalHelper.h>

#include <QCoreApplication>

namespace MeshQuality {

namespace {

/// One run over all meshes.
class Reporter
{
public:
    explicit Reporter(const ReportOptions& options) : m_options(options), m_csv(options.csvFile), m_html(options) {}

    ExitCode run()
    {
        m_isModelLoaded = m_model.load(m_options.model);
        if (!m_isModelLoaded) {
            m_exitCode = modelTrouble();
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
        QString problem;
        ExitCode exitCode = measureMesh(mesh, problem);
        if (exitCode != Success) {
            return tellProblem(file, problem, exitCode);
        }
        exitCode = score(mesh);
        if (!m_options.jsonFile.isEmpty()) {
            writeJson(mesh, m_options, m_json);
        }
        print(mesh);
        m_csv.write(mesh);
        m_html.write(mesh);
        const bool isVtuWritten = m_options.vtuFile.isEmpty() || writeVtu(mesh, m_options.vtuFile);
        return isVtuWritten ? exitCode : qMax(exitCode, UsageError);
    }

    /// A mesh without a score is reported all the same.
    ExitCode score(ScoredMesh& mesh)
    {
        mesh.model = m_isModelLoaded ? &m_model.card() : nullptr;
        mesh.isScored = m_isModelLoaded && m_model.score(mesh.report.features(), mesh.score);
        return m_isModelLoaded && !mesh.isScored ? modelTrouble() : Success;
    }

    ExitCode tellProblem(const QString& file, const QString& problem, ExitCode exitCode)
    {
        Console::printError(file, translated(problem));
        if (m_options.jsonLines) {
            JsonWriter line(JsonWriter::Layout::OneLine);
            writeJsonProblem(file, problem, line);
            Console::print(QString::fromUtf8(line.text()));
        }
        return exitCode;
    }

    void print(const ScoredMesh& mesh)
    {
        if (m_options.jsonLines) {
            JsonWriter line(JsonWriter::Layout::OneLine);
            writeJson(mesh, m_options, line);
            Console::print(QString::fromUtf8(line.text()));
        } else if (m_options.jsonFile != QLatin1String("-")) {
            Console::print(textReport(mesh) + textDetails(mesh.report, m_options));
        }
    }

    ExitCode modelTrouble()
    {
        Console::printError(m_options.model, translated(m_model.errorText()));
        return ModelTrouble;
    }

    ExitCode writeFiles()
    {
        const bool isCsvWritten = m_csv.commit();
        const bool isHtmlWritten = m_html.commit();
        return writeJsonFile() && isCsvWritten && isHtmlWritten ? Success : UsageError;
    }

    bool writeJsonFile()
    {
        if (m_options.jsonFile == QLatin1String("-")) {
            Console::print(QString::fromUtf8(m_json.text()));
        } else if (!m_options.jsonFile.isEmpty() &&
                   !BaseModule::GlobalHelper::writeFile(m_options.jsonFile, m_json.text(),
                                                        QIODevice::WriteOnly | QIODevice::Truncate)) {
            Console::printError(m_options.jsonFile, QCoreApplication::translate("meshquality", "cannot be written"));
            return false;
        }
        return true;
    }

    const ReportOptions& m_options;
    ModelScore m_model;
    bool m_isModelLoaded = false;
    JsonWriter m_json;
    CsvReport m_csv;
    HtmlReport m_html;
    ExitCode m_exitCode = Success;
};

} // namespace

ExitCode runReport(const QStringList& arguments)
{
    ReportOptions options;
    return readReportOptions(arguments, options) ? Reporter(options).run() : UsageError;
}

} // namespace MeshQuality
