// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "MeshFiles.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <onnxruntime_cxx_api.h>

#include <QCoreApplication>
#include <QFile>
#include <QtTest>

using History = std::vector<float>;

/// The application's files round a test of the predictor, as they are before anything was predicted.
class PredictionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // As in a new process.
        delete DataManager::MeshQualityPredict::s_session;
        DataManager::MeshQualityPredict::s_session = nullptr;
        QFile::remove(directory() + QStringLiteral("mesher/mesh.onnx"));
        QFile::remove(directory() + QStringLiteral("temp/mesh.msh"));
    }

protected:
    static QString directory() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../"); }
    static QString fixture(const char* name)
    {
        return QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/models/%1.onnx")
            .arg(QString::fromLatin1(name));
    }
    static void installModel(const char* name)
    {
        QFile::remove(directory() + QStringLiteral("mesher/mesh.onnx"));
        QVERIFY(QFile::copy(fixture(name), directory() + QStringLiteral("mesher/mesh.onnx")));
    }
    static void installMesh(const QVector<QVector<double>>& corners)
    {
        MeshFiles::write(directory() + QStringLiteral("temp/mesh.msh"), MeshFiles::oneTetrahedron(corners));
    }
    /// A right corner with legs of this length: volume edge^3 / 6.
    static QVector<QVector<double>> corner(double edge)
    {
        return {{0, 0, 0}, {edge, 0, 0}, {0, edge, 0}, {0, 0, edge}};
    }
    static History endingWith(const History& scores)
    {
        History history(10 - scores.size(), 0.0F);
        history.insert(history.end(), scores.begin(), scores.end());
        return history;
    }
};
