// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ScoreHistory.h>

#include <workbench/mesh/MeshManager.h>

#include <basemodule/IBaseSignal.h>
#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <exception>

using BaseModule::IBaseSignal;
using DataManager::MeshQualityPredict;
using DataManager::QualityModelCard;

namespace Workbench {
namespace {

constexpr int historyLength = 10;
// The predictor takes a mesh above this similarity as the one that it scored last.
constexpr double unchangedSimilarity = 0.9999999;

QString besideProgram(const QString& path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + path);
}

bool isSame(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

} // namespace

ScoreHistory* ScoreHistory::instance()
{
    static auto* const history = new ScoreHistory;
    return history;
}

ScoreHistory::ScoreHistory() : m_scores(MeshQualityPredict::getinstance()->getOutput())
{
    connect(MeshManager::instance(), &MeshManager::signal_loadFinished, this, &ScoreHistory::scoreMesh);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &ScoreHistory::forgetMesh);
}

QString ScoreHistory::meshPath()
{
    return besideProgram(QStringLiteral("/../temp/mesh.msh"));
}

QString ScoreHistory::modelPath()
{
    return besideProgram(QStringLiteral("/../mesher/mesh.onnx"));
}

void ScoreHistory::forgetMesh()
{
    if (m_outcome != Outcome::None && !MeshManager::instance()->mesh(m_kernelID)) {
        m_outcome = Outcome::None;
        Q_EMIT signal_changed();
    }
}

void ScoreHistory::scoreMesh(int kernelID)
{
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(kernelID);
    if (!mesh) {
        return;
    }
    m_kernelID = kernelID;
    m_meshName = MeshManager::instance()->getKernelName(kernelID);
    m_means = mesh->report.features();
    // Without the file the predictor would score zeros.
    m_outcome = QFileInfo(meshPath()).isFile() ? predict(m_meshName) : Outcome::NoMeshFile;
    m_scores = MeshQualityPredict::getinstance()->getOutput();
    const QString problem = problemText();
    if (!problem.isEmpty()) {
        Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(2, problem);
    }
    Q_EMIT signal_changed();
}

// The predictor loads a model once a process and keeps it, so the card that was read with it stays the right one, and
// one that breaks the contract is not given to it: the file can be put right while the program runs.
bool ScoreHistory::readCard()
{
    if (m_isModelLoaded) {
        return true;
    }
    m_card.read(modelPath());
    m_modelProblem = m_card.problemText() + m_card.violations().join(QStringLiteral("; "));
    return m_modelProblem.isEmpty();
}

// The predictor reads a file that others may write, too. What the model says of our own measures shows whether the
// score that entered the history was ours.
ScoreHistory::Outcome ScoreHistory::predict(const QString& name)
{
    MeshQualityPredict* predictor = MeshQualityPredict::getinstance();
    if (!readCard()) {
        return Outcome::NoModel;
    }
    const bool isUnchanged = predictor->cosDistance(m_means.data(), m_scoredMeans.data()) > unchangedSimilarity;
    try {
        predictor->predict();
        m_isModelLoaded = true;
        if (!isUnchanged) {
            enter(name);
        }
        m_score = predictor->inferFigure(m_means.data());
    } catch (const std::exception& error) {
        m_modelProblem = QString::fromUtf8(error.what());
        return Outcome::NoModel;
    }
    if (isUnchanged) {
        return Outcome::Unchanged;
    }
    return isSame(predictor->getOutput().back(), m_score) ? Outcome::Scored : Outcome::OtherMesh;
}

void ScoreHistory::enter(const QString& name)
{
    m_names.append(name);
    m_names = m_names.mid(std::max(0, m_names.size() - historyLength));
    m_scoredMeans = m_means;
}

QString ScoreHistory::problemText() const
{
    switch (m_outcome) {
    case Outcome::NoMeshFile:
        return tr("The mesh has no score: it could not be copied to %1, where the predictor reads.")
            .arg(QDir::toNativeSeparators(meshPath()));
    case Outcome::OtherMesh:
        return tr("The last score is not that of this mesh: it could not be copied to %1, where the predictor reads, "
                  "or another program has written there.")
            .arg(QDir::toNativeSeparators(meshPath()));
    case Outcome::NoModel:
        return tr("The mesh has no score: the quality model %1 cannot be used: %2")
            .arg(QDir::toNativeSeparators(modelPath()), m_modelProblem);
    default:
        return {};
    }
}

} // namespace Workbench
