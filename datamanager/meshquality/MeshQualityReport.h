// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QMap>
#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace DataManager {

/// Measures every tetrahedron of a mesh file in one pass and keeps the values element by element.
///
/// The metrics are those of MeshQualityPredict, computed by the same code. Reads MSH 2 ASCII. Uses nothing that is
/// shared, so it may run in any thread, one thread an object.
class DATAMANAGER_EXPORT MeshQualityReport
{
public:
    /// In the order in which the quality model takes their means.
    enum class Metric : int
    {
        Volume,
        EdgeRatio,
        AspectRatio,
        AspectGamma,
        Condition,
        Jacobian,
        RadiusRatio,
        RelativeSizeSquared,
        ScaledJacobian,
        Shape,
        ShapeAndSize
    };
    static constexpr int metricCount = 11;

    /// The metric's name as in the enumeration.
    static QString metricName(Metric metric);
    /// The metric of this name, in any case of letters; false when there is none.
    static bool metricOfName(const QString& name, Metric& metric);
    /// Whether a larger value of the metric is a worse one.
    static bool isWorseWhenLarger(Metric metric);

    /// Why there are no measures.
    enum class Problem : int
    {
        None,
        /// There is no such file.
        Missing,
        /// It is a directory, a pipe or a device.
        NotRegularFile,
        /// It cannot be opened.
        Unreadable,
        /// It is no MSH file of version 2 in ASCII.
        WrongFormat,
        /// It holds no tetrahedron that could be read.
        NoTetrahedra,
        Cancelled
    };

    enum class SkipReason : int
    {
        /// A node line with fewer than four columns; the nodes after it move up by one.
        ShortNode,
        /// A tetrahedron with fewer than nine columns.
        ShortTetrahedron,
        /// A tetrahedron naming a node that the file does not hold.
        MissingNode
    };

    struct SkippedLine
    {
        /// From 1.
        qint64 line;
        SkipReason reason;
    };

    /// How the finite values of a metric are spread. Percentiles lie between the two nearest values in proportion; the
    /// standard deviation is that of the whole, with the count as divisor. All but `nonFinite` are NaN without values.
    struct Summary
    {
        double minimum;
        double percentile1;
        double percentile5;
        double median;
        double percentile95;
        double percentile99;
        double maximum;
        double mean;
        double standardDeviation;
        /// Elements whose value is infinite or no number; they count nowhere else.
        int nonFinite;
    };

    /// Finite values by size, in bins of equal width from `lower` to `upper`; the last bin holds `upper`.
    struct Histogram
    {
        double lower;
        double upper;
        std::vector<int> counts;
    };

    /// The elements of one physical group.
    struct Region
    {
        int physicalTag;
        /// Empty when the file does not name the group.
        QString name;
        int elementCount;
        int invertedCount;
        int flatCount;
        /// By metric.
        std::array<Summary, metricCount> summaries;
    };

    /// Told how many of how many bytes are read, now and then; false cancels.
    using Progress = std::function<bool(qint64 read, qint64 size)>;

    /// Measures the mesh in a file, in place of what was measured before. True on success; otherwise problem() tells
    /// why not, and there are no elements.
    bool measure(const QString& path, const Progress& progress = {});

    Problem problem() const { return m_problem; }
    /// What is wrong, for people, in English; empty when nothing is.
    QString problemText() const { return m_problemText; }
    /// The format of a file of another one in words, such as "MSH 4.1 binary"; empty when that is not the problem.
    QString otherFormat() const { return m_otherFormat; }

    /// Node lines read.
    qint64 nodeCount() const { return static_cast<qint64>(m_nodes.size()); }
    /// Tetrahedra measured. Their places in all lists below are those in the file.
    int elementCount() const { return static_cast<int>(m_tags.size()); }
    /// Tetrahedra with a negative, and with a zero volume.
    int invertedCount() const { return m_invertedCount; }
    int flatCount() const { return m_flatCount; }
    /// Tetrahedra that name a node twice. They are flat, too.
    int duplicateNodeCount() const { return m_duplicateNodeCount; }
    /// The lines that were passed over, in file order.
    const std::vector<SkippedLine>& skippedLines() const { return m_skippedLines; }

    /// The means over all elements, as the quality model takes them: bit for bit those of MeshQualityPredict::getInput.
    const std::array<float, metricCount>& features() const { return m_features; }

    /// The metric's value of every element.
    const std::vector<double>& values(Metric metric) const { return m_values[static_cast<std::size_t>(metric)]; }
    /// The element's number in the file, its physical group, and its line.
    int tag(int element) const { return m_tags[static_cast<std::size_t>(element)]; }
    int physicalTag(int element) const { return m_physicalTags[static_cast<std::size_t>(element)]; }
    qint64 line(int element) const { return m_lines[static_cast<std::size_t>(element)]; }
    /// The places of the element's corners among the node lines read, from 0, and where a node lies.
    const std::array<int, 4>& corners(int element) const { return m_corners[static_cast<std::size_t>(element)]; }
    const std::array<double, 3>& node(qint64 place) const { return m_nodes[static_cast<std::size_t>(place)]; }
    /// Centre of the element's corners.
    std::array<double, 3> centroid(int element) const { return m_centroids[static_cast<std::size_t>(element)]; }
    Summary summary(Metric metric) const;
    /// `bins` is at least 1. Empty counts where there is no finite value.
    Histogram histogram(Metric metric, int bins) const;
    /// The `count` worst elements by a metric, the worst first, of equals the first in the file. Worse than every
    /// number is no number, then an infinite value; of inverted elements, whose sign may be turned round, all are worse
    /// than those that are not.
    std::vector<int> worst(Metric metric, int count) const;
    /// The physical groups that hold tetrahedra, by tag.
    std::vector<Region> regions() const;

    /// Names of the volume groups that the file names, by physical tag.
    const QMap<int, QString>& groupNames() const { return m_groupNames; }

private:
    class Scan;

    bool fail(Problem problem, const QString& text);
    void take(Scan& scan);
    void takeGeometry(Scan& scan);
    void measureElements(const Scan& scan);

    Problem m_problem = Problem::None;
    QString m_problemText;
    QString m_otherFormat;
    int m_invertedCount = 0;
    int m_flatCount = 0;
    int m_duplicateNodeCount = 0;
    std::vector<SkippedLine> m_skippedLines;
    std::array<float, metricCount> m_features{};
    std::array<std::vector<double>, metricCount> m_values;
    std::vector<int> m_tags;
    std::vector<int> m_physicalTags;
    std::vector<qint64> m_lines;
    std::vector<std::array<double, 3>> m_nodes;
    std::vector<std::array<int, 4>> m_corners;
    std::vector<std::array<double, 3>> m_centroids;
    QMap<int, QString> m_groupNames;
};

} // namespace DataManager
