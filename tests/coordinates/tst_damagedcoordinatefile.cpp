// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ChainModel.h"
#include "CoordinateFiles.h"
#include "RegistryFixture.h"

#include <QTest>
#include <QVector>

#include <memory>
#include <random>

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

/// What a damaged project file leads to.
class DamagedCoordinateFileTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RegistryFixture> m_fixture;

    static RelativeCoordinateSystemDate* registry() { return RelativeCoordinateSystemDate::getInstance(); }

    /// The global system and the systems of the file.
    void readFile(const QByteArray& content)
    {
        QVERIFY(m_fixture->setFileContent(content));
        addGlobalSystem();
        registry()->readConfig();
    }

    QStringList chain(int index, int list) const { return plainRegistry().at(index).chains.at(list); }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void readsListsOfUnequalLength()
    {
        readFile(fileOf({{3, 5}, {}, {QStringLiteral("only")}, {}, {QStringLiteral("3:1,2,3")}, {}, {}}));
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3, 5}));
        const QList<PlainSystem> systems = plainRegistry();
        QCOMPARE(systems.at(1).name, QStringLiteral("only"));
        QCOMPARE(systems.at(2).name, QString());
        QCOMPARE(systems.at(2).basicID, 0);
        QCOMPARE(systems.at(1).chains.at(1).last(), QStringLiteral("3 1 2 3"));
        QCOMPARE(systems.at(2).chains, QVector<QStringList>(4));
    }

    void readsTheFirstThreeDoublesOfALevel_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("levels");
        const QString global = LevelValues(0).texts(0).at(1);
        QTest::newRow("three") << QStringLiteral("3:1,2,3") << QStringList{global, QStringLiteral("3 1 2 3")};
        QTest::newRow("more") << QStringLiteral("3:1,2,3,4") << QStringList{global, QStringLiteral("3 1 2 3")};
        QTest::newRow("fewer") << QStringLiteral("3:1,2") << QStringList();
        QTest::newRow("none") << QStringLiteral("3:") << QStringList();
        QTest::newRow("fewer in one level")
            << QStringLiteral("2:1,2,3;3:1") << QStringList{global, QStringLiteral("2 1 2 3")};
        QTest::newRow("no number") << QStringLiteral("3:1,2,x") << QStringList();
    }
    void readsTheFirstThreeDoublesOfALevel()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, levels);
        readFile(fileOf({{3}, {0}, {QString()}, {}, {text}, {}, {}}));
        QCOMPARE(chain(1, 1), levels);
    }

    void survivesLoopsAndRepeatedIDs()
    {
        readFile(fileOf({{3, 4, 4, 5, 0},
                         {4, 3, 3, 5, 0},
                         {},
                         {QStringLiteral("3:1"), QStringLiteral("4:2"), QStringLiteral("4:3"), QStringLiteral("5:4"),
                          QStringLiteral("0:5")},
                         {},
                         {QStringLiteral("3:0,0,1"), QStringLiteral("4:0,0,1"), QStringLiteral("4:1,0,0"),
                          QStringLiteral("5:0,0,1"), QStringLiteral("0:1,0,0")},
                         {}}));
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3, 4, 4, 5, 0}));
        QCOMPARE(chain(2, 0), (QStringList{QStringLiteral("3 1"), QStringLiteral("4 2")}));
        for (int i = 0; i < 6; ++i) {
            QVERIFY(!registry()->getCoordinateSystemByIndex(i)->getRotateDirection().isEmpty());
            registry()->getCoordinateSystemByIndex(i)->getOffsetCoordinate();
        }
    }

    void readsDeepChainsAndLoops_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("isLoop");
        QTest::newRow("chain of 200") << 200 << -1 << false;
        QTest::newRow("loop of 200, upwards") << 200 << -1 << true;
        QTest::newRow("loop of 1000, downwards") << 1000 << 1 << true;
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
        // Writes gigabytes: the file holds every system's whole chain, and is written once for each system.
        QTest::newRow("chain of 1000") << 1000 << -1 << false;
#endif
    }
    void readsDeepChainsAndLoops()
    {
        QFETCH(int, count);
        QFETCH(int, step);
        QFETCH(bool, isLoop);
        QVector<QJsonArray> lists(7);
        for (int id = 1; id <= count; ++id) {
            const int above = id + step;
            const bool isEnd = above < 1 || above > count;
            const QString vector = QStringLiteral("%1:0,0,%1").arg(id);
            const QVector<QJsonValue> values = {id,
                                                isEnd ? (isLoop ? count + 1 - id : 0) : above,
                                                QString::number(id),
                                                QStringLiteral("%1:%1").arg(id),
                                                vector,
                                                vector,
                                                QStringLiteral("%1:X,%1").arg(id)};
            for (int list = 0; list < 7; ++list) {
                lists[list].append(values.at(list));
            }
        }
        readFile(fileOf(lists));
        QCOMPARE(registry()->getRelativeCoordinateSystemDateCount(), count + 1);
        // Read upwards, each system finds the one above it registered; downwards, only the last finds the first.
        QStringList types;
        QStringList vectors;
        for (int id = 1; id <= count; ++id) {
            if (step == -1 || id == 1 || id == count) {
                types.append(QStringLiteral("%1 %1").arg(id));
                vectors.append(QStringLiteral("%1 0 0 %1").arg(id));
            }
        }
        if (!isLoop) {
            types.prepend(LevelValues(0).texts(0).at(0));
            vectors.prepend(LevelValues(0).texts(0).at(1));
        }
        QCOMPARE(chain(count, 0), types);
        QCOMPARE(chain(count, 1), vectors);
        QCOMPARE(chain(count, 2).mid(isLoop ? 0 : 1), vectors.mid(isLoop ? 0 : 1));
        QCOMPARE(chain(count, 3).size(), types.size());
        QCOMPARE(parsed(m_fixture->fileContent()).value(QLatin1String("m_IDList")).toArray(), lists.first());
        RelativeCoordinateSystem* const last = registry()->getCoordinateSystemByIndex(count);
        QCOMPARE(last->getRotateDirection().size(), types.size());
    }

    void survivesAFileThatEndsAnywhere()
    {
        const QByteArray content = goodFile();
        addGlobalSystem();
        for (int length = 0; length < content.size() - 2; ++length) {
            QVERIFY(m_fixture->setFileContent(content.left(length)));
            registry()->readConfig();
            QCOMPARE(m_fixture->ids(), QList<int>{0});
            QCOMPARE(m_fixture->fileContent(), content.left(length));
        }
    }

    void survivesTextsThatAreDamagedAnywhere()
    {
        std::mt19937 generator(11);
        const QByteArray content = goodFile();
        addGlobalSystem();
        for (int i = 0; i < 300; ++i) {
            QByteArray damaged = content;
            damaged[static_cast<int>(generator() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(generator() % 256);
            QVERIFY(m_fixture->setFileContent(damaged));
            registry()->readConfig();
            QVERIFY(registry()->getRelativeCoordinateSystemDateCount() <= 4);
            for (int position = 0; position < registry()->getRelativeCoordinateSystemDateCount(); ++position) {
                RelativeCoordinateSystem* const system = registry()->getCoordinateSystemByIndex(position);
                system->getType();
                system->getOffsetCoordinate();
                QCOMPARE(system->getRotateDirection().size(), system->getRotateDirectionListPairList().size());
            }
            registry()->resetData();
        }
    }
};

QTEST_GUILESS_MAIN(DamagedCoordinateFileTest)
#include "tst_damagedcoordinatefile.moc"
