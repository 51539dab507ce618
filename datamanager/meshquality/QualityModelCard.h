// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>
#include <datamanager/meshquality/MeshQualityReport.h>

#include <QMap>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace DataManager {

/// What an ONNX file says about itself as a quality model, and whether it can serve as one.
///
/// The contract: one input "onnx::Gemm_0", a tensor of float of shape [1, 11] or [any, 11], for the features in the
/// order of MeshQualityReport::Metric; an output "19", a tensor of float whose first element is the score, a number for
/// ordinary features. Other outputs do not matter.
///
/// The model that MeshQualityPredict has loaded is left alone. Texts for people are in English; those that come from
/// the file are as they stand there, and anybody may have written them. A file is run to be judged, without a limit of
/// time. Nothing is thrown. May be used in any thread, one thread an object.
class DATAMANAGER_EXPORT QualityModelCard
{
public:
    /// The names of the input and of the output in the graph.
    static constexpr const char* inputName = "onnx::Gemm_0";
    static constexpr const char* outputName = "19"; ///< Likewise.
    /// In the order of MeshQualityReport::Metric.
    using Features = std::array<float, MeshQualityReport::metricCount>;

    /// Why there is no card.
    enum class Problem : int
    {
        None, ///< There is a card.
        /// Nothing was read so far.
        NotRead,
        /// There is no such file.
        Missing,
        /// It is a directory, a pipe or a device.
        NotRegularFile,
        /// It cannot be opened.
        Unreadable,
        /// The model runtime does not take it as a model.
        NoModel
    };

    /// Bounds of a feature in the data that the model was trained on.
    struct Range
    {
        double lowest;  ///< Least value.
        double highest; ///< Greatest value.
    };

    /// A feature outside of its range.
    struct Excess
    {
        MeshQualityReport::Metric feature; ///< Which one.
        double value;                      ///< Its mean over the mesh.
        Range range;                       ///< What it was in training.
    };

    /// What the model gives, not clamped.
    struct Trial
    {
        /// For features as an ordinary mesh has them.
        float ordinary;
        /// For zeros, as without a mesh; 0 in a model that knows this case.
        float zeros;
        /// For features that all are NaN; NaN in a model that knows this case.
        float notANumber;
    };

    /// Reads and tries a file, in place of what was read before. True when it is a model, whether or not it meets the
    /// contract; otherwise problem() tells why not, and everything below is empty.
    bool read(const QString& path);

    /// Why there is no card.
    Problem problem() const { return m_problem; }
    /// What is wrong, in one line; empty when nothing is.
    QString problemText() const { return m_problemText; }

    /// Where the model departs from the contract, one line each: what was expected, and what was found.
    QStringList violations() const { return m_violations; }
    /// What is no violation and yet to be known, one line each: what the model makes of zeros and of NaN, scores
    /// outside of [0, 1], metadata that are missing or cannot be read.
    QStringList remarks() const { return m_remarks; }
    /// None where a violation is in the way.
    const std::optional<Trial>& trial() const { return m_trial; }

    /// What the file says about itself, by key.
    const QMap<QString, QString>& metadata() const { return m_metadata; }
    /// The keys that a complete card has, in the order in which people read them.
    static QStringList expectedKeys();
    /// `name` and `version` from the metadata; the file's name where there is no `name`. In one line.
    QString title() const;
    /// False when `featureOrder` in the metadata is another than that of MeshQualityReport::Metric: scores then mean
    /// nothing.
    bool takesOurFeatures() const { return m_takesOurFeatures; }

    /// The feature's range as `trainingRanges` in the metadata tells it; none where any value is right or nothing is
    /// known.
    std::optional<Range> trainingRange(MeshQualityReport::Metric feature) const;
    /// The features outside of their ranges, in their order. A NaN is nowhere; the sixth digit is not looked at,
    /// because ranges have no more.
    std::vector<Excess> outsideOfTraining(const Features& features) const;

    /// What a score in [0, 1] says, in a sentence: `explanation` from the metadata, with %1 for the score and %2 for
    /// 1 / score, both to three digits; where there is none, and for a score below 0.001, `meaning`. Empty for NaN and
    /// when the file says nothing. In one line.
    QString explanation(float score) const;

private:
    bool fail(Problem problem, const QString& text);
    void takeFeatureOrder();
    void takeTrainingRanges();
    void remarkOnTrial();
    void remarkOnMissingKeys();

    Problem m_problem = Problem::NotRead;
    QString m_problemText;
    QString m_fileName;
    QStringList m_violations;
    QStringList m_remarks;
    std::optional<Trial> m_trial;
    QMap<QString, QString> m_metadata;
    bool m_takesOurFeatures = true;
    std::array<std::optional<Range>, MeshQualityReport::metricCount> m_trainingRanges;
};

} // namespace DataManager
