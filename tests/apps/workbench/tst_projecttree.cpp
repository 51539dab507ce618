// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ModalWindows.h"
#include "Samples.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>
#include <workbench/selection/NamedSelections.h>
#include <workbench/selection/ProjectTree.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <QUndoStack>

using DataManager::SelectedDataManager;
using namespace Workbench;
using Pairs = QList<QPair<int, int>>;

/// The menus of the project tree, and named sets and groups.
class tst_ProjectTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void menusOfLines_data();
    void menusOfLines();
    void volumeIsShownAlone();
    void volumeIsRenamed();
    void groupIsRenamed();
    void takenNamesAreRefused();
    void setOfVolumes();
    void setOfFaces();
    void setIsSelectedInOneStep();
    void clickIsOneStepOfUndo_data();
    void clickIsOneStepOfUndo();
    void setSelectsWhatIsThere();
    void groupOfElements();
    void setsTravelWithTheProject();
    void unreadMeshIsReadAgain();

private:
    QTreeWidgetItem* line(const QString& text) const;
    /// Opens the menu of a line; the texts of its entries. One that is chosen is done; one that asks gets this name.
    QStringList menu(const QString& text, const char* chosen = nullptr, const QString& name = QString());
    static void select(BaseModule::SelectModel model, const Pairs& pairs);
    static Pairs selected(BaseModule::SelectModel model)
    {
        return SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(model);
    }

    std::unique_ptr<ProjectTree> m_tree;
    QTemporaryDir m_directory;
};

void tst_ProjectTree::initTestCase()
{
    qRegisterMetaType<QMultiMap<int, int>>("QMultiMap<int,int>");
    Project::instance();
    SelectionUndo::instance();
    m_tree = std::make_unique<ProjectTree>();
    m_tree->resize(400, 900);
    m_tree->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tree.get()));
}

void tst_ProjectTree::init()
{
    QVERIFY(Project::instance()->create());
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryComponent);
    QCOMPARE(openMesh(samplePath("bearing-housing.msh")), 1);
    SelectionUndo::instance()->forget();
    QTest::qWait(20);
}

void tst_ProjectTree::cleanupTestCase()
{
    m_tree.reset();
    Project::instance()->close();
}

QTreeWidgetItem* tst_ProjectTree::line(const QString& text) const
{
    return m_tree->findChild<QTreeWidget*>()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

QStringList tst_ProjectTree::menu(const QString& text, const char* chosen, const QString& name)
{
    QTest::qWait(20); // the tree is made anew when the event loop turns
    auto* tree = m_tree->findChild<QTreeWidget*>();
    QTreeWidgetItem* item = line(text);
    if (item == nullptr) {
        return {QStringLiteral("no such line")};
    }
    for (QTreeWidgetItem* parent = item->parent(); parent != nullptr; parent = parent->parent()) {
        parent->setExpanded(true);
    }
    tree->scrollToItem(item);
    QStringList texts;
    ModalWindows dialogs;
    QTimer opening;
    connect(&opening, &QTimer::timeout, this, [&] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (popup == nullptr) {
            return;
        }
        opening.stop();
        for (QAction* action : popup->actions()) {
            texts.append(action->text());
        }
        const int place = texts.indexOf(QString::fromUtf8(chosen == nullptr ? "" : chosen));
        if (place >= 0) {
            dialogs.meet<QInputDialog>([name](QInputDialog& dialog) {
                dialog.setTextValue(name);
                dialog.accept();
            });
            QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier,
                              popup->actionGeometry(popup->actions().at(place)).center());
        } else {
            popup->close();
        }
    });
    opening.start(20);
    Q_EMIT tree->customContextMenuRequested(tree->visualItemRect(item).center());
    QTest::qWait(20);
    return texts;
}

void tst_ProjectTree::select(BaseModule::SelectModel model, const Pairs& pairs)
{
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(model);
    SelectedDataManager::getInstance()->addSelectedTargetList(model, pairs);
}

void tst_ProjectTree::menusOfLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("entries");
    QTest::newRow("volume") << QStringLiteral("foot") << QStringLiteral("Show only this,Show all,Hide,Rename…");
    QTest::newRow("face") << QStringLiteral("bore") << QString();
    QTest::newRow("heading") << QStringLiteral("Volumes") << QString();
    QTest::newRow("mesh") << QStringLiteral("bearing-housing") << QString();
    QTest::newRow("set") << QStringLiteral("a set") << QStringLiteral("Select,Show,Hide,Rename…,Delete");
    QTest::newRow("own group") << QStringLiteral("a group") << QStringLiteral("Rename…,Delete");
}

void tst_ProjectTree::menusOfLines()
{
    QFETCH(QString, text);
    QFETCH(QString, entries);
    GeometryManager::instance()->addSet(QStringLiteral("a set"), {{1, -1}});
    MeshManager::instance()->addGroup(1, QStringLiteral("a group"), {1000});
    if (entries.isEmpty()) {
        QTest::qWait(20);
        QVERIFY(line(text) != nullptr);
        auto* tree = m_tree->findChild<QTreeWidget*>();
        Q_EMIT tree->customContextMenuRequested(tree->visualItemRect(line(text)).center());
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    } else {
        QCOMPARE(menu(text).join(QLatin1Char(',')), entries);
    }
}

void tst_ProjectTree::volumeIsShownAlone()
{
    GeometryManager* geometry = GeometryManager::instance();
    menu(QStringLiteral("bush"), "Show only this");
    QVERIFY(!geometry->isComponentShown(1) && geometry->isComponentShown(2) && !geometry->isComponentShown(3));
    menu(QStringLiteral("bush"), "Hide");
    QVERIFY(!geometry->isComponentShown(2));
    menu(QStringLiteral("bush"), "Show all");
    QVERIFY(geometry->isComponentShown(1) && geometry->isComponentShown(2) && geometry->isComponentShown(3));
}

void tst_ProjectTree::volumeIsRenamed()
{
    menu(QStringLiteral("bush"), "Rename…", QStringLiteral("  sleeve "));
    QCOMPARE(GeometryManager::instance()->getComponentName(2), QStringLiteral("sleeve"));
    QTest::qWait(20);
    QVERIFY(line(QStringLiteral("sleeve")) != nullptr);
    QVERIFY(Project::instance()->isModified());
}

void tst_ProjectTree::groupIsRenamed()
{
    // A volume of that name is found first.
    GeometryManager::instance()->renameComponent(1, QStringLiteral("volume"));
    menu(QStringLiteral("foot"), "Rename…", QStringLiteral("base"));
    QCOMPARE(MeshManager::instance()->getGroupName(1, 1), QStringLiteral("base"));
    // Groups of the file cannot be deleted.
    QCOMPARE(menu(QStringLiteral("base")), QStringList{QStringLiteral("Rename…")});
}

void tst_ProjectTree::takenNamesAreRefused()
{
    Messages messages;
    menu(QStringLiteral("bush"), "Rename…", QStringLiteral("foot"));
    QCOMPARE(GeometryManager::instance()->getComponentName(2), QStringLiteral("bush"));
    QCOMPARE(messages.list, QStringList{QStringLiteral("2 The name “foot” is taken.")});
    menu(QStringLiteral("bush"), "Rename…", QStringLiteral(" "));
    QCOMPARE(messages.list.last(), QStringLiteral("2 A name must not be empty."));
    QCOMPARE(GeometryManager::instance()->getComponentName(2), QStringLiteral("bush"));
}

void tst_ProjectTree::setOfVolumes()
{
    GeometryManager* geometry = GeometryManager::instance();
    QVERIFY(!NamedSelections::canName());
    Messages messages;
    QVERIFY(!NamedSelections::create(QStringLiteral("nothing")));
    QCOMPARE(messages.list.size(), 1);
    select(BaseModule::GeometryComponent, {{1, -1}, {3, -1}});
    QVERIFY(NamedSelections::canName());
    QCOMPARE(NamedSelections::proposedName(), QStringLiteral("set 1"));
    QVERIFY(NamedSelections::create(NamedSelections::proposedName()));
    QCOMPARE(NamedSelections::proposedName(), QStringLiteral("set 2"));
    QCOMPARE(geometry->getSetMembers(1), (Pairs{{1, -1}, {3, -1}}));
    QTest::qWait(20);
    QCOMPARE(line(QStringLiteral("set 1"))->text(1), QStringLiteral("2 members"));
    QCOMPARE(line(QStringLiteral("set 1"))->parent()->text(0), QStringLiteral("Sets"));
    QVERIFY(!NamedSelections::create(QStringLiteral("set 1")));
    QCOMPARE(messages.list.size(), 2);
    QCOMPARE(messages.list.last(), QStringLiteral("2 The name “set 1” is taken."));
    menu(QStringLiteral("set 1"), "Hide");
    QVERIFY(!geometry->isComponentShown(1) && geometry->isComponentShown(2) && !geometry->isComponentShown(3));
    menu(QStringLiteral("set 1"), "Show");
    QVERIFY(geometry->isComponentShown(1) && geometry->isComponentShown(3));
    menu(QStringLiteral("set 1"), "Rename…", QStringLiteral("outer"));
    QCOMPARE(geometry->getSetName(1), QStringLiteral("outer"));
    menu(QStringLiteral("outer"), "Delete");
    QCOMPARE(geometry->getSetCount(), 0);
    QTest::qWait(20);
    QVERIFY(line(QStringLiteral("Sets")) == nullptr);
}

void tst_ProjectTree::setOfFaces()
{
    const QList<int> faces = GeometryManager::instance()->getFaces(1);
    const Pairs pairs{{1, faces.at(0)}, {1, faces.at(1)}};
    select(BaseModule::GeometryFace, pairs);
    QVERIFY(NamedSelections::create(QStringLiteral("faces")));
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::MeshNode);
    menu(QStringLiteral("faces"), "Select");
    QCOMPARE(SelectedDataManager::getInstance()->getSelectModel(), BaseModule::GeometryFace);
    QCOMPARE(selected(BaseModule::GeometryFace), pairs);
}

void tst_ProjectTree::setIsSelectedInOneStep()
{
    GeometryManager::instance()->addSet(QStringLiteral("pair"), {{1, -1}, {3, -1}});
    select(BaseModule::GeometryComponent, {{2, -1}});
    SelectionUndo::instance()->forget();
    QTest::qWait(20);
    auto* tree = m_tree->findChild<QTreeWidget*>();
    tree->scrollToItem(line(QStringLiteral("pair")));
    const QPoint place = tree->visualItemRect(line(QStringLiteral("pair"))).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{1, -1}, {3, -1}}));
    QCOMPARE(SelectionUndo::instance()->stack()->count(), 1);
    SelectionUndo::instance()->stack()->undo();
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{2, -1}}));
    SelectionUndo::instance()->stack()->redo();
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{1, -1}, {3, -1}}));
    // The same again is no step.
    menu(QStringLiteral("pair"), "Select");
    QCOMPARE(SelectionUndo::instance()->stack()->count(), 1);
}

void tst_ProjectTree::clickIsOneStepOfUndo_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("of the same kind") << static_cast<int>(BaseModule::GeometryComponent);
    QTest::newRow("of another kind") << static_cast<int>(BaseModule::MeshElement);
}

// Also where it takes the place of what was selected: deselecting that is no step of its own.
void tst_ProjectTree::clickIsOneStepOfUndo()
{
    QFETCH(int, model);
    const auto previous = static_cast<BaseModule::SelectModel>(model);
    const int secondID =
        previous == BaseModule::MeshElement ? MeshManager::instance()->mesh(1)->elementNumbers.number(0) : -1;
    select(previous, {{1, secondID}});
    SelectionUndo::instance()->forget();
    QTest::qWait(20);
    auto* tree = m_tree->findChild<QTreeWidget*>();
    tree->scrollToItem(line(QStringLiteral("bush")));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualItemRect(line(QStringLiteral("bush"))).center());
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{2, -1}}));
    QUndoStack* steps = SelectionUndo::instance()->stack();
    QCOMPARE(steps->count(), 1);
    steps->undo();
    QCOMPARE(selected(previous), (Pairs{{1, secondID}}));
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 1);
    steps->redo();
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{2, -1}}));
}

void tst_ProjectTree::setSelectsWhatIsThere()
{
    GeometryManager* geometry = GeometryManager::instance();
    geometry->addSet(QStringLiteral("all"), {{1, -1}, {2, -1}, {3, -1}, {99, -1}});
    geometry->showComponents({2}, false);
    menu(QStringLiteral("all"), "Select");
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{1, -1}, {3, -1}}));
}

void tst_ProjectTree::groupOfElements()
{
    MeshManager* meshes = MeshManager::instance();
    const auto elementAt = [meshes](int place) { return meshes->mesh(1)->elementNumbers.number(place); };
    select(BaseModule::MeshElement, {{1, elementAt(0)}, {1, elementAt(7)}});
    QVERIFY(NamedSelections::canName());
    QCOMPARE(NamedSelections::proposedName(), QStringLiteral("group 1"));
    QVERIFY(NamedSelections::create(QStringLiteral("bad ones")));
    const int group = meshes->findGroups(1, QStringLiteral("bad ones")).value(0);
    QCOMPARE(meshes->getGroupElements(1, group), (std::vector<int>{0, 7}));
    SelectionUndo::instance()->forget();
    QTest::qWait(20);
    auto* tree = m_tree->findChild<QTreeWidget*>();
    tree->scrollToItem(line(QStringLiteral("bad ones")));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree->visualItemRect(line(QStringLiteral("bad ones"))).center());
    QCOMPARE(selected(BaseModule::MeshGroup), (Pairs{{1, group}}));
    menu(QStringLiteral("bad ones"), "Delete");
    QVERIFY(meshes->findGroups(1, QStringLiteral("bad ones")).isEmpty());
    QVERIFY(selected(BaseModule::MeshGroup).isEmpty());
    // Undoing does not bring back what is gone.
    SelectionUndo::instance()->stack()->undo();
    QVERIFY(selected(BaseModule::MeshGroup).isEmpty());
}

void tst_ProjectTree::setsTravelWithTheProject()
{
    const QString file = m_directory.filePath(QStringLiteral("sets.wbproj"));
    GeometryManager::instance()->addSet(QStringLiteral("kept"), {{2, -1}});
    QVERIFY(Project::instance()->saveAs(file));
    QVERIFY(Project::instance()->create());
    QVERIFY(Project::instance()->open(file));
    MeshManager::instance()->waitForLoad();
    menu(QStringLiteral("kept"), "Select");
    QCOMPARE(selected(BaseModule::GeometryComponent), (Pairs{{2, -1}}));
}

void tst_ProjectTree::unreadMeshIsReadAgain()
{
    const QString file = m_directory.filePath(QStringLiteral("unread.wbproj"));
    QVERIFY(Project::instance()->saveAs(file));
    QVERIFY(Project::instance()->open(file));
    MeshManager::instance()->cancelLoad();
    MeshManager::instance()->waitForLoad();
    QTest::qWait(20);
    QCOMPARE(line(QStringLiteral("bearing-housing"))->text(1), QStringLiteral("not read"));
    QCOMPARE(menu(QStringLiteral("bearing-housing"), "Read"), QStringList{QStringLiteral("Read")});
    MeshManager::instance()->waitForLoad();
    QTest::qWait(20);
    QCOMPARE(line(QStringLiteral("bearing-housing"))->text(1), QStringLiteral("6811 elements"));
}

WORKBENCH_TEST_MAIN(tst_ProjectTree)
#include "tst_projecttree.moc"
