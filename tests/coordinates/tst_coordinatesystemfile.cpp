// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ChainModel.h"
#include "CoordinateFiles.h"
#include "RegistryFixture.h"

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <limits>
#include <memory>
#include <random>

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

/// The pattern of a list's elements; of whole numbers, which have none in the schema, the decimal form.
QString patternOf(const QJsonObject& schema, const QString& key)
{
    const QJsonObject property = schema.value(QLatin1String("properties")).toObject().value(key).toObject();
    QJsonObject items = property.value(QLatin1String("items")).toObject();
    const QString definition = items.value(QLatin1String("$ref")).toString().section(QLatin1Char('/'), -1);
    if (!definition.isEmpty()) {
        items = schema.value(QLatin1String("$defs")).toObject().value(definition).toObject();
    }
    const bool isInteger = items.value(QLatin1String("type")).toString() == QLatin1String("integer");
    return isInteger ? QStringLiteral("^-?[0-9]+$") : items.value(QLatin1String("pattern")).toString();
}

} // namespace

class CoordinateSystemFileTest : public QObject
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

    void writesSevenEmptyListsForTheGlobalSystem_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("empty registry") << 0;
        QTest::newRow("global system") << 1;
    }
    void writesSevenEmptyListsForTheGlobalSystem()
    {
        QFETCH(int, count);
        if (count == 1) {
            addGlobalSystem();
        }
        RegistryLog log;
        registry()->writeConfig();
        const QJsonObject object = parsed(m_fixture->fileContent());
        QCOMPARE(object.size(), 7);
        for (const char* key : keys) {
            QVERIFY2(object.value(QLatin1String(key)).isArray(), key);
            QCOMPARE(object.value(QLatin1String(key)).toArray().size(), 0);
        }
        QCOMPARE(log.take().size(), 1);
    }

    void writesOneElementForEachSystem()
    {
        addGlobalSystem();
        auto* const system = m_fixture->add(3, 0);
        system->setName(QStringLiteral("Spindle"));
        double offset[3] = {1, 2.5, -3};
        double angles[3] = {0, 0, 0.5};
        for (const int owner : {0, 3}) {
            system->setType(BaseModule::CoordinateSystemType(owner + 1), owner, 99, -1);
            system->setOffsetCoordinate(offset, owner, 99, -1);
            system->setRotateDirection(angles, owner, 99, -1);
            system->setActorRotateDirection({QStringLiteral("RotateZ"), 0.5}, owner, 99, -1);
        }
        registry()->writeConfig();
        const char* const expected = "{\n"
                                     "    \"m_IDList\": [\n        3\n    ],\n"
                                     "    \"m_actorRoateDirList\": [\n        \"0:RotateZ,0.5;3:RotateZ,0.5\"\n    ],\n"
                                     "    \"m_basicCoorSysIDList\": [\n        0\n    ],\n"
                                     "    \"m_nameList\": [\n        \"Spindle\"\n    ],\n"
                                     "    \"m_offsetCoordinateList\": [\n        \"0:1,2.5,-3;3:1,2.5,-3\"\n    ],\n"
                                     "    \"m_rotateDirectionList\": [\n        \"0:0,0,0.5;3:0,0,0.5\"\n    ],\n"
                                     "    \"m_typeList\": [\n        \"0:1;3:4\"\n    ]\n"
                                     "}\n";
        QCOMPARE(m_fixture->fileContent(), QByteArray(expected));
    }

    void matchesItsSchema()
    {
        QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/docs/schemas/RelativeCoordinateSystemDate.schema.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
        addGlobalSystem();
        for (int id = 1; id < 40; ++id) {
            registry()->m_coordinateSystemList.append(makeSystem(id, id / 2, QStringLiteral("%;"), id * 1000 - 3));
        }
        double awkward[3] = {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                             -1e-300};
        registry()->getCoordinateSystemByID(1)->setOffsetCoordinate(awkward, 1, 0, 1);
        RelativeCoordinateSystem* const withoutChains = m_fixture->add(50);
        QCOMPARE(withoutChains->getTypePairList().size(), 0);
        registry()->writeConfig();
        const QJsonObject object = parsed(m_fixture->fileContent());
        const QJsonObject properties = schema.value(QLatin1String("properties")).toObject();
        QCOMPARE(object.keys(), properties.keys());
        QCOMPARE(schema.value(QLatin1String("required")).toArray().size(), object.size());
        for (const char* key : keys) {
            const QRegularExpression pattern(patternOf(schema, QLatin1String(key)));
            QVERIFY2(pattern.isValid(), key);
            const QJsonArray elements = object.value(QLatin1String(key)).toArray();
            QCOMPARE(elements.size(), 40);
            for (const QJsonValue element : elements) {
                QVERIFY2(pattern.match(element.toVariant().toString()).hasMatch(), qPrintable(element.toString()));
            }
        }
        QVERIFY(!QRegularExpression(patternOf(schema, QStringLiteral("m_offsetCoordinateList")))
                     .match(QStringLiteral("0:1,2;3:1,2,3"))
                     .hasMatch());
    }

    void writesAfterAppendingAndRemovingByID()
    {
        addGlobalSystem();
        registry()->appendCoordinateSystem(makeSystem(3, 0, QString(), 1));
        RelativeCoordinateSystem* const removed = makeSystem(5, 3, QString(), 2);
        registry()->appendCoordinateSystem(removed);
        QCOMPARE(parsed(m_fixture->fileContent()).value(QLatin1String("m_IDList")).toArray(), (QJsonArray{3, 5}));
        QCOMPARE(parsed(m_fixture->fileContent()).value(QLatin1String("m_basicCoorSysIDList")).toArray(),
                 (QJsonArray{0, 3}));
        registry()->removeCoordinateSystemByID({5});
        QCOMPARE(parsed(m_fixture->fileContent()).value(QLatin1String("m_IDList")).toArray(), QJsonArray{3});
        delete removed;
    }

    void leavesOutWhateverStandsFirst()
    {
        m_fixture->add(4);
        m_fixture->add(0);
        registry()->writeConfig();
        QCOMPARE(parsed(m_fixture->fileContent()).value(QLatin1String("m_IDList")).toArray(), QJsonArray{0});
    }

    void announcesAWriteThatFails()
    {
        addGlobalSystem();
        BaseModule::GlobalHelper::setProjectTempIODir(QFileInfo(m_fixture->path()).path() + QStringLiteral("/missing"));
        RegistryLog log;
        registry()->writeConfig();
        QCOMPARE(log.take(), QStringList{QStringLiteral("updateWindowTitle | [0] at 0")});
        QVERIFY(!m_fixture->hasFile());
        QByteArray out("kept");
        registry()->dataToByteArray(&out);
        QCOMPARE(out, QByteArray("kept"));
    }

    void doesNothingWithoutAReadableFile_data()
    {
        QTest::addColumn<bool>("isDirectory");
        QTest::newRow("missing") << false;
        QTest::newRow("a directory") << true;
    }
    void doesNothingWithoutAReadableFile()
    {
        QFETCH(bool, isDirectory);
        if (isDirectory) {
            QVERIFY(QDir().mkpath(m_fixture->path()));
        }
        addGlobalSystem();
        m_fixture->add(3);
        m_fixture->add(5);
        registry()->resetData();
        const auto record = registry()->m_dataManager;
        m_fixture->add(3);
        m_fixture->add(5);
        RegistryLog log;
        registry()->readConfig();
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3, 5}));
        QCOMPARE(registry()->m_dataManager, record);
    }

    void readsBackWhatWasWritten_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("isInTemporaryDirectory");
        QTest::newRow("1") << 1 << false;
        QTest::newRow("10") << 10 << false;
        // As a rule on a disk, which the quick directory is not.
        QTest::newRow("10 in the temporary directory") << 10 << true;
        QTest::newRow("500") << 500 << false;
    }
    void readsBackWhatWasWritten()
    {
        QFETCH(int, count);
        QFETCH(bool, isInTemporaryDirectory);
        if (isInTemporaryDirectory) {
            m_fixture.reset();
            m_fixture = std::make_unique<RegistryFixture>(QDir::tempPath());
            QVERIFY(m_fixture->path().startsWith(QDir::tempPath()));
        }
        std::mt19937 generator(static_cast<unsigned>(count));
        addGlobalSystem();
        for (int id = 1; id <= count; ++id) {
            const int basicID = static_cast<int>(generator() % static_cast<unsigned>(id));
            registry()->m_coordinateSystemList.append(makeSystem(id, basicID, QString::number(id * 7), id));
        }
        registry()->writeConfig();
        const QList<PlainSystem> written = plainRegistry();
        registry()->resetData();
        QCOMPARE(m_fixture->ids(), QList<int>{0});
        registry()->readConfig();
        QVERIFY(plainRegistry() == written);
        QCOMPARE(RelativeCoordinateSystem::getMaxID(), count);
    }

    void announcesEachRebuiltSystemAfterItsWrite()
    {
        addGlobalSystem();
        QVERIFY(m_fixture->setFileContent(goodFile()));
        RegistryLog log;
        QList<QJsonArray> written;
        connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateWindowTitle, &log,
                [&] { written.append(parsed(m_fixture->fileContent()).value(QLatin1String("m_IDList")).toArray()); });
        registry()->readConfig();
        QCOMPARE(log.take(), (QStringList{QStringLiteral("updateWindowTitle | [0,3] at 0"),
                                          QStringLiteral("updateWindowTitle | [0,3,5] at 0"),
                                          QStringLiteral("updateWindowTitle | [0,3,5,9] at 0")}));
        QCOMPARE(written, (QList<QJsonArray>{{3}, {3, 5}, {3, 5, 9}}));
    }

    void rebuildsEachChainOnThatOfItsBasicSystem()
    {
        readFile(goodFile());
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3, 5, 9}));
        QCOMPARE(chain(3, 0), (QStringList{QStringLiteral("0 0"), QStringLiteral("3 1"), QStringLiteral("5 2"),
                                           QStringLiteral("9 3")}));
        QCOMPARE(chain(3, 1).mid(1),
                 (QStringList{QStringLiteral("3 1 2 3"), QStringLiteral("5 4 5 6"), QStringLiteral("9 7 8 9")}));
        const RelativeCoordinateSystem* const system = registry()->getCoordinateSystemByID(9);
        QVERIFY(system->getActor() == nullptr && system->getActorMatrix() == nullptr);
        QCOMPARE(system->m_actorQuaternion[3], 0.0);
    }

    void rebuildsAStoredChainWithoutOwnersEntryByEntry()
    {
        readFile(
            fileOf({{3}, {0}, {QString()}, {QStringLiteral("0:1;-4:2;0:3")}, {}, {}, {QStringLiteral("0:X,1;0:Y,2")}}));
        QCOMPARE(chain(1, 0), (QStringList{QStringLiteral("0 1"), QStringLiteral("-4 2"), QStringLiteral("0 3")}));
        QCOMPARE(chain(1, 3), (QStringList{QStringLiteral("X0 1"), QStringLiteral("Y0 2")}));
        QCOMPARE(chain(1, 1), QStringList());
    }

    void keepsWhatFollowsTheLastOwner()
    {
        readFile(fileOf({{3}, {0}, {QString()}, {QStringLiteral("8:1;3:2;0:3;-1:4")}, {}, {}, {}}));
        QCOMPARE(chain(1, 0), (QStringList{QStringLiteral("0 0"), QStringLiteral("3 2"), QStringLiteral("0 3"),
                                           QStringLiteral("-1 4")}));
    }

    void keepsTheStoredChainOfAnOrphan()
    {
        readFile(fileOf({{3}, {77}, {QString()}, {QStringLiteral("0:1;2:5;3:2")}, {}, {}, {}}));
        QCOMPARE(chain(1, 0), (QStringList{QStringLiteral("0 1"), QStringLiteral("2 5"), QStringLiteral("3 2")}));
    }

    void takesOutEverySecondSystemBeforeReading()
    {
        QVERIFY(m_fixture->setFileContent(fileOf({{}, {}, {}, {}, {}, {}, {}})));
        const QByteArray before = m_fixture->fileContent();
        QList<RelativeCoordinateSystem*> systems;
        for (const int id : {0, 1, 2, 3, 4}) {
            systems.append(m_fixture->add(id));
        }
        RegistryLog log;
        registry()->readConfig();
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 2, 4}));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(m_fixture->fileContent(), before);
        QCOMPARE(systems.at(1)->getID(), 1);
        delete systems.at(1);
        delete systems.at(3);
    }

    void replacesTheHeldRecord()
    {
        addGlobalSystem();
        registry()->writeConfig();
        const auto record = registry()->m_dataManager;
        QVERIFY(m_fixture->setFileContent(QByteArray("{\"m_basicCoorSysIDList\": [8]}")));
        registry()->readConfig();
        QVERIFY(registry()->m_dataManager != record);
        QCOMPARE(registry()->m_dataManager->getBasicCoorSysIDList(), QList<int>{8});
    }

    void leavesTheCurrentSystemAndTheSigns_data()
    {
        QTest::addColumn<bool>("newSign");
        QTest::addColumn<bool>("switchSign");
        QTest::newRow("new") << true << false;
        QTest::newRow("switch") << false << true;
    }
    void leavesTheCurrentSystemAndTheSigns()
    {
        QFETCH(bool, newSign);
        QFETCH(bool, switchSign);
        registry()->setCurrentCoordinateSystemID(42);
        registry()->setNeWCoordinateSystemSign(newSign);
        registry()->setSwitchCoordinateSystemSign(switchSign);
        readFile(goodFile());
        QCOMPARE(m_fixture->ids(), (QList<int>{0, 3, 5, 9}));
        QCOMPARE(registry()->getCurrentCoordinateSystemID(), 42);
        QCOMPARE(registry()->getNeWCoordinateSystemSign(), newSign);
        QCOMPARE(registry()->getSwitchCoordinateSystemSign(), switchSign);
    }

    void keepsAwkwardNames()
    {
        const QString name = QString::fromUcs4(U"\"\\;:,%\n\u00e9\u6797\U0001F9ED") + QChar(0) + QLatin1Char('e');
        addGlobalSystem();
        registry()->appendCoordinateSystem(makeSystem(1, 0, name, 1));
        registry()->appendCoordinateSystem(makeSystem(2, 0, QChar(QChar::ByteOrderMark) + name, 2));
        setLevels(*registry()->getCoordinateSystemByID(2), LevelValues(1), 0, 0, 2);
        registry()->getCoordinateSystemByID(2)->setActorRotateDirection({name, 1}, 0, 0, 2);
        registry()->writeConfig();
        const QList<PlainSystem> written = plainRegistry();
        registry()->resetData();
        registry()->readConfig();
        QVERIFY(plainRegistry() == written);
        QCOMPARE(plainRegistry().at(1).name, name);
    }

    void appendsTheFileToAByteArray()
    {
        QByteArray out("before ");
        registry()->dataToByteArray(&out);
        QCOMPARE(out, QByteArray("before "));
        QVERIFY(!m_fixture->hasFile());
        addGlobalSystem();
        RegistryLog log;
        registry()->dataToByteArray(nullptr);
        QVERIFY(!m_fixture->hasFile());
        registry()->dataToByteArray(&out);
        QCOMPARE(log.take().size(), 1);
        QVERIFY(m_fixture->hasFile());
        QCOMPARE(out, QByteArray("before ") + m_fixture->fileContent());
    }

    void appendsAFileThatExistsAsItIs()
    {
        QVERIFY(m_fixture->setFileContent("not written by us"));
        addGlobalSystem();
        RegistryLog log;
        QByteArray out;
        registry()->dataToByteArray(&out);
        QCOMPARE(out, QByteArray("not written by us"));
        QCOMPARE(log.take(), QStringList());
    }

    void agreesWithAPlainModel_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 8; ++seed) {
            QTest::addRow("seed %d", seed) << seed;
        }
    }
    void agreesWithAPlainModel()
    {
        QFETCH(int, seed);
        std::mt19937 generator(static_cast<unsigned>(seed));
        const auto below = [&generator](int end) { return static_cast<int>(generator() % static_cast<unsigned>(end)); };
        ChainModel model;
        addGlobalSystem();
        model.append(0, 0, QString(), 0);
        for (int step = 0, nextID = 1; step < 60; ++step) {
            const int position = below(model.systems.size());
            const int id = model.systems.at(position).id;
            const int choice = below(10);
            if (choice < 5) {
                registry()->appendCoordinateSystem(makeSystem(nextID, id, QString::number(step), step));
                model.append(nextID++, id, QString::number(step), step);
            } else if (choice < 7) {
                const int owner = below(nextID);
                setLevels(*registry()->getCoordinateSystemByIndex(position), LevelValues(step), 1, 0, owner);
                model.modify(position, owner, step);
            } else if (choice < 8 && id != 0) {
                RelativeCoordinateSystem* const removed = registry()->getCoordinateSystemByID(id);
                registry()->removeCoordinateSystemByID({id});
                model.remove(id);
                delete removed;
            } else {
                registry()->writeConfig();
                registry()->resetData();
                registry()->readConfig();
                model.reload();
            }
            QVERIFY2(plainRegistry() == model.systems, qPrintable(QString::number(step)));
        }
    }
};

QTEST_GUILESS_MAIN(CoordinateSystemFileTest)
#include "tst_coordinatesystemfile.moc"
