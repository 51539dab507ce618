// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "RegistryFixture.h"

#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>
#include <utility>

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

using Systems = QList<QPointer<RelativeCoordinateSystem>>;
/// What a listener does to the registry; the systems are those registered at first.
using Interference = std::function<void(RelativeCoordinateSystemDate&, const Systems&)>;
using Operation = std::function<void(RelativeCoordinateSystemDate&)>;

QStringList lines(const QVector<const char*>& texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QString::fromLatin1(text));
    }
    return list;
}

} // namespace

Q_DECLARE_METATYPE(Interference)
Q_DECLARE_METATYPE(Operation)

/// What listeners of the registry and of its systems find there, and may do to it.
class CoordinateListenersTest : public QObject
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

    static void addInterferences()
    {
        QTest::addColumn<Interference>("interfere");
        QTest::newRow("clears") << Interference([](auto& systems, const auto&) { systems.clear(); });
        QTest::newRow("resets") << Interference([](auto& systems, const auto&) { systems.resetData(); });
        QTest::newRow("removes the same by ID")
            << Interference([](auto& systems, const auto&) { systems.removeCoordinateSystemByID({3}); });
        QTest::newRow("removes the same by index")
            << Interference([](auto& systems, const auto&) { systems.removeCoordinateSystemByIndex(1); });
        QTest::newRow("empties it") << Interference([](auto& systems, const auto&) {
            while (systems.getRelativeCoordinateSystemDateCount() > 0) {
                systems.removeCoordinateSystemByIndex(0);
            }
        });
        QTest::newRow("appends") << Interference([](auto& systems, const auto&) {
            auto* const system = new RelativeCoordinateSystem;
            system->setID(8);
            systems.appendCoordinateSystem(system);
        });
        QTest::newRow("takes out and destroys") << Interference([](auto& systems, const auto& known) {
            systems.removeCoordinateSystemByID({3, 5});
            delete known.at(1).data();
            delete known.at(2).data();
        });
        QTest::newRow("sorts") << Interference([](auto& systems, const auto&) { systems.sort(); });
        QTest::newRow("reads the file") << Interference([](auto& systems, const auto&) { systems.readConfig(); });
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void survivesListenersOfClear_data() { addInterferences(); }
    void survivesListenersOfClear()
    {
        interfereWith([](RelativeCoordinateSystemDate& systems) { systems.clear(); });
        QVERIFY(registry()->getRelativeCoordinateSystemDateCount() <= 1);
    }

    void survivesListenersOfReset_data() { addInterferences(); }
    void survivesListenersOfReset()
    {
        interfereWith([](RelativeCoordinateSystemDate& systems) { systems.resetData(); });
        QVERIFY(registry()->getRelativeCoordinateSystemDateCount() <= 1);
    }

    void survivesListenersOfRemovalByIndex_data() { addInterferences(); }
    void survivesListenersOfRemovalByIndex()
    {
        interfereWith([](RelativeCoordinateSystemDate& systems) { systems.removeCoordinateSystemByIndex(1); });
        QCOMPARE(registry()->getCoordinateSystemByID(3), nullptr);
    }

    void leavesAloneWhatAListenerTookOut()
    {
        const Systems systems = addAll({0, 3, 5});
        bool isFirst = true;
        connect(registry(), &RelativeCoordinateSystemDate::signal_dataDeleted, registry(), [&isFirst] {
            if (std::exchange(isFirst, false)) {
                registry()->removeCoordinateSystemByID({3});
            }
        });
        registry()->removeCoordinateSystemByIndex(1);
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 5}));
        QVERIFY(!systems.at(1).isNull());
        delete systems.at(1).data();
    }

    void survivesListenersOfRemovalByID_data() { addInterferences(); }
    void survivesListenersOfRemovalByID()
    {
        interfereWith([](RelativeCoordinateSystemDate& systems) { systems.removeCoordinateSystemByID({5, 3}); });
        QCOMPARE(registry()->getCoordinateSystemByID(3), nullptr);
        QCOMPARE(registry()->getCoordinateSystemByID(5), nullptr);
    }

    void survivesListenersOfWriting_data() { addInterferences(); }
    void survivesListenersOfWriting()
    {
        QFETCH(Interference, interfere);
        const Systems systems = addAll({0, 3, 5});
        registry()->writeConfig();
        bool isFirst = true;
        Systems everRegistered = systems;
        connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateWindowTitle, registry(),
                [&] {
                    for (RelativeCoordinateSystem* system : qAsConst(registry()->m_coordinateSystemList)) {
                        everRegistered.append(system);
                    }
                    if (std::exchange(isFirst, false)) {
                        interfere(*registry(), systems);
                    }
                });
        registry()->readConfig();
        QVERIFY(!isFirst);
        deleteUnregistered(everRegistered);
    }

    void takesSystemsOutBeforeDestroyingThem_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("removal by index")
            << Operation([](auto& systems) { systems.removeCoordinateSystemByIndex(1); }) << lines({"3 gone [0,5,7]"});
        QTest::newRow("clear") << Operation([](auto& systems) { systems.clear(); })
                               << lines({"7 gone [0,3,5]", "5 gone [0,3]", "3 gone [0]"});
        QTest::newRow("destruction") << Operation([](auto&) { RegistryFixture::destroyRegistry(); })
                                     << lines({"0 gone []", "3 gone []", "5 gone []", "7 gone []"});
    }
    void takesSystemsOutBeforeDestroyingThem()
    {
        QFETCH(Operation, operation);
        QFETCH(QStringList, expected);
        QStringList log;
        for (const auto& system : addAll({0, 3, 5, 7})) {
            connect(system, &QObject::destroyed, this, [&log, id = system->getID()] {
                log.append(QStringLiteral("%1 gone %2").arg(id).arg(textOf(RegistryFixture::ids())));
            });
        }
        operation(*registry());
        // The systems that are left are destroyed after the log.
        for (RelativeCoordinateSystem* system : qAsConst(registry()->m_coordinateSystemList)) {
            system->disconnect(this);
        }
        QCOMPARE(log, expected);
    }

private:
    /// Calls `operation` on the systems 0, 3 and 5 while the first listener of the first deletion interferes.
    void interfereWith(const std::function<void(RelativeCoordinateSystemDate&)>& operation)
    {
        QFETCH(Interference, interfere);
        const Systems systems = addAll({0, 3, 5});
        bool isFirst = true;
        connect(registry(), &RelativeCoordinateSystemDate::signal_dataDeleted, registry(), [&] {
            if (std::exchange(isFirst, false)) {
                interfere(*registry(), systems);
            }
        });
        operation(*registry());
        QVERIFY(!isFirst);
        deleteUnregistered(systems);
    }

    /// The registry gave these up without destroying them.
    static void deleteUnregistered(const Systems& systems)
    {
        for (const auto& system : systems) {
            if (!system.isNull() && registry()->getIndexByCoordinateSystem(system) == -1) {
                delete system.data();
            }
        }
    }
};

QTEST_GUILESS_MAIN(CoordinateListenersTest)
#include "tst_coordinatelisteners.moc"
