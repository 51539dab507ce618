// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QList>
#include <QMultiMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVector>

namespace DataManager {

/// What the application's mesh manager offers, and the counters from which it numbers sets and kernels.
/// A kernel is one mesh with its nodes and elements; a group is a named list of elements of one kernel, numbered within
/// that kernel; a set is a named list of members, each a pair of a kernel's identifier and of an element's (-1 for the
/// whole kernel). Identifiers start at 1; 0 means "none". Nothing in this library calls the pure virtual operations or
/// emits the signals: the derived manager does.
class DATAMANAGER_EXPORT IdaIMeshManager : public QObject
{
    Q_OBJECT

public:
    ~IdaIMeshManager() override;

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

    /// The number of kernels.
    virtual int getKernelCount() = 0;
    /// The identifiers of the kernels of this name in ascending order; an empty name finds all.
    virtual QList<int> findKernels(const QString& name) = 0;
    /// The kernel's name; empty when there is no such kernel.
    virtual QString getKernelName(int kernelID) = 0;
    /// Adds the mesh that a file describes under a newly issued identifier and returns it; 0 when the name is empty or
    /// taken or the file cannot be read.
    virtual int addKernel(const QString& name, const QString& filePath) = 0;
    /// False when there is no such kernel, or the name is empty or taken.
    virtual bool renameKernel(int kernelID, const QString& name) = 0;
    /// Removes those of the kernels that exist, with their groups and places in sets, and returns how many did.
    virtual int removeKernels(const QList<int>& kernelIDList) = 0;
    /// Shows (true) or hides those of the kernels that exist.
    virtual void showKernels(const QList<int>& kernelIDList, bool isShow) = 0;

    /// The number of groups of a kernel; 0 when there is no such kernel.
    virtual int getGroupCount(int kernelID) = 0;
    /// The identifiers of the kernel's groups of this name in ascending order; an empty name finds all.
    virtual QList<int> findGroups(int kernelID, const QString& name) = 0;
    /// The group's name; empty when there is no such group.
    virtual QString getGroupName(int kernelID, int groupID) = 0;
    /// Adds a group of elements to a kernel and returns its identifier; 0 when there is no such kernel, or the name is
    /// empty or taken within it.
    virtual int addGroup(int kernelID, const QString& name, const QList<int>& elementIDList) = 0;
    /// False when there is no such group, or the name is empty or taken within the kernel.
    virtual bool renameGroup(int kernelID, int groupID, const QString& name) = 0;
    /// Removes those of the groups, given as kernel and group, that exist, and returns how many did.
    virtual int removeGroups(const QMultiMap<int, int>& kernel2GroupMap) = 0;
    /// Shows (true) or hides those of the groups, given as kernel and group, that exist.
    virtual void showGroups(const QMultiMap<int, int>& kernel2GroupMap, bool isShow) = 0;

    /// The number of nodes of a kernel; 0 when there is no such kernel.
    virtual int getNodeCount(int kernelID) = 0;
    /// The node's x, y and z in model units; empty when there is no such node.
    virtual QVector<double> getNodePosition(int kernelID, int nodeID) = 0;
    /// The number of elements of a kernel; 0 when there is no such kernel.
    virtual int getElementCount(int kernelID) = 0;
    /// The element's nodes in the order of its connectivity; empty when there is no such element.
    virtual QVector<int> getElementNodes(int kernelID, int elementID) = 0;
    /// The kernel's elements that use a node, in ascending order; empty when there are none.
    virtual QVector<int> getNodeElements(int kernelID, int nodeID) = 0;

    /// The axis-parallel box around the kernels as xmin, xmax, ymin, ymax, zmin, zmax in model units; an empty list of
    /// kernels stands for all. An empty vector when there is nothing to enclose.
    virtual QVector<double> getBoundingBox(const QList<int>& kernelIDList) = 0;
    /// Writes all sets, kernels and groups to a file. False, with the file as it was, on failure.
    virtual bool save(const QString& filePath) = 0;
    /// Replaces all sets, kernels and groups, and the counters, by what a file holds. False, with everything as it was,
    /// on failure.
    virtual bool load(const QString& filePath) = 0;

    /// Issues the next identifier for a kernel. No check for overflow or reuse.
    int generateKernelID();
    /// Issues the next identifier for a set, likewise.
    int generateSetID();
    /// The kernel's identifier issued last; 0 when none was.
    int getKernelMaxID();
    /// The set's identifier issued last; 0 when none was.
    int getSetMaxID();
    /// The next kernel will be number 1.
    void resetKernelMaxID();
    /// The next set will be number 1.
    void resetSetMaxID();
    /// The next kernel will be number `value` + 1.
    void setKernelMaxID(int value);

Q_SIGNALS:
    /// These kernels were added or changed.
    void signal_kernalDataListChanged(QList<int> kernalIDS);
    /// These kernels were removed.
    void signal_kernalDataListDeleted(QList<int> kernalIDS);
    /// These groups, given as kernel and group, were added or changed.
    void signal_groupDataListChanged(QMultiMap<int, int> kernal2GroupMap);
    /// These groups, given as kernel and group, were removed.
    void signal_groupDataListDeleted(QMultiMap<int, int> kernal2GroupMap);

protected:
    IdaIMeshManager();

private:
    int m_setMaxID;
    int m_kernelMaxID;
};

} // namespace DataManager
