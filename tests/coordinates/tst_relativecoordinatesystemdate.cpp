// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "RegistryFixture.h"

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <QMetaMethod>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;
using DataManager::RelativeCoordinateSystemDateManager;

namespace {

using Systems = QList<QPointer<RelativeCoordinateSystem>>;

QStringList lines(const QVector<const char*>& texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QString::fromLatin1(text));
    }
    return list;
}

} // namespace

class RelativeCoordinateSystemDateTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

    static RelativeCoordinateSystemDate* registry() { return RelativeCoordinateSystemDate::getInstance(); }

    Systems addAll(const QList<int>& ids)
    {
        Systems systems;
        for (const int id : ids) {
            systems.append(m_fixture->add(id));
        }
        return systems;
    }

    static int aliveCount(const Systems& systems)
    {
        return static_cast<int>(
            std::count_if(systems.begin(), systems.end(), [](const auto& s) { return !s.isNull(); }));
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void isCreatedOnceWithItsDefaults()
    {
        RelativeCoordinateSystemDate* const first = registry();
        QCOMPARE(registry(), first);
        QCOMPARE(first->parent(), nullptr);
        QCOMPARE(first->getRelativeCoordinateSystemDateCount(), 0);
        QCOMPARE(first->getCurrentCoordinateSystemID(), 0);
        QCOMPARE(first->getNeWCoordinateSystemSign(), false);
        QCOMPARE(first->getSwitchCoordinateSystemSign(), false);
        QVERIFY(first->m_dataManager.isNull());
        QVERIFY(!m_fixture->hasFile());
    }

    void declaresItsSignalsInOrder()
    {
        const QMetaObject& meta = RelativeCoordinateSystemDate::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
        const char* const names[] = {"signal_dataChanged(QList<int>)", "signal_dataDeleted(QList<int>)"};
        for (int i = 0; i < 2; ++i) {
            const QMetaMethod method = meta.method(meta.methodOffset() + i);
            QCOMPARE(method.methodType(), QMetaMethod::Signal);
            QCOMPARE(method.methodSignature(), QByteArray(names[i]));
            QCOMPARE(method.parameterNames(), QList<QByteArray>{"ids"});
        }
    }

    void appendsAtTheEndAndWritesTheFile()
    {
        RegistryLog log;
        auto* const system = new RelativeCoordinateSystem;
        system->setID(3);
        m_fixture->add(0);
        registry()->appendCoordinateSystem(system);
        QCOMPARE(log.take(), lines({"updateWindowTitle | [0,3] at 0"}));
        QCOMPARE(registry()->getCoordinateSystemByIndex(1), system);
        QVERIFY(m_fixture->hasFile());
    }

    void appendsNeitherNullNorTheSameTwice()
    {
        RegistryLog log;
        auto* const system = new RelativeCoordinateSystem;
        registry()->appendCoordinateSystem(system);
        registry()->appendCoordinateSystem(nullptr);
        registry()->appendCoordinateSystem(system);
        QCOMPARE(m_fixture->ids(), QList<int>{0});
        QCOMPARE(log.take(), lines({"updateWindowTitle | [0] at 0", "updateWindowTitle | [0] at 0",
                                    "updateWindowTitle | [0] at 0"}));
    }

    void findsSystems()
    {
        const Systems systems = addAll({0, 3, 5, 3});
        QCOMPARE(registry()->getRelativeCoordinateSystemDateCount(), 4);
        QCOMPARE(registry()->getCoordinateSystemByID(3), systems.at(1).data());
        QCOMPARE(registry()->getCoordinateSystemByID(9), nullptr);
        QCOMPARE(registry()->getCoordinateSystemByIndex(2), systems.at(2).data());
        QCOMPARE(registry()->getCoordinateSystemByIndex(-1), nullptr);
        QCOMPARE(registry()->getCoordinateSystemByIndex(4), nullptr);
        QCOMPARE(registry()->getCoordinateSystemIndexByID(5), 2);
        QCOMPARE(registry()->getCoordinateSystemIndexByID(3), 1);
        QCOMPARE(registry()->getCoordinateSystemIndexByID(9), 0);
        QCOMPARE(registry()->getIndexByCoordinateSystem(systems.at(3)), 3);
        RelativeCoordinateSystem unregistered;
        QCOMPARE(registry()->getIndexByCoordinateSystem(&unregistered), -1);
        QCOMPARE(registry()->getIndexByCoordinateSystem(nullptr), -1);
    }

    void findsNothingWhenEmpty()
    {
        QCOMPARE(registry()->getCoordinateSystemByID(0), nullptr);
        QCOMPARE(registry()->getCoordinateSystemByIndex(0), nullptr);
        QCOMPARE(registry()->getCoordinateSystemIndexByID(0), 0);
    }

    void removesByIDWithoutDestroying()
    {
        const Systems systems = addAll({0, 3, 5});
        RegistryLog log;
        registry()->removeCoordinateSystemByID({5, 0, 3});
        QCOMPARE(log.take(), lines({"deleted [5,3] | [0,3,5] at 0", "updateWindowTitle | [0] at 0"}));
        QCOMPARE(aliveCount(systems), 3);
        QVERIFY(m_fixture->hasFile());
        delete systems.at(1).data();
        delete systems.at(2).data();
    }

    void removesEverySystemWithAnIDByID()
    {
        const Systems systems = addAll({3, 0, 5, 3, 0, 7});
        RegistryLog log;
        registry()->removeCoordinateSystemByID({3, 9, 3});
        QCOMPARE(log.take(), lines({"deleted [3,9,3] | [3,0,5,3,0,7] at 0", "updateWindowTitle | [0,5,0,7] at 0"}));
        delete systems.at(0).data();
        delete systems.at(3).data();
    }

    void doesNothingWhenNoIDIsLeft_data()
    {
        QTest::addColumn<QList<int>>("ids");
        QTest::newRow("none") << QList<int>();
        QTest::newRow("only zeros") << QList<int>{0, 0};
    }
    void doesNothingWhenNoIDIsLeft()
    {
        QFETCH(QList<int>, ids);
        addAll({0, 3});
        RegistryLog log;
        registry()->removeCoordinateSystemByID(ids);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3}));
        QVERIFY(!m_fixture->hasFile());
    }

    void writesTheFileForAnUnknownID()
    {
        addAll({0, 3});
        RegistryLog log;
        registry()->removeCoordinateSystemByID({9});
        QCOMPARE(log.take(), lines({"deleted [9] | [0,3] at 0", "updateWindowTitle | [0,3] at 0"}));
    }

    void destroysByIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QList<int>>("left");
        QTest::newRow("first") << 0 << QStringLiteral("deleted [0] | [0,3,5] at 0") << QList<int>{3, 5};
        QTest::newRow("middle") << 1 << QStringLiteral("deleted [3] | [0,3,5] at 0") << QList<int>{0, 5};
        QTest::newRow("last") << 2 << QStringLiteral("deleted [5] | [0,3,5] at 0") << QList<int>{0, 3};
    }
    void destroysByIndex()
    {
        QFETCH(int, index);
        QFETCH(QString, line);
        QFETCH(QList<int>, left);
        const Systems systems = addAll({0, 3, 5});
        RegistryLog log;
        registry()->removeCoordinateSystemByIndex(index);
        QCOMPARE(log.take(), QStringList{line});
        QCOMPARE(m_fixture->ids(), left);
        QVERIFY(systems.at(index).isNull());
        QCOMPARE(aliveCount(systems), 2);
        QVERIFY(!m_fixture->hasFile());
    }

    void passesOverAnIndexThatDoesNotExist_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("before") << -1;
        QTest::newRow("behind") << 2;
    }
    void passesOverAnIndexThatDoesNotExist()
    {
        QFETCH(int, index);
        addAll({0, 3});
        RegistryLog log;
        registry()->removeCoordinateSystemByIndex(index);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3}));
    }

    void clearsAllButTheFirst_data()
    {
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<QString>("line");
        QTest::newRow("usual") << QList<int>{0, 3, 5} << QStringLiteral("deleted [3,5] | [0,3,5] at 6");
        QTest::newRow("only the global one") << QList<int>{0} << QStringLiteral("deleted [] | [0] at 6");
        QTest::newRow("empty") << QList<int>() << QStringLiteral("deleted [] | [] at 6");
        QTest::newRow("another one first")
            << QList<int>{4, 3, 0, 5, 0} << QStringLiteral("deleted [4,3,5,0] | [4,3,0,5,0] at 6");
        QTest::newRow("no global one") << QList<int>{4, 4} << QStringLiteral("deleted [4,4] | [4,4] at 6");
    }
    void clearsAllButTheFirst()
    {
        QFETCH(QList<int>, ids);
        QFETCH(QString, line);
        const Systems systems = addAll(ids);
        registry()->setCurrentCoordinateSystemID(6);
        registry()->setNeWCoordinateSystemSign(true);
        RegistryLog log;
        registry()->clear();
        QCOMPARE(log.take(), QStringList{line});
        QCOMPARE(m_fixture->ids(), ids.mid(0, 1));
        QCOMPARE(aliveCount(systems), qMin(1, ids.size()));
        QCOMPARE(registry()->getCurrentCoordinateSystemID(), 6);
        QCOMPARE(registry()->getNeWCoordinateSystemSign(), true);
        QVERIFY(!m_fixture->hasFile());
    }

    void resets()
    {
        addAll({0, 3});
        registry()->setCurrentCoordinateSystemID(3);
        RegistryLog log;
        registry()->resetData();
        QCOMPARE(log.take(), lines({"deleted [3] | [0,3] at 3", "changed [0] | [0] at 0"}));
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), 0);
        QVERIFY(!registry()->m_dataManager.isNull());
        QVERIFY(registry()->m_dataManager->getIDList().isEmpty());
        QVERIFY(!m_fixture->hasFile());
    }

    void writesIntoTheHeldRecord()
    {
        const Systems systems = addAll({0, 3, 5});
        registry()->writeConfig();
        const auto record = registry()->m_dataManager;
        QCOMPARE(record->getIDList(), (QList<int>{3, 5}));
        delete registry()->m_coordinateSystemList.takeAt(1);
        registry()->writeConfig();
        QCOMPARE(registry()->m_dataManager, record);
        QCOMPARE(record->getIDList(), QList<int>{5});
        QCOMPARE(record->getBasicCoorSysIDList(), QList<int>{0});
        for (const QList<QString>& list :
             {record->getNameList(), record->getTypeList(), record->getOffsetCoordinateList(),
              record->getRotateDirectionList(), record->getActorRoateDirList()}) {
            QCOMPARE(list, QList<QString>{QString()});
        }
    }

    void resetsStepByStep()
    {
        addAll({0, 3});
        registry()->writeConfig();
        const auto countAndRecord = [] {
            return QString::number(RelativeCoordinateSystem::getMaxID()) + QLatin1Char(' ') +
                   textOf(registry()->m_dataManager->getIDList());
        };
        QStringList log;
        connect(registry(), &RelativeCoordinateSystemDate::signal_dataDeleted, registry(),
                [&] { log.append(QStringLiteral("deleted ") + countAndRecord()); });
        connect(registry(), &RelativeCoordinateSystemDate::signal_dataChanged, registry(),
                [&] { log.append(QStringLiteral("changed ") + countAndRecord()); });
        registry()->resetData();
        log.append(countAndRecord());
        QCOMPARE(log, lines({"deleted 2 [3]", "changed 2 [3]", "0 []"}));
    }

    void resetsTheHeldRecordExceptTheBasicIDs()
    {
        addAll({0, 3});
        registry()->writeConfig();
        const auto record = registry()->m_dataManager;
        QCOMPARE(record->getIDList(), QList<int>{3});
        const QByteArray before = m_fixture->fileContent();
        registry()->resetData();
        QCOMPARE(registry()->m_dataManager, record);
        QVERIFY(record->getIDList().isEmpty() && record->getNameList().isEmpty() && record->getTypeList().isEmpty());
        QCOMPARE(record->getBasicCoorSysIDList(), QList<int>{0});
        QCOMPARE(m_fixture->fileContent(), before);
    }

    void sortsByAddress()
    {
        addAll({9, 1, 8, 2, 7, 3});
        QList<RelativeCoordinateSystem*> expected = registry()->m_coordinateSystemList;
        std::sort(expected.begin(), expected.end(), std::less<>());
        // Whatever the addresses are, at least one of these two orders is not sorted yet.
        std::reverse(registry()->m_coordinateSystemList.begin(), registry()->m_coordinateSystemList.end());
        RegistryLog log;
        registry()->sort();
        QCOMPARE(registry()->m_coordinateSystemList, expected);
        std::swap(registry()->m_coordinateSystemList[0], registry()->m_coordinateSystemList[3]);
        registry()->sort();
        QCOMPARE(registry()->m_coordinateSystemList, expected);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!m_fixture->hasFile());
    }

    void makesAnyIDCurrent()
    {
        addAll({0, 3, 5});
        RegistryLog log;
        registry()->setCurrentCoordinateSystemID(42);
        registry()->setCurrentCoordinateSystemID(42);
        QCOMPARE(registry()->getCurrentCoordinateSystemID(), 42);
        QCOMPARE(log.take(), lines({"changed [0,3,5] | [0,3,5] at 42", "changed [0,3,5] | [0,3,5] at 42"}));
    }

    void keepsTheSigns()
    {
        RegistryLog log;
        registry()->setNeWCoordinateSystemSign(true);
        QCOMPARE(registry()->getSwitchCoordinateSystemSign(), false);
        registry()->setSwitchCoordinateSystemSign(true);
        registry()->setNeWCoordinateSystemSign(false);
        QCOMPARE(registry()->getNeWCoordinateSystemSign(), false);
        QCOMPARE(registry()->getSwitchCoordinateSystemSign(), true);
        QCOMPARE(log.take(), QStringList());
    }

    void destroysItsSystemsWithItself()
    {
        const Systems systems = addAll({0, 3});
        m_fixture->destroyRegistry();
        QCOMPARE(aliveCount(systems), 0);
    }
};

QTEST_GUILESS_MAIN(RelativeCoordinateSystemDateTest)
#include "tst_relativecoordinatesystemdate.moc"
