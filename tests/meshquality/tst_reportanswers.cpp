// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"

#include <datamanager/meshquality/MeshQualityReport.h>
#include <datamanager/meshquality/private/Distribution.h>

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;
namespace Distribution = DataManager::Distribution;

class ReportAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summarizes();
    void summarizesEqualValues();
    void summarizesNothing();
    void summarizesAroundNonFiniteValues();
    void findsPercentilesOfManyValues();
    void countsBins();
    void countsBinsOfExtremeRanges();
    void ranksTheWorst_data();
    void ranksTheWorst();
    void findsTheWorstOfASample();
    void splitsIntoRegions();
    void knowsRegionsOfASample();
    void knowsMetricNames();

private:
    QString file(const QByteArray& content)
    {
        MeshFiles::write(m_directory.filePath(QStringLiteral("mesh.msh")), content);
        return m_directory.filePath(QStringLiteral("mesh.msh"));
    }

    QTemporaryDir m_directory;
};

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

const QString housing = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");

// Element 1 to 6: right corners with legs 1, 1 and 1, 2, 4; inverted; flat; one point.
QByteArray mixedMesh()
{
    return MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 0 0 2", "6 0 0 4", "7 1 1 0"},
                           {"1 4 2 5 1 1 2 3 4", "2 4 2 5 1 1 2 3 5", "3 4 2 9 1 1 2 3 6", "4 4 2 9 1 1 3 2 4",
                            "5 4 2 9 1 1 2 3 7", "6 4 2 9 1 1 1 1 1"});
}

} // namespace

void ReportAnswersTest::summarizes()
{
    const MeshQualityReport::Summary s = Distribution::summary({4, 1, 3, 2, 5});
    QCOMPARE(s.minimum, 1.0);
    QCOMPARE(s.percentile1, 1.04);
    QCOMPARE(s.percentile5, 1.2);
    QCOMPARE(s.median, 3.0);
    QCOMPARE(s.percentile95, 4.8);
    QCOMPARE(s.percentile99, 4.96);
    QCOMPARE(s.maximum, 5.0);
    QCOMPARE(s.mean, 3.0);
    QCOMPARE(s.standardDeviation, std::sqrt(2.0));
    QCOMPARE(s.nonFinite, 0);
    QCOMPARE(Distribution::summary({7}).percentile99, 7.0);
    QCOMPARE(Distribution::summary({7}).standardDeviation, 0.0);
}

// The sum of squared differences is not that of differences of squares, which may come out negative.
void ReportAnswersTest::summarizesEqualValues()
{
    for (const double value : {0.1, 0.7, 1e-3, 123.456}) {
        for (const std::size_t count : {std::size_t(3), std::size_t(7), std::size_t(10), std::size_t(1000)}) {
            const MeshQualityReport::Summary summary = Distribution::summary(std::vector<double>(count, value));
            QVERIFY2(summary.standardDeviation <= 1e-12 * value,
                     qPrintable(QString::number(summary.standardDeviation)));
        }
    }
}

void ReportAnswersTest::summarizesNothing()
{
    const MeshQualityReport::Summary s = Distribution::summary({notANumber, infinity});
    QVERIFY(std::isnan(s.minimum) && std::isnan(s.median) && std::isnan(s.mean) && std::isnan(s.standardDeviation));
    QCOMPARE(s.nonFinite, 2);
    QCOMPARE(Distribution::summary({}).nonFinite, 0);
}

void ReportAnswersTest::summarizesAroundNonFiniteValues()
{
    const MeshQualityReport::Summary s = Distribution::summary({notANumber, 1, infinity, 3, -infinity});
    QCOMPARE(s.minimum, 1.0);
    QCOMPARE(s.median, 2.0);
    QCOMPARE(s.maximum, 3.0);
    QCOMPARE(s.mean, 2.0);
    QCOMPARE(s.nonFinite, 3);
    // What was removed is not read again.
    const MeshQualityReport::Summary one = Distribution::summary({7, notANumber});
    QCOMPARE(one.percentile1, 7.0);
    QCOMPARE(one.median, 7.0);
    QCOMPARE(one.percentile99, 7.0);
    QCOMPARE(Distribution::summary({-infinity, 1, 2, 3, notANumber}).median, 2.0);
}

void ReportAnswersTest::findsPercentilesOfManyValues()
{
    std::vector<double> values;
    for (int i = 0; i <= 1000; ++i) {
        values.push_back(i);
    }
    std::shuffle(values.begin(), values.end(), std::mt19937(7));
    const MeshQualityReport::Summary s = Distribution::summary(values);
    QCOMPARE(s.percentile1, 10.0);
    QCOMPARE(s.percentile5, 50.0);
    QCOMPARE(s.median, 500.0);
    QCOMPARE(s.percentile95, 950.0);
    QCOMPARE(s.percentile99, 990.0);
}

void ReportAnswersTest::countsBins()
{
    const MeshQualityReport::Histogram h =
        Distribution::histogram({0, 0.5, 1, 1.5, 2, 3.9, 4, notANumber, infinity}, 4);
    QCOMPARE(h.lower, 0.0);
    QCOMPARE(h.upper, 4.0);
    QCOMPARE(h.counts, (std::vector<int>{2, 2, 1, 2}));
    QCOMPARE(Distribution::histogram({2, 2, 2}, 3).counts, (std::vector<int>{3, 0, 0}));
    QCOMPARE(Distribution::histogram({1, 2}, 0).counts, std::vector<int>{2});
    QVERIFY(Distribution::histogram({notANumber}, 3).counts.empty());
}

void ReportAnswersTest::countsBinsOfExtremeRanges()
{
    QCOMPARE(Distribution::histogram({-1.7e308, 0, 1.7e308}, 2).counts, (std::vector<int>{1, 2}));
    int total = 0;
    for (const int count : Distribution::histogram({0, 5e-324, 1e-323}, 2).counts) {
        total += count;
    }
    QCOMPARE(total, 3);
}

void ReportAnswersTest::ranksTheWorst_data()
{
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QVector<int>>("tags");
    // Shape: 4 and 6 are no numbers; 5 is 0; of the rest the longest is the worst.
    QTest::newRow("Shape") << QStringLiteral("shape") << QVector<int>{4, 6, 5, 3, 2, 1};
    // 6 is no number; 5 is infinite; 4 is inverted.
    QTest::newRow("AspectRatio") << QStringLiteral("AspectRatio") << QVector<int>{6, 5, 4, 3, 2, 1};
    QTest::newRow("EdgeRatio") << QStringLiteral("EDGERATIO") << QVector<int>{6, 4, 3, 2, 1, 5};
    QTest::newRow("Volume") << QStringLiteral("Volume") << QVector<int>{4, 5, 6, 1, 2, 3};
}

void ReportAnswersTest::ranksTheWorst()
{
    QFETCH(QString, metric);
    QFETCH(QVector<int>, tags);
    Metric which{};
    QVERIFY(MeshQualityReport::metricOfName(metric, which));
    MeshQualityReport report;
    QVERIFY(report.measure(file(mixedMesh())));
    for (const int count : {0, 1, 3, 6, 100}) {
        QVector<int> found;
        for (const int element : report.worst(which, count)) {
            found.append(report.tag(element));
        }
        QCOMPARE(found, tags.mid(0, count));
    }
    QVERIFY(report.worst(which, -1).empty());
}

void ReportAnswersTest::findsTheWorstOfASample()
{
    MeshQualityReport report;
    QVERIFY(report.measure(housing));
    const std::vector<double>& shapes = report.values(Metric::Shape);
    std::vector<double> sorted = shapes;
    std::sort(sorted.begin(), sorted.end());
    const std::vector<int> worst = report.worst(Metric::Shape, 50);
    QCOMPARE(worst.size(), std::size_t(50));
    for (std::size_t i = 0; i < worst.size(); ++i) {
        QCOMPARE(shapes[static_cast<std::size_t>(worst[i])], sorted[i]);
    }
}

void ReportAnswersTest::splitsIntoRegions()
{
    QByteArray content = mixedMesh();
    content.replace("$Nodes", "$PhysicalNames\n1\n3 5 \"base\"\n$EndPhysicalNames\n$Nodes");
    MeshQualityReport report;
    QVERIFY(report.measure(file(content)));
    const std::vector<MeshQualityReport::Region> regions = report.regions();
    QCOMPARE(regions.size(), std::size_t(2));
    QCOMPARE(regions[0].physicalTag, 5);
    QCOMPARE(regions[0].name, QStringLiteral("base"));
    QCOMPARE(regions[0].elementCount, 2);
    QCOMPARE(regions[0].invertedCount + regions[0].flatCount, 0);
    QCOMPARE(regions[0].summaries[0].minimum, 1.0 / 6);
    QCOMPARE(regions[0].summaries[0].maximum, 2.0 / 6);
    QCOMPARE(regions[1].physicalTag, 9);
    QCOMPARE(regions[1].name, QString());
    QCOMPARE(regions[1].elementCount, 4);
    QCOMPARE(regions[1].invertedCount, 1);
    QCOMPARE(regions[1].flatCount, 2);
    QCOMPARE(regions[1].summaries[9].nonFinite, 2);
    QCOMPARE(regions[0].duplicateNodeCount, 0);
    QCOMPARE(regions[1].duplicateNodeCount, 1);
    QCOMPARE(regions[0].elements, (std::vector<int>{0, 1}));
    QCOMPARE(regions[1].elements, (std::vector<int>{2, 3, 4, 5}));
    QCOMPARE(report.worst(Metric::Volume, 9, regions[0]), (std::vector<int>{0, 1}));
    QCOMPARE(report.worst(Metric::Volume, 1, regions[1]), (std::vector<int>{3}));
    const MeshQualityReport::Histogram volumes = report.histogram(Metric::Volume, 2, regions[0]);
    QCOMPARE(volumes.lower, 1.0 / 6);
    QCOMPARE(volumes.upper, 2.0 / 6);
    QCOMPARE(volumes.counts, (std::vector<int>{1, 1}));
}

void ReportAnswersTest::knowsRegionsOfASample()
{
    // Counted in the file itself: type 4 and the physical tag.
    QFile mesh(housing);
    QVERIFY(mesh.open(QIODevice::ReadOnly));
    QMap<int, int> expected;
    for (const QByteArray& line : mesh.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() == 9 && fields.at(1) == "4") {
            ++expected[fields.at(3).toInt()];
        }
    }
    MeshQualityReport report;
    QVERIFY(report.measure(housing));
    QMap<int, int> actual;
    QStringList names;
    for (const MeshQualityReport::Region& region : report.regions()) {
        actual[region.physicalTag] = region.elementCount;
        names.append(region.name);
    }
    QCOMPARE(actual, expected);
    QCOMPARE(names, (QStringList{QStringLiteral("foot"), QStringLiteral("bush"), QStringLiteral("ring")}));
}

void ReportAnswersTest::knowsMetricNames()
{
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        Metric metric{};
        QVERIFY(MeshQualityReport::metricOfName(MeshQualityReport::metricName(static_cast<Metric>(i)), metric));
        QCOMPARE(static_cast<int>(metric), i);
    }
    Metric metric = Metric::Shape;
    QVERIFY(!MeshQualityReport::metricOfName(QStringLiteral("Beauty"), metric));
    QVERIFY(!MeshQualityReport::metricOfName(QString(), metric));
    QVERIFY(metric == Metric::Shape);
}

QTEST_GUILESS_MAIN(ReportAnswersTest)
#include "tst_reportanswers.moc"
