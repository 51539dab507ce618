// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Comparison.h>
#include <materials/Difference.h>

#include <datamodel/MaterialData.h>

#include <QtTest>

#include <cmath>
#include <limits>

using DataModel::MaterialData;
using DataModel::MaterialPropertyData;
using Property = QSharedPointer<MaterialPropertyData>;

namespace {

QSharedPointer<MaterialData> copper()
{
    const auto property = Property::create();
    property->label = QStringLiteral("mass density");
    property->kind = 5;
    property->components = {8960, 0, 0, 0, 8960, 0, 0, 0, 8960};
    property->remark = QStringLiteral("unit kg/m3");
    const auto material = QSharedPointer<MaterialData>::create(
        3, QStringLiteral("铜"), QStringLiteral("Copper"), property, Property(), Property(), Property(), Property());
    return material;
}

void change(MaterialData& material, const QByteArray& what)
{
    MaterialPropertyData& property = *material.property1;
    if (what == "name") {
        material.chineseName = QStringLiteral("紫铜");
    } else if (what == "component") {
        property.components[4] = std::nextafter(8960, 9000);
    } else if (what == "sign of zero") {
        property.components[1] = -0.0;
    } else if (what == "not a number") {
        property.components[8] = std::numeric_limits<double>::quiet_NaN();
    } else if (what == "one component less") {
        property.components.removeLast();
    } else if (what == "several") {
        property.label = QStringLiteral("density");
        property.kind = 7;
        property.remark.clear();
        property.flag = true;
    } else if (what == "property gone") {
        material.property1.reset();
    } else if (what == "property come") {
        material.property5 = Property::create();
    } else if (what == "identifier") {
        material.id = 9;
    }
}

QStringList texts(const QVector<Materials::Difference>& differences)
{
    QStringList list;
    for (const Materials::Difference& difference : differences) {
        list.append(QStringLiteral("%1: %2 / %3").arg(difference.member, difference.source, difference.target));
    }
    return list;
}

} // namespace

/// Which members differ between two materials, and what that means for a library.
class tst_MaterialDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesWhatDiffers_data();
    void namesWhatDiffers();
    void refusesTheNameOfAnother();
    void missingNamesAreNoNames();
};

void tst_MaterialDifference::namesWhatDiffers_data()
{
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* what, const QStringList& expected) { QTest::newRow(what) << expected; };
    row("nothing", {});
    row("identifier", {});
    row("name", {QStringLiteral("chineseName: 铜 / 紫铜")});
    row("component", {QStringLiteral("property1.components[4]: 8960 / 8960.000000000002")});
    row("sign of zero", {QStringLiteral("property1.components[1]: 0 / -0")});
    row("not a number", {QStringLiteral("property1.components[8]: 8960 / NaN")});
    row("one component less", {QStringLiteral("property1.components[8]: 8960 / -")});
    row("several", {QStringLiteral("property1.label: mass density / density"), QStringLiteral("property1.kind: 5 / 7"),
                    QStringLiteral("property1.remark: unit kg/m3 / "), QStringLiteral("property1.flag: false / true")});
    QStringList gone = {QStringLiteral("property1.label: mass density / -"), QStringLiteral("property1.kind: 5 / -")};
    for (int i = 0; i < 9; ++i) {
        gone.append(QStringLiteral("property1.components[%1]: %2 / -").arg(i).arg(i % 4 == 0 ? 8960 : 0));
    }
    gone << QStringLiteral("property1.remark: unit kg/m3 / -") << QStringLiteral("property1.flag: false / -");
    row("property gone", gone);
    row("property come", {QStringLiteral("property5.label: - / "), QStringLiteral("property5.kind: - / 0"),
                          QStringLiteral("property5.remark: - / "), QStringLiteral("property5.flag: - / false")});
}

void tst_MaterialDifference::namesWhatDiffers()
{
    QFETCH(QStringList, expected);
    const auto source = copper();
    const auto target = copper();
    change(*target, QTest::currentDataTag());
    QCOMPARE(texts(Materials::differences(*source, *target)), expected);
    // The comparison says the same.
    const auto state = Materials::compareMaterials({source}, {target}).first().state;
    QCOMPARE(state, expected.isEmpty() ? Materials::Comparison::Same : Materials::Comparison::Changed);
}

void tst_MaterialDifference::refusesTheNameOfAnother()
{
    const auto own = copper();
    const auto other = copper();
    own->chineseName = QStringLiteral("紫铜");
    other->englishName = QStringLiteral("Bronze");
    const Materials::Comparison comparison = Materials::compareMaterials({copper()}, {own, other}).first();
    QCOMPARE(comparison.state, Materials::Comparison::Refused);
    QCOMPARE(comparison.takenName, QStringLiteral("铜"));
    QCOMPARE(comparison.holder, other);
    QVERIFY(comparison.target.isNull());
    // What is deleted has no name.
    other->isDeleted = true;
    QCOMPARE(Materials::compareMaterials({copper()}, {own, other}).first().state, Materials::Comparison::Changed);
    // Two that share the name already get none.
    other->isDeleted = false;
    own->chineseName = QStringLiteral("铜");
    own->property1->flag = true;
    QCOMPARE(Materials::compareMaterials({copper()}, {own, other}).first().target, own);
}

void tst_MaterialDifference::missingNamesAreNoNames()
{
    const auto source = copper();
    const auto target = copper();
    source->chineseName.clear();
    target->chineseName.clear();
    target->englishName = QStringLiteral("Bronze");
    QCOMPARE(Materials::compareMaterials({source}, {target}).first().state, Materials::Comparison::New);
}

QTEST_APPLESS_MAIN(tst_MaterialDifference)
#include "tst_materialdifference.moc"
