// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/RecordCoverage.h>

#include <datamodel/MaterialDataArray.h>

#include <support/FilesAndLog.h>

#include <QVariantMap>

using DataManager::RecordCoverage;
using DataManager::recordCoverage;

/// A record with property types that no library of ours has.
class OtherRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double number MEMBER number)
    Q_PROPERTY(QVariantMap map MEMBER map)

public:
    double number = 0;
    QVariantMap map;
};

class TestRecordCoverage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void covers_data();
    void covers();
    void takesOtherTypesAsTheyAre();
    void countsValues();
    void staysWithinTheText();
};

namespace {

const QVector<const QMetaObject*> materialClasses = {&DataModel::MaterialDataArray::staticMetaObject,
                                                     &DataModel::MaterialData::staticMetaObject,
                                                     &DataModel::MaterialPropertyData::staticMetaObject};

const QByteArray wholeLibrary = R"({ "materialList" : [ null, { "id" : -1 , "chineseName" : "\"\\",
    "isDeleted":true, "property1" : { "components" : [ 1e-3, "NaN", -0.5 ], "kind" : 2, "flag" : false ,
    "label":"]}", "remark":"" } , "property2" : null } ] }
)";

} // namespace

void TestRecordCoverage::covers_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isMaterials");
    QTest::addColumn<bool>("isComplete");
    const auto row = [](const char* json, bool isMaterials, bool isComplete) {
        QTest::newRow(json) << QByteArray(json) << isMaterials << isComplete;
    };
    row("{}", true, false);
    row("[]", true, false);
    row("", true, false);
    row(R"({"materialList":[]})", true, true);
    row("\xef\xbb\xbf{\"materialList\":[]}", true, true);
    row(R"({"materialList":null})", true, false);
    row(R"({"materialList":{}})", true, false);
    row(R"({"materialList":[{}]})", true, true);
    row(R"({"materialList":[[]]})", true, false);
    row(R"({"materialList":[{"id":2147483647},{"id":-2147483648},{"id":1.0},{"id":1e2}]})", true, true);
    row(R"({"materialList":[{"id":-2147483649}]})", true, false);
    row(R"({"materialList":[{"property1":{"components":[0,1,8,9e9,-2]}}]})", true, true);
    row(R"({"materialList":[{"property1":{"components":[/]}}]})", true, false);
    row(R"({"materialList":[{"property1":{"components":[:]}}]})", true, false);
    row(R"({"materialList":[{"objectName":"x"}]})", true, false);
    row(R"({"materialList":[{"materialList":[]}]})", true, false);
    row(R"({"materialList":[{"isDeleted":null}]})", true, false);
    row(R"({"materialList":[{"property1":{"property1":null}}]})", true, false);
    row(R"({"number":1.5,"map":{"a":[1,{"b":"]}"},null,true],"number":[]}})", false, true);
    row(R"({"map":7,"number":"Infinity"})", false, true);
    row(R"({"number":true,"map":{}})", false, false);
    row(R"({"number":1})", false, false);
    row(R"({"number":1,"map":{},"number":2})", false, false);
}

void TestRecordCoverage::covers()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, isMaterials);
    QFETCH(bool, isComplete);
    const QVector<const QMetaObject*> otherClasses = {&OtherRecord::staticMetaObject};
    QCOMPARE(recordCoverage(json, isMaterials ? materialClasses : otherClasses).isComplete, isComplete);
}

/// Anything may stand where the type of a property is not known, and where no class is given for its records.
void TestRecordCoverage::takesOtherTypesAsTheyAre()
{
    const QVector<const QMetaObject*> aboveRecords = {&OtherRecord::staticMetaObject,
                                                      &DataModel::MaterialData::staticMetaObject};
    QVERIFY(recordCoverage(R"({"number":1,"map":{"a":[null]}})", aboveRecords).isComplete);
    const QVector<const QMetaObject*> withoutRecords = {&DataModel::MaterialDataArray::staticMetaObject};
    QVERIFY(recordCoverage(R"({"materialList":7})", withoutRecords).isComplete);
}

void TestRecordCoverage::countsValues()
{
    const RecordCoverage coverage = recordCoverage(wholeLibrary, materialClasses);
    QVERIFY(coverage.isComplete);
    QCOMPARE(coverage.valueCount, qint64(3));
}

/// Texts that do not parse are not asked for; still, nothing is read behind them.
void TestRecordCoverage::staysWithinTheText()
{
    for (int size = 0; size < wholeLibrary.size() - 2; ++size) {
        const QByteArray part(wholeLibrary.constData(), size);
        QVERIFY2(!recordCoverage(part, materialClasses).isComplete, part.constData());
        for (const char other : {'\0', '"', '{', '}', '[', ']', ',', ':', '\\', ' ', 'n'}) {
            QByteArray changed = wholeLibrary;
            changed[size] = other;
            QVERIFY(recordCoverage(changed, materialClasses).valueCount <= 4);
        }
    }
}

QTEST_GUILESS_MAIN(TestRecordCoverage)
#include "tst_recordcoverage.moc"
