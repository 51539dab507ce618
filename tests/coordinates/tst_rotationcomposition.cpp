// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralRotation.h"
#include "RegistryFixture.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <random>

using BaseModule::CoordinateSystemType;
using DataManager::RelativeCoordinateSystem;

namespace {

using Rotations = QList<QList<double>>;

constexpr double pi = 3.14159265358979323846;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Exact: two values are the same when their bits are.
QVector<quint64> bitsOf(const Rotations& rotations)
{
    QVector<quint64> bits;
    for (const QList<double>& angles : rotations) {
        for (const double angle : angles) {
            quint64 word = 0;
            std::memcpy(&word, &angle, sizeof word);
            bits.append(word);
        }
    }
    return bits;
}

Rotations turned(QList<double> vector, int id)
{
    double v[3] = {vector.at(0), vector.at(1), vector.at(2)};
    RegistryFixture::registry()->getCSRotateDirection(v, id);
    return {{v[0], v[1], v[2]}};
}

Rotations turnedLiterally(LiteralRotation& literal, QList<double> vector, int id)
{
    double v[3] = {vector.at(0), vector.at(1), vector.at(2)};
    literal.turn(v, id);
    return {{v[0], v[1], v[2]}};
}

void setLevel(RelativeCoordinateSystem& system, QList<double> angles, int ownerID, int basicID)
{
    double a[3] = {angles.at(0), angles.at(1), angles.at(2)};
    system.setRotateDirection(a, ownerID, basicID, -1);
    system.setType(CoordinateSystemType(ownerID), ownerID, basicID, -1);
}

} // namespace

class RotationCompositionTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

    /// A registered system made as the view makes it: its own level on top of its basic system's chain.
    RelativeCoordinateSystem* make(int id, int basicID, const QList<double>& angles)
    {
        RelativeCoordinateSystem* const system = m_fixture->add(id, basicID);
        setLevel(*system, angles, id, basicID);
        return system;
    }

    void makeRandomTree(std::mt19937& generator, int count, double multiAxisShare)
    {
        std::uniform_real_distribution<double> angle(-4, 4);
        std::uniform_real_distribution<double> share(0, 1);
        make(0, 0, {0, 0, 0});
        for (int id = 1; id < count; ++id) {
            const int basicID = static_cast<int>(generator() % static_cast<unsigned>(id));
            QList<double> angles = {0, 0, 0};
            if (share(generator) < multiAxisShare) {
                angles = {angle(generator), angle(generator), angle(generator)};
            } else if (share(generator) < 0.9) {
                angles[static_cast<int>(generator() % 3)] = angle(generator);
            }
            make(id, basicID, angles);
        }
    }

    /// Cached values that no evaluation gives, so that a cache that was not refilled shows.
    static void spoilCaches()
    {
        for (RelativeCoordinateSystem* system : qAsConst(RegistryFixture::registry()->m_coordinateSystemList)) {
            system->m_rotateDirection = {{-1, -2, -3}};
            system->m_type = CoordinateSystemType(-77);
        }
    }

    static void compareCaches(const LiteralRotation& literal)
    {
        for (const RelativeCoordinateSystem* system : qAsConst(RegistryFixture::registry()->m_coordinateSystemList)) {
            const Rotations rotations = literal.rotationCache.value(system, {{-1, -2, -3}});
            QCOMPARE(bitsOf(system->m_rotateDirection), bitsOf(rotations));
            QCOMPARE(int(system->m_type), literal.typeCache.value(system, -77));
        }
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void turnsAboutOneAxisAtATime_data()
    {
        QTest::addColumn<Rotations>("chain");
        QTest::addColumn<QList<double>>("expected");
        const double c = std::cos(0.5);
        const double s = std::sin(0.5);
        QTest::newRow("no levels") << Rotations() << QList<double>{2, 3, 5};
        QTest::newRow("zeros") << Rotations{{0, 0, 0}, {-0.0, 0, -0.0}} << QList<double>{2, 3, 5};
        QTest::newRow("about x") << Rotations{{0.5, 0, 0}} << QList<double>{2, c * 3 - s * 5, s * 3 + c * 5};
        QTest::newRow("about y") << Rotations{{0, 0.5, 0}} << QList<double>{c * 2 + s * 5, 3, -s * 2 + c * 5};
        QTest::newRow("about z") << Rotations{{0, 0, 0.5}} << QList<double>{c * 2 - s * 3, s * 2 + c * 3, 5};
        QTest::newRow("first entry first")
            << Rotations{{pi / 2, 0, 0}, {0, 0, 0}, {0, pi / 2, 0}} << QList<double>{3, -5, -2};
        QTest::newRow("two angles") << Rotations{{0.5, 0, 0}, {0.5, 0, 0.5}} << QList<double>{2, 3, 5};
        QTest::newRow("three angles") << Rotations{{1, 1, 1}, {0.5, 0, 0}} << QList<double>{2, 3, 5};
        QTest::newRow("not a number counts") << Rotations{{0, notANumber, 1}} << QList<double>{2, 3, 5};
    }
    void turnsAboutOneAxisAtATime()
    {
        QFETCH(Rotations, chain);
        QFETCH(QList<double>, expected);
        RelativeCoordinateSystem* const system = m_fixture->add(4);
        for (const QList<double>& angles : qAsConst(chain)) {
            setLevel(*system, angles, 0, 0);
        }
        const QList<double> vector = turned({2, 3, 5}, 4).first();
        for (int i = 0; i < 3; ++i) {
            QVERIFY2(std::abs(vector.at(i) - expected.at(i)) <= 4e-15,
                     qPrintable(QString::number(vector.at(i), 'g', 17)));
        }
        QCOMPARE(bitsOf({vector}) == bitsOf({{2, 3, 5}}), expected == (QList<double>{2, 3, 5}));
    }

    void turnsByAQuarter()
    {
        make(0, 0, {0, 0, 0});
        make(4, 0, {0, 0, pi / 2});
        QCOMPARE(bitsOf(turned({1, 0, 0}, 4)), bitsOf({{std::cos(pi / 2), 1, 0}}));
    }

    void passesNotANumberOn()
    {
        make(4, 0, {notANumber, 0, 0});
        const QList<double> vector = turned({1, 2, 3}, 4).first();
        QCOMPARE(vector.at(0), 1.0);
        QVERIFY(std::isnan(vector.at(1)) && std::isnan(vector.at(2)));
    }

    void leavesTheVectorForTheGlobalSystem_data()
    {
        QTest::addColumn<int>("id");
        QTest::newRow("global") << 0;
        QTest::newRow("negative") << -2;
        QTest::newRow("missing") << 9;
    }
    void leavesTheVectorForTheGlobalSystem()
    {
        QFETCH(int, id);
        make(0, 0, {1, 0, 0});
        make(-2, 0, {1, 0, 0});
        spoilCaches();
        QCOMPARE(bitsOf(turned({1, 2, 3}, id)), bitsOf({{1, 2, 3}}));
        compareCaches(LiteralRotation());
    }

    void passesOverAMissingVector()
    {
        make(4, 0, {1, 0, 0});
        RegistryFixture::registry()->getCSRotateDirection(nullptr, 4);
        QCOMPARE(bitsOf(turned({1, 0, 0}, 4)), bitsOf({{1, 0, 0}}));
    }

    void refreshesTheTypeWhenNothingTurns()
    {
        RelativeCoordinateSystem* const system = make(4, 0, {0, 0, 0});
        QCOMPARE(int(system->m_type), 0);
        QCOMPARE(bitsOf(turned({1, 2, 3}, 4)), bitsOf({{1, 2, 3}}));
        QCOMPARE(int(system->m_type), 4);
    }

    void keepsLevelsWhoseBasicSystemIsGlobalOrBelow_data()
    {
        QTest::addColumn<int>("basicID");
        QTest::newRow("global") << 0;
        QTest::newRow("below") << -2;
    }
    void keepsLevelsWhoseBasicSystemIsGlobalOrBelow()
    {
        QFETCH(int, basicID);
        make(basicID, basicID, {0.5, 0, 0});
        RelativeCoordinateSystem* const system = make(4, basicID, {0, 0.25, 0});
        spoilCaches();
        const Rotations expected = {{0.5, 0, 0}, {0, 0.25, 0}};
        QCOMPARE(bitsOf(system->getRotateDirection()), bitsOf(expected));
        const RelativeCoordinateSystem* const basic = RegistryFixture::registry()->getCoordinateSystemByID(basicID);
        QCOMPARE(bitsOf(basic->m_rotateDirection), bitsOf({{-1, -2, -3}}));
        QCOMPARE(int(basic->m_type), -77);
    }

    void composesLevelByLevel()
    {
        make(0, 0, {0, 0, 0});
        make(1, 0, {0, 0, pi / 2});
        RelativeCoordinateSystem* const system = make(2, 1, {0.75, 0, 0});
        // The global level and that of a child of the global system stay; the own level is turned by system 1.
        const double c = std::cos(pi / 2);
        const double s = std::sin(pi / 2);
        const Rotations expected = {{0, 0, 0}, {0, 0, pi / 2}, {c * 0.75, s * 0.75, 0}};
        QCOMPARE(bitsOf(system->getRotateDirection()), bitsOf(expected));
        QCOMPARE(bitsOf(system->m_rotateDirection), bitsOf(expected));
    }

    void turnsLevelsThatDifferInOneAngle()
    {
        make(1, 0, {0, 0, pi / 2});
        m_fixture->add(-1, 1);
        RelativeCoordinateSystem system;
        Rotations expected;
        const double c = std::cos(pi / 2);
        const double s = std::sin(pi / 2);
        for (const QList<double>& level : Rotations{{0.5, 0.25, 1}, {0.75, 0.25, 1}, {0.75, 1, 1}, {0.75, 1, 2}}) {
            setLevel(system, level, -1, 1);
            expected.append({c * level[0] - s * level[1], s * level[0] + c * level[1], level[2]});
        }
        QCOMPARE(bitsOf(system.getRotateDirection()), bitsOf(expected));
    }

    void keepsLevelsWhoseOwnerIsMissing()
    {
        make(1, 0, {0, 0, pi / 2});
        RelativeCoordinateSystem system;
        setLevel(system, {0.5, 0.25, 1}, 77, 1);
        const Rotations expected = {{0, 0, pi / 2}, {0.5, 0.25, 1}};
        QCOMPARE(bitsOf(system.getRotateDirection()), bitsOf(expected));
    }

    void agreesWithTheLiteralRule_data()
    {
        QTest::addColumn<int>("seed");
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("multiAxisShare");
        for (int seed = 0; seed < 60; ++seed) {
            QTest::addRow("single axes %d", seed) << seed << 2 + seed % 30 << 0.0;
            QTest::addRow("some with more %d", seed) << seed << 2 + seed % 30 << 0.15;
        }
    }
    void agreesWithTheLiteralRule()
    {
        QFETCH(int, seed);
        QFETCH(int, count);
        QFETCH(double, multiAxisShare);
        std::mt19937 generator(static_cast<unsigned>(seed));
        makeRandomTree(generator, count, multiAxisShare);
        for (int id = 0; id < count; ++id) {
            RelativeCoordinateSystem* const system = RegistryFixture::registry()->getCoordinateSystemByID(id);
            spoilCaches();
            LiteralRotation ofSystem;
            QCOMPARE(bitsOf(system->getRotateDirection()), bitsOf(ofSystem.rotationsOf(*system)));
            compareCaches(ofSystem);
            spoilCaches();
            LiteralRotation ofVector;
            QCOMPARE(bitsOf(turned({0.25, 0, -1.5}, id)), bitsOf(turnedLiterally(ofVector, {0.25, 0, -1.5}, id)));
            compareCaches(ofVector);
        }
    }

    void agreesWithTheLiteralRuleInAChain()
    {
        constexpr int depth = 14;
        make(0, 0, {0, 0, 0});
        for (int id = 1; id <= depth; ++id) {
            QList<double> angles = {0, 0, 0};
            angles[id % 3] = 0.1 * id;
            make(id, id - 1, angles);
        }
        spoilCaches();
        LiteralRotation literal;
        QCOMPARE(bitsOf(turned({1, 2, 3}, depth)), bitsOf(turnedLiterally(literal, {1, 2, 3}, depth)));
        compareCaches(literal);
    }

    void agreesForLevelsThatWereModified()
    {
        std::mt19937 generator(5);
        makeRandomTree(generator, 20, 0.0);
        double angles[3] = {0, 2.5, 0};
        for (int id = 1; id < 20; id += 3) {
            RelativeCoordinateSystem* const system = RegistryFixture::registry()->getCoordinateSystemByID(id);
            system->setOffsetCoordinate(angles, id, system->getBasicCoordinateSystemID(), -1);
            system->setRotateDirection(angles, 0, 0, id);
        }
        // A system that is not registered and whose chain names the same owners more than once.
        RelativeCoordinateSystem system;
        for (const int owner : {7, 7, 0, 19, 4}) {
            double own[3] = {0, 0, 0.3 * owner};
            system.setRotateDirection(own, 0, 0, -1);
            system.m_rotateDirectionPairList.last().first = owner;
        }
        spoilCaches();
        LiteralRotation literal;
        QCOMPARE(bitsOf(system.getRotateDirection()), bitsOf(literal.rotationsOf(system)));
        compareCaches(literal);
    }

    void followsAThousandLevels()
    {
        constexpr int depth = 1000;
        make(0, 0, {0, 0, 0});
        // Half turns about z: every level's z angle stays, x and y change sign with each level above.
        for (int id = 1; id <= depth; ++id) {
            make(id, id - 1, {0, 0, pi});
        }
        const QList<double> vector = turned({1, 2, 3}, depth).first();
        QVERIFY(std::abs(vector.at(0) - 1) < 1e-9 && std::abs(vector.at(1) - 2) < 1e-9);
        QCOMPARE(vector.at(2), 3.0);
        const Rotations& cached = RegistryFixture::registry()->getCoordinateSystemByID(depth)->m_rotateDirection;
        QCOMPARE(cached.size(), depth + 1);
        QCOMPARE(cached.last().at(2), pi);
    }

    void endsForLoops_data()
    {
        QTest::addColumn<int>("length");
        QTest::newRow("itself") << 1;
        QTest::newRow("two") << 2;
        QTest::newRow("a thousand") << 1000;
    }
    void endsForLoops()
    {
        QFETCH(int, length);
        make(0, 0, {0, 0, 0});
        for (int id = 1; id <= length; ++id) {
            RelativeCoordinateSystem* const system = make(id, 0, {0, 0, 0.5});
            system->setBasicCoordinateSystemID(id % length + 1);
        }
        RelativeCoordinateSystem* const outside = make(length + 1, 0, {0, 0, 0.5});
        QCOMPARE(turned({1, 2, 3}, 1).first().at(2), 3.0);
        QCOMPARE(RegistryFixture::registry()->getCoordinateSystemByID(1)->m_rotateDirection.size(), 2);
        QCOMPARE(bitsOf(outside->getRotateDirection()), bitsOf({{0, 0, 0}, {0, 0, 0.5}}));
    }

    void passesOverWhatIsMissing()
    {
        make(0, 0, {0, 0, 0});
        RelativeCoordinateSystem* const orphan = make(5, 77, {0, 0.5, 0});
        RelativeCoordinateSystem* const child = make(6, 5, {0, 0, 0.25});
        QCOMPARE(bitsOf(orphan->getRotateDirection()), bitsOf({{0, 0.5, 0}}));
        const double c = std::cos(0.5);
        const double s = std::sin(0.5);
        QCOMPARE(bitsOf(child->getRotateDirection()), bitsOf({{0, 0.5, 0}, {s * 0.25, 0, c * 0.25}}));
        RelativeCoordinateSystem unknownOwner;
        setLevel(unknownOwner, {1, 2, 3}, -44, 0);
        QCOMPARE(bitsOf(unknownOwner.getRotateDirection()), bitsOf({{1, 2, 3}}));
    }

    void takesTheFirstSystemWithAnID()
    {
        make(4, 0, {0.5, 0, 0});
        RelativeCoordinateSystem* const second = make(4, 0, {0, 0.5, 0});
        RelativeCoordinateSystem* const child = make(6, 4, {0, 0, 0.25});
        QCOMPARE(bitsOf(second->getRotateDirection()), bitsOf({{0, 0.5, 0}}));
        LiteralRotation literal;
        QCOMPARE(bitsOf(child->getRotateDirection()), bitsOf(literal.rotationsOf(*child)));
    }
};

QTEST_APPLESS_MAIN(RotationCompositionTest)
#include "tst_rotationcomposition.moc"
