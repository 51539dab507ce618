// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ModelFiles.h"

#include <datamanager/meshquality/QualityModelCard.h>

#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;
using Metric = MeshQualityReport::Metric;

/// What a card makes of the metadata of a model.
class ModelMetadataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfMissingKeys();
    void readsMetadataAsTheyAre();
    void namesTheModel_data();
    void namesTheModel();
    void knowsOurFeatures_data();
    void knowsOurFeatures();
    void readsTrainingRanges_data();
    void readsTrainingRanges();
    void findsFeaturesOutsideOfTraining_data();
    void findsFeaturesOutsideOfTraining();
    void looksAtEachFeature();
    void takesTheBoundsAsInside();
    void explainsScores_data();
    void explainsScores();

private:
    QString file(const QByteArray& content) const { return ModelFiles::placed(m_directory, content); }

    QTemporaryDir m_directory;
};

namespace {

const QByteArray ourOrder = R"(["Volume", "EdgeRatio", "AspectRatio", "AspectGamma", "Condition", "Jacobian", )"
                            R"("RadiusRatio", "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"])";
const QString ourNames =
    QStringLiteral("Volume, EdgeRatio, AspectRatio, AspectGamma, Condition, Jacobian, RadiusRatio, "
                   "RelativeSizeSquared, ScaledJacobian, Shape, ShapeAndSize");

QByteArray withEntry(const QByteArray& key, const QByteArray& value)
{
    return ModelFiles::withMetadata(ModelFiles::content("last-feature"), {{key, value}});
}

} // namespace

void ModelMetadataTest::tellsOfMissingKeys()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::described())));
    QCOMPARE(card.remarks(), QStringList());
    QVERIFY(card.read(file(withEntry("name", "some"))));
    QVERIFY(card.remarks().last().startsWith(QStringLiteral("the metadata lack version, meaning")));
}

void ModelMetadataTest::readsMetadataAsTheyAre()
{
    const QByteArray value = "two\nlines, \"quotes\", é, \x1b[31m and " + QByteArray(20000, 'x');
    const QByteArray model =
        ModelFiles::withMetadata(ModelFiles::content("volume"), {{"licence", value}, {"", "no key"}, {"mine", ""}});
    QualityModelCard card;
    QVERIFY(card.read(file(model)));
    const QMap<QString, QString> expected{{QStringLiteral("licence"), QString::fromUtf8(value)},
                                          {QString(), QStringLiteral("no key")},
                                          {QStringLiteral("mine"), QString()}};
    QCOMPARE(card.metadata(), expected);
}

void ModelMetadataTest::namesTheModel_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("title");
    QTest::newRow("both") << QByteArray("some") << QByteArray("1.2") << QStringLiteral("some 1.2");
    QTest::newRow("name") << QByteArray("some") << QByteArray() << QStringLiteral("some");
    QTest::newRow("version") << QByteArray() << QByteArray("1.2") << QStringLiteral("a %1 é.onnx");
    QTest::newRow("neither") << QByteArray() << QByteArray() << QStringLiteral("a %1 é.onnx");
    QTest::newRow("blanks") << QByteArray(" \n") << QByteArray("1") << QStringLiteral("a %1 é.onnx");
    QTest::newRow("two lines") << QByteArray("some\none") << QByteArray("1\n") << QStringLiteral("some one 1");
}

void ModelMetadataTest::namesTheModel()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, version);
    QualityModelCard card;
    QVERIFY(card.read(
        file(ModelFiles::withMetadata(ModelFiles::content("volume"), {{"name", name}, {"version", version}}))));
    QTEST(card.title(), "title");
}

void ModelMetadataTest::knowsOurFeatures_data()
{
    QTest::addColumn<QByteArray>("order");
    QTest::addColumn<QString>("found");
    QTest::newRow("ours") << ourOrder << QString();
    const auto row = [](const char* name, const QByteArray& order, const char* found) {
        QTest::newRow(name) << order << QString::fromLatin1(found);
    };
    row("turned round", R"(["EdgeRatio", "Volume"])", R"(["EdgeRatio", "Volume"])");
    row("empty list", "[ ]", "[ ]");
    row("no list", "Volume,\nEdgeRatio", "Volume, EdgeRatio");
    row("numbers", "[1, 2, 3]", "[1, 2, 3]");
}

void ModelMetadataTest::knowsOurFeatures()
{
    QFETCH(QByteArray, order);
    QFETCH(QString, found);
    QualityModelCard card;
    QVERIFY(card.read(file(withEntry("featureOrder", order))));
    QCOMPARE(card.takesOurFeatures(), found.isEmpty());
    const QStringList expected =
        found.isEmpty() ? QStringList()
                        : QStringList{QStringLiteral("expected the features in the order %1, found the featureOrder %2")
                                          .arg(ourNames, found)};
    QCOMPARE(card.violations(), expected);
}

void ModelMetadataTest::readsTrainingRanges_data()
{
    QTest::addColumn<QByteArray>("ranges");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<bool>("isKnown");
    const auto row = [](const char* ranges, bool isRead, bool isKnown) {
        QTest::newRow(ranges) << QByteArray(ranges) << isRead << isKnown;
    };
    row(R"({"Shape": [0.25, 0.75]})", true, true);
    row(R"({"Shape": [0.25, 0.75], "Volume": null, "Other": "x"})", true, true);
    row(R"({"Shape": [0.25, 0.75], "EdgeRatio": [1, 1]})", true, true);
    row(R"({"Shape": null})", true, false);
    row("{}", true, false);
    row(R"({"Shape": [0.25, 0.75], "Volume": [1]})", false, false);
    row(R"({"Shape": [0.75, 0.25]})", false, false);
    row(R"({"Shape": [0.25, "0.75"]})", false, false);
    row(R"({"Shape": ["0.25", 0.75]})", false, false);
    row(R"({"Shape": [0.25, 0.75, 1]})", false, false);
    row(R"({"Shape": 0.25})", false, false);
    row(R"([0.25, 0.75])", false, false);
    row("from 0.25 to 0.75", false, false);
    row("", false, false);
}

void ModelMetadataTest::readsTrainingRanges()
{
    QFETCH(QByteArray, ranges);
    QFETCH(bool, isKnown);
    QualityModelCard card;
    QVERIFY(card.read(file(withEntry("trainingRanges", ranges))));
    QTEST(!card.remarks().contains(QStringLiteral("the trainingRanges in the metadata cannot be read")), "isRead");
    QCOMPARE(card.trainingRange(Metric::Shape).has_value(), isKnown);
    QVERIFY(!card.trainingRange(Metric::Volume));
    if (isKnown) {
        QCOMPARE(card.trainingRange(Metric::Shape)->lowest, 0.25);
        QCOMPARE(card.trainingRange(Metric::Shape)->highest, 0.75);
    }
}

void ModelMetadataTest::findsFeaturesOutsideOfTraining_data()
{
    QTest::addColumn<float>("shape");
    QTest::addColumn<bool>("isOutside");
    constexpr float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("inside") << 0.7F << false;
    QTest::newRow("lowest") << 0.5F << false;
    QTest::newRow("highest") << 0.9F << false;
    QTest::newRow("sixth digit below") << 0.499997F << false;
    QTest::newRow("sixth digit above") << 0.900005F << false;
    QTest::newRow("below") << 0.4999F << true;
    QTest::newRow("above") << 0.9001F << true;
    QTest::newRow("infinite") << infinity << true;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << false;
}

void ModelMetadataTest::findsFeaturesOutsideOfTraining()
{
    QFETCH(float, shape);
    QFETCH(bool, isOutside);
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::described())));
    QualityModelCard::Features features;
    // Neither features of any value nor those of which nothing is known are outside.
    features.fill(-1e30F);
    features[static_cast<std::size_t>(Metric::Shape)] = shape;
    const std::vector<QualityModelCard::Excess> found = card.outsideOfTraining(features);
    QCOMPARE(found.size(), std::size_t(isOutside ? 1 : 0));
    if (isOutside) {
        QCOMPARE(found[0].feature, Metric::Shape);
        QCOMPARE(found[0].value, static_cast<double>(shape));
        QCOMPARE(found[0].range.lowest, 0.5);
        QCOMPARE(found[0].range.highest, 0.9);
    }
}

void ModelMetadataTest::looksAtEachFeature()
{
    for (int i = 0; i < DataManager::MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<Metric>(i);
        const QByteArray name = DataManager::MeshQualityReport::metricName(metric).toLatin1();
        QualityModelCard card;
        QVERIFY(card.read(file(withEntry("trainingRanges", "{\"" + name + "\": [1, 2]}"))));
        QualityModelCard::Features features{};
        features[static_cast<std::size_t>(i)] = 3.0F;
        const std::vector<QualityModelCard::Excess> found = card.outsideOfTraining(features);
        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(found[0].feature, metric);
        QCOMPARE(found[0].value, 3.0);
    }
}

void ModelMetadataTest::takesTheBoundsAsInside()
{
    QualityModelCard card;
    QVERIFY(card.read(file(withEntry("trainingRanges", R"({"Shape": [0, 0]})"))));
    QCOMPARE(card.outsideOfTraining({}).size(), std::size_t(0));
}

void ModelMetadataTest::explainsScores_data()
{
    QTest::addColumn<QByteArray>("explanation");
    QTest::addColumn<float>("score");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* explanation, float score, const char* text) {
        QTest::newRow(name) << QByteArray(explanation) << score << QString::fromLatin1(text);
    };
    row("both", "%1 and %2", 0.62275F, "0.623 and 1.61");
    row("turned round, twice", "%2, %1, %2", 0.5F, "2, 0.5, 2");
    row("second alone", "%2 times", 0.25F, "4 times");
    row("other marks", "100 % of %3 %", 0.5F, "100 % of %3 %");
    row("a mark at the end", "now %1%", 0.5F, "now 0.5%");
    row("best", "%1 %2", 1.0F, "1 1");
    row("two lines", "%1\n%2", 0.5F, "0.5 2");
    row("worst", "%1 %2", 0.0F, "meant");
    row("as good as the worst", "%1 %2", 0.00099F, "meant");
    row("hardly better", "%1 %2", 0.00101F, "0.00101 990");
    row("none", "", 0.5F, "meant");
    row("blank", " ", 0.5F, "meant");
    row("no number", "%1 %2", std::numeric_limits<float>::quiet_NaN(), "");
}

void ModelMetadataTest::explainsScores()
{
    QFETCH(QByteArray, explanation);
    QFETCH(float, score);
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::withMetadata(ModelFiles::content("volume"),
                                                    {{"explanation", explanation}, {"meaning", "meant\n"}}))));
    QTEST(card.explanation(score), "text");
    QVERIFY(card.read(file(ModelFiles::content("volume"))));
    QCOMPARE(card.explanation(score), QString());
}

QTEST_GUILESS_MAIN(ModelMetadataTest)
#include "tst_modelmetadata.moc"
