// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace {

ProgramRun finish(QProcess& process, const QString& program, const QStringList& arguments)
{
    process.start(program.isEmpty() ? QStringLiteral(MESHQUALITY_PROGRAM) : program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

ProgramRun runMeshQuality(const QStringList& arguments, const QString& program)
{
    QProcess process;
    return finish(process, program, arguments);
}

ProgramRun runMeshQualityInto(const QString& output, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(output);
    return finish(process, QString(), arguments);
}

QJsonObject onlyObject(const QByteArray& json)
{
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    return array.size() == 1 ? array.first().toObject() : QJsonObject();
}

QString ScratchFiles::path(const char* name) const
{
    return m_directory.filePath(QString::fromUtf8(name));
}

QString ScratchFiles::file(const char* name, const QByteArray& content) const
{
    MeshFiles::write(path(name), content);
    return path(name);
}

QString ScratchFiles::model(const char* name)
{
    return QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/models/%1.onnx").arg(QString::fromLatin1(name));
}
