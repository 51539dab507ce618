// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QMap>
#include <QStringList>

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
    /// The number of metrics.
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
        /// The progress callback returned false.
        Cancelled
    };

    /// Why a line was passed over.
    enum class SkipReason : int
    {
        /// A node line with fewer than four columns; the nodes after it move up by one.
        ShortNode,
        /// A tetrahedron with fewer than nine columns. A line that ends with its type is no tetrahedron's: the line end
        /// belongs to its last column, which then is not exactly "4".
        ShortTetrahedron,
        /// A tetrahedron naming a node that the file does not hold.
        MissingNode
    };

    /// The number of reasons.
    static constexpr int skipReasonCount = 3;
    /// The reason for people, in English.
    static QString skipReasonText(SkipReason reason);

    /// A line that was passed over.
    struct SkippedLine
    {
        /// From 1.
        qint64 line;
        /// Why.
        SkipReason reason;
    };
    /// How many skipped lines are kept with their places.
    static constexpr int skippedLinesKept = 1000;

    /// Lines of one kind.
    struct Places
    {
        /// How many there are.
        qint64 count = 0;
        /// From 1; 0 without lines.
        qint64 firstLine = 0;
    };

    /// How the finite values of a metric are spread. Percentiles lie between the two nearest values in proportion; the
    /// standard deviation is that of the whole, with the count as divisor. All but `nonFinite` are NaN without values.
    struct Summary
    {
        double minimum;           ///< smallest value
        double percentile1;       ///< 1st percentile
        double percentile5;       ///< 5th percentile
        double median;            ///< 50th percentile
        double percentile95;      ///< 95th percentile
        double percentile99;      ///< 99th percentile
        double maximum;           ///< largest value
        double mean;              ///< arithmetic mean
        double standardDeviation; ///< root mean square distance from the mean
        /// Elements whose value is infinite or no number; they count nowhere else.
        int nonFinite;
    };

    /// Finite values by size, in bins of equal width from `lower` to `upper`; the last bin holds `upper`.
    struct Histogram
    {
        double lower;            ///< the smallest finite value, where the first bin begins
        double upper;            ///< the largest finite value, where the last bin ends
        std::vector<int> counts; ///< elements in each bin
    };

    /// The elements of one physical group.
    struct Region
    {
        /// The number of the group.
        int physicalTag;
        /// Empty when the file does not name the group.
        QString name;
        int elementCount;       ///< tetrahedra of the group
        int invertedCount;      ///< those with a negative volume
        int flatCount;          ///< those with a volume of zero
        int duplicateNodeCount; ///< those that name a node twice
        /// By metric.
        std::array<Summary, metricCount> summaries;
        /// In the order of the file.
        std::vector<int> elements;
    };

    /// Told how many of how many bytes are read, now and then; false cancels.
    using Progress = std::function<bool(qint64 read, qint64 size)>;

    /// Measures the mesh in a file, in place of what was measured before. True on success; otherwise problem() tells
    /// why not, and there are no elements.
    bool measure(const QString& path, const Progress& progress = {});

    /// Why the last measurement failed; None after a success and before the first one.
    Problem problem() const { return m_problem; }
    /// What is wrong, for people, in English; empty when nothing is.
    QString problemText() const { return m_problemText; }
    /// The format of a file of another one in words, such as "MSH 4.1 binary"; empty when that is not the problem.
    QString otherFormat() const { return m_otherFormat; }

    /// Node lines read.
    qint64 nodeCount() const { return static_cast<qint64>(m_nodes.size()); }
    /// Tetrahedra measured. Their places in all lists below are those in the file.
    int elementCount() const { return static_cast<int>(m_tags.size()); }
    /// Tetrahedra with a negative volume.
    int invertedCount() const { return m_invertedCount; }
    /// Tetrahedra with a volume of zero.
    int flatCount() const { return m_flatCount; }
    /// Tetrahedra that name a node twice. They hold no volume, but not all are counted as flat: where the products of
    /// their edges are rounded, what is left of the volume may have either sign.
    int duplicateNodeCount() const { return m_duplicateNodeCount; }
    /// How many lines were passed over. Known also when there are no tetrahedra.
    qint64 skippedLineCount() const;
    /// How many lines were passed over for this reason.
    qint64 skippedLineCount(SkipReason reason) const { return m_skipCounts[static_cast<std::size_t>(reason)]; }
    /// The first skippedLinesKept of them, in file order.
    const std::vector<SkippedLine>& skippedLines() const { return m_skippedLines; }

    /// Node lines whose number is not their place among the node lines read, from 1. The corners of elements are found
    /// by place all the same, as MeshQualityPredict finds them, so the measures may be those of other elements.
    Places misnumberedNodes() const { return m_misnumberedNodes; }
    /// Tetrahedra whose third column, the number of tags, is not 2, skipped ones included. They are read as if it were.
    Places otherTagCounts() const { return m_otherTagCounts; }
    /// What makes the measures of the mesh at `path` doubtful, and what to do about it, for people, in English; nothing
    /// as a rule. Known also when there are no tetrahedra.
    QStringList warnings(const QString& path) const;

    /// The means over all elements, as the quality model takes them: bit for bit those of MeshQualityPredict::getInput.
    const std::array<float, metricCount>& features() const { return m_features; }

    /// The metric's value of every element.
    const std::vector<double>& values(Metric metric) const { return m_values[static_cast<std::size_t>(metric)]; }
    // `element` is a place from 0 to elementCount() - 1, which is not checked.

    /// The element's number in the file.
    int tag(int element) const { return m_tags[static_cast<std::size_t>(element)]; }
    /// The element's physical group.
    int physicalTag(int element) const { return m_physicalTags[static_cast<std::size_t>(element)]; }
    /// The element's line in the file, from 1.
    qint64 line(int element) const { return m_lines[static_cast<std::size_t>(element)]; }
    /// The places of the element's corners among the node lines read, from 0.
    const std::array<int, 4>& corners(int element) const { return m_corners[static_cast<std::size_t>(element)]; }
    /// Where a node lies: x, y, z in the unit of the file. `place` is from 0 to nodeCount() - 1, which is not checked.
    const std::array<double, 3>& node(qint64 place) const { return m_nodes[static_cast<std::size_t>(place)]; }
    /// Centre of the element's corners: x, y, z in the unit of the file.
    std::array<double, 3> centroid(int element) const { return m_centroids[static_cast<std::size_t>(element)]; }
    /// How the values of a metric are spread over all elements.
    Summary summary(Metric metric) const;
    /// `bins` is at least 1. Empty counts where there is no finite value.
    Histogram histogram(Metric metric, int bins) const;
    /// The same of the elements of one physical group.
    Histogram histogram(Metric metric, int bins, const Region& region) const;
    /// The `count` worst elements by a metric, the worst first, of equals the first in the file. Worse than every
    /// number is no number, then an infinite value; of inverted elements, whose sign may be turned round, all are worse
    /// than those that are not.
    std::vector<int> worst(Metric metric, int count) const;
    /// The same of the elements of one physical group.
    std::vector<int> worst(Metric metric, int count, const Region& region) const;
    /// The physical groups that hold tetrahedra, by tag.
    std::vector<Region> regions() const;

    /// Names of the volume groups that the file names, by physical tag.
    const QMap<int, QString>& groupNames() const { return m_groupNames; }

private:
    class Scan;

    bool measureFile(const QString& path, const Progress& progress);
    bool fail(Problem problem, const QString& text);
    QString noTetrahedraText() const;
    void takeDoubts(const Scan& scan);
    void take(Scan& scan);
    void takeGeometry(Scan& scan);
    void measureElements(const Scan& scan);
    std::vector<double> valuesOf(Metric metric, const std::vector<int>& elements) const;
    std::vector<int> worstOf(std::vector<int> elements, Metric metric, int count) const;
    Region region(int physicalTag, std::vector<int> elements) const;

    Problem m_problem = Problem::None;
    QString m_problemText;
    QString m_otherFormat;
    int m_invertedCount = 0;
    int m_flatCount = 0;
    int m_duplicateNodeCount = 0;
    std::array<qint64, skipReasonCount> m_skipCounts{};
    std::vector<SkippedLine> m_skippedLines;
    Places m_misnumberedNodes;
    Places m_otherTagCounts;
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
