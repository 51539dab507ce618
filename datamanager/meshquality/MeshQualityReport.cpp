// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityReport.h>

#include <datamanager/meshquality/private/FeatureSums.h>
#include <datamanager/meshquality/private/FieldCursor.h>
#include <datamanager/meshquality/private/MeshHeader.h>
#include <datamanager/meshquality/private/SkippedLines.h>

#include <QFileInfo>

#include <new>
#include <numeric>

namespace DataManager {

/// Collects what a scan meets, with the places in the file.
class MeshQualityReport::Scan : public MeshTables
{
public:
    Scan(const QString& path, const Progress& progress) : m_source(path), m_progress(progress) {}

    void run() { scanMesh(m_source, *this); }
    bool isOpen() const { return m_source.isOpen(); }
    bool isCancelled() const { return m_isCancelled; }

    void node(const Tetrahedron::Vector& position, TextRange line)
    {
        MeshTables::node(position, line);
        if (static_cast<std::size_t>(FieldCursor(line).toInt()) != nodes.size()) {
            note(misnumberedNodes);
        }
    }
    void tetrahedron(const NodeNumbers& corners, TextRange line)
    {
        MeshTables::tetrahedron(corners, line);
        FieldCursor field(line);
        tags.push_back(field.toInt());
        field.next(); // type
        field.next();
        noteTagCount(field);
        field.next();
        physicalTags.push_back(field.toInt());
        lines.push_back(m_source.lineNumber());
    }
    void shortNode() { skippedLines.add(m_source.lineNumber(), SkipReason::ShortNode); }
    void shortTetrahedron(TextRange line)
    {
        FieldCursor field(line);
        field.next(); // type
        if (field.next()) {
            noteTagCount(field);
        }
        skippedLines.add(m_source.lineNumber(), SkipReason::ShortTetrahedron);
    }
    bool outside(TextRange line) { return header.take(line); }
    bool proceeds()
    {
        constexpr qint64 linesBetweenCalls = 1 << 15;
        if (m_progress && m_source.lineNumber() % linesBetweenCalls == 0) {
            m_isCancelled = !m_progress(m_source.bytesRead(), m_source.size());
        }
        return !m_isCancelled;
    }

    void removeUnconnected()
    {
        const std::vector<std::size_t> removed = MeshTables::removeUnconnected();
        for (const std::size_t element : removed) {
            skippedLines.add(lines[element], SkipReason::MissingNode);
        }
        removeAt(tags, removed);
        removeAt(physicalTags, removed);
        removeAt(lines, removed);
    }

    MeshHeader header;
    std::vector<int> tags;
    std::vector<int> physicalTags;
    std::vector<qint64> lines;
    SkippedLines skippedLines;
    Places misnumberedNodes;
    Places otherTagCounts;

private:
    void note(Places& places) const
    {
        ++places.count;
        places.firstLine = places.count == 1 ? m_source.lineNumber() : places.firstLine;
    }
    void noteTagCount(FieldCursor& field)
    {
        if (field.toInt() != 2) {
            note(otherTagCounts);
        }
    }

    LineSource m_source;
    const Progress& m_progress;
    bool m_isCancelled = false;
};

namespace {

std::array<double, 3> centre(const Tetrahedron::Corners& p)
{
    return {(p[0].x + p[1].x + p[2].x + p[3].x) / 4.0, (p[0].y + p[1].y + p[2].y + p[3].y) / 4.0,
            (p[0].z + p[1].z + p[2].z + p[3].z) / 4.0};
}

/// All metrics but those that need the mean volume, which are left at 0.
std::array<double, MeshQualityReport::metricCount> inOrder(const Tetrahedron::Measures& m)
{
    return {m.volume,      m.edgeRatio, m.aspectRatio,    m.aspectGamma, m.condition, m.jacobian,
            m.radiusRatio, 0.0,         m.scaledJacobian, m.shape,       0.0};
}

QString savingCall(const QString& output, const QString& path)
{
    QString quoted = path;
    quoted.replace(QLatin1String("'"), QLatin1String("'\\''"));
    return QStringLiteral("gmsh -save -format msh22 -o %1 '%2'").arg(output, quoted);
}

QString conversionAdvice(const QString& format, const QString& path)
{
    return format + QStringLiteral(", not MSH 2 ASCII; convert it with: ") +
           savingCall(QStringLiteral("converted.msh"), path);
}

QString numberingWarning(const MeshQualityReport::Places& nodes, const QString& path)
{
    return QStringLiteral("%1 nodes are not numbered by their place in the file (first: line %2), by which elements "
                          "take them: the measures are of other elements than meant; renumber with: ")
               .arg(QString::number(nodes.count), QString::number(nodes.firstLine)) +
           savingCall(QStringLiteral("renumbered.msh"), path);
}

QString tagWarning(const MeshQualityReport::Places& tetrahedra, const QString& path)
{
    return QStringLiteral("%1 tetrahedra have not the two tags (first: line %2) with which they are read: their "
                          "corners are taken from the wrong columns; save a mesh without partitions with: ")
               .arg(QString::number(tetrahedra.count), QString::number(tetrahedra.firstLine)) +
           savingCall(QStringLiteral("two-tags.msh"), path);
}

} // namespace

QString MeshQualityReport::metricName(Metric metric)
{
    static const std::array<const char*, metricCount> names{
        "Volume",      "EdgeRatio",           "AspectRatio",    "AspectGamma", "Condition",   "Jacobian",
        "RadiusRatio", "RelativeSizeSquared", "ScaledJacobian", "Shape",       "ShapeAndSize"};
    return QString::fromLatin1(names[static_cast<std::size_t>(metric)]);
}

QString MeshQualityReport::skipReasonText(SkipReason reason)
{
    switch (reason) {
    case SkipReason::ShortNode:
        return QStringLiteral("a node needs four columns");
    case SkipReason::ShortTetrahedron:
        return QStringLiteral("a tetrahedron needs nine columns");
    case SkipReason::MissingNode:
        return QStringLiteral("names a node that is not there (nodes are numbered by their place in the file)");
    }
    return QString();
}

qint64 MeshQualityReport::skippedLineCount() const
{
    return std::accumulate(m_skipCounts.begin(), m_skipCounts.end(), qint64(0));
}

bool MeshQualityReport::fail(Problem problem, const QString& text)
{
    *this = MeshQualityReport();
    m_problem = problem;
    m_problemText = text;
    return false;
}

bool MeshQualityReport::measure(const QString& path, const Progress& progress)
{
    *this = MeshQualityReport();
    const QFileInfo file(path);
    if (!file.exists()) {
        return fail(Problem::Missing, QStringLiteral("no such file"));
    }
    if (!file.isFile()) {
        return fail(Problem::NotRegularFile, QStringLiteral("not a regular file"));
    }
    try {
        return measureFile(path, progress);
    } catch (const std::bad_alloc&) {
        return fail(Problem::Unreadable, QStringLiteral("does not fit into the memory"));
    }
}

bool MeshQualityReport::measureFile(const QString& path, const Progress& progress)
{
    Scan scan(path, progress);
    if (!scan.isOpen()) {
        return fail(Problem::Unreadable, QStringLiteral("cannot be opened"));
    }
    scan.run();
    if (scan.isCancelled()) {
        return fail(Problem::Cancelled, QStringLiteral("cancelled"));
    }
    if (!scan.header.isReadable()) {
        const QString format = scan.header.formatText();
        fail(Problem::WrongFormat, conversionAdvice(format, path));
        m_otherFormat = format;
        return false;
    }
    scan.removeUnconnected();
    takeDoubts(scan);
    if (scan.tetrahedra.empty()) {
        m_problem = Problem::NoTetrahedra;
        m_problemText = noTetrahedraText();
        return false;
    }
    take(scan);
    return true;
}

QString MeshQualityReport::noTetrahedraText() const
{
    const QString text = QStringLiteral("no tetrahedra");
    return m_skippedLines.empty()
               ? text
               : text + QStringLiteral(" (%1 lines skipped, first: line %2: %3)")
                            .arg(QString::number(skippedLineCount()), QString::number(m_skippedLines.front().line),
                                 skipReasonText(m_skippedLines.front().reason));
}

void MeshQualityReport::takeDoubts(const Scan& scan)
{
    m_skipCounts = scan.skippedLines.counts();
    m_skippedLines = scan.skippedLines.first();
    m_misnumberedNodes = scan.misnumberedNodes;
    m_otherTagCounts = scan.otherTagCounts;
}

QStringList MeshQualityReport::warnings(const QString& path) const
{
    QStringList texts;
    if (m_misnumberedNodes.count > 0) {
        texts.append(numberingWarning(m_misnumberedNodes, path));
    }
    if (m_otherTagCounts.count > 0) {
        texts.append(tagWarning(m_otherTagCounts, path));
    }
    return texts;
}

void MeshQualityReport::take(Scan& scan)
{
    measureElements(scan);
    takeGeometry(scan);
    m_tags = std::move(scan.tags);
    m_physicalTags = std::move(scan.physicalTags);
    m_lines = std::move(scan.lines);
    m_groupNames = scan.header.groupNames();
}

void MeshQualityReport::takeGeometry(Scan& scan)
{
    m_nodes.reserve(scan.nodes.size());
    for (const Tetrahedron::Vector& node : scan.nodes) {
        m_nodes.push_back({node.x, node.y, node.z});
    }
    for (NodeNumbers& numbers : scan.tetrahedra) {
        for (int& number : numbers) {
            --number;
        }
    }
    m_corners = std::move(scan.tetrahedra);
}

void MeshQualityReport::measureElements(const Scan& scan)
{
    const std::size_t count = scan.tetrahedra.size();
    for (std::vector<double>& list : m_values) {
        list.resize(count);
    }
    m_centroids.resize(count);
    FeatureSums sums;
    for (std::size_t i = 0; i < count; ++i) {
        const Tetrahedron::Corners corners = scan.corners(i);
        const Tetrahedron::Measures measures = Tetrahedron::measures(corners);
        sums.add(measures);
        const auto values = inOrder(measures);
        for (std::size_t metric = 0; metric < values.size(); ++metric) {
            m_values[metric][i] = values[metric];
        }
        m_centroids[i] = centre(corners);
        m_invertedCount += measures.volume < 0.0 ? 1 : 0;
        m_flatCount += measures.volume == 0.0 ? 1 : 0;
        m_duplicateNodeCount += repeatsNode(scan.tetrahedra[i]) ? 1 : 0;
    }
    const double mean = sums.meanVolume();
    for (std::size_t i = 0; i < count; ++i) {
        const double relativeSize = Tetrahedron::relativeSize(values(Metric::Volume)[i], mean);
        m_values[static_cast<std::size_t>(Metric::RelativeSizeSquared)][i] = relativeSize;
        m_values[static_cast<std::size_t>(Metric::ShapeAndSize)][i] =
            Tetrahedron::shapeAndSize(values(Metric::Shape)[i], relativeSize);
    }
    m_features = sums.means();
}

} // namespace DataManager
