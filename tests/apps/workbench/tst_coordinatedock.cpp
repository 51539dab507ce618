// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateViewFixture.h"

#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/RemovalQuestion.h>
#include <workbench/material/NumberField.h>

#include <basewidget/FixedPixelSizeAxesActor.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLocale>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTranslator>
#include <QTreeWidget>
#include <QtMath>

#include <cstring>
#include <memory>

using Workbench::CoordinateDialog;
using Workbench::CoordinateDock;
using Workbench::CoordinateSystems;
using Workbench::NumberField;
using Fixture = CoordinateViewFixture;

namespace {

/// "Global(0) [Table(1)* [Tool(2)]]": the tree, with a star at the current system, "!" at a fault.
QString textOfItem(const QTreeWidgetItem& item)
{
    QString result = QStringLiteral("%1(%2)%3%4")
                         .arg(item.text(0), item.text(1), item.font(0).bold() ? QStringLiteral("*") : QString(),
                              item.text(3).isEmpty() ? QString() : QStringLiteral("!"));
    QStringList children;
    for (int i = 0; i < item.childCount(); ++i) {
        children.append(textOfItem(*item.child(i)));
    }
    return children.isEmpty() ? result : result + QStringLiteral(" [%1]").arg(children.join(QLatin1Char(' ')));
}

QStringList column(const QTableWidget& table, int column)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem* const item = table.item(row, column);
        texts.append(item == nullptr ? QStringLiteral("none") : item->text());
    }
    return texts;
}

/// Stands for a translation file.
class StarTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("*%1").arg(QLatin1String(sourceText));
    }
};

} // namespace

/// The tree of systems, their values and the dialogs.
class tst_CoordinateDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheTree();
    void showsFaults();
    void followsOthers();
    void createsRelativeToTheChosen();
    void createsRelativeToAnother();
    void refuses_data();
    void refuses();
    void keepsNumbers_data();
    void keepsNumbers();
    void takesRadians();
    void changesUnits();
    void changes();
    void keepsAnUnknownType();
    void cancels();
    void opensOnlyWhatIsThere();
    void showsLocalAndGlobalValues();
    void showsPropertiesOfTheLibrary();
    void makesCurrent();
    void removesAfterAsking();
    void switchesAxes();
    void changesTheLanguage();

private:
    QTreeWidget& treeWidget() { return part<QTreeWidget>(*m_dock, "coordinateTree"); }
    QString tree();
    void choose(int id);
    QWidget& dialog(const char* button);

    std::unique_ptr<CoordinateViewFixture> m_fixture;
    std::unique_ptr<CoordinateDock> m_dock;
};

void tst_CoordinateDock::init()
{
    m_fixture = std::make_unique<CoordinateViewFixture>();
    m_dock = std::make_unique<CoordinateDock>();
    m_dock->resize(500, 800);
    m_dock->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dock.get()));
}

void tst_CoordinateDock::cleanup()
{
    QLocale::setDefault(QLocale::c());
    m_dock.reset();
    m_fixture.reset();
}

QString tst_CoordinateDock::tree()
{
    QStringList tops;
    for (int i = 0; i < treeWidget().topLevelItemCount(); ++i) {
        tops.append(textOfItem(*treeWidget().topLevelItem(i)));
    }
    return tops.join(QStringLiteral(" | "));
}

void tst_CoordinateDock::choose(int id)
{
    const QList<QTreeWidgetItem*> found =
        treeWidget().findItems(QString::number(id), Qt::MatchExactly | Qt::MatchRecursive, 1);
    QCOMPARE(found.size(), 1);
    const QModelIndex index = treeWidget()
                                  .model()
                                  ->match(treeWidget().model()->index(0, 1), Qt::DisplayRole, QString::number(id), 1,
                                          Qt::MatchExactly | Qt::MatchRecursive)
                                  .value(0);
    QTest::mouseClick(treeWidget().viewport(), Qt::LeftButton, Qt::NoModifier, treeWidget().visualRect(index).center());
    QCOMPARE(treeWidget().currentItem(), found.first());
}

QWidget& tst_CoordinateDock::dialog(const char* button)
{
    click(*m_dock, button);
    return *windowNamed("coordinateDialog");
}

void tst_CoordinateDock::showsTheTree()
{
    QCOMPARE(tree(), text("Global(0)*"));
    QCOMPARE(m_dock->windowTitle(), text("Coordinate systems"));
    Fixture::create(0, text("Table"));
    Fixture::create(1, text("Tool"));
    Fixture::create(0, text("Other"));
    QCOMPARE(tree(), text("Global(0)* [Table(1) [Tool(2)] Other(3)]"));
    QCOMPARE(treeWidget().topLevelItem(0)->text(2), text("Cartesian"));
}

void tst_CoordinateDock::showsFaults()
{
    writeContent(m_fixture->path(),
                 R"({"m_IDList":[1,2,3],"m_basicCoorSysIDList":[2,1,9],"m_nameList":["a","b","c"]})");
    CoordinateSystems::instance()->loadProject();
    QCOMPARE(tree(), text("Global(0)* | b(2)! [a(1)] | c(3)!"));
    QCOMPARE(treeWidget().topLevelItem(1)->text(3), text("its basic system 1 leads back to it; placed as if global"));
    QCOMPARE(treeWidget().topLevelItem(2)->text(3), text("its basic system 9 is missing; placed as if global"));
}

void tst_CoordinateDock::followsOthers()
{
    auto* const foreign = new Fixture::System;
    foreign->setID(5);
    foreign->setName(text("Foreign"));
    Fixture::Registry::getInstance()->appendCoordinateSystem(foreign);
    QTRY_COMPARE(tree(), text("Global(0)* [Foreign(5)]"));
    Fixture::Registry::getInstance()->removeCoordinateSystemByIndex(1);
    QTRY_COMPARE(tree(), text("Global(0)*"));
}

void tst_CoordinateDock::createsRelativeToTheChosen()
{
    Fixture::create(0, text("Table"), {10, 0, 0});
    choose(1);
    QWidget& window = dialog("createSystem");
    QVERIFY(Fixture::Registry::getInstance()->getNeWCoordinateSystemSign());
    QCOMPARE(part<QComboBox>(window, "basic").currentText(), text("Table (1)"));
    type(window, "name", text("Tool"));
    QTest::keyClick(&part<QComboBox>(window, "type"), Qt::Key_Down);
    type(window, "offsetX", text("1.5"));
    type(window, "offsetZ", text("-2e-3"));
    type(window, "angleY", text("30"));
    RegistryLog log;
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    QVERIFY(windowNamed("coordinateDialog") == nullptr);
    QVERIFY(!Fixture::Registry::getInstance()->getNeWCoordinateSystemSign());
    QCOMPARE(log.take(),
             QStringList({text("updateWindowTitle | [0,1,2] at 0"), text("changed [0,1,2] | [0,1,2] at 0")}));
    QCOMPARE(tree(), text("Global(0)* [Table(1) [Tool(2)]]"));
    QCOMPARE(Fixture::system(2).getType(), BaseModule::Cylindrical);
    QCOMPARE(Fixture::system(2).getOffsetCoordinateListPairList().last().second, QList<double>({1.5, 0, -2e-3}));
    QCOMPARE(Fixture::system(2).getRotateDirectionListPairList().last().second, QList<double>({0, M_PI / 6, 0}));
    QVERIFY(m_fixture->file().contains("2:1.5,0,-0.002"));
}

void tst_CoordinateDock::createsRelativeToAnother()
{
    Fixture::create(0, text("Table"));
    Fixture::create(0, text("Other"));
    QWidget& window = dialog("createSystem");
    QComboBox& basic = part<QComboBox>(window, "basic");
    QCOMPARE(basic.currentText(), text("Global (0)"));
    QTest::keyClick(&basic, Qt::Key_End);
    type(window, "name", text("Tool"));
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(tree(), text("Global(0)* [Table(1) Other(2) [Tool(3)]]"));
}

void tst_CoordinateDock::refuses_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no name") << QByteArray("name") << QString() << text("A coordinate system needs a name.");
    QTest::newRow("blank name") << QByteArray("name") << text("  ") << text("A coordinate system needs a name.");
    QTest::newRow("taken name") << QByteArray("name") << text("Table")
                                << text("Coordinate system 1 is already called 'Table'.");
    QTest::newRow("global name") << QByteArray("name") << text("Global")
                                 << text("Coordinate system 0 is already called 'Global'.");
    QTest::newRow("comma in an offset")
        << QByteArray("offsetY") << text("1,5")
        << text("'1,5' has a comma. Write the decimal mark as a point, and thousands without a mark.");
    QTest::newRow("no angle") << QByteArray("angleZ") << QString() << text("A number is missing.");
    QTest::newRow("small angle") << QByteArray("angleX") << text("1e-400")
                                 << text("'1e-400' would become 0: the smallest number above it is about 5e-324.");
}

void tst_CoordinateDock::refuses()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QLocale::setDefault(QLocale(QLatin1String("de_DE")));
    Fixture::create(0, text("Table"));
    QWidget& window = dialog("createSystem");
    type(window, "name", text("Tool"));
    type(window, field.constData(), typed);
    RegistryLog log;
    press(window, QDialogButtonBox::Ok);
    QTEST(shown(window, "refusal"), "reason");
    QVERIFY(window.isVisible());
    QCOMPARE(log.take(), QStringList());
    type(window, field.constData(), text("4"));
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(Fixture::ids(), text("[0,1,2]"));
}

void tst_CoordinateDock::keepsNumbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");
    for (const char* const locale : {"C", "de_DE", "zh_CN"}) {
        QTest::addRow("1e-300 in %s", locale) << text(locale) << text("1e-300") << 1e-300;
        QTest::addRow("0.1 + 0.2 in %s", locale) << text(locale) << text("0.30000000000000004") << 0.1 + 0.2;
        QTest::addRow("-0.0 in %s", locale) << text(locale) << text("-0.0") << -0.0;
    }
}

void tst_CoordinateDock::keepsNumbers()
{
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(double, expected);
    QLocale::setDefault(QLocale(locale));
    QWidget& window = dialog("createSystem");
    type(window, "name", text("Tool"));
    type(window, "offsetX", typed);
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    // Opened again and accepted, and read from the file.
    choose(1);
    press(dialog("changeSystem"), QDialogButtonBox::Ok);
    finishClosing();
    CoordinateSystems::instance()->loadProject();
    const double stored = CoordinateSystems::definition(1).offset[0];
    QCOMPARE(std::memcmp(&stored, &expected, sizeof stored), 0);
}

void tst_CoordinateDock::takesRadians()
{
    QWidget& window = dialog("createSystem");
    type(window, "name", text("Tool"));
    QTest::keyClick(&part<QComboBox>(window, "angleUnit"), Qt::Key_Down);
    type(window, "angleX", text("0.1"));
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(CoordinateSystems::definition(1).angles[0], 0.1);
}

void tst_CoordinateDock::changesUnits()
{
    QWidget& window = dialog("createSystem");
    type(window, "angleX", text("90"));
    type(window, "angleY", text("x"));
    QComboBox& unit = part<QComboBox>(window, "angleUnit");
    QTest::keyClick(&unit, Qt::Key_Down);
    QCOMPARE(part<NumberField>(window, "angleX").text(), text("1.5707963267948966"));
    QCOMPARE(part<NumberField>(window, "angleY").text(), text("x"));
    QTest::keyClick(&unit, Qt::Key_Up);
    QCOMPARE(part<NumberField>(window, "angleX").text(), text("90"));
    press(window, QDialogButtonBox::Cancel);
}

void tst_CoordinateDock::changes()
{
    Fixture::create(0, text("Table"), {1, 2, 3}, {0, 0.1, 0});
    Fixture::create(1, text("Tool"), {0, 0, 1});
    choose(1);
    QWidget& window = dialog("changeSystem");
    QCOMPARE(window.windowTitle(), text("Coordinate system 1"));
    QCOMPARE(part<QComboBox>(window, "basic").currentText(), text("Global (0)"));
    QVERIFY(!Fixture::Registry::getInstance()->getNeWCoordinateSystemSign());
    QCOMPARE(part<NumberField>(window, "offsetY").text(), text("2"));
    type(window, "name", text("Desk"));
    type(window, "offsetY", text("20"));
    press(window, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(tree(), text("Global(0)* [Desk(1) [Tool(2)]]"));
    // The angle was not edited: its bits stay, whatever degrees they are.
    QCOMPARE(CoordinateSystems::definition(1).angles[1], 0.1);
    QCOMPARE(Fixture::system(2).getOffsetCoordinateListPairList().at(1).second, QList<double>({1, 20, 3}));
}

void tst_CoordinateDock::keepsAnUnknownType()
{
    Fixture::systems().create(0, {text("Table"), BaseModule::CoordinateSystemType(42), {0, 0, 0}, {0, 0, 0}});
    QCOMPARE(treeWidget().topLevelItem(0)->child(0)->text(2), text("42"));
    choose(1);
    QWidget& window = dialog("changeSystem");
    type(window, "offsetX", text("5"));
    press(window, QDialogButtonBox::Ok);
    QCOMPARE(int(CoordinateSystems::definition(1).type), 42);
    QCOMPARE(CoordinateSystems::definition(1).offset[0], 5.0);
}

void tst_CoordinateDock::cancels()
{
    QWidget& window = dialog("createSystem");
    type(window, "name", text("Tool"));
    RegistryLog log;
    QTest::keyClick(&window, Qt::Key_Escape);
    finishClosing();
    QVERIFY(windowNamed("coordinateDialog") == nullptr);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!Fixture::Registry::getInstance()->getNeWCoordinateSystemSign());
}

void tst_CoordinateDock::opensOnlyWhatIsThere()
{
    CoordinateDialog::openForNew(9, m_dock.get());
    CoordinateDialog::openFor(9, m_dock.get());
    CoordinateDialog::openFor(0, m_dock.get());
    QVERIFY(windowNamed("coordinateDialog") == nullptr);
    Workbench::RemovalQuestion::openFor(0, m_dock.get());
    Workbench::RemovalQuestion::openFor(9, m_dock.get());
    QVERIFY(windowNamed("removalQuestion") == nullptr);
    for (const char* const name : {"changeSystem", "removeSystem", "makeCurrent"}) {
        QVERIFY(!part<QAbstractButton>(*m_dock, name).isEnabled());
    }
}

void tst_CoordinateDock::showsLocalAndGlobalValues()
{
    Fixture::create(0, text("Table"), {10, 20, 30}, {0, 0, M_PI / 2});
    Fixture::create(1, text("Tool"), {1, 0, 0}, {0, 0, M_PI / 4});
    choose(2);
    const QTableWidget& values = part<QTableWidget>(*m_dock, "coordinateValues");
    QCOMPARE(column(values, 0), QStringList({text("1"), text("0"), text("0"), text("0"), text("0"), text("45")}));
    QStringList expected = column(values, 1);
    QCOMPARE(expected.at(0), text("10"));
    QCOMPARE(expected.at(1), text("21"));
    QCOMPARE(expected.at(2), text("30"));
    QVERIFY(std::abs(expected.at(5).toDouble() - 135) < 1e-13);
    // However narrow the dock is, the headers can be read.
    m_dock->resize(250, 700);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(values.horizontalHeader()->sectionSize(i) >= values.horizontalHeader()->sectionSizeHint(i));
    }
    // They follow a change of the basic system.
    CoordinateSystems::instance()->change(1, {text("Table"), BaseModule::Cartesian, {100, 0, 0}, {0, 0, 0}});
    QCOMPARE(column(values, 1), QStringList({text("101"), text("0"), text("0"), text("0"), text("0"), text("45")}));
}

void tst_CoordinateDock::showsPropertiesOfTheLibrary()
{
    Fixture::create(0, text("Table"), {0.1234567, 0, 0}, {0, 0, M_PI});
    choose(1);
    const QTableWidget& properties = part<QTableWidget>(*m_dock, "coordinateProperties");
    QCOMPARE(column(properties, 0), QStringList({text("ID"), text("BasicCoordinateSystemID"), text("Name"),
                                                 text("Coordinate"), text("Quaternion")}));
    const QStringList shown = column(properties, 1);
    QCOMPARE(shown.mid(0, 4), QStringList({text("1"), text("0"), text("Table"), text("(0.123457,0,0)")}));
    // Half a turn about z; the cosine of its half is a rounding error.
    QVERIFY2(QRegularExpression(text("^\\([-0-9.e]+e-17,0,0,1\\)$")).match(shown.at(4)).hasMatch(),
             qPrintable(shown.at(4)));
}

void tst_CoordinateDock::makesCurrent()
{
    Fixture::create(0, text("Table"));
    choose(1);
    click(*m_dock, "makeCurrent");
    QCOMPARE(Fixture::Registry::getInstance()->getCurrentCoordinateSystemID(), 1);
    QCOMPARE(tree(), text("Global(0) [Table(1)*]"));
    QVERIFY(!part<QAbstractButton>(*m_dock, "makeCurrent").isEnabled());
}

void tst_CoordinateDock::removesAfterAsking()
{
    Fixture::create(0, text("Table"));
    Fixture::create(1, text("Tool"));
    Fixture::create(2, text("Tip %2"));
    choose(1);
    click(*m_dock, "removeSystem");
    const auto& question = dynamic_cast<const QMessageBox&>(*windowNamed("removalQuestion"));
    QCOMPARE(question.text(), text("Delete Table (1)?"));
    QCOMPARE(question.informativeText(), text("These are relative to it and go with it: Tool (2), Tip %2 (3)."));
    answer(question, QMessageBox::Cancel);
    finishClosing();
    QCOMPARE(Fixture::ids(), text("[0,1,2,3]"));
    choose(3);
    click(*m_dock, "removeSystem");
    QCOMPARE(dynamic_cast<const QMessageBox&>(*windowNamed("removalQuestion")).informativeText(),
             text("No other system is relative to it."));
    answer(*windowNamed("removalQuestion"), QMessageBox::Cancel);
    finishClosing();
    choose(1);
    click(*m_dock, "removeSystem");
    answer(*windowNamed("removalQuestion"), QMessageBox::Yes);
    finishClosing();
    QCOMPARE(tree(), text("Global(0)*"));
    QVERIFY(!m_fixture->file().contains("Tip"));
}

void tst_CoordinateDock::switchesAxes()
{
    Fixture::create(0, text("Table"));
    const auto isSeen = [](int id) { return Fixture::system(id).getActor()->GetVisibility() != 0; };
    click(*m_dock, "showAxes");
    QVERIFY(!isSeen(0) && !isSeen(1));
    click(*m_dock, "showAxes");
    QVERIFY(isSeen(0) && isSeen(1));
    // The mark of one, which stands at the left of its name.
    const auto clickMark = [this] {
        const QRect item = treeWidget().visualItemRect(treeWidget().topLevelItem(0)->child(0));
        QTest::mouseClick(treeWidget().viewport(), Qt::LeftButton, Qt::NoModifier,
                          {item.left() + item.height() / 2, item.center().y()});
    };
    clickMark();
    QTRY_VERIFY(!isSeen(1));
    QVERIFY(isSeen(0));
    QTRY_COMPARE(treeWidget().topLevelItem(0)->child(0)->checkState(0), Qt::Unchecked);
    clickMark();
    QTRY_VERIFY(isSeen(1));
}

void tst_CoordinateDock::changesTheLanguage()
{
    StarTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(m_dock->windowTitle(), text("*Coordinate systems"));
    QCOMPARE(part<QAbstractButton>(*m_dock, "createSystem").text(), text("*New below..."));
    QCOMPARE(part<QTableWidget>(*m_dock, "coordinateValues").horizontalHeaderItem(1)->text(), text("*Global"));
    QCOMPARE(treeWidget().topLevelItem(0)->text(2), text("*Cartesian"));
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(m_dock->windowTitle(), text("Coordinate systems"));
}

QTEST_MAIN(tst_CoordinateDock)
#include "tst_coordinatedock.moc"
