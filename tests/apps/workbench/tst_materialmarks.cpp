// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"

#include <workbench/material/MaterialFavourites.h>
#include <workbench/material/MaterialTable.h>
#include <workbench/project/ProjectFiles.h>
#include <workbench/property/SelectionDescription.h>

#include <QHeaderView>

using Workbench::GeometryManager;
using Workbench::MaterialFavourites;
using Workbench::MaterialLibraries;
using Workbench::MaterialTable;

/// Favourites, where materials came from, and volumes whose material is gone.
class tst_MaterialMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<MaterialViewFixture>();
        MaterialLibraries::instance()->clearProject();
    }
    void cleanup() { m_fixture.reset(); }

    void marksByClick();
    void marksByButton();
    void showsOnlyFavourites();
    void keepsMarksInTheSettings();
    void keepsMarksApart();
    void followsARenaming();
    void showsWhereMaterialsCameFrom();
    void keepsOriginsInTheProject();
    void forgetsOriginsOfDeletedOnes();
    void takesDamagedOriginsAsUnknown_data();
    void takesDamagedOriginsAsUnknown();
    void keepsDamagedOrigins_data();
    void keepsDamagedOrigins();
    void keepsPartlyDamagedOrigins();
    void writesOriginsWhereTheDamagedFileIsGone();
    void showsAMissingMaterial();

private:
    QTreeView& list(const char* name) { return part<QTreeView>(m_fixture->dock(), name); }
    /// The column of a list, by material.
    QString cells(const char* name, MaterialTable::Column column);
    QString originsPath() { return m_fixture->libraries().projectDirectory() + text("/MaterialOrigins.json"); }
    void copyToProject(const QList<int>& ids);

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

QString tst_MaterialMarks::cells(const char* name, MaterialTable::Column column)
{
    QStringList texts;
    const QAbstractItemModel& model = *list(name).model();
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, column).data().toString());
    }
    return texts.join(text("; "));
}

void tst_MaterialMarks::copyToProject(const QList<int>& ids)
{
    m_fixture->choose("materialsSoftware", ids);
    click(m_fixture->dock(), "importFromSoftware");
    press(*windowNamed("importDialog"), QDialogButtonBox::Ok);
    finishClosing();
}

void tst_MaterialMarks::marksByClick()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    m_fixture->libraries().createSoftware(text("Steel"));
    QTreeView& view = list("materialsSoftware");
    QCOMPARE(cells("materialsSoftware", MaterialTable::FavouriteColumn), text("☆; ☆"));
    const auto star = [&view] { return view.model()->index(1, MaterialTable::FavouriteColumn); };
    const auto clickStar = [&view, star] {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.visualRect(star()).center());
        QCoreApplication::processEvents();
    };
    // The stars stand first.
    QCOMPARE(view.header()->visualIndex(MaterialTable::FavouriteColumn), 0);
    clickStar();
    QCOMPARE(cells("materialsSoftware", MaterialTable::FavouriteColumn), text("☆; ★"));
    QCOMPARE(star().data(Qt::AccessibleTextRole).toString(), text("a favourite"));
    clickStar();
    QCOMPARE(cells("materialsSoftware", MaterialTable::FavouriteColumn), text("☆; ☆"));
    // A double click on a star opens no dialog.
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.visualRect(star()).center());
    QVERIFY(windowNamed("materialDialog") == nullptr);
}

void tst_MaterialMarks::marksByButton()
{
    for (const char* const name : {"Copper", "Steel", "Wood"}) {
        m_fixture->libraries().createProject(text(name));
    }
    QVERIFY(!part<QAbstractButton>(m_fixture->dock(), "favouriteProject").isEnabled());
    m_fixture->choose("materialsProject", {1, 3});
    click(m_fixture->dock(), "favouriteProject");
    QCOMPARE(cells("materialsProject", MaterialTable::FavouriteColumn), text("★; ☆; ★"));
    // The selection stays, so the same again takes the stars away; where one lacks it, all get it.
    m_fixture->choose("materialsProject", {1, 2});
    click(m_fixture->dock(), "favouriteProject");
    QCOMPARE(cells("materialsProject", MaterialTable::FavouriteColumn), text("★; ★; ★"));
    click(m_fixture->dock(), "favouriteProject");
    QCOMPARE(cells("materialsProject", MaterialTable::FavouriteColumn), text("☆; ☆; ★"));
}

void tst_MaterialMarks::showsOnlyFavourites()
{
    for (const char* const name : {"Copper", "Steel", "Stainless steel"}) {
        m_fixture->libraries().createProject(text(name));
    }
    MaterialFavourites::mark(BaseModule::ProjectLib, {text("Copper"), text("Stainless steel")}, true);
    click(m_fixture->dock(), "onlyFavouritesProject");
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Copper; 3 Stainless steel"));
    type(m_fixture->dock(), "searchProject", text("steel"));
    QCOMPARE(m_fixture->rows("materialsProject"), text("3 Stainless steel"));
    // Taking the star away takes the line away.
    m_fixture->choose("materialsProject", {3});
    click(m_fixture->dock(), "favouriteProject");
    QCOMPARE(m_fixture->rows("materialsProject"), QString());
    click(m_fixture->dock(), "onlyFavouritesProject");
    QCOMPARE(m_fixture->rows("materialsProject"), text("2 Steel; 3 Stainless steel"));
}

void tst_MaterialMarks::keepsMarksInTheSettings()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    m_fixture->choose("materialsSoftware", {1});
    click(m_fixture->dock(), "favouriteSoftware");
    QCOMPARE(QSettings().value(text("materials/softwareFavourites")).toStringList(), QStringList{text("Copper")});
    Workbench::MaterialDock another;
    another.show();
    const QAbstractItemModel& model = *part<QTreeView>(another, "materialsSoftware").model();
    QCOMPARE(model.index(0, MaterialTable::FavouriteColumn).data().toString(), text("★"));
}

void tst_MaterialMarks::keepsMarksApart()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    m_fixture->libraries().createProject(text("Copper"));
    MaterialFavourites::mark(BaseModule::SoftwareLib, {text("Copper")}, true);
    QCOMPARE(cells("materialsSoftware", MaterialTable::FavouriteColumn), text("★"));
    QCOMPARE(cells("materialsProject", MaterialTable::FavouriteColumn), text("☆"));
}

void tst_MaterialMarks::followsARenaming()
{
    m_fixture->libraries().createProject(text("Copper"));
    MaterialFavourites::mark(BaseModule::ProjectLib, {text("Copper")}, true);
    m_fixture->choose("materialsProject", {1});
    click(m_fixture->dock(), "editProject");
    type(*windowNamed("materialDialog"), "englishName", text("Pure copper"));
    press(*windowNamed("materialDialog"), QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(cells("materialsProject", MaterialTable::FavouriteColumn), text("★"));
    QCOMPARE(MaterialFavourites::names(BaseModule::ProjectLib), QSet<QString>{text("Pure copper")});
}

void tst_MaterialMarks::showsWhereMaterialsCameFrom()
{
    m_fixture->libraries().createProject(text("Before"));
    for (const char* const name : {"Copper", "Steel"}) {
        m_fixture->libraries().createSoftware(text(name));
    }
    copyToProject({2});
    click(m_fixture->dock(), "createProject");
    type(*windowNamed("materialDialog"), "englishName", text("Mica"));
    type(*windowNamed("materialDialog"), "chineseName", text("云母"));
    press(*windowNamed("materialDialog"), QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Before; 2 Steel; 3 Mica"));
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn),
             text("; software library, Steel (2); this project"));
    QVERIFY(list("materialsSoftware").isColumnHidden(MaterialTable::OriginColumn));
    QVERIFY(!list("materialsProject").isColumnHidden(MaterialTable::OriginColumn));

    const auto steel = MaterialLibraries::material(BaseModule::ProjectLib, 2);
    MaterialLibraries::instance()->update(BaseModule::ProjectLib, 2,
                                          {2, steel->chineseName, text("Hard steel"), steel->property1,
                                           steel->property2, steel->property3, steel->property4, steel->property5});
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn),
             text("; software library, Steel (2), edited; this project"));
    // Replaced by that of the library again.
    MaterialLibraries::instance()->import(BaseModule::SoftwareLib, {}, {{1, 2}});
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn),
             text("; software library, Copper (1); this project"));
}

void tst_MaterialMarks::keepsOriginsInTheProject()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    copyToProject({1});
    QVERIFY(QFile::exists(originsPath()));
    QVERIFY(
        Workbench::ProjectFiles::all(m_fixture->libraries().projectDirectory()).contains(text("MaterialOrigins.json")));
    const QByteArray file = contentOf(originsPath());
    const QByteArray materials = contentOf(m_fixture->libraries().projectPath());
    MaterialLibraries::instance()->clearProject();
    QVERIFY(!QFile::exists(originsPath()));
    QCOMPARE(int(MaterialLibraries::instance()->origin(1).source), int(Workbench::MaterialOrigins::Origin::Unknown));
    // As when the project is opened again.
    writeContent(originsPath(), file);
    writeContent(m_fixture->libraries().projectPath(), materials);
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), text("software library, Copper (1)"));
    MaterialLibraries::instance()->create(BaseModule::ProjectLib, {0, text("锡"), text("Tin"), {}, {}, {}, {}, {}});
    QVERIFY(contentOf(originsPath()).size() > file.size());
    QVERIFY(!QFile::exists(originsPath() + text(".unreadable")));
}

void tst_MaterialMarks::forgetsOriginsOfDeletedOnes()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    copyToProject({1});
    MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {1});
    QVERIFY(!contentOf(originsPath()).contains("Copper"));
    // The identifier is given again, by somebody else.
    m_fixture->libraries().createProject(text("Steel"));
    m_fixture->dock().hide();
    m_fixture->dock().show();
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Steel"));
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), QString());
}

void tst_MaterialMarks::takesDamagedOriginsAsUnknown_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{\"materials\": [");
    QTest::newRow("an array") << QByteArray("[1, 2]");
    QTest::newRow("wrong types") << QByteArray(R"({"materials": [7, {"id": "1", "source": 3}, {"id": 1}]})");
    QTest::newRow("another source") << QByteArray(R"({"materials": [{"id": 1, "source": "the moon"}]})");
}

void tst_MaterialMarks::takesDamagedOriginsAsUnknown()
{
    QFETCH(QByteArray, content);
    m_fixture->libraries().createProject(text("Copper"));
    writeContent(originsPath(), content);
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Copper"));
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), QString());
}

void tst_MaterialMarks::keepsDamagedOrigins_data()
{
    takesDamagedOriginsAsUnknown_data();
}

// A save leaves them; what takes their place leaves a copy.
void tst_MaterialMarks::keepsDamagedOrigins()
{
    QFETCH(QByteArray, content);
    const QString copy = originsPath() + text(".unreadable");
    m_fixture->libraries().createProject(text("Copper"));
    writeContent(originsPath(), content);
    MaterialLibraries::instance()->loadProject();
    QVERIFY(MaterialLibraries::instance()->saveProject());
    QCOMPARE(contentOf(originsPath()), content);
    QVERIFY(!QFile::exists(copy));

    for (const char* name : {"Iron", "Tin"}) {
        MaterialLibraries::instance()->create(BaseModule::ProjectLib, {0, text(name), text(name), {}, {}, {}, {}, {}});
        QCOMPARE(contentOf(copy), content);
    }
    QVERIFY(!QFile::exists(copy + text(".1")));
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), text("; this project; this project"));
}

// What is known of them is taken, and written again.
void tst_MaterialMarks::keepsPartlyDamagedOrigins()
{
    const QByteArray content = R"({"materials": [{"id": 1, "source": "created", "sourceID": 0, "sourceName": "", )"
                               R"("edited": false}, {"id": 2, "source": "the moon"}]})";
    m_fixture->libraries().createProject(text("Copper"));
    m_fixture->libraries().createProject(text("Steel"));
    writeContent(originsPath(), content);
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), text("this project; "));
    QVERIFY(MaterialLibraries::instance()->saveProject());
    QCOMPARE(contentOf(originsPath() + text(".unreadable")), content);
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), text("this project; "));
}

void tst_MaterialMarks::writesOriginsWhereTheDamagedFileIsGone()
{
    m_fixture->libraries().createProject(text("Copper"));
    writeContent(originsPath(), "damaged");
    MaterialLibraries::instance()->loadProject();
    QVERIFY(QFile::remove(originsPath()));
    MaterialLibraries::instance()->create(BaseModule::ProjectLib, {0, text("锡"), text("Tin"), {}, {}, {}, {}, {}});
    QVERIFY(MaterialLibraries::instance()->saveProject());
    QVERIFY(!QFile::exists(originsPath() + text(".unreadable")));
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(cells("materialsProject", MaterialTable::OriginColumn), text("; this project"));
}

void tst_MaterialMarks::showsAMissingMaterial()
{
    m_fixture->libraries().createProject(text("Copper"));
    const int block = m_fixture->addVolume(text("block"));
    // As in a project whose materials cannot be read.
    GeometryManager::instance()->setMaterialID({block}, 7);
    m_fixture->selectVolumes({block});
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (material 7, which is missing)"));
    DataModel::PropertyTableData properties = Workbench::describeSelection();
    QCOMPARE(properties.getRowKey(2), text("material"));
    QCOMPARE(properties.getRowValue(2), text("material 7, which is missing"));
    m_fixture->choose("materialsProject", {1});
    click(m_fixture->dock(), "assign");
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (Copper)"));
    properties = Workbench::describeSelection();
    QCOMPARE(properties.getRowValue(2), text("Copper"));
    GeometryManager::instance()->setMaterialID({block}, 7);
    click(m_fixture->dock(), "unassign");
    QCOMPARE(GeometryManager::instance()->getMaterialID(block), 0);
    properties = Workbench::describeSelection();
    QCOMPARE(properties.getRowValue(2), text("free space"));
}

QTEST_MAIN(tst_MaterialMarks)
#include "tst_materialmarks.moc"
