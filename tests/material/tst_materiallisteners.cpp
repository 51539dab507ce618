// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/IBaseSignal.h>

#include <QtTest>

#include <functional>

using BaseModule::ProjectLib;
using DataManager::MaterialLibraryManager;
using Answer = std::function<void(MaterialLibraryManager&, int id)>;

Q_DECLARE_METATYPE(Answer)

/// What listeners of a deletion see, and what becomes of the library when they change it.
class TestMaterialListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void areToldBeforeTheSave();
    void mayChangeTheLibrary_data();
    void mayChangeTheLibrary();

private:
    MaterialLibraryManager& manager() { return m_fixture->manager(); }
    template <class Slot>
    void listen(QObject& context, Slot slot)
    {
        connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_delMatUpdateGeometryData,
                &context, slot);
    }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialListeners::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
    for (const char* const name : {"a", "b", "c", "d"}) {
        m_fixture->createProject(text(name));
    }
    manager().deleteProjectMat(3);
}

void TestMaterialListeners::cleanup()
{
    m_fixture.reset();
}

void TestMaterialListeners::areToldBeforeTheSave()
{
    QObject context;
    QStringList seen;
    QByteArray before = contentOf(m_fixture->projectPath());
    listen(context, [&](int id) {
        seen.append(QString::number(id) +
                    (contentOf(m_fixture->projectPath()) == before ? text(" not saved") : text(" saved")));
    });
    manager().deleteProjectMat(2);
    QVERIFY(contentOf(m_fixture->projectPath()) != before);
    before = contentOf(m_fixture->projectPath());
    manager().deleteProjectMat(4);
    QVERIFY(contentOf(m_fixture->projectPath()) != before);
    QCOMPARE(seen.join(text(", ")), text("2 not saved, 4 not saved, 3 not saved, 2 not saved"));
}

/// The project holds 1:a 2:b 3:c(deleted) 4:d. The listener answers the first signal only.
void TestMaterialListeners::mayChangeTheLibrary_data()
{
    QTest::addColumn<int>("deleted");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("signalled");
    QTest::addColumn<QString>("state");
    const auto row = [](const char* name, int deleted, const Answer& answer, const char* signalled, const char* state) {
        QTest::newRow(name) << deleted << answer << text(signalled) << text(state);
    };
    const auto create = [](MaterialLibraryManager& m, int) { m.createProjectMat({}, text("new"), {}, {}, {}, {}, {}); };
    row(
        "nothing", 4, [](MaterialLibraryManager&, int) {}, "4 3", "1:a 2:b next 3");
    row("creates one, last deleted", 4, create, "4", "1:a 2:b 3:c(deleted) 4:d(deleted) 5:new next 6");
    row("creates one, inner deleted", 2, create, "2", "1:a 2:b(deleted) 3:c(deleted) 4:d 5:new next 6");
    row(
        "creates two", 4,
        [create](MaterialLibraryManager& m, int id) {
            create(m, id);
            create(m, id);
        },
        "4", "1:a 2:b 3:c(deleted) 4:d(deleted) 5:new 6:new next 7");
    row(
        "creates one and deletes it", 4,
        [create](MaterialLibraryManager& m, int id) {
            create(m, id);
            m.deleteProjectMat(5);
        },
        "4 5 3", "1:a 2:b next 3");
    row(
        "deletes below, last deleted", 4, [](MaterialLibraryManager& m, int) { m.deleteProjectMat(2); }, "4 2 3 2",
        "1:a next 2");
    row(
        "deletes above, inner deleted", 2, [](MaterialLibraryManager& m, int) { m.deleteProjectMat(4); }, "2 4 3 2",
        "1:a next 2");
    row(
        "clears", 4, [](MaterialLibraryManager& m, int) { m.clearProjectMaterial(); }, "4", "next 1");
    row(
        "clears and creates", 4,
        [create](MaterialLibraryManager& m, int id) {
            m.clearProjectMaterial();
            create(m, id);
        },
        "4", "1:new next 2");
    row(
        "clears and creates as many", 4,
        [create](MaterialLibraryManager& m, int id) {
            m.clearProjectMaterial();
            for (int i = 0; i < 4; ++i) {
                create(m, id);
            }
        },
        "4", "1:new 2:new 3:new 4:new next 5");
    row(
        "clears and creates one fewer", 4,
        [create](MaterialLibraryManager& m, int id) {
            m.clearProjectMaterial();
            for (int i = 0; i < 3; ++i) {
                create(m, id);
            }
        },
        "4", "1:new 2:new 3:new next 4");
    row(
        "loads again", 4, [](MaterialLibraryManager& m, int) { m.initProjectMaterial(); }, "4",
        "1:a 2:b 3:c(deleted) 4:d next 5");
    row(
        "imports", 4,
        [](MaterialLibraryManager& m, int) {
            m.createSoftwareMat({}, text("s"), {}, {}, {}, {}, {});
            m.importAllMaterial(BaseModule::SoftwareLib);
        },
        "4", "1:a 2:b 3:c(deleted) 4:d(deleted) 5:s next 6");
}

void TestMaterialListeners::mayChangeTheLibrary()
{
    QFETCH(int, deleted);
    QFETCH(Answer, answer);
    QFETCH(QString, signalled);
    QFETCH(QString, state);
    QObject context;
    QStringList seen;
    listen(context, [&](int id) {
        seen.append(QString::number(id));
        if (seen.size() == 1) {
            answer(manager(), id);
        }
    });
    manager().deleteProjectMat(deleted);
    QCOMPARE(seen.join(QLatin1Char(' ')), signalled);
    QCOMPARE(m_fixture->project(), state);
    // Loading counts the entries, so this also tells that no identifier is missing.
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), state);
}

QTEST_GUILESS_MAIN(TestMaterialListeners)
#include "tst_materiallisteners.moc"
