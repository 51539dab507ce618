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
#include <sys/stat.h>

using DataManager::MeshQualityPredict;
using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;
using Metric = MeshQualityReport::Metric;
using Problem = QualityModelCard::Problem;

Q_DECLARE_METATYPE(Problem)

/// Which files are models, which fit, and how they answer when tried.
class QualityModelCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("ORT_DISABLE_TELEMETRY", "true"); }
    void leavesAVariableAsItIs();
    void isEmptyBeforeReading();
    void refusesWhatIsNoModel_data();
    void refusesWhatIsNoModel();
    void refusesUnreadableFiles();
    void forgetsTheEarlierFile();
    void namesViolations_data();
    void namesViolations();
    void namesOtherTypes();
    void looksAtTheFirstOfTwoOutputs();
    void survivesDamage_data();
    void survivesDamage();
    void triesTheModel();
    void remarks_data();
    void remarks();
    void takesScoresFromZeroToOne_data();
    void takesScoresFromZeroToOne();
    void leavesThePredictorAlone();

private:
    QString file(const QByteArray& content) const { return ModelFiles::placed(m_directory, content); }

    QTemporaryDir m_directory;
};

namespace {

bool isEmpty(const QualityModelCard& card)
{
    return card.violations().isEmpty() && card.remarks().isEmpty() && !card.trial() && card.metadata().isEmpty() &&
           card.title().isEmpty() && card.takesOurFeatures() && !card.trainingRange(Metric::Shape) &&
           card.explanation(0.5F).isEmpty();
}

} // namespace

void QualityModelCardTest::leavesAVariableAsItIs()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::content("volume"))));
    QCOMPARE(qgetenv("ORT_DISABLE_TELEMETRY"), QByteArray("true"));
}

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

void QualityModelCardTest::namesOtherTypes()
{
    QByteArray model = ModelFiles::content("above-one");
    const int place = model.indexOf(QByteArray("\x08\x01"), model.indexOf("onnx::Gemm_0"));
    QVERIFY(place > 0);
    model[place + 1] = 16;
    QualityModelCard card;
    QVERIFY(card.read(file(model)));
    QCOMPARE(card.violations(),
             QStringList{QStringLiteral("expected the input to be a tensor of float, found one of type 16")});
}

void QualityModelCardTest::looksAtTheFirstOfTwoOutputs()
{
    QualityModelCard card;
    QVERIFY(card.read(file(ModelFiles::withOutput(ModelFiles::content("integer-output")))));
    QCOMPARE(card.violations(),
             QStringList{QStringLiteral("expected the output to be a tensor of float, found one of int64")});
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

void QualityModelCardTest::takesScoresFromZeroToOne_data()
{
    QTest::addColumn<float>("score");
    QTest::addColumn<int>("remarks");
    // Of zeros, of features that are no numbers, and of missing keys.
    QTest::newRow("1") << 1.0F << 3;
    // Not of zeros.
    QTest::newRow("0") << 0.0F << 2;
}

void QualityModelCardTest::takesScoresFromZeroToOne()
{
    QFETCH(float, score);
    const auto bytes = [](float value) { return QByteArray(reinterpret_cast<const char*>(&value), sizeof value); };
    const QByteArray model = ModelFiles::content("above-one");
    QCOMPARE(model.count(bytes(1.7F)), 1);
    QualityModelCard card;
    QVERIFY(card.read(file(QByteArray(model).replace(bytes(1.7F), bytes(score)))));
    QCOMPARE(card.trial()->ordinary, score);
    QTEST(card.remarks().size(), "remarks");
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
