// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"
#include "ModelFiles.h"

#include "support/Nobody.h"

#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/meshquality/QualityModelCard.h>

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>
#include <sys/stat.h>

using DataManager::MeshQualityPredict;
using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;
using Metric = MeshQualityReport::Metric;
using Problem = QualityModelCard::Problem;

Q_DECLARE_METATYPE(Problem)

class QualityModelCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyBeforeReading();
    void refusesWhatIsNoModel_data();
    void refusesWhatIsNoModel();
    void refusesUnreadableFiles();
    void forgetsTheEarlierFile();
    void namesViolations_data();
    void namesViolations();
    void survivesDamage_data();
    void survivesDamage();
    void triesTheModel();
    void remarks_data();
    void remarks();
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
    void explainsScores_data();
    void explainsScores();
    void leavesThePredictorAlone();

private:
    QString file(const QByteArray& content) const
    {
        const QString path = m_directory.filePath(QStringLiteral("a %1 é.onnx"));
        MeshFiles::write(path, content);
        return path;
    }

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

bool isEmpty(const QualityModelCard& card)
{
    return card.violations().isEmpty() && card.remarks().isEmpty() && !card.trial() && card.metadata().isEmpty() &&
           card.title().isEmpty() && card.takesOurFeatures() && !card.trainingRange(Metric::Shape) &&
           card.explanation(0.5F).isEmpty();
}

} // namespace

void QualityModelCardTest::isEmptyBeforeReading()
{
    const QualityModelCard card;
    QCOMPARE(card.problem(), Problem::NotRead);
    QVERIFY(isEmpty(card));
}

void QualityModelCardTest::refusesWhatIsNoModel_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Problem>("problem");
    QTest::addColumn<QString>("text");
    const QString pipe = m_directory.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const auto content = [this](const char* name, const QByteArray& bytes) {
        const QString path = m_directory.filePath(QString::fromLatin1(name));
        MeshFiles::write(path, bytes);
        return path;
    };
    const QString irregular = QStringLiteral("not a regular file");
    const QString start = QStringLiteral("no ONNX model: ");
    QTest::newRow("missing") << m_directory.filePath(QStringLiteral("none")) << Problem::Missing
                             << QStringLiteral("no such file");
    QTest::newRow("no name") << QString() << Problem::Missing << QStringLiteral("no such file");
    QTest::newRow("directory") << m_directory.path() << Problem::NotRegularFile << irregular;
    QTest::newRow("pipe") << pipe << Problem::NotRegularFile << irregular;
    QTest::newRow("device") << QStringLiteral("/dev/zero") << Problem::NotRegularFile << irregular;
    QTest::newRow("empty") << content("empty", "") << Problem::NoModel << QStringLiteral("is empty");
    QTest::newRow("text") << content("text", "no model\n") << Problem::NoModel << start;
    QTest::newRow("NUL bytes") << content("nul", QByteArray(4096, '\0')) << Problem::NoModel << start;
    QTest::newRow("truncated") << content("cut", ModelFiles::shipped().left(5000)) << Problem::NoModel << start;
}

void QualityModelCardTest::refusesWhatIsNoModel()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QualityModelCard card;
    QVERIFY(!card.read(path));
    QTEST(card.problem(), "problem");
    QVERIFY2(card.problemText().startsWith(text), qPrintable(card.problemText()));
    QVERIFY(!card.problemText().contains(QLatin1Char('\n')));
    QVERIFY(card.problem() != Problem::NoModel || text == QLatin1String("is empty") ||
            card.problemText().size() > text.size() + 10);
    QVERIFY(isEmpty(card));
}

void QualityModelCardTest::refusesUnreadableFiles()
{
    const QString path = file(ModelFiles::shipped());
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    QVERIFY(QFile::setPermissions(m_directory.path(), QFile::Permissions(0x7755)));
    const Nobody nobody;
    QualityModelCard card;
    QVERIFY(!card.read(path));
    QCOMPARE(card.problem(), Problem::Unreadable);
    QCOMPARE(card.problemText(), QStringLiteral("cannot be read"));
}

void QualityModelCardTest::forgetsTheEarlierFile()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::described())));
    QVERIFY(!isEmpty(card));
    QVERIFY(!card.read(file("no model")));
    QVERIFY(isEmpty(card));
    QVERIFY(card.read(file(ModelFiles::described())));
    QCOMPARE(card.problem(), Problem::None);
    QCOMPARE(card.problemText(), QString());
}

void QualityModelCardTest::namesViolations_data()
{
    QTest::addColumn<QStringList>("violations");
    const auto row = [](const char* model, const std::initializer_list<const char*>& violations) {
        QStringList texts;
        for (const char* violation : violations) {
            texts.append(QString::fromLatin1(violation));
        }
        QTest::newRow(model) << texts;
    };
    row("last-feature", {});
    row("any-batch", {});
    row("two-outputs", {});
    row("above-one", {});
    row("other-input-name", {"expected one input 'onnx::Gemm_0', found 'input'"});
    row("two-inputs", {"expected one input 'onnx::Gemm_0', found 'onnx::Gemm_0', 'more'"});
    row("other-output-name", {"expected an output '19', found 'output'"});
    row("double-input", {"expected the input to be a tensor of float, found one of double",
                         "expected the output to be a tensor of float, found one of double"});
    row("integer-output", {"expected the output to be a tensor of float, found one of int64"});
    row("list-output", {"expected the output to be a tensor of float, found no tensor"});
    row("five-inputs", {"expected an input of shape [1, 11] or [any, 11], found [1, 5]"});
    row("rank-one-input", {"expected an input of shape [1, 11] or [any, 11], found [11]"});
    row("two-rows", {"expected an input of shape [1, 11] or [any, 11], found [2, 11]"});
    row("all-wrong",
        {"expected one input 'onnx::Gemm_0', found 'input'",
         "expected the input to be a tensor of float, found one of double",
         "expected an input of shape [1, 11] or [any, 11], found [1, 5]", "expected an output '19', found 'output'",
         "expected the output to be a tensor of float, found one of double"});
    row("other-outputs", {"expected an output '19', found 'a', 'b'"});
    row("empty-output", {"expected an output of at least one value, found the shape [0]"});
    row("empty-when-run", {"expected the model to run, found: The model's output is no tensor of at least one float"});
    row("not-a-number", {"expected a number as the score of ordinary features, found NaN"});
}

void QualityModelCardTest::namesViolations()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::content(QTest::currentDataTag()))));
    QTEST(card.violations(), "violations");
    QVERIFY(!card.violations().isEmpty() || card.trial());
}

void QualityModelCardTest::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::addColumn<int>("step");
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
    constexpr int step = 1;
#else
    constexpr int step = 7;
#endif
    QTest::newRow("bits of a small one") << ModelFiles::content("volume") << step;
    QTest::newRow("bits of the shipped one") << ModelFiles::shipped() << 4001;
}

void QualityModelCardTest::survivesDamage()
{
    QFETCH(QByteArray, good);
    QFETCH(int, step);
    QualityModelCard card;
    int refused = 0;
    for (int bit = 0; bit < 8 * good.size(); bit += step) {
        QByteArray damaged = good;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        const bool isRead = card.read(file(damaged));
        refused += isRead ? 0 : 1;
        QCOMPARE(card.problemText().isEmpty(), isRead);
        QCOMPARE(card.trial() || !card.violations().isEmpty(), isRead);
    }
    QVERIFY(refused > 0);
    for (int size = 0; size < good.size(); size += qMax(1, step / 4)) {
        const bool isRead = card.read(file(good.left(size)));
        QCOMPARE(card.problemText().isEmpty(), isRead);
    }
}

void QualityModelCardTest::triesTheModel()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::content("volume"))));
    // Not clamped.
    QVERIFY(card.trial()->ordinary > 1.0F);
    QCOMPARE(card.trial()->zeros, 0.0F);
    QVERIFY(std::isnan(card.trial()->notANumber));
    QVERIFY(card.read(file(ModelFiles::content("five-inputs"))));
    QVERIFY(!card.trial());
}

void QualityModelCardTest::remarks_data()
{
    QTest::addColumn<QStringList>("expected");
    const QString nearest = QStringLiteral("the score of ordinary features is %1; programs take it as the nearest of 0 "
                                           "and 1");
    const QString zeros = QStringLiteral("the score of zeros, as without a mesh, is %1 and not 0");
    const QString none = QStringLiteral("the score of features that are no numbers is %1 and not NaN");
    const auto all = [&](const char* score) {
        const QString text = QString::fromLatin1(score);
        return QStringList{nearest.arg(text), zeros.arg(text), none.arg(text)};
    };
    QTest::newRow("last-feature") << QStringList();
    QTest::newRow("above-one") << all("1.7");
    QTest::newRow("below-zero") << all("-0.2");
    QTest::newRow("not-a-number") << QStringList{zeros.arg(QStringLiteral("nan"))};
    QTest::newRow("five-inputs") << QStringList();
}

void QualityModelCardTest::remarks()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::content(QTest::currentDataTag()))));
    QTEST(QStringList(card.remarks().mid(0, card.remarks().size() - 1)), "expected");
    QCOMPARE(card.remarks().last(), QStringLiteral("the metadata lack name, version, meaning, explanation, trainedOn, "
                                                   "licence, dataSha256, featureOrder, trainingRanges"));
}

void QualityModelCardTest::tellsOfMissingKeys()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::described())));
    QCOMPARE(card.remarks(), QStringList());
    QVERIFY(card.read(file(withEntry("name", "some"))));
    QVERIFY(card.remarks().last().startsWith(QStringLiteral("the metadata lack version, meaning")));
}

void QualityModelCardTest::readsMetadataAsTheyAre()
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

void QualityModelCardTest::namesTheModel_data()
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

void QualityModelCardTest::namesTheModel()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, version);
    QualityModelCard card;
    QVERIFY(card.read(
        file(ModelFiles::withMetadata(ModelFiles::content("volume"), {{"name", name}, {"version", version}}))));
    QTEST(card.title(), "title");
}

void QualityModelCardTest::knowsOurFeatures_data()
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

void QualityModelCardTest::knowsOurFeatures()
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

void QualityModelCardTest::readsTrainingRanges_data()
{
    QTest::addColumn<QByteArray>("ranges");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<bool>("isKnown");
    const auto row = [](const char* ranges, bool isRead, bool isKnown) {
        QTest::newRow(ranges) << QByteArray(ranges) << isRead << isKnown;
    };
    row(R"({"Shape": [0.25, 0.75]})", true, true);
    row(R"({"Shape": [0.25, 0.75], "Volume": null, "Other": "x"})", true, true);
    row(R"({"Shape": null})", true, false);
    row("{}", true, false);
    row(R"({"Shape": [0.25, 0.75], "Volume": [1]})", false, false);
    row(R"({"Shape": [0.75, 0.25]})", false, false);
    row(R"({"Shape": [0.25, "0.75"]})", false, false);
    row(R"({"Shape": [0.25, 0.75, 1]})", false, false);
    row(R"({"Shape": 0.25})", false, false);
    row(R"([0.25, 0.75])", false, false);
    row("from 0.25 to 0.75", false, false);
    row("", false, false);
}

void QualityModelCardTest::readsTrainingRanges()
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

void QualityModelCardTest::findsFeaturesOutsideOfTraining_data()
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

void QualityModelCardTest::findsFeaturesOutsideOfTraining()
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

void QualityModelCardTest::explainsScores_data()
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

void QualityModelCardTest::explainsScores()
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

void QualityModelCardTest::leavesThePredictorAlone()
{
    MeshQualityPredict predict;
    const QByteArray model = QFile::encodeName(file(ModelFiles::content("above-one")));
    predict.loadModel(model.constData(), "onnx::Gemm_0", "19");
    predict.setFigureParameter(MeshQualityReport::metricCount);
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::content("below-zero"))));
    QualityModelCard::Features features{};
    QCOMPARE(predict.inferFigure(features.data()), 1.0F);
}

QTEST_GUILESS_MAIN(QualityModelCardTest)
#include "tst_qualitymodelcard.moc"
