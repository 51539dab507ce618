// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"

#include <QTreeWidget>

namespace {

/// "[x] Copper 中Copper: new", with the differences below; "( )" where nothing can be chosen.
QStringList rows(const QTreeWidget& list)
{
    QStringList texts;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& item = *list.topLevelItem(i);
        const bool isChoice = item.data(0, Qt::CheckStateRole).isValid();
        const QString mark = !isChoice ? text("( ) ") : item.checkState(0) == Qt::Checked ? text("[x] ") : text("[ ] ");
        texts.append(mark + item.text(0) + text(": ") + item.text(1));
        for (int child = 0; child < item.childCount(); ++child) {
            const QTreeWidgetItem& difference = *item.child(child);
            texts.append(text("  %1: %2 -> %3").arg(difference.text(0), difference.text(3), difference.text(2)));
        }
    }
    return texts;
}

} // namespace

/// Copying between the libraries after a comparison.
class tst_MaterialImportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }

    void compares();
    void comparesOnlyTheSelected();
    void copiesNewOnes();
    void replacesChangedOnes();
    void copiesTheOtherWay();
    void comparesTheOtherWay();
    void refusesANameOfAnother();
    void refusesOneNameForTwo();
    void refusesTwoForOne();
    void keepsNamesInCommon();
    void comparesWithoutNames();
    void cancels();
    void copiesNothing();

private:
    QWidget& open(const char* button);
    /// A material of the software library with these names.
    void createSoftware(const char* english, const char* chinese);
    QString project(int id);

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

void tst_MaterialImportDialog::init()
{
    m_fixture = std::make_unique<MaterialViewFixture>();
    MaterialFixture& libraries = m_fixture->libraries();
    for (const char* const name : {"New", "Same", "Changed", "Gone", "Free Space"}) {
        libraries.createSoftware(text(name));
    }
    libraries.manager().deleteSoftwareMat(4);
    libraries.createProject(text("Changed"));
    libraries.createProject(text("Same"));
    libraries.createProject(text("Own"));
    libraries.manager().getProjectMatByID(1)->property1->components[4] = 0.1;
    libraries.manager().getProjectMatByID(1)->chineseName = text("变");
}

QWidget& tst_MaterialImportDialog::open(const char* button)
{
    click(m_fixture->dock(), button);
    return *windowNamed("importDialog");
}

void tst_MaterialImportDialog::compares()
{
    QWidget& dialog = open("importFromSoftware");
    QCOMPARE(dialog.windowTitle(), text("Copy from: Software library, to: Project library"));
    QCOMPARE(rows(part<QTreeWidget>(dialog, "comparisons")),
             QStringList({text("[x] New  中New: new"), text("( ) Same  中Same: same"),
                          text("[ ] Changed  中Changed: changed"), text("  chineseName: 变 -> 中Changed"),
                          text("  property1.components[4]: 0.1 -> 1"),
                          text("( ) Free Space  中Free Space: refused: reserved name")}));
    QCOMPARE(shown(dialog, "counts"),
             text("1 new, 1 same, 1 changed, 1 refused. Checked materials are copied; a changed "
                  "one replaces the material of its name."));
    press(dialog, QDialogButtonBox::Cancel);
}

void tst_MaterialImportDialog::comparesOnlyTheSelected()
{
    m_fixture->choose("materialsSoftware", {1, 2});
    QCOMPARE(rows(part<QTreeWidget>(open("importFromSoftware"), "comparisons")),
             QStringList({text("[x] New  中New: new"), text("( ) Same  中Same: same")}));
}

void tst_MaterialImportDialog::copiesNewOnes()
{
    QWidget& dialog = open("importFromSoftware");
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QVERIFY(windowNamed("importDialog") == nullptr);
    const QString state = text("1:Changed 2:Same 3:Own 4:New next 5");
    QCOMPARE(log.take(), QStringList({text("changed 1 | ") + state, text("updateWindowTitle | ") + state}));
    QCOMPARE(m_fixture->savedProject(), state);
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Changed; 2 Same; 3 Own; 4 New"));
    QCOMPARE(m_fixture->libraries().manager().getProjectMatByID(1)->property1->components.at(4), 0.1);
}

void tst_MaterialImportDialog::replacesChangedOnes()
{
    QWidget& dialog = open("importFromSoftware");
    QTreeWidget& list = part<QTreeWidget>(dialog, "comparisons");
    for (const int row : {0, 2}) {
        list.setCurrentItem(list.topLevelItem(row));
        QTest::keyClick(&list, Qt::Key_Space);
    }
    QCOMPARE(rows(list).first(), text("[ ] New  中New: new"));
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    const QString state = text("1:Changed 2:Same 3:Own next 4");
    QCOMPARE(log.take(), QStringList({text("changed 1 | ") + state, text("updateWindowTitle | ") + state}));
    const auto changed = m_fixture->libraries().manager().getProjectMatByID(1);
    QCOMPARE(changed->chineseName, text("中Changed"));
    QCOMPARE(changed->property1->components.at(4), 1.0);
    QCOMPARE(m_fixture->savedProject(), state);
}

void tst_MaterialImportDialog::copiesTheOtherWay()
{
    m_fixture->choose("materialsProject", {3});
    QWidget& dialog = open("importFromProject");
    QCOMPARE(dialog.windowTitle(), text("Copy from: Project library, to: Software library"));
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(log.take(), QStringList({text("changed 0 | 1:Changed 2:Same 3:Own next 4")}));
    QCOMPARE(m_fixture->libraries().software(),
             text("1:New 2:Same 3:Changed 4:Gone(deleted) 5:Free Space 6:Own next 7"));
    QVERIFY(contentOf(MaterialFixture::softwarePath()).contains("\"Own\""));
}

void tst_MaterialImportDialog::comparesTheOtherWay()
{
    m_fixture->libraries().createProject(text("自由空间"));
    QWidget& dialog = open("importFromProject");
    QTreeWidget& list = part<QTreeWidget>(dialog, "comparisons");
    QCOMPARE(rows(list),
             QStringList({text("[ ] Changed  变: changed"), text("  chineseName: 中Changed -> 变"),
                          text("  property1.components[4]: 1 -> 0.1"), text("( ) Same  中Same: same"),
                          text("[x] Own  中Own: new"), text("( ) 自由空间  中自由空间: refused: reserved name")}));
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(m_fixture->libraries().software(),
             text("1:New 2:Same 3:Changed 4:Gone(deleted) 5:Free Space 6:Own next 7"));
    const auto changed = m_fixture->libraries().manager().getSoftwareMatByID(3);
    QCOMPARE(changed->chineseName, text("变"));
    QCOMPARE(changed->property1->components.at(4), 0.1);
}

void tst_MaterialImportDialog::createSoftware(const char* english, const char* chinese)
{
    const auto property = MaterialFixture::property(text("p"), 7);
    m_fixture->libraries().manager().createSoftwareMat(text(chinese), text(english), property, {}, {}, {}, {});
}

/// "Same 中Same 1": the names and the first component.
QString tst_MaterialImportDialog::project(int id)
{
    const auto material = m_fixture->libraries().manager().getProjectMatByID(id);
    return text("%1 %2 %3")
        .arg(material->englishName, material->chineseName)
        .arg(material->property1->components.value(0));
}

void tst_MaterialImportDialog::refusesANameOfAnother()
{
    createSoftware("Own", "中Same");
    m_fixture->choose("materialsSoftware", {6});
    QWidget& dialog = open("importFromSoftware");
    QCOMPARE(rows(part<QTreeWidget>(dialog, "comparisons")),
             QStringList(text("( ) Own  中Same: refused: material 2 there is called '中Same', too")));
    QVERIFY(shown(dialog, "counts").startsWith(text("0 new, 0 same, 0 changed, 1 refused.")));
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(3), text("Own 中Own 1"));
    QCOMPARE(project(2), text("Same 中Same 1"));
}

void tst_MaterialImportDialog::refusesOneNameForTwo()
{
    createSoftware("Iron", "铁");
    createSoftware("Iron oxide", "铁");
    m_fixture->choose("materialsSoftware", {6, 7});
    QWidget& dialog = open("importFromSoftware");
    QTreeWidget& list = part<QTreeWidget>(dialog, "comparisons");
    QCOMPARE(rows(list), QStringList({text("[x] Iron  铁: new"), text("[x] Iron oxide  铁: new")}));
    QCOMPARE(shown(dialog, "refusal"), text("'Iron oxide' cannot be copied: 'Iron' there would be called '铁', too."));
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(log.take(), QStringList());
    list.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QCOMPARE(shown(dialog, "refusal"), QString());
    press(dialog, QDialogButtonBox::Ok);
    finishClosing();
    QCOMPARE(m_fixture->libraries().project(), text("1:Changed 2:Same 3:Own 4:Iron oxide next 5"));
}

// One has the English name of it, another one the Chinese.
void tst_MaterialImportDialog::refusesTwoForOne()
{
    createSoftware("Own", "自有");
    createSoftware("Other", "中Own");
    m_fixture->choose("materialsSoftware", {6, 7});
    QWidget& dialog = open("importFromSoftware");
    QTreeWidget& list = part<QTreeWidget>(dialog, "comparisons");
    QCOMPARE(list.topLevelItemCount(), 2);
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(shown(dialog, "refusal"), QString());
    list.topLevelItem(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(shown(dialog, "refusal"), text("'Own' and 'Other' would both replace 'Own': only one can."));
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(project(3), text("Own 中Own 1"));
    list.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(3), text("Other 中Own 7"));
}

// Libraries from elsewhere may have one name twice; what has it keeps it.
void tst_MaterialImportDialog::keepsNamesInCommon()
{
    m_fixture->libraries().manager().getProjectMatByID(2)->chineseName = text("中Own");
    createSoftware("Own", "中Own");
    m_fixture->choose("materialsSoftware", {6});
    QWidget& dialog = open("importFromSoftware");
    QTreeWidget& list = part<QTreeWidget>(dialog, "comparisons");
    list.topLevelItem(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(shown(dialog, "refusal"), QString());
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(project(3), text("Own 中Own 7"));
    QCOMPARE(project(2), text("Same 中Own 1"));
}

void tst_MaterialImportDialog::comparesWithoutNames()
{
    m_fixture->libraries().manager().getProjectMatByID(3)->chineseName = QString();
    createSoftware("Iron", "");
    createSoftware("Gold", "");
    m_fixture->choose("materialsSoftware", {6, 7});
    QWidget& dialog = open("importFromSoftware");
    QCOMPARE(rows(part<QTreeWidget>(dialog, "comparisons")),
             QStringList({text("[x] Iron  : new"), text("[x] Gold  : new")}));
    QCOMPARE(shown(dialog, "refusal"), QString());
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(m_fixture->libraries().project(), text("1:Changed 2:Same 3:Own 4:Iron 5:Gold next 6"));
}

void tst_MaterialImportDialog::cancels()
{
    QWidget& dialog = open("importFromSoftware");
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Cancel);
    finishClosing();
    QVERIFY(windowNamed("importDialog") == nullptr);
    QCOMPARE(log.take(), QStringList());
}

void tst_MaterialImportDialog::copiesNothing()
{
    m_fixture->choose("materialsSoftware", {2, 5});
    QWidget& dialog = open("importFromSoftware");
    MaterialViewLog log(m_fixture->libraries());
    press(dialog, QDialogButtonBox::Ok);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_fixture->libraries().project(), text("1:Changed 2:Same 3:Own next 4"));
}

QTEST_MAIN(tst_MaterialImportDialog)
#include "tst_materialimportdialog.moc"
