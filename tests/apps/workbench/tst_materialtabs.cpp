// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"
#include "WidgetTexts.h"

#include <materials/MaterialMembers.h>
#include <workbench/material/MaterialDialog.h>
#include <workbench/material/NumberField.h>

#include <QComboBox>
#include <QGroupBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

using Workbench::MaterialDialog;

/// The tabs of the material dialog are called what their records say that they are.
class tst_MaterialTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }

    void namesByRecord_data();
    void namesByRecord();
    void namesByPlaceWithoutARecord();
    void areAllSeen();
    void followTheFields();
    void followTheLanguage();
    void refusalNamesTheTab();

private:
    QWidget& edit();
    static QString tab(const QWidget& dialog, int index)
    {
        return part<QTabWidget>(dialog, "properties").tabText(index);
    }
    DataModel::MaterialPropertyData& record()
    {
        return *m_fixture->libraries().manager().getProjectMatByID(1)->property1;
    }

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

void tst_MaterialTabs::init()
{
    m_fixture = std::make_unique<MaterialViewFixture>();
    m_fixture->libraries().createProject(text("Steel"));
}

QWidget& tst_MaterialTabs::edit()
{
    MaterialDialog::openFor(BaseModule::ProjectLib, 1, &m_fixture->dock());
    return *windowNamed("materialDialog");
}

void tst_MaterialTabs::namesByRecord_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("name");
    QTest::newRow("label of the kind") << 3 << text("electric conductivity") << text("electric conductivity");
    QTest::newRow("label of another kind") << 3 << text("mass density") << text("mass density");
    QTest::newRow("label of one's own") << 3 << text("conductivity at 4 K") << text("conductivity at 4 K");
    QTest::newRow("label, unknown kind") << 77 << text("hardness") << text("hardness");
    QTest::newRow("no label") << 5 << QString() << text("mass density");
    QTest::newRow("blanks") << 5 << text(" \t ") << text("mass density");
    QTest::newRow("neither") << 77 << QString() << text("Property 1");
    QTest::newRow("no mark of a key") << 77 << text("R&D <b>") << text("R&&D <b>");
}

void tst_MaterialTabs::namesByRecord()
{
    QFETCH(int, kind);
    QFETCH(QString, label);
    record().kind = kind;
    record().label = label;
    const QWidget& dialog = edit();
    QTEST(tab(dialog, 0), "name");
    QCOMPARE(part<QTabWidget>(dialog, "properties").tabToolTip(0), text("Property 1"));
}

void tst_MaterialTabs::namesByPlaceWithoutARecord()
{
    record().label = QString(300, QLatin1Char('m'));
    const QWidget& dialog = edit();
    for (int i = 1; i < 5; ++i) {
        QCOMPARE(tab(dialog, i), text("Property %1").arg(i + 1));
    }
    // However long a label is, the tabs beside it stay in reach.
    QVERIFY2(tab(dialog, 0).size() < 40 && tab(dialog, 0).startsWith(text("mmm")), qPrintable(tab(dialog, 0)));
}

// Those of the default library, without scrolling.
void tst_MaterialTabs::areAllSeen()
{
    const auto material = m_fixture->libraries().manager().getProjectMatByID(1);
    int kind = 0;
    for (const auto member : Materials::propertyMembers) {
        auto made = QSharedPointer<DataModel::MaterialPropertyData>::create();
        made->kind = ++kind;
        (*material).*member = made;
    }
    QWidget& dialog = edit();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QTabBar& bar = *part<QTabWidget>(dialog, "properties").tabBar();
    QCOMPARE(bar.tabText(4), text("mass density"));
    QVERIFY(bar.tabRect(0).left() >= 0);
    QVERIFY2(bar.tabRect(4).right() <= bar.width(),
             qPrintable(text("%1, %2").arg(bar.tabRect(4).right()).arg(bar.width())));
    for (const QToolButton* scroller : bar.findChildren<QToolButton*>()) {
        QVERIFY(!scroller->isVisible());
    }
}

void tst_MaterialTabs::followTheFields()
{
    const QWidget& dialog = edit();
    QCOMPARE(tab(dialog, 0), text("Steel"));
    QWidget& property = part<QWidget>(dialog, "property2");
    part<QTabWidget>(dialog, "properties").setCurrentWidget(&property);
    QTest::keyClick(&part<QGroupBox>(property, "present"), Qt::Key_Space);
    QCOMPARE(tab(dialog, 1), text("Property 2"));
    QTest::keyClick(&part<QComboBox>(property, "quantity"), Qt::Key_End);
    QCOMPARE(tab(dialog, 1), text("mass density"));
    type(property, "label", text("density at 4 C"));
    QCOMPARE(tab(dialog, 1), text("density at 4 C"));
    type(property, "label", QString());
    QCOMPARE(tab(dialog, 1), text("mass density"));
    QTest::keyClick(&part<QComboBox>(property, "quantity"), Qt::Key_Up);
    QCOMPARE(tab(dialog, 1), text("thermal conductivity"));
    QTest::keyClick(&part<QGroupBox>(property, "present"), Qt::Key_Space);
    QCOMPARE(tab(dialog, 1), text("Property 2"));
    QCOMPARE(tab(dialog, 0), text("Steel"));
}

// What the library names; what a person wrote stays as it is.
void tst_MaterialTabs::followTheLanguage()
{
    const auto translate = [this](const char* label) {
        record().kind = 1;
        record().label = text(label);
        QWidget& dialog = edit();
        MarkTranslator translator(text("*"));
        QCoreApplication::installTranslator(&translator);
        QCoreApplication::processEvents();
        const QStringList names{tab(dialog, 0), tab(dialog, 1)};
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::processEvents();
        press(dialog, QDialogButtonBox::Cancel);
        finishClosing();
        return names.join(QLatin1Char('|'));
    };
    QCOMPARE(translate("relative permittivity"), text("*relative permittivity|*Property 2"));
    QCOMPARE(translate("permittivity at 1 GHz"), text("permittivity at 1 GHz|*Property 2"));
}

void tst_MaterialTabs::refusalNamesTheTab()
{
    record().label = text("at %2 & %3");
    QWidget& dialog = edit();
    type(part<QWidget>(dialog, "property1"), "xy", text("x%1"));
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(shown(dialog, "refusal"),
             text("at %2 & %3, component xy: 'x%1' is not a decimal number such as 0.5 or 1e-12."));
}

QTEST_MAIN(tst_MaterialTabs)
#include "tst_materialtabs.moc"
