// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"

#include <workbench/material/MaterialNumber.h>

#include <QTreeWidget>

using Workbench::GeometryManager;
using Workbench::MaterialLibraries;

/// New materials where the library counts from a number that is in use.
class tst_MaterialNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<MaterialViewFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void creatingSparesVolumes();
    void creatingSparesMaterials();
    void makesRoomAsTold();
    void copyingSparesVolumes();
    void copyingToTheSoftwareLibrary();

private:
    MaterialFixture& libraries() { return m_fixture->libraries(); }
    QWidget& open(const char* button, const char* name)
    {
        click(m_fixture->dock(), button);
        return *windowNamed(name);
    }
    /// The project's library without the material, read from a file that left it out.
    void leaveOut(int id);
    /// The project's library cannot be read, and so counts from 1.
    void damage();

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

void tst_MaterialNumbers::leaveOut(int id)
{
    libraries().manager().m_projectMatMap.remove(id);
    libraries().manager().writeProjectMatConfig();
    MaterialLibraries::instance()->loadProject();
}

void tst_MaterialNumbers::damage()
{
    writeContent(libraries().projectPath(), "damaged");
    expectRefusedCipherText();
    MaterialLibraries::instance()->loadProject();
    QCOMPARE(libraries().project(), text("next 1"));
}

void tst_MaterialNumbers::creatingSparesVolumes()
{
    libraries().createProject(text("Steel"));
    const int volume = m_fixture->addVolume(text("block"));
    GeometryManager::instance()->setMaterialID({volume}, 1);
    damage();
    QWidget& dialog = open("createProject", "materialDialog");
    const QString reason = text("A new material would get number 1, which volume 'block' has from a material that is "
                                "missing. Give the volumes with this number another material, or make them free "
                                "space, first.");
    QCOMPARE(shown(dialog, "refusal"), reason);
    type(dialog, "englishName", text("Iron"));
    type(dialog, "chineseName", text("铁"));
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(shown(dialog, "refusal"), reason);
    QCOMPARE(libraries().project(), text("next 1"));
    QCOMPARE(contentOf(libraries().projectPath()), QByteArray("damaged"));
    // Nothing is lost when the user has decided.
    GeometryManager::instance()->setMaterialID({volume}, 0);
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(libraries().project(), text("1:Iron next 2"));
    QCOMPARE(GeometryManager::instance()->getMaterialID(volume), 0);
    QCOMPARE(contentOf(libraries().projectPath() + text(".unreadable")), QByteArray("damaged"));
}

void tst_MaterialNumbers::creatingSparesMaterials()
{
    for (const char* const name : {"Steel", "Iron", "Mica"}) {
        libraries().createProject(text(name));
    }
    leaveOut(2);
    QCOMPARE(libraries().project(), text("1:Steel 3:Mica next 3"));
    QWidget& dialog = open("createProject", "materialDialog");
    type(dialog, "englishName", text("Air"));
    type(dialog, "chineseName", text("空气"));
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(
        shown(dialog, "refusal"),
        text("A new material would get number 3 and replace 'Mica': the numbers of this library have gaps. To make "
             "room, copy 'Mica' to the other library and delete it here; afterwards copy it back and assign it "
             "again."));
    QCOMPARE(libraries().project(), text("1:Steel 3:Mica next 3"));
    press(dialog, QDialogButtonBox::Cancel);
    finishClosing();
    // An edited material keeps its number.
    m_fixture->choose("materialsProject", {3});
    QWidget& edited = open("editProject", "materialDialog");
    QCOMPARE(shown(edited, "refusal"), QString());
    type(edited, "englishName", text("Muscovite"));
    press(edited, QDialogButtonBox::Ok);
    QCOMPARE(libraries().project(), text("1:Steel 3:Muscovite next 3"));
}

void tst_MaterialNumbers::makesRoomAsTold()
{
    for (const char* const name : {"Steel", "Iron", "Mica"}) {
        libraries().createProject(text(name));
    }
    leaveOut(2);
    QVERIFY(!Workbench::materialNumberRefusal(BaseModule::ProjectLib, 1).isEmpty());
    MaterialLibraries::instance()->import(BaseModule::ProjectLib, {3}, {});
    MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {3});
    QCOMPARE(Workbench::materialNumberRefusal(BaseModule::ProjectLib, 1), QString());
    libraries().createProject(text("Air"));
    QCOMPARE(Workbench::materialNumberRefusal(BaseModule::ProjectLib, 1), QString());
    MaterialLibraries::instance()->import(BaseModule::SoftwareLib, {1}, {});
    QCOMPARE(libraries().project(), text("1:Steel 3:Air 4:Mica next 5"));
}

void tst_MaterialNumbers::copyingSparesVolumes()
{
    libraries().createSoftware(text("Air"));
    libraries().createSoftware(text("Mica"));
    libraries().createProject(text("Steel"));
    libraries().createProject(text("Iron"));
    const int volume = m_fixture->addVolume(text("block"));
    GeometryManager::instance()->setMaterialID({volume}, 2);
    damage();
    QWidget& dialog = open("importFromSoftware", "importDialog");
    const QString reason = text("A new material would get number 2, which volume 'block' has from a material that is "
                                "missing. Give the volumes with this number another material, or make them free "
                                "space, first.");
    QCOMPARE(shown(dialog, "refusal"), reason);
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(libraries().project(), text("next 1"));
    // One has a number.
    part<QTreeWidget>(dialog, "comparisons").topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(shown(dialog, "refusal"), QString());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(libraries().project(), text("1:Mica next 2"));
    QCOMPARE(GeometryManager::instance()->getMaterialID(volume), 2);
}

// Volumes refer to materials of the project only.
void tst_MaterialNumbers::copyingToTheSoftwareLibrary()
{
    libraries().createProject(text("Steel"));
    const int volume = m_fixture->addVolume(text("block"));
    GeometryManager::instance()->setMaterialID({volume}, 1);
    QWidget& dialog = open("importFromProject", "importDialog");
    QCOMPARE(shown(dialog, "refusal"), QString());
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(libraries().software(), text("1:Steel next 2"));
}

QTEST_MAIN(tst_MaterialNumbers)
#include "tst_materialnumbers.moc"
