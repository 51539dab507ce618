// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/MeshManager.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

inline QString samplePath(const char* name)
{
    return QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/") + QString::fromLatin1(name);
}

/// Opens a mesh and waits until it is read; the kernel's identifier, 0 on failure.
inline int openMesh(const QString& path)
{
    Workbench::MeshManager* meshes = Workbench::MeshManager::instance();
    QSignalSpy finished(meshes, &Workbench::MeshManager::signal_loadFinished);
    meshes->openMesh(path);
    return finished.wait(60000) ? finished.last().at(0).toInt() : 0;
}

inline QString writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path : QString();
}

/// Collects what is told to the user.
class Messages : public QObject
{
public:
    Messages()
    {
        connect(
            BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_showMessageType, this,
            [this](int type, const QString& text) { list.append(QString::number(type) + QLatin1Char(' ') + text); });
    }

    QStringList list;
};
