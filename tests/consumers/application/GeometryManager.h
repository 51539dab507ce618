// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/frame/IdaIGeometryManager.h>

/// The smallest manager that an application can derive: it holds nothing.
class GeometryManager : public DataManager::IdaIGeometryManager
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
    int getComponentCount() override { return {}; }
    QList<int> findComponents(const QString&) override { return {}; }
    QString getComponentName(int) override { return {}; }
    int addComponent(const QString&, const QString&) override { return {}; }
    bool renameComponent(int, const QString&) override { return {}; }
    int removeComponents(const QList<int>&) override { return {}; }
    void showComponents(const QList<int>&, bool) override {}
    QVector<double> getBoundingBox(const QList<int>&) override { return {}; }
    bool save(const QString&) override { return {}; }
    bool load(const QString&) override { return {}; }
};
