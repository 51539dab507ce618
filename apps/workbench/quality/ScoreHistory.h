// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/QualityModelCard.h>

#include <QObject>
#include <QStringList>

#include <array>
#include <vector>

namespace Workbench {

/// Has each mesh scored once it was read, and keeps what the library's predictor said of it.
///
/// A mesh is scored in the thread of the user interface, because the predictor is used from one thread only. Two
/// million tetrahedra then hold the window up for about 0.3 s, once after seconds of reading.
class ScoreHistory : public QObject
{
    Q_OBJECT

public:
    /// What came of the mesh that was read last.
    enum class Outcome : int
    {
        /// There is no mesh.
        None,
        /// Its score entered the history.
        Scored,
        /// It is practically the one that was scored before, and the history stays as it was.
        Unchanged,
        /// There is no mesh where the predictor reads.
        NoMeshFile,
        /// Another mesh lies where the predictor reads; it was that one whose score entered the history.
        OtherMesh,
        /// The model cannot be used.
        NoModel
    };

    /// The history of the process, created by the first call and never destroyed.
    static ScoreHistory* instance();

    /// Those that the predictor keeps, ten, the oldest first. The last given() of them are scores, the others stand for
    /// none.
    std::vector<float> scores() const { return m_scores; }
    int given() const { return m_names.size(); }
    /// The names of the meshes that were given them, the oldest first.
    QStringList meshNames() const { return m_names; }

    Outcome outcome() const { return m_outcome; }
    /// The mesh that was read last. Of no meaning without one.
    QString meshName() const { return m_meshName; }
    /// The score of the mesh that was read last, in [0, 1] or NaN. Of no meaning without one.
    float score() const { return m_score; }
    /// The means of that mesh, which the model scores.
    const DataManager::QualityModelCard::Features& means() const { return m_means; }
    /// What the model says about itself.
    const DataManager::QualityModelCard& card() const { return m_card; }

    /// Why the mesh that was read last has no score, in the interface language; empty when it has one.
    QString problemText() const;

    static QString meshPath();
    static QString modelPath();

Q_SIGNALS:
    /// The history or the outcome changed.
    void signal_changed();

private:
    ScoreHistory();
    ~ScoreHistory() override = default;

    void scoreMesh(int kernelID);
    void forgetMesh();
    Outcome predict(const QString& name);
    void enter(const QString& name);
    bool readCard();

    std::vector<float> m_scores;
    QStringList m_names;
    Outcome m_outcome = Outcome::None;
    int m_kernelID = 0;
    QString m_meshName;
    float m_score = 0;
    DataManager::QualityModelCard::Features m_means{};
    /// Of the mesh that was scored last; the predictor compares with it.
    DataManager::QualityModelCard::Features m_scoredMeans{};
    DataManager::QualityModelCard m_card;
    bool m_isModelLoaded = false;
    QString m_modelProblem;
};

} // namespace Workbench
