// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/IdaIMeshManager.h>
#include <frame/InterfaceHeader.h>

#include <QSet>
#include <QtTest>

#include <limits>
#include <type_traits>

using DataManager::IdaIMeshManager;

namespace {

/// Implements every operation, and could not be made if there were one more.
class RecordingMeshManager : public IdaIMeshManager
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
    int getKernelCount() override
    {
        called(QStringLiteral("getKernelCount"));
        return {};
    }
    QList<int> findKernels(const QString&) override
    {
        called(QStringLiteral("findKernels"));
        return {};
    }
    QString getKernelName(int) override
    {
        called(QStringLiteral("getKernelName"));
        return {};
    }
    int addKernel(const QString&, const QString&) override
    {
        called(QStringLiteral("addKernel"));
        return {};
    }
    bool renameKernel(int, const QString&) override
    {
        called(QStringLiteral("renameKernel"));
        return {};
    }
    int removeKernels(const QList<int>&) override
    {
        called(QStringLiteral("removeKernels"));
        return {};
    }
    void showKernels(const QList<int>&, bool) override { called(QStringLiteral("showKernels")); }
    int getGroupCount(int) override
    {
        called(QStringLiteral("getGroupCount"));
        return {};
    }
    QList<int> findGroups(int, const QString&) override
    {
        called(QStringLiteral("findGroups"));
        return {};
    }
    QString getGroupName(int, int) override
    {
        called(QStringLiteral("getGroupName"));
        return {};
    }
    int addGroup(int, const QString&, const QList<int>&) override
    {
        called(QStringLiteral("addGroup"));
        return {};
    }
    bool renameGroup(int, int, const QString&) override
    {
        called(QStringLiteral("renameGroup"));
        return {};
    }
    int removeGroups(const QMultiMap<int, int>&) override
    {
        called(QStringLiteral("removeGroups"));
        return {};
    }
    void showGroups(const QMultiMap<int, int>&, bool) override { called(QStringLiteral("showGroups")); }
    int getNodeCount(int) override
    {
        called(QStringLiteral("getNodeCount"));
        return {};
    }
    QVector<double> getNodePosition(int, int) override
    {
        called(QStringLiteral("getNodePosition"));
        return {};
    }
    int getElementCount(int) override
    {
        called(QStringLiteral("getElementCount"));
        return {};
    }
    QVector<int> getElementNodes(int, int) override
    {
        called(QStringLiteral("getElementNodes"));
        return {};
    }
    QVector<int> getNodeElements(int, int) override
    {
        called(QStringLiteral("getNodeElements"));
        return {};
    }
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

class tst_IdaIMeshManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTwentyNinePureVirtualOperations();
    void declaresItsSignalsInOrder();
    void holdsItsCountersInOrder();
    void issuesIdentifiers();
};

void tst_IdaIMeshManager::hasTwentyNinePureVirtualOperations()
{
    QVERIFY(std::is_abstract<IdaIMeshManager>::value);
    QVERIFY(std::has_virtual_destructor<IdaIMeshManager>::value);
    const QStringList declared = pureVirtualOperations(QStringLiteral("IdaIMeshManager.h"));
    QCOMPARE(declared.size(), 29);
    QCOMPARE(QSet<QString>(declared.begin(), declared.end()).size(), 29);
    RecordingMeshManager recording;
    IdaIMeshManager& manager = recording;
    manager.getSetCount();
    manager.findSets(QString());
    manager.getSetName(1);
    manager.addSet(QString(), QList<QPair<int, int>>());
    manager.renameSet(1, QString());
    manager.removeSets(QList<int>());
    manager.showSets(QList<int>(), true);
    manager.getKernelCount();
    manager.findKernels(QString());
    manager.getKernelName(1);
    manager.addKernel(QString(), QString());
    manager.renameKernel(1, QString());
    manager.removeKernels(QList<int>());
    manager.showKernels(QList<int>(), true);
    manager.getGroupCount(1);
    manager.findGroups(1, QString());
    manager.getGroupName(1, 1);
    manager.addGroup(1, QString(), QList<int>());
    manager.renameGroup(1, 1, QString());
    manager.removeGroups(QMultiMap<int, int>());
    manager.showGroups(QMultiMap<int, int>(), true);
    manager.getNodeCount(1);
    manager.getNodePosition(1, 1);
    manager.getElementCount(1);
    manager.getElementNodes(1, 1);
    manager.getNodeElements(1, 1);
    manager.getBoundingBox(QList<int>());
    manager.save(QString());
    manager.load(QString());
    QCOMPARE(recording.calls, declared);
}

void tst_IdaIMeshManager::declaresItsSignalsInOrder()
{
    const QByteArrayList expected{"signal signal_kernalDataListChanged(QList<int>) kernalIDS",
                                  "signal signal_kernalDataListDeleted(QList<int>) kernalIDS",
                                  "signal signal_groupDataListChanged(QMultiMap<int,int>) kernal2GroupMap",
                                  "signal signal_groupDataListDeleted(QMultiMap<int,int>) kernal2GroupMap"};
    QCOMPARE(signalsWithParameters(IdaIMeshManager::staticMetaObject), expected);
    QCOMPARE(IdaIMeshManager::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_IdaIMeshManager::holdsItsCountersInOrder()
{
    RecordingMeshManager manager;
    const auto offset = [&manager](const int& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&manager);
    };
    QCOMPARE(offset(manager.m_setMaxID), qptrdiff(sizeof(QObject)));
    QCOMPARE(offset(manager.m_kernelMaxID), qptrdiff(sizeof(QObject) + sizeof(int)));
    QCOMPARE(sizeof(IdaIMeshManager), sizeof(QObject) + 2 * sizeof(int));
    QVERIFY(manager.parent() == nullptr);
}

void tst_IdaIMeshManager::issuesIdentifiers()
{
    RecordingMeshManager manager;
    QCOMPARE(manager.getSetMaxID(), 0);
    QCOMPARE(manager.getKernelMaxID(), 0);
    QCOMPARE(manager.generateSetID(), 1);
    QCOMPARE(manager.getSetMaxID(), 1);
    QCOMPARE(manager.generateSetID(), 2);
    QCOMPARE(manager.getKernelMaxID(), 0);
    QCOMPARE(manager.generateKernelID(), 1);
    QCOMPARE(manager.generateKernelID(), 2);
    QCOMPARE(manager.generateKernelID(), 3);
    QCOMPARE(manager.getKernelMaxID(), 3);
    QCOMPARE(manager.getSetMaxID(), 2);
    manager.resetSetMaxID();
    QCOMPARE(manager.getSetMaxID(), 0);
    QCOMPARE(manager.getKernelMaxID(), 3);
    QCOMPARE(manager.generateSetID(), 1);
    manager.resetKernelMaxID();
    QCOMPARE(manager.getKernelMaxID(), 0);
    QCOMPARE(manager.getSetMaxID(), 1);
    manager.setKernelMaxID(41);
    QCOMPARE(manager.getKernelMaxID(), 41);
    QCOMPARE(manager.generateKernelID(), 42);
    manager.setKernelMaxID(-1);
    QCOMPARE(manager.generateKernelID(), 0);
    QCOMPARE(manager.getSetMaxID(), 1);
    // No check for overflow, and no undefined behaviour either.
    manager.setKernelMaxID(std::numeric_limits<int>::max());
    QCOMPARE(manager.generateKernelID(), std::numeric_limits<int>::min());
}

QTEST_GUILESS_MAIN(tst_IdaIMeshManager)
#include "tst_idaimeshmanager.moc"
