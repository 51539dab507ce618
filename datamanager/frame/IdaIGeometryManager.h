// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVector>

namespace DataManager {

/// What the application's geometry manager offers, and the counters from which it numbers sets and components.
/// A component is one piece of geometry; a set is a named list of members, each a pair of a component's identifier and
/// of an identifier within it (-1 for the whole component). Identifiers start at 1; 0 means "none". Nothing in this
/// library calls the pure virtual operations or emits the signals: the derived manager does.
class DATAMANAGER_EXPORT IdaIGeometryManager : public QObject
{
    Q_OBJECT

public:
    ~IdaIGeometryManager() override;

    /// The number of sets.
    virtual int getSetCount() = 0;
    /// The identifiers of the sets of this name in ascending order; an empty name finds all.
    virtual QList<int> findSets(const QString& name) = 0;
    /// The set's name; empty when there is no such set.
    virtual QString getSetName(int setID) = 0;
    /// Adds a set under a newly issued identifier and returns it; 0 when the name is empty or taken.
    virtual int addSet(const QString& name, const QList<QPair<int, int>>& memberList) = 0;
    /// False when there is no such set, or the name is empty or taken.
    virtual bool renameSet(int setID, const QString& name) = 0;
    /// Removes those of the sets that exist, and returns how many did.
    virtual int removeSets(const QList<int>& setIDList) = 0;
    /// Shows (true) or hides the members of those of the sets that exist.
    virtual void showSets(const QList<int>& setIDList, bool isShow) = 0;

    /// The number of components.
    virtual int getComponentCount() = 0;
    /// The identifiers of the components of this name in ascending order; an empty name finds all.
    virtual QList<int> findComponents(const QString& name) = 0;
    /// The component's name; empty when there is no such component.
    virtual QString getComponentName(int componentID) = 0;
    /// Adds the geometry that a file describes under a newly issued identifier and returns it; 0 when the name is empty
    /// or taken or the file cannot be read.
    virtual int addComponent(const QString& name, const QString& filePath) = 0;
    /// False when there is no such component, or the name is empty or taken.
    virtual bool renameComponent(int componentID, const QString& name) = 0;
    /// Removes those of the components that exist, with their places in sets, and returns how many did.
    virtual int removeComponents(const QList<int>& componentIDList) = 0;
    /// Shows (true) or hides those of the components that exist.
    virtual void showComponents(const QList<int>& componentIDList, bool isShow) = 0;

    /// The axis-parallel box around the components as xmin, xmax, ymin, ymax, zmin, zmax in model units; an empty list
    /// of components stands for all. An empty vector when there is nothing to enclose.
    virtual QVector<double> getBoundingBox(const QList<int>& componentIDList) = 0;
    /// Writes all sets and components to a file. False, with the file as it was, on failure.
    virtual bool save(const QString& filePath) = 0;
    /// Replaces all sets and components, and the counters, by what a file holds. False, with everything as it was, on
    /// failure.
    virtual bool load(const QString& filePath) = 0;

    /// Issues the next identifier for a component. No check for overflow or reuse.
    int generateComponentID();
    /// Issues the next identifier for a set, likewise.
    int generateSetID();
    /// The component's identifier issued last; 0 when none was.
    int getComponentMaxID();
    /// The set's identifier issued last; 0 when none was.
    int getSetMaxID();
    /// The next component will be number 1.
    void resetComponentMaxID();
    /// The next set will be number `value` + 1.
    void resetSetMaxID(int value);

Q_SIGNALS:
    /// These sets were removed.
    void signal_geoSetListRemoved(QList<int> geoSetIDList);
    /// The name or the members of these sets changed.
    void signal_geoSetListDataChanged(QList<int> geoSetIDList);

protected:
    IdaIGeometryManager();

private:
    int m_setMaxID;
    int m_componentMaxID;
};

} // namespace DataManager
