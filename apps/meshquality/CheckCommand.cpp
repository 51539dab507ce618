// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/CheckCommand.h>

#include <console/Console.h>
#include <meshquality/Check.h>
#include <meshquality/MeshInput.h>
#include <meshquality/NumberText.h>
#include <meshquality/ScoredMesh.h>

#include <QCommandLineParser>
#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

const QString profileFile = QStringLiteral("profile");
const QString printProfile = QStringLiteral("print-profile");

QString remark(const Threshold& threshold, const Finding& finding)
{
    return verdictText(finding.verdict) + QLatin1Char(' ') +
           QCoreApplication::translate("meshquality", "%1 %2 elements (%3 %)")
               .arg(MeshQualityReport::metricName(threshold.metric), QString::number(finding.failing),
                    QString::fromLatin1(sixDigits(finding.percent)));
}

ExitCode checkMesh(const QString& file, const Profile& profile)
{
    ScoredMesh mesh;
    mesh.file = file;
    const ExitCode exitCode = measureMesh(mesh);
    if (exitCode != Success) {
        return exitCode;
    }
    Verdict worst = Verdict::Pass;
    QStringList remarks;
    for (const Threshold& threshold : profile.thresholds) {
        const Finding finding = check(mesh.report, threshold);
        worst = qMax(worst, finding.verdict);
        if (finding.verdict != Verdict::Pass) {
            remarks.append(remark(threshold, finding));
        }
    }
    const QString reasons = remarks.isEmpty() ? QString() : QStringLiteral(": ") + remarks.join(QStringLiteral(", "));
    Console::print(verdictText(worst) + QLatin1Char(' ') + file + reasons + QLatin1Char('\n'));
    return worst == Verdict::Fail ? CheckFailed : Success;
}

} // namespace

ExitCode runCheck(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOption({profileFile, QString(), QStringLiteral("FILE")});
    parser.addOption(QCommandLineOption(printProfile));
    if (!parser.parse(arguments)) {
        Console::printUsageError(parser.errorText());
        return UsageError;
    }
    if (parser.isSet(printProfile)) {
        Console::print(QString::fromUtf8(Profile::defaultText()));
        return Success;
    }
    const QString path = parser.value(profileFile);
    if ((path.isEmpty() && parser.isSet(profileFile)) || parser.positionalArguments().isEmpty()) {
        Console::printUsageError(parser.isSet(profileFile) && path.isEmpty()
                                     ? QCoreApplication::translate("meshquality", "--profile needs a file")
                                     : QCoreApplication::translate("meshquality", "no mesh is given"));
        return UsageError;
    }
    Profile profile;
    QString problem;
    const bool isRead = path.isEmpty() ? Profile::parse(Profile::defaultText(), profile, problem)
                                       : Profile::read(path, profile, problem);
    if (!isRead) {
        Console::printError(path, problem);
        return UnreadableInput;
    }
    ExitCode exitCode = Success;
    for (const QString& file : parser.positionalArguments()) {
        exitCode = qMax(exitCode, checkMesh(file, profile));
    }
    return exitCode;
}

} // namespace MeshQuality
