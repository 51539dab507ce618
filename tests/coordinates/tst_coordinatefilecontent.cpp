// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ChainModel.h"
#include "CoordinateFiles.h"
#include "RegistryFixture.h"

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <support/LocaleScope.h>

#include <QTest>

#include <array>
#include <functional>
#include <memory>
#include <new>

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

/// What happens to the systems 0, 1, 2 and 3 between two writes.
using Change = std::function<void(RelativeCoordinateSystemDate&)>;

/// The chain that a change concerns, by the position of its key, and what stands there for system 2 afterwards.
struct Expectation
{
    int key;
    QString text;
};

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Expectation)

/// What the file holds after the registry has changed, and under which circumstances.
class CoordinateFileContentTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

    static RelativeCoordinateSystemDate* registry() { return RelativeCoordinateSystemDate::getInstance(); }

    QJsonArray list(int key) const
    {
        return parsed(m_fixture->fileContent()).value(QLatin1String(keys[key])).toArray();
    }

    /// A system with one level in each chain, of an owner below 1.
    static void setLevels(RelativeCoordinateSystem& system, double number)
    {
        std::array<double, 3> vector = {number, 0, 0};
        system.setType(BaseModule::CoordinateSystemType(int(number)), -5, 0, -1);
        system.setOffsetCoordinate(vector.data(), -5, 0, -1);
        system.setRotateDirection(vector.data(), -5, 0, -1);
        system.setActorRotateDirection({QStringLiteral("X"), number}, -5, 0, -1);
    }

    /// The four lists of texts in the held record.
    static QList<QList<QString>> writtenTexts()
    {
        const auto& record = *registry()->m_dataManager;
        return {record.getTypeList(), record.getOffsetCoordinateList(), record.getRotateDirectionList(),
                record.getActorRoateDirList()};
    }

    void addFour()
    {
        for (const int id : {0, 1, 2, 3}) {
            setLevels(*m_fixture->add(id), id);
        }
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void followsEveryChangeOfAChain_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<Expectation>("expected");
        static std::array<double, 3> vector = {7, 0, 8};
        static std::array<double, 3> negativeZero = {2, -0.0, 0};
        const auto add = [](const char* name, int key, const char* text, const Change& change) {
            QTest::newRow(name) << change << Expectation{key, QString::fromLatin1(text)};
        };
        const auto second = [](RelativeCoordinateSystemDate& systems) { return systems.getCoordinateSystemByIndex(2); };
        add("nothing", 3, "-5:2", [](auto&) {});
        add("type modified", 3, "-5:9",
            [=](auto& systems) { second(systems)->setType(BaseModule::CoordinateSystemType(9), 0, 0, -5); });
        add("type appended", 3, "-5:2;-6:9",
            [=](auto& systems) { second(systems)->setType(BaseModule::CoordinateSystemType(9), -6, 0, -1); });
        add("offset modified", 4, "-5:7,0,8",
            [=](auto& systems) { second(systems)->setOffsetCoordinate(vector.data(), 0, 0, -5); });
        add("offset's zero negated", 4, "-5:2,-0,0",
            [=](auto& systems) { second(systems)->setOffsetCoordinate(negativeZero.data(), 0, 0, -5); });
        add("rotation modified", 5, "-5:7,0,8",
            [=](auto& systems) { second(systems)->setRotateDirection(vector.data(), 0, 0, -5); });
        add("rotation's zero negated", 5, "-5:2,-0,0",
            [=](auto& systems) { second(systems)->setRotateDirection(negativeZero.data(), 0, 0, -5); });
        add("step modified", 6, "-5:Y,3", [=](auto& systems) {
            second(systems)->setActorRotateDirection({QStringLiteral("Y"), 3}, 0, 0, -5);
        });
        add("step's zero negated", 6, "-5:X,-0", [=](auto& systems) {
            second(systems)->setActorRotateDirection({QStringLiteral("X"), 0.0}, 0, 0, -5);
            systems.writeConfig();
            second(systems)->setActorRotateDirection({QStringLiteral("X"), -0.0}, 0, 0, -5);
        });
        add("rotation emptied", 5, "", [=](auto& systems) { second(systems)->m_rotateDirectionPairList.clear(); });
        add("type inherited from the first", 3, "-5:1;2:9",
            [=](auto& systems) { second(systems)->setType(BaseModule::CoordinateSystemType(9), 2, 1, -1); });
        add("the one before removed", 3, "-5:3", [](auto& systems) { systems.removeCoordinateSystemByIndex(1); });
    }
    void followsEveryChangeOfAChain()
    {
        QFETCH(Change, change);
        QFETCH(Expectation, expected);
        addFour();
        registry()->writeConfig();
        registry()->writeConfig();
        QCOMPARE(list(3), (QJsonArray{QStringLiteral("-5:1"), QStringLiteral("-5:2"), QStringLiteral("-5:3")}));
        change(*registry());
        registry()->writeConfig();
        QCOMPARE(list(expected.key).at(1).toString(), expected.text);
        // The same from nothing but the systems themselves.
        const QByteArray content = m_fixture->fileContent();
        const auto systems = registry()->m_coordinateSystemList;
        registry()->m_coordinateSystemList = systems.mid(0, 1);
        registry()->writeConfig();
        registry()->m_coordinateSystemList = systems;
        registry()->writeConfig();
        QCOMPARE(m_fixture->fileContent(), content);
    }

    /// Reading writes every system once for each of them, so the texts of those that stay must not be made anew.
    void reusesTheTextsOfUnchangedChains()
    {
        addFour();
        registry()->writeConfig();
        const auto first = writtenTexts();
        std::array<double, 3> vector = {7, 0, 8};
        registry()->getCoordinateSystemByIndex(2)->setOffsetCoordinate(vector.data(), 0, 0, -5);
        registry()->writeConfig();
        const auto second = writtenTexts();
        for (int list = 0; list < 4; ++list) {
            for (int system = 0; system < 3; ++system) {
                const bool isShared = first.at(list).at(system).constData() == second.at(list).at(system).constData();
                QCOMPARE(isShared, !(list == 1 && system == 1));
            }
        }
    }

    void forgetsTheTextsOfSystemsThatAreGone()
    {
        addFour();
        registry()->writeConfig();
        const QList<QString> offsets = registry()->m_dataManager->getOffsetCoordinateList();
        QVERIFY(!offsets.at(0).isDetached() && !offsets.at(1).isDetached());
        registry()->removeCoordinateSystemByIndex(2);
        registry()->writeConfig();
        QVERIFY(!offsets.at(0).isDetached() && offsets.at(1).isDetached());
    }

    void tellsSystemsAtTheSameAddressApart()
    {
        addFour();
        registry()->writeConfig();
        RelativeCoordinateSystem* const system = registry()->getCoordinateSystemByIndex(2);
        for (int round = 0; round < 50; ++round) {
            system->~RelativeCoordinateSystem();
            setLevels(*new (system) RelativeCoordinateSystem, round);
            registry()->writeConfig();
            const QString number = QString::number(round);
            QCOMPARE(list(3).at(1).toString(), QStringLiteral("-5:") + number);
            QCOMPARE(list(4).at(1).toString(), QStringLiteral("-5:%1,0,0").arg(number));
            QCOMPARE(list(5).at(1).toString(), QStringLiteral("-5:%1,0,0").arg(number));
            QCOMPARE(list(6).at(1).toString(), QStringLiteral("-5:X,") + number);
        }
    }

    void isTheSameUnderEveryLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
    }
    void isTheSameUnderEveryLocale()
    {
        QFETCH(QLocale, locale);
        const auto addAll = [] {
            addGlobalSystem();
            registry()->m_coordinateSystemList.append(makeSystem(1234567, 0, QStringLiteral("0.5"), 1234567));
            registry()->m_coordinateSystemList.append(makeSystem(1234568, 1234567, QString(), -7));
        };
        addAll();
        registry()->writeConfig();
        const QByteArray content = m_fixture->fileContent();
        QVERIFY(content.contains("1234567,") && content.contains("123456.7"));
        const QList<PlainSystem> systems = plainRegistry();
        registry()->resetData();
        const LocaleScope scope(locale);
        m_fixture->destroyRegistry();
        addAll();
        registry()->writeConfig();
        QCOMPARE(m_fixture->fileContent(), content);
        registry()->resetData();
        registry()->readConfig();
        QVERIFY(plainRegistry() == systems);
        QCOMPARE(m_fixture->fileContent(), content);
    }

    void keepsHalfSurrogates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("stored");
        const QChar high(0xd83e);
        const QChar low(0xdded);
        QTest::newRow("pair") << QString(high) + low << QByteArray("\"\xf0\x9f\xa7\xad\"");
        QTest::newRow("high") << QLatin1Char('a') + QString(high) + QLatin1Char('b') << QByteArray("\"a\\ud83eb\"");
        QTest::newRow("low") << QLatin1Char('a') + QString(low) + QLatin1Char('b') << QByteArray("\"a\\uddedb\"");
        QTest::newRow("high at the end") << QLatin1Char('a') + QString(high) << QByteArray("\"a\\ud83e\"");
        QTest::newRow("swapped") << QString(low) + high << QByteArray("\"\\udded\\ud83e\"");
    }
    void keepsHalfSurrogates()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, stored);
        addGlobalSystem();
        RelativeCoordinateSystem* const system = makeSystem(1, 0, text, 1);
        system->setActorRotateDirection({text, 0.5}, 0, 0, 1);
        registry()->appendCoordinateSystem(system);
        QVERIFY2(m_fixture->fileContent().contains(stored), m_fixture->fileContent().constData());
        registry()->resetData();
        registry()->readConfig();
        const RelativeCoordinateSystem* const read = registry()->getCoordinateSystemByID(1);
        QVERIFY(read != nullptr);
        QCOMPARE(read->getName(), text);
        QCOMPARE(read->getActorRoateDirPairPairList().last().second.first, text);
    }
};

QTEST_GUILESS_MAIN(CoordinateFileContentTest)
#include "tst_coordinatefilecontent.moc"
