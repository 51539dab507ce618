// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "RegistryFixture.h"

#include <QTest>

#include <vtkMatrix4x4.h>
#include <vtkNew.h>

#include <algorithm>
#include <functional>
#include <memory>

using BaseModule::CoordinateSystemType;
using BaseWidget::FixedPixelSizeAxesActor;
using DataManager::RelativeCoordinateSystem;

namespace {

using Chain = QList<QPair<int, int>>;

/// The four chain setters alike: an integer as the value, written in a form of the chain's own.
struct ChainAccess
{
    std::function<void(RelativeCoordinateSystem&, int value, int ownerID, int basicID, int modifyID)> set;
    std::function<Chain(const RelativeCoordinateSystem&)> get;
};

template <class Entry, class ValueOf>
Chain chainOf(const QList<QPair<int, Entry>>& entries, ValueOf valueOf)
{
    Chain chain;
    for (const auto& entry : entries) {
        chain.append({entry.first, valueOf(entry.second)});
    }
    return chain;
}

int valueOfVector(const QList<double>& vector)
{
    const bool isWhole = vector.size() == 3 && vector.at(1) == vector.at(0) + 0.25 && vector.at(2) == -vector.at(0);
    return isWhole ? static_cast<int>(vector.at(0)) : -999;
}

int valueOfStep(const QPair<QString, double>& step)
{
    const int value = step.first.toInt();
    return step.second == value * 0.5 ? value : -999;
}

ChainAccess types()
{
    return {[](RelativeCoordinateSystem& system, int value, int ownerID, int basicID, int modifyID) {
                system.setType(CoordinateSystemType(value), ownerID, basicID, modifyID);
            },
            [](const RelativeCoordinateSystem& system) {
                return chainOf(system.getTypePairList(), [](CoordinateSystemType type) { return int(type); });
            }};
}

ChainAccess offsets()
{
    return {[](RelativeCoordinateSystem& system, int value, int ownerID, int basicID, int modifyID) {
                double offset[3] = {double(value), value + 0.25, -double(value)};
                system.setOffsetCoordinate(offset, ownerID, basicID, modifyID);
            },
            [](const RelativeCoordinateSystem& system) {
                return chainOf(system.getOffsetCoordinateListPairList(), valueOfVector);
            }};
}

/// Rotations find the entries to modify through the offsets, which are therefore written in step.
ChainAccess rotations()
{
    return {[](RelativeCoordinateSystem& system, int value, int ownerID, int basicID, int modifyID) {
                double angles[3] = {double(value), value + 0.25, -double(value)};
                system.setRotateDirection(angles, ownerID, basicID, modifyID);
                system.setOffsetCoordinate(angles, ownerID, basicID, modifyID);
            },
            [](const RelativeCoordinateSystem& system) {
                return chainOf(system.getRotateDirectionListPairList(), valueOfVector);
            }};
}

ChainAccess actorRotations()
{
    return {[](RelativeCoordinateSystem& system, int value, int ownerID, int basicID, int modifyID) {
                system.setActorRotateDirection({QString::number(value), value * 0.5}, ownerID, basicID, modifyID);
            },
            [](const RelativeCoordinateSystem& system) {
                return chainOf(system.getActorRoateDirPairPairList(), valueOfStep);
            }};
}

} // namespace

Q_DECLARE_METATYPE(ChainAccess)

class RelativeCoordinateSystemTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

    static void addChains()
    {
        QTest::addColumn<ChainAccess>("chain");
        QTest::newRow("types") << types();
        QTest::newRow("offsets") << offsets();
        QTest::newRow("rotations") << rotations();
        QTest::newRow("actor rotations") << actorRotations();
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void startsEmpty()
    {
        RelativeCoordinateSystem system;
        QCOMPARE(system.getID(), 0);
        QCOMPARE(system.getBasicCoordinateSystemID(), 0);
        QCOMPARE(system.getName(), QString());
        QCOMPARE(system.m_type, CoordinateSystemType(0));
        QVERIFY(system.getTypePairList().isEmpty() && system.getOffsetCoordinateListPairList().isEmpty());
        QVERIFY(system.getRotateDirectionListPairList().isEmpty() && system.getActorRoateDirPairPairList().isEmpty());
        QVERIFY(system.m_rotateDirection.isEmpty() && system.m_actorRotateDirection.isEmpty());
        QVERIFY(system.getActor() == nullptr && system.getActorMatrix() == nullptr);
        QCOMPARE(system.m_property.getRowCount(), 0);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(system.getActorQuaternion()[i], 0.0);
            QCOMPARE(system.m_offsetCoordinate[qMin(i, 2)], 0.0);
        }
    }

    void hasAMetaObjectWithoutMembersOfItsOwn()
    {
        const QMetaObject& meta = RelativeCoordinateSystem::staticMetaObject;
        QCOMPARE(QString::fromLatin1(meta.className()), QStringLiteral("DataManager::RelativeCoordinateSystem"));
        QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    }

    void countsConstructionsOnly()
    {
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), 0);
        {
            RelativeCoordinateSystem first, second, third;
            first.setID(70);
            QCOMPARE(RelativeCoordinateSystem::getMaxID(), 3);
        }
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), 3);
        RelativeCoordinateSystem::resetMaxID();
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), 0);
        RelativeCoordinateSystem fourth;
        QCOMPARE(fourth.getID(), 0);
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), 1);
    }

    void givesBackWhatWasSet()
    {
        RelativeCoordinateSystem system;
        system.setID(-3);
        system.setBasicCoordinateSystemID(9);
        system.setName(QStringLiteral("Spindle"));
        auto* const actor = reinterpret_cast<FixedPixelSizeAxesActor*>(&system);
        system.setActor(actor);
        vtkNew<vtkMatrix4x4> matrix;
        system.setActorMatrix(matrix);
        system.printRelativeCoordinateSystem();
        QCOMPARE(system.getID(), -3);
        QCOMPARE(system.getBasicCoordinateSystemID(), 9);
        QCOMPARE(system.getName(), QStringLiteral("Spindle"));
        QCOMPARE(system.getActor(), actor);
        QCOMPARE(system.getActorMatrix(), matrix.Get());
        QCOMPARE(matrix->GetReferenceCount(), 1);
    }

    void copiesTheQuaternion()
    {
        RelativeCoordinateSystem system;
        double quaternion[4] = {0.5, -0.5, 0.25, 1};
        system.setActorQuaternion(quaternion);
        quaternion[0] = 7;
        QCOMPARE(system.getActorQuaternion()[0], 0.5);
        QCOMPARE(system.getActorQuaternion()[3], 1.0);
        system.getActorQuaternion()[1] = 8;
        QCOMPARE(system.m_actorQuaternion[1], 8.0);
        system.setActorQuaternion(nullptr);
        QCOMPARE(system.getActorQuaternion()[1], 8.0);
    }

    void appendsToAChain_data() { addChains(); }
    void appendsToAChain()
    {
        QFETCH(ChainAccess, chain);
        RelativeCoordinateSystem* const basic = m_fixture->add(2);
        chain.set(*basic, 10, 0, 0, -1);
        chain.set(*basic, 11, -4, 2, -1);
        QCOMPARE(chain.get(*basic), (Chain{{0, 10}, {-4, 11}}));
        RelativeCoordinateSystem system;
        chain.set(system, 1, 0, 2, -1);
        QCOMPARE(chain.get(system), (Chain{{0, 1}}));
        chain.set(system, 2, 5, 2, -1);
        QCOMPARE(chain.get(system), (Chain{{0, 10}, {-4, 11}, {5, 2}}));
        chain.set(system, 3, 1, 2, -1);
        QCOMPARE(chain.get(system), (Chain{{0, 10}, {-4, 11}, {1, 3}}));
        chain.set(*basic, 20, 1, 2, 0);
        QCOMPARE(chain.get(*basic), (Chain{{0, 20}, {-4, 11}}));
        QCOMPARE(chain.get(system).first(), qMakePair(0, 10));
    }

    void modifiesAChain_data() { addChains(); }
    void modifiesAChain()
    {
        QFETCH(ChainAccess, chain);
        m_fixture->add(2);
        RelativeCoordinateSystem system;
        chain.set(system, 1, 0, 0, -1);
        chain.set(system, 2, -2, 0, -1);
        chain.set(system, 3, 0, 0, -1);
        chain.set(system, 9, 5, 2, 0);
        QCOMPARE(chain.get(system), (Chain{{0, 9}, {-2, 2}, {0, 9}}));
        chain.set(system, 8, 0, 0, -2);
        QCOMPARE(chain.get(system), (Chain{{0, 9}, {-2, 8}, {0, 9}}));
        chain.set(system, 7, 0, 0, 3);
        QCOMPARE(chain.get(system), (Chain{{0, 9}, {-2, 8}, {0, 9}}));
    }

    void keepsAChainWhoseBasicSystemIsMissing_data() { addChains(); }
    void keepsAChainWhoseBasicSystemIsMissing()
    {
        QFETCH(ChainAccess, chain);
        RelativeCoordinateSystem system;
        chain.set(system, 1, 0, 0, -1);
        chain.set(system, 2, 5, 77, -1);
        QCOMPARE(chain.get(system), (Chain{{0, 1}, {5, 2}}));
    }

    void inheritsFromTheFirstSystemWithTheID_data() { addChains(); }
    void inheritsFromTheFirstSystemWithTheID()
    {
        QFETCH(ChainAccess, chain);
        chain.set(*m_fixture->add(2), 1, 0, 0, -1);
        chain.set(*m_fixture->add(2), 2, 0, 0, -1);
        RelativeCoordinateSystem system;
        chain.set(system, 3, 5, 2, -1);
        QCOMPARE(chain.get(system), (Chain{{0, 1}, {5, 3}}));
    }

    void setsNoCacheAndEmitsNothing_data() { addChains(); }
    void setsNoCacheAndEmitsNothing()
    {
        QFETCH(ChainAccess, chain);
        RegistryLog log;
        RelativeCoordinateSystem system;
        system.m_type = CoordinateSystemType(6);
        system.m_rotateDirection = {{1, 2, 3}};
        system.m_actorRotateDirection = {{QStringLiteral("kept"), 1}};
        system.m_offsetCoordinate[0] = 4;
        chain.set(system, 1, 0, 0, -1);
        chain.set(system, 2, 0, 0, 0);
        QCOMPARE(system.m_type, CoordinateSystemType(6));
        QCOMPARE(system.m_rotateDirection, (QList<QList<double>>{{1, 2, 3}}));
        QCOMPARE(system.m_actorRotateDirection.size(), 1);
        QCOMPARE(system.m_offsetCoordinate[0], 4.0);
        QCOMPARE(log.take(), QStringList());
    }

    void findsRotationsToModifyThroughTheOffsets_data()
    {
        QTest::addColumn<QList<int>>("offsetOwners");
        QTest::addColumn<int>("modifyID");
        QTest::addColumn<Chain>("chain");
        QTest::newRow("in step") << QList<int>{0, -2, -7} << -2 << Chain{{0, 1}, {-2, 9}, {-7, 1}};
        QTest::newRow("by the offset's owner") << QList<int>{0, -5, -7} << -5 << Chain{{0, 1}, {-5, 9}, {-7, 1}};
        QTest::newRow("not by its own owner") << QList<int>{0, -5, -7} << -2 << Chain{{0, 1}, {-2, 1}, {-7, 1}};
        QTest::newRow("longer offset chain") << QList<int>{-9, -2, -7, -2} << -2 << Chain{{0, 1}, {-2, 9}, {-7, 1}};
        QTest::newRow("shorter offset chain") << QList<int>{-2} << -2 << Chain{{-2, 9}, {-2, 1}, {-7, 1}};
        QTest::newRow("no offset chain") << QList<int>() << -2 << Chain{{0, 1}, {-2, 1}, {-7, 1}};
    }
    void findsRotationsToModifyThroughTheOffsets()
    {
        QFETCH(QList<int>, offsetOwners);
        QFETCH(int, modifyID);
        QFETCH(Chain, chain);
        RelativeCoordinateSystem system;
        double angles[3] = {1, 1.25, -1};
        for (const int owner : {0, -2, -7}) {
            system.setRotateDirection(angles, owner, 0, -1);
        }
        for (const int owner : qAsConst(offsetOwners)) {
            system.setOffsetCoordinate(angles, owner, 0, -1);
        }
        double others[3] = {9, 9.25, -9};
        system.setRotateDirection(others, 4, 0, modifyID);
        QCOMPARE(rotations().get(system), chain);
        QCOMPARE(offsets().get(system).size(), offsetOwners.size());
    }

    void passesOverMissingVectors()
    {
        RelativeCoordinateSystem system;
        system.setOffsetCoordinate(nullptr, 0, 0, -1);
        system.setRotateDirection(nullptr, 0, 0, -1);
        QVERIFY(system.getOffsetCoordinateListPairList().isEmpty());
        QVERIFY(system.getRotateDirectionListPairList().isEmpty());
    }

    void cachesTheLastType()
    {
        RelativeCoordinateSystem system;
        QCOMPARE(system.getType(), CoordinateSystemType(0));
        system.setType(CoordinateSystemType(2), 0, 0, -1);
        system.setType(CoordinateSystemType(17), 0, 0, -1);
        QCOMPARE(system.m_type, CoordinateSystemType(0));
        QCOMPARE(system.getType(), CoordinateSystemType(17));
        QCOMPARE(system.m_type, CoordinateSystemType(17));
    }

    void carriesItsOffsetThroughTheMatrixOfTheBasicSystem_data()
    {
        QTest::addColumn<QVector<double>>("elements");
        QTest::addColumn<QVector<double>>("origin");
        QTest::newRow("identity") << QVector<double>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}
                                  << QVector<double>{1, 2, 3};
        QTest::newRow("translation") << QVector<double>{1, 0, 0, 10, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}
                                     << QVector<double>{11, 2, 3};
        // A quarter turn about z, scaled by (2, 3, 4), then moved by (10, 20, 30).
        QTest::newRow("turned, scaled, moved")
            << QVector<double>{0, -2, 0, 10, 3, 0, 0, 20, 0, 0, 4, 30, 0, 0, 0, 1} << QVector<double>{6, 23, 42};
        QTest::newRow("not divided by the fourth component")
            << QVector<double>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2} << QVector<double>{1, 2, 3};
    }
    void carriesItsOffsetThroughTheMatrixOfTheBasicSystem()
    {
        QFETCH(QVector<double>, elements);
        QFETCH(QVector<double>, origin);
        vtkNew<vtkMatrix4x4> matrix;
        matrix->DeepCopy(elements.constData());
        vtkNew<vtkMatrix4x4> unused;
        unused->SetElement(0, 3, 1000);
        m_fixture->add(0)->setActorMatrix(unused);
        RelativeCoordinateSystem* const basic = m_fixture->add(2);
        basic->setActorMatrix(matrix);
        double offset[3] = {9, 9, 9};
        basic->setOffsetCoordinate(offset, 0, 0, -1);
        RelativeCoordinateSystem* const system = m_fixture->add(5, 2);
        std::copy_n(QVector<double>{1, 2, 3}.constData(), 3, offset);
        system->setOffsetCoordinate(offset, 5, 2, -1);
        QCOMPARE(system->getOffsetCoordinateListPairList().size(), 2);
        double* const result = system->getOffsetCoordinate();
        QCOMPARE(result, static_cast<double*>(system->m_offsetCoordinate));
        QCOMPARE((QVector<double>{result[0], result[1], result[2]}), origin);
    }

    void passesOverOffsetsThatCannotBeCarried_data()
    {
        QTest::addColumn<int>("owner");
        QTest::newRow("missing owner") << -8;
        QTest::newRow("missing basic system") << 6;
        QTest::newRow("missing matrix") << 7;
    }
    void passesOverOffsetsThatCannotBeCarried()
    {
        QFETCH(int, owner);
        vtkNew<vtkMatrix4x4> matrix;
        m_fixture->add(0)->setActorMatrix(matrix);
        m_fixture->add(6, 66);
        m_fixture->add(7, 6);
        RelativeCoordinateSystem system;
        system.m_offsetCoordinate[1] = 12;
        double offset[3] = {1, 2, 3};
        system.setOffsetCoordinate(offset, owner, 0, -1);
        QCOMPARE(system.getOffsetCoordinate()[1], 12.0);
        system.m_offsetCoordinatePairList.prepend({0, {4, 5, 6}});
        QCOMPARE(system.getOffsetCoordinate()[1], 5.0);
    }

    void keepsTheCachedOriginWithoutOffsets()
    {
        RelativeCoordinateSystem system;
        system.m_offsetCoordinate[2] = 12;
        QCOMPARE(system.getOffsetCoordinate()[2], 12.0);
    }

    void listsActorRotationsInChainOrder()
    {
        using Step = QPair<QString, double>;
        RelativeCoordinateSystem system;
        system.setActorRotateDirection({QStringLiteral("X"), 90}, 0, 0, -1);
        system.setActorRotateDirection({QString(), -0.5}, 0, 0, -1);
        const QList<Step> expected = {{QStringLiteral("X"), 90}, {QString(), -0.5}};
        QCOMPARE(system.getActorRotateDirection(), expected);
        QCOMPARE(system.getActorRotateDirection(), expected);
        QCOMPARE(system.m_actorRotateDirection, expected);
    }
};

QTEST_GUILESS_MAIN(RelativeCoordinateSystemTest)
#include "tst_relativecoordinatesystem.moc"
