// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/IdaIGeometryManager.h>
#include <frame/InterfaceHeader.h>

#include <QSet>
#include <QtTest>

#include <limits>
#include <type_traits>

using DataManager::IdaIGeometryManager;

namespace {

/// Implements every operation, and could not be made if there were one more.
class RecordingGeometryManager : public IdaIGeometryManager
{
public:
    int getSetCount() override
    {
        called(QStringLiteral("getSetCount"));
        return {};
    }
    QList<int> findSets(const QString&) override
    {
        called(QStringLiteral("findSets"));
        return {};
    }
    QString getSetName(int) override
    {
        called(QStringLiteral("getSetName"));
        return {};
    }
    int addSet(const QString&, const QList<QPair<int, int>>&) override
    {
        called(QStringLiteral("addSet"));
        return {};
    }
    bool renameSet(int, const QString&) override
    {
        called(QStringLiteral("renameSet"));
        return {};
    }
    int removeSets(const QList<int>&) override
    {
        called(QStringLiteral("removeSets"));
        return {};
    }
    void showSets(const QList<int>&, bool) override { called(QStringLiteral("showSets")); }
    int getComponentCount() override
    {
        called(QStringLiteral("getComponentCount"));
        return {};
    }
    QList<int> findComponents(const QString&) override
    {
        called(QStringLiteral("findComponents"));
        return {};
    }
    QString getComponentName(int) override
    {
        called(QStringLiteral("getComponentName"));
        return {};
    }
    int addComponent(const QString&, const QString&) override
    {
        called(QStringLiteral("addComponent"));
        return {};
    }
    bool renameComponent(int, const QString&) override
    {
        called(QStringLiteral("renameComponent"));
        return {};
    }
    int removeComponents(const QList<int>&) override
    {
        called(QStringLiteral("removeComponents"));
        return {};
    }
    void showComponents(const QList<int>&, bool) override { called(QStringLiteral("showComponents")); }
    QVector<double> getBoundingBox(const QList<int>&) override
    {
        called(QStringLiteral("getBoundingBox"));
        return {};
    }
    bool save(const QString&) override
    {
        called(QStringLiteral("save"));
        return {};
    }
    bool load(const QString&) override
    {
        called(QStringLiteral("load"));
        return {};
    }

    QStringList calls;

private:
    void called(const QString& name) { calls.append(name); }
};

} // namespace

class tst_IdaIGeometryManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasSeventeenPureVirtualOperations();
    void declaresItsSignalsInOrder();
    void holdsItsCountersInOrder();
    void issuesIdentifiers();
};

void tst_IdaIGeometryManager::hasSeventeenPureVirtualOperations()
{
    QVERIFY(std::is_abstract<IdaIGeometryManager>::value);
    QVERIFY(std::has_virtual_destructor<IdaIGeometryManager>::value);
    const QStringList declared = pureVirtualOperations(QStringLiteral("IdaIGeometryManager.h"));
    QCOMPARE(declared.size(), 17);
    QCOMPARE(QSet<QString>(declared.begin(), declared.end()).size(), 17);
    RecordingGeometryManager recording;
    IdaIGeometryManager& manager = recording;
    manager.getSetCount();
    manager.findSets(QString());
    manager.getSetName(1);
    manager.addSet(QString(), QList<QPair<int, int>>());
    manager.renameSet(1, QString());
    manager.removeSets(QList<int>());
    manager.showSets(QList<int>(), true);
    manager.getComponentCount();
    manager.findComponents(QString());
    manager.getComponentName(1);
    manager.addComponent(QString(), QString());
    manager.renameComponent(1, QString());
    manager.removeComponents(QList<int>());
    manager.showComponents(QList<int>(), true);
    manager.getBoundingBox(QList<int>());
    manager.save(QString());
    manager.load(QString());
    QCOMPARE(recording.calls, declared);
}

void tst_IdaIGeometryManager::declaresItsSignalsInOrder()
{
    const QByteArrayList expected{"signal signal_geoSetListRemoved(QList<int>) geoSetIDList",
                                  "signal signal_geoSetListDataChanged(QList<int>) geoSetIDList"};
    QCOMPARE(signalsWithParameters(IdaIGeometryManager::staticMetaObject), expected);
    QCOMPARE(IdaIGeometryManager::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_IdaIGeometryManager::holdsItsCountersInOrder()
{
    RecordingGeometryManager manager;
    const auto offset = [&manager](const int& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&manager);
    };
    QCOMPARE(offset(manager.m_setMaxID), qptrdiff(sizeof(QObject)));
    QCOMPARE(offset(manager.m_componentMaxID), qptrdiff(sizeof(QObject) + sizeof(int)));
    QCOMPARE(sizeof(IdaIGeometryManager), sizeof(QObject) + 2 * sizeof(int));
    QVERIFY(manager.parent() == nullptr);
}

void tst_IdaIGeometryManager::issuesIdentifiers()
{
    RecordingGeometryManager manager;
    QCOMPARE(manager.getSetMaxID(), 0);
    QCOMPARE(manager.getComponentMaxID(), 0);
    QCOMPARE(manager.generateSetID(), 1);
    QCOMPARE(manager.getSetMaxID(), 1);
    QCOMPARE(manager.generateSetID(), 2);
    QCOMPARE(manager.getComponentMaxID(), 0);
    QCOMPARE(manager.generateComponentID(), 1);
    QCOMPARE(manager.generateComponentID(), 2);
    QCOMPARE(manager.generateComponentID(), 3);
    QCOMPARE(manager.getComponentMaxID(), 3);
    QCOMPARE(manager.getSetMaxID(), 2);
    manager.resetSetMaxID(7);
    QCOMPARE(manager.getSetMaxID(), 7);
    QCOMPARE(manager.generateSetID(), 8);
    QCOMPARE(manager.getComponentMaxID(), 3);
    manager.resetComponentMaxID();
    QCOMPARE(manager.getComponentMaxID(), 0);
    QCOMPARE(manager.getSetMaxID(), 8);
    QCOMPARE(manager.generateComponentID(), 1);
    manager.resetSetMaxID(-3);
    QCOMPARE(manager.generateSetID(), -2);
    // No check for overflow, and no undefined behaviour either.
    manager.resetSetMaxID(std::numeric_limits<int>::max());
    QCOMPARE(manager.generateSetID(), std::numeric_limits<int>::min());
}

QTEST_GUILESS_MAIN(tst_IdaIGeometryManager)
#include "tst_idaigeometrymanager.moc"
