// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"

#include <workbench/material/MaterialDialog.h>
#include <workbench/material/NumberField.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLocale>
#include <QSpinBox>
#include <QTabWidget>

#include <cmath>
#include <cstring>
#include <limits>

using DataModel::MaterialData;
using Workbench::MaterialDialog;
using Workbench::NumberField;

namespace {

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

/// Creating and editing a material.
class tst_MaterialDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<MaterialViewFixture>(); }
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        m_fixture.reset();
    }

    void createsAMaterial();
    void createsInTheSoftwareLibrary();
    void refusesNames_data();
    void refusesNames();
    void keepsItsOwnName();
    void refusesNumbers_data();
    void refusesNumbers();
    void keepsNumbers_data();
    void keepsNumbers();
    void keepsWhatCannotBeTyped_data();
    void keepsWhatCannotBeTyped();
    void keepsUnchangedRecords();
    void leavesSharedRecordsAlone();
    void keepsOtherNumbersOfComponents();
    void takesAPropertyAway();
    void choosesQuantities();
    void showsUnits_data();
    void showsUnits();
    void cancels();
    void opensOnlyWhatIsThere();

private:
    QWidget& newMaterial();
    QWidget& edit(int id);
    QWidget& editor(const QWidget& dialog, const char* name);
    void typeComponents(const QWidget& propertyEditor, const QStringList& texts);
    QSharedPointer<MaterialData> project(int id) { return m_fixture->libraries().manager().getProjectMatByID(id); }

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

QWidget& tst_MaterialDialog::newMaterial()
{
    click(m_fixture->dock(), "createProject");
    return *windowNamed("materialDialog");
}

QWidget& tst_MaterialDialog::edit(int id)
{
    MaterialDialog::openFor(BaseModule::ProjectLib, id, &m_fixture->dock());
    return *windowNamed("materialDialog");
}

QWidget& tst_MaterialDialog::editor(const QWidget& dialog, const char* name)
{
    QWidget& found = part<QWidget>(dialog, name);
    part<QTabWidget>(dialog, "properties").setCurrentWidget(&found);
    return found;
}

void tst_MaterialDialog::typeComponents(const QWidget& propertyEditor, const QStringList& texts)
{
    const QList<NumberField*> fields = propertyEditor.findChildren<NumberField*>();
    QCOMPARE(fields.size(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        type(*fields.at(i), texts.at(i));
    }
}

void tst_MaterialDialog::createsAMaterial()
{
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = newMaterial();
    QCOMPARE(dialog.windowTitle(), text("New material - Project library"));
    type(dialog, "englishName", text("Mica"));
    type(dialog, "chineseName", text("云母"));
    QWidget& property = editor(dialog, "property2");
    QVERIFY(!part<QGroupBox>(property, "present").isChecked());
    QTest::keyClick(&part<QGroupBox>(property, "present"), Qt::Key_Space);
    QTest::keyClick(&part<QComboBox>(property, "quantity"), Qt::Key_Down);
    typeComponents(property, {text("5.4"), text("0"), text("-0"), text("1e-300"), text("5.4"), text("0"), text("0"),
                              text("0.30000000000000004"), text("1.7976931348623157e308")});
    type(property, "remark", text("unit 1; source a handbook"));
    click(property, "flag");
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QVERIFY(windowNamed("materialDialog") == nullptr);
    const QString state = text(" | 1:Steel 2:Mica next 3");
    QCOMPARE(log.take(), QStringList({text("changed 1") + state, text("updateWindowTitle") + state}));

    MaterialFixture::Manager& reader = *m_fixture->libraries().newManager();
    reader.initProjectMaterial();
    for (const auto& mica : {project(2), reader.getProjectMatByID(2)}) {
        QCOMPARE(mica->chineseName, text("云母"));
        QVERIFY(mica->property1.isNull() && mica->property3.isNull());
        QCOMPARE(mica->property2->kind, 1);
        QCOMPARE(mica->property2->label, text("relative permittivity"));
        QCOMPARE(mica->property2->remark, text("unit 1; source a handbook"));
        QCOMPARE(mica->property2->flag, true);
        const QList<double> expected = {5.4, 0, -0.0, 1e-300, 5.4, 0, 0, 0.1 + 0.2, std::numeric_limits<double>::max()};
        QCOMPARE(mica->property2->components.size(), 9);
        for (int i = 0; i < 9; ++i) {
            QCOMPARE(bitsOf(mica->property2->components.at(i)), bitsOf(expected.at(i)));
        }
    }
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Steel; 2 Mica"));
}

void tst_MaterialDialog::createsInTheSoftwareLibrary()
{
    click(m_fixture->dock(), "createSoftware");
    QWidget& dialog = *windowNamed("materialDialog");
    QCOMPARE(dialog.windowTitle(), text("New material - Software library"));
    type(dialog, "englishName", text("Mica"));
    type(dialog, "chineseName", text("云母"));
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(log.take(), QStringList({text("changed 0 | next 1")}));
    QCOMPARE(m_fixture->libraries().software(), text("1:Mica next 2"));
    QVERIFY(contentOf(MaterialFixture::softwarePath()).contains("云母"));
}

void tst_MaterialDialog::refusesNames_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("chinese");
    QTest::addColumn<QString>("reason");
    const QString reserved =
        text("'%1' is reserved: it names the default material, which fills every volume without a material.");
    const QString taken = text("Material 1 of the same library is already called '%1'.");
    const QString missing = text("A material needs an English and a Chinese name.");
    QTest::newRow("reserved English") << text("Free Space") << text("空") << reserved.arg(text("Free Space"));
    QTest::newRow("reserved Chinese") << text("Vacuum") << text("自由空间") << reserved.arg(text("自由空间"));
    QTest::newRow("reserved, the other way") << text("自由空间") << text("空") << reserved.arg(text("自由空间"));
    QTest::newRow("taken English") << text("Steel") << text("钢") << taken.arg(text("Steel"));
    QTest::newRow("taken Chinese") << text("Iron") << text("中Steel") << taken.arg(text("中Steel"));
    QTest::newRow("taken, the other way") << text("中Steel") << text("钢") << taken.arg(text("中Steel"));
    QTest::newRow("no English") << QString() << text("钢") << missing;
    QTest::newRow("no Chinese") << text("Iron") << text(" ") << missing;
}

void tst_MaterialDialog::refusesNames()
{
    QFETCH(QString, english);
    QFETCH(QString, chinese);
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = newMaterial();
    type(dialog, "englishName", english);
    type(dialog, "chineseName", chinese);
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    QTEST(shown(dialog, "refusal"), "reason");
    QVERIFY(dialog.isVisible());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_fixture->libraries().project(), text("1:Steel next 2"));
    // What was refused can be mended.
    type(dialog, "englishName", text("Iron"));
    type(dialog, "chineseName", text("铁"));
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(m_fixture->libraries().project(), text("1:Steel 2:Iron next 3"));
}

void tst_MaterialDialog::keepsItsOwnName()
{
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = edit(1);
    QCOMPARE(dialog.windowTitle(), text("Material 1 - Project library"));
    type(dialog, "chineseName", text("Steel"));
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(project(1)->chineseName, text("Steel"));
    QCOMPARE(project(1)->englishName, text("Steel"));
}

void tst_MaterialDialog::refusesNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("comma")
        << text("1,5") << text("'1,5' has a comma. Write the decimal mark as a point, and thousands without a mark.");
    QTest::newRow("wide comma")
        << text("1，5") << text("'1，5' has a comma. Write the decimal mark as a point, and thousands without a mark.");
    QTest::newRow("thousands") << text("1.234,5")
                               << text(
                                      "'1.234,5' has a comma. Write the decimal mark as a point, and thousands without "
                                      "a mark.");
    QTest::newRow("beyond 1.8e308") << text("1.8e308")
                                    << text("'1.8e308' is too large: the largest number is about 1.8e308.");
    QTest::newRow("empty") << QString() << text("A number is missing.");
    QTest::newRow("word") << text("five") << text("'five' is not a decimal number such as 0.5 or 1e-12.");
    QTest::newRow("infinite") << text("inf") << text("'inf' is not a finite number.");
    QTest::newRow("large") << text("1e400") << text("'1e400' is too large: the largest number is about 1.8e308.");
    QTest::newRow("small") << text("1e-400")
                           << text("'1e-400' would become 0: the smallest number above it is about 5e-324.");
}

void tst_MaterialDialog::refusesNumbers()
{
    QFETCH(QString, typed);
    QFETCH(QString, reason);
    QLocale::setDefault(QLocale(QLatin1String("de_DE")));
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = edit(1);
    NumberField& field = part<NumberField>(editor(dialog, "property1"), "yz");
    type(field, typed);
    QCOMPARE(field.toolTip(), reason);
    part<QTabWidget>(dialog, "properties").setCurrentIndex(3);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(shown(dialog, "refusal"), text("Steel, component yz: ") + reason);
    QCOMPARE(part<QTabWidget>(dialog, "properties").currentIndex(), 0);
    QVERIFY(dialog.isVisible());
    QCOMPARE(project(1)->property1->components.at(5), 0.0);
    type(field, text("2"));
    QCOMPARE(field.toolTip(), QString());
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(1)->property1->components.at(5), 2.0);
}

void tst_MaterialDialog::keepsNumbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    QTest::addColumn<QString>("shownAgain");
    for (const char* const locale : {"C", "de_DE", "zh_CN"}) {
        const auto row = [locale](const char* typed, double expected, const char* again) {
            QTest::addRow("%s in %s", typed, locale) << text(locale) << text(typed) << expected << text(again);
        };
        row("1e-300", 1e-300, "1e-300");
        row("0.30000000000000004", 0.1 + 0.2, "0.30000000000000004");
        row("0.3", 0.3, "0.3");
        row("-0.0", -0.0, "-0");
        row("1e-12", 1e-12, "1e-12");
        row("58000000", 5.8e7, "5.8e+07");
        row("1e308", 1e308, "1e+308");
        row("-1.7976931348623157e308", -std::numeric_limits<double>::max(), "-1.7976931348623157e+308");
        row("5e-324", std::numeric_limits<double>::denorm_min(), "5e-324");
        row("1234567.891", 1234567.891, "1234567.891");
        row(" +.5 ", 0.5, "0.5");
    }
}

void tst_MaterialDialog::keepsNumbers()
{
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(double, expected);
    QLocale::setDefault(QLocale(locale));
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = edit(1);
    type(editor(dialog, "property1"), "zx", typed);
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(bitsOf(project(1)->property1->components.at(6)), bitsOf(expected));

    QWidget& again = edit(1);
    QTEST(part<NumberField>(editor(again, "property1"), "zx").text(), "shownAgain");
    type(again, "englishName", text("Iron"));
    press(again, QDialogButtonBox::Ok);
    finishClosing();
    MaterialFixture::Manager& reader = *m_fixture->libraries().newManager();
    reader.initProjectMaterial();
    QCOMPARE(reader.getProjectMatByID(1)->englishName, text("Iron"));
    QCOMPARE(bitsOf(reader.getProjectMatByID(1)->property1->components.at(6)), bitsOf(expected));
}

void tst_MaterialDialog::keepsWhatCannotBeTyped_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << text("inf");
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity() << text("-inf");
    QTest::newRow("not a number") << quietNaN << text("nan");
    double unusual = 0;
    const quint64 bits = 0x7ff8000000000123;
    std::memcpy(&unusual, &bits, sizeof bits);
    QTest::newRow("an unusual one") << unusual << text("nan");
}

void tst_MaterialDialog::keepsWhatCannotBeTyped()
{
    QFETCH(double, value);
    m_fixture->libraries().createProject(text("Steel"));
    project(1)->property1->components[2] = value;
    QWidget& dialog = edit(1);
    QTEST(part<NumberField>(editor(dialog, "property1"), "xz").text(), "expected");
    type(part<QWidget>(dialog, "property1"), "xx", text("7"));
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(project(1)->property1->components.at(0), 7.0);
    QCOMPARE(bitsOf(project(1)->property1->components.at(2)), bitsOf(value));
}

void tst_MaterialDialog::keepsUnchangedRecords()
{
    m_fixture->libraries().createProject(text("Steel"));
    const auto before = project(1)->property1;
    QWidget& dialog = edit(1);
    type(dialog, "englishName", text("Iron"));
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(1)->property1, before);
    QCOMPARE(project(1)->englishName, text("Iron"));
}

void tst_MaterialDialog::leavesSharedRecordsAlone()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    // Both libraries then share the property's record.
    QVERIFY(m_fixture->libraries().manager().importMaterial(BaseModule::SoftwareLib, {1}));
    QWidget& dialog = edit(1);
    type(editor(dialog, "property1"), "xx", text("7"));
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(1)->property1->components.first(), 7.0);
    QCOMPARE(m_fixture->libraries().manager().getSoftwareMatByID(1)->property1->components.first(), 1.0);
}

void tst_MaterialDialog::keepsOtherNumbersOfComponents()
{
    m_fixture->libraries().createProject(text("Steel"));
    project(1)->property1->components = {1, 2};
    QWidget& dialog = edit(1);
    QWidget& property = editor(dialog, "property1");
    QCOMPARE(part<NumberField>(property, "xx").text(), QString());
    type(property, "label", text("pair"));
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(project(1)->property1->components, QList<double>({1, 2}));
    QCOMPARE(project(1)->property1->label, text("pair"));
    // Once one is typed all nine are wanted.
    QWidget& again = edit(1);
    type(editor(again, "property1"), "xx", text("1"));
    press(again, QDialogButtonBox::Ok);
    QCOMPARE(shown(again, "refusal"), text("pair, component xy: A number is missing."));
    QCOMPARE(project(1)->property1->components, QList<double>({1, 2}));
    press(again, QDialogButtonBox::Cancel);
}

void tst_MaterialDialog::takesAPropertyAway()
{
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = edit(1);
    QGroupBox& present = part<QGroupBox>(editor(dialog, "property1"), "present");
    QVERIFY(present.isChecked());
    // What is refused does not matter any more.
    type(present, "xx", text("x"));
    QTest::keyClick(&present, Qt::Key_Space);
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(project(1)->property1.isNull());
}

void tst_MaterialDialog::choosesQuantities()
{
    QWidget& dialog = newMaterial();
    QWidget& property = editor(dialog, "property1");
    QTest::keyClick(&part<QGroupBox>(property, "present"), Qt::Key_Space);
    QComboBox& quantity = part<QComboBox>(property, "quantity");
    QSpinBox& kind = part<QSpinBox>(property, "kind");
    QLineEdit& label = part<QLineEdit>(property, "label");
    QTest::keyClick(&quantity, Qt::Key_End);
    QCOMPARE(kind.value(), 5);
    QCOMPARE(label.text(), text("mass density"));
    // A label of one's own stays.
    type(label, text("density at 4 C"));
    QTest::keyClick(&quantity, Qt::Key_Up);
    QCOMPARE(kind.value(), 4);
    QCOMPARE(label.text(), text("density at 4 C"));
    // A number of one's own is some other quantity.
    kind.setFocus();
    kind.selectAll();
    QTest::keyClicks(&kind, text("-2147483648"));
    QCOMPARE(kind.value(), std::numeric_limits<int>::min());
    QCOMPARE(quantity.currentText(), text("other"));
    press(dialog, QDialogButtonBox::Cancel);
}

void tst_MaterialDialog::showsUnits_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("remark");
    QTest::addColumn<QString>("unit");
    QTest::newRow("by kind") << 3 << QString() << text("S/m");
    QTest::newRow("density") << 5 << text("source a handbook") << text("kg/m3");
    QTest::newRow("conductivity") << 4 << QString() << text("W/(m K)");
    QTest::newRow("none") << 1 << QString() << text("1");
    QTest::newRow("by remark") << 3 << text("unit MS/m; source a handbook") << text("MS/m");
    QTest::newRow("by remark, other kind") << 77 << text("unit Pa") << text("Pa");
    QTest::newRow("unknown") << 77 << text("units of some kind") << text("not known: begin the remark with 'unit X'");
}

void tst_MaterialDialog::showsUnits()
{
    QFETCH(int, kind);
    QFETCH(QString, remark);
    m_fixture->libraries().createProject(text("Steel"));
    project(1)->property1->kind = kind;
    QWidget& dialog = edit(1);
    QWidget& property = editor(dialog, "property1");
    type(property, "remark", remark);
    QTEST(shown(property, "unit"), "unit");
    press(dialog, QDialogButtonBox::Cancel);
}

void tst_MaterialDialog::cancels()
{
    m_fixture->libraries().createProject(text("Steel"));
    QWidget& dialog = edit(1);
    type(dialog, "englishName", text("Iron"));
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Cancel);
    finishClosing();
    QVERIFY(windowNamed("materialDialog") == nullptr);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_fixture->libraries().project(), text("1:Steel next 2"));
}

void tst_MaterialDialog::opensOnlyWhatIsThere()
{
    m_fixture->libraries().createProject(text("Steel"));
    m_fixture->libraries().createProject(text("Air"));
    m_fixture->libraries().manager().deleteProjectMat(1);
    for (const int id : {1, 3, -1}) {
        MaterialDialog::openFor(BaseModule::ProjectLib, id, &m_fixture->dock());
        QVERIFY(windowNamed("materialDialog") == nullptr);
    }
    // By double click, too.
    QTreeView& view = part<QTreeView>(m_fixture->dock(), "materialsProject");
    const QPoint place = view.visualRect(view.model()->index(0, 1)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(part<QLineEdit>(*windowNamed("materialDialog"), "englishName").text(), text("Air"));
}

QTEST_MAIN(tst_MaterialDialog)
#include "tst_materialdialog.moc"
