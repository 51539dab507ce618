// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/frame/IdaIMeshManager.h>

/// The smallest manager that an application can derive: it holds nothing.
class MeshManager : public DataManager::IdaIMeshManager
{
    Q_OBJECT

public:
    int getSetCount() override { return {}; }
    QList<int> findSets(const QString&) override { return {}; }
    QString getSetName(int) override { return {}; }
    int addSet(const QString&, const QList<QPair<int, int>>&) override { return {}; }
    bool renameSet(int, const QString&) override { return {}; }
    int removeSets(const QList<int>&) override { return {}; }
    void showSets(const QList<int>&, bool) override {}
    int getKernelCount() override { return {}; }
    QList<int> findKernels(const QString&) override { return {}; }
    QString getKernelName(int) override { return {}; }
    int addKernel(const QString&, const QString&) override { return {}; }
    bool renameKernel(int, const QString&) override { return {}; }
    int removeKernels(const QList<int>&) override { return {}; }
    void showKernels(const QList<int>&, bool) override {}
    int getGroupCount(int) override { return {}; }
    QList<int> findGroups(int, const QString&) override { return {}; }
    QString getGroupName(int, int) override { return {}; }
    int addGroup(int, const QString&, const QList<int>&) override { return {}; }
    bool renameGroup(int, int, const QString&) override { return {}; }
    int removeGroups(const QMultiMap<int, int>&) override { return {}; }
    void showGroups(const QMultiMap<int, int>&, bool) override {}
    int getNodeCount(int) override { return {}; }
    QVector<double> getNodePosition(int, int) override { return {}; }
    int getElementCount(int) override { return {}; }
    QVector<int> getElementNodes(int, int) override { return {}; }
    QVector<int> getNodeElements(int, int) override { return {}; }
    QVector<double> getBoundingBox(const QList<int>&) override { return {}; }
    bool save(const QString&) override { return {}; }
    bool load(const QString&) override { return {}; }
};
