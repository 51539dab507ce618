// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ModelCommand.h>

#include <console/Console.h>
#include <meshquality/JsonReport.h>
#include <meshquality/JsonWriter.h>
#include <meshquality/ModelCardReport.h>
#include <meshquality/ModelScore.h>
#include <meshquality/ProblemText.h>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace MeshQuality {

using DataManager::QualityModelCard;

namespace {

const QString json = QStringLiteral("json");

ExitCode judge(const QString& file, bool isJson)
{
    QualityModelCard card;
    const bool isRead = card.read(file);
    if (!isRead) {
        Console::printError(file, translated(card.problemText()));
    }
    if (isJson) {
        JsonWriter writer;
        if (isRead) {
            writeJson(file, card, writer);
        } else {
            writeJsonProblem(file, card.problemText(), writer);
        }
        Console::print(QString::fromUtf8(writer.text()));
    } else if (isRead) {
        Console::print(modelCardText(file, card));
    }
    return !isRead ? UnreadableInput : card.violations().isEmpty() ? Success : CheckFailed;
}

} // namespace

ExitCode runModel(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(json));
    const bool isParsed = parser.parse(arguments);
    const QStringList files = parser.positionalArguments();
    if (!isParsed || files.size() > 1) {
        Console::printUsageError(isParsed ? QCoreApplication::translate("meshquality", "model takes one file")
                                          : parser.errorText());
        return UsageError;
    }
    return judge(files.isEmpty() ? ModelScore::defaultModel() : files.first(), parser.isSet(json));
}

} // namespace MeshQuality
