// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoordinateViewFixture.h"
#include "MaterialViewFixture.h"
#include "Samples.h"
#include "WidgetTexts.h"

#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/RemovalQuestion.h>
#include <workbench/material/DeleteQuestion.h>
#include <workbench/material/ImportDialog.h>
#include <workbench/material/MaterialDialog.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/property/PropertyTable.h>
#include <workbench/quality/HistogramView.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityDock.h>

#include <memory>

using namespace Workbench;
using Fixture = CoordinateViewFixture;
using OpenWindow = QWidget* (*)(QWidget&);
Q_DECLARE_METATYPE(OpenWindow)

namespace {

const QString first = QStringLiteral("<<");
const QString second = QStringLiteral(">>");

QWidget* materialDialog(QWidget& parent)
{
    MaterialDialog::openFor(BaseModule::ProjectLib, 1, &parent);
    QWidget* const dialog = windowNamed("materialDialog");
    type(*dialog->findChild<QWidget*>(QStringLiteral("property1")), "xy", QStringLiteral("1,5"));
    press(*dialog, QDialogButtonBox::Ok); // which is refused
    return dialog;
}

QWidget* importDialog(QWidget& parent)
{
    ImportDialog::openFor(BaseModule::SoftwareLib, {}, &parent);
    return windowNamed("importDialog");
}

QWidget* deleteQuestion(QWidget& parent)
{
    DeleteQuestion::openFor(BaseModule::ProjectLib, {1, 2}, &parent);
    return windowNamed("deleteQuestion");
}

QWidget* coordinateDialog(QWidget& parent)
{
    CoordinateDialog::openFor(1, &parent);
    QWidget* const dialog = windowNamed("coordinateDialog");
    type(*dialog, "angleY", QStringLiteral("1,5"));
    press(*dialog, QDialogButtonBox::Ok); // which is refused
    return dialog;
}

QWidget* newCoordinateDialog(QWidget& parent)
{
    CoordinateDialog::openForNew(0, &parent);
    return windowNamed("coordinateDialog");
}

QWidget* removalQuestion(QWidget& parent)
{
    RemovalQuestion::openFor(1, &parent);
    return windowNamed("removalQuestion");
}

// A window of its own, which ends with the function that asked for it.
template <class Dock>
QWidget* dock(QWidget& parent)
{
    auto* const shown = new Dock(&parent);
    shown->setWindowFlag(Qt::Window);
    shown->show();
    return shown;
}

int countOf(const QStringList& texts, const QString& mark)
{
    return texts.filter(mark).size();
}

/// The names of the fields that the Tab key goes through, from the one that has the focus on, until it comes again.
QStringList tabOrder(QWidget& window)
{
    QStringList names;
    const QWidget* const start = window.focusWidget();
    do {
        names << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != start && names.size() < 60);
    return names;
}

} // namespace

/// What the docks and dialogs say: in the language that was chosen last, and to those who do not see them.
class tst_DockTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changesTheLanguageOfAllTexts_data() { windows(); }
    void changesTheLanguageOfAllTexts();
    void namesAllFields_data() { windows(); }
    void namesAllFields();
    void goesThroughTheFieldsInOrder_data();
    void goesThroughTheFieldsInOrder();
    void answersToMnemonics_data();
    void answersToMnemonics();

private:
    void windows();

    std::unique_ptr<MaterialViewFixture> m_materials;
    std::unique_ptr<CoordinateViewFixture> m_systems;
};

void tst_DockTexts::windows()
{
    QTest::addColumn<OpenWindow>("open");
    QTest::newRow("quality") << OpenWindow(dock<QualityDock>);
    QTest::newRow("properties") << OpenWindow(dock<PropertyTable>);
    QTest::newRow("materials") << OpenWindow(dock<MaterialDock>);
    QTest::newRow("coordinate systems") << OpenWindow(dock<CoordinateDock>);
    QTest::newRow("material") << OpenWindow(materialDialog);
    QTest::newRow("import") << OpenWindow(importDialog);
    QTest::newRow("delete materials") << OpenWindow(deleteQuestion);
    QTest::newRow("coordinate system") << OpenWindow(coordinateDialog);
    QTest::newRow("new coordinate system") << OpenWindow(newCoordinateDialog);
    QTest::newRow("delete systems") << OpenWindow(removalQuestion);
}

void tst_DockTexts::init()
{
    m_materials = std::make_unique<MaterialViewFixture>();
    m_systems = std::make_unique<CoordinateViewFixture>();
    for (const char* const name : {"New", "Same", "Changed", "Free Space"}) {
        m_materials->libraries().createSoftware(text(name));
    }
    m_materials->libraries().createProject(text("Changed"));
    m_materials->libraries().createProject(text("Same"));
    m_materials->libraries().manager().getProjectMatByID(1)->property1->components[4] = 0.1;
    MaterialLibraries::instance()->import(BaseModule::SoftwareLib, {1}, {});
    GeometryManager::instance()->setMaterialID({m_materials->addVolume(text("block"))}, 1);
    Fixture::create(0, text("Table"));
    Fixture::create(1, text("Tool"));
    MeshManager::instance()->clear();
    MeshDisplay::instance()->colourByMetric(DataManager::MeshQualityReport::Metric::Shape);
    for (const char* const name : {"first", "second"}) {
        QVERIFY(MeshManager::instance()->addKernel(text(name), samplePath("slivers.msh")) > 0);
    }
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
}

void tst_DockTexts::cleanup()
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        window->close();
    }
    finishClosing();
    m_systems.reset();
    m_materials.reset();
}

void tst_DockTexts::changesTheLanguageOfAllTexts()
{
    QFETCH(OpenWindow, open);
    MarkTranslator one(first);
    MarkTranslator other(second);
    QCoreApplication::installTranslator(&one);
    QWidget parent;
    QWidget* const window = open(parent);
    QVERIFY(window != nullptr);
    QCoreApplication::processEvents();
    const int before = countOf(allTextsOf(*window), first);
    QVERIFY(before > 1);
    QCoreApplication::removeTranslator(&one);
    QCoreApplication::installTranslator(&other);
    QCoreApplication::processEvents();
    QTest::qWait(20);
    const QStringList texts = allTextsOf(*window);
    QCoreApplication::removeTranslator(&other);
    QCOMPARE(texts.filter(first).join(QLatin1Char('|')), QString());
    QCOMPARE(countOf(texts, second), before);
}

void tst_DockTexts::namesAllFields()
{
    QFETCH(OpenWindow, open);
    QWidget parent;
    const QWidget* const window = open(parent);
    QVERIFY(window != nullptr);
    QVERIFY(!window->findChildren<QWidget*>().isEmpty());
    QCOMPARE(namelessFields(*window).join(QLatin1Char('|')), QString());
}

void tst_DockTexts::goesThroughTheFieldsInOrder_data()
{
    QTest::addColumn<OpenWindow>("open");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QString>("expected");
    QTest::newRow("coordinate system") << OpenWindow(coordinateDialog) << QByteArray("name")
                                       << text("name basic keepsPlace type offsetX offsetY offsetZ angleUnit angleX "
                                               "angleY angleZ");
    QTest::newRow("new coordinate system") << OpenWindow(newCoordinateDialog) << QByteArray("name")
                                           << text("name basic type offsetX offsetY offsetZ angleUnit angleX angleY "
                                                   "angleZ");
    QTest::newRow("material") << OpenWindow(materialDialog) << QByteArray("englishName")
                              << text(
                                     "englishName chineseName qt_tabwidget_tabbar present quantity kind label xx xy xz "
                                     "yx yy yz zx zy zz remark flag");
}

void tst_DockTexts::goesThroughTheFieldsInOrder()
{
    QFETCH(OpenWindow, open);
    QFETCH(QByteArray, start);
    QFETCH(QString, expected);
    QWidget parent;
    parent.show();
    QWidget* const window = open(parent);
    QApplication::setActiveWindow(window);
    window->findChild<QWidget*>(QString::fromLatin1(start))->setFocus();
    QStringList order = tabOrder(*window);
    // Behind the fields stand the two buttons of the dialog, without names.
    QCOMPARE(order.mid(order.size() - 2), QStringList({QString(), QString()}));
    QCOMPARE(order.mid(0, order.size() - 2).join(QLatin1Char(' ')), expected);
}

void tst_DockTexts::answersToMnemonics_data()
{
    QTest::addColumn<OpenWindow>("open");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("field");
    const auto row = [](OpenWindow open, int key, const char* field) {
        QTest::addRow("%s by %c", field, key) << open << key << text(field);
    };
    row(coordinateDialog, Qt::Key_N, "name");
    row(coordinateDialog, Qt::Key_R, "basic");
    row(coordinateDialog, Qt::Key_C, "type");
    row(coordinateDialog, Qt::Key_O, "offsetX");
    row(coordinateDialog, Qt::Key_I, "angleUnit");
    row(materialDialog, Qt::Key_E, "englishName");
    row(materialDialog, Qt::Key_L, "label");
    row(materialDialog, Qt::Key_M, "xx");
    row(materialDialog, Qt::Key_R, "remark");
}

void tst_DockTexts::answersToMnemonics()
{
    QFETCH(OpenWindow, open);
    QFETCH(int, key);
    QFETCH(QString, field);
    QWidget parent;
    parent.show();
    QWidget* const window = open(parent);
    QApplication::setActiveWindow(window);
    QTRY_COMPARE(QApplication::activeWindow(), window);
    QTest::keyClick(window, static_cast<Qt::Key>(key), Qt::AltModifier);
    QCOMPARE(window->focusWidget()->objectName(), field);
}

QTEST_MAIN(tst_DockTexts)
#include "tst_docktexts.moc"
