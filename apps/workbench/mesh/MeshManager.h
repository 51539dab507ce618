// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/geometry/NamedSets.h>
#include <workbench/mesh/KernelMesh.h>

#include <datamanager/frame/IdaIMeshManager.h>

#include <QJsonArray>
#include <QSet>
#include <QSharedPointer>
#include <QVector>

class QJsonObject;

namespace Workbench {

class MeshLoader;

/// Where a mesh comes from, and what it is called.
struct MeshSource
{
    /// The kernel's name; empty for the one of the file.
    QString name;
    /// Tells whether two meshes are of the same thing: the path of the geometry, or of the mesh file itself, for which
    /// it is empty.
    QString origin;
};

/// The meshes of the project.
///
/// A kernel is one mesh, whose file lies in the project's working directory. Its groups are named lists of elements:
/// one for each physical volume group of the file, and those that the user added. Elements are known by their number in
/// the file (KernelMesh::elementNumbers), nodes by their place in it, counted from 1.
///
/// Selected items: (kernel, node) under MeshNode, (kernel, element) under MeshElement, (kernel, group) under MeshGroup.
class MeshManager : public DataManager::IdaIMeshManager
{
    Q_OBJECT

public:
    /// The manager, created by the first call and never destroyed.
    static MeshManager* instance();

    int getSetCount() override;
    QList<int> findSets(const QString& name) override;
    QString getSetName(int setID) override;
    int addSet(const QString& name, const QList<QPair<int, int>>& memberList) override;
    bool renameSet(int setID, const QString& name) override;
    int removeSets(const QList<int>& setIDList) override;
    void showSets(const QList<int>& setIDList, bool isShow) override;

    int getKernelCount() override;
    QList<int> findKernels(const QString& name) override;
    QString getKernelName(int kernelID) override;
    /// Reads the file before it returns; openMesh() does so in the background.
    int addKernel(const QString& name, const QString& filePath) override;
    bool renameKernel(int kernelID, const QString& name) override;
    int removeKernels(const QList<int>& kernelIDList) override;
    void showKernels(const QList<int>& kernelIDList, bool isShow) override;

    int getGroupCount(int kernelID) override;
    QList<int> findGroups(int kernelID, const QString& name) override;
    QString getGroupName(int kernelID, int groupID) override;
    int addGroup(int kernelID, const QString& name, const QList<int>& elementIDList) override;
    bool renameGroup(int kernelID, int groupID, const QString& name) override;
    int removeGroups(const QMultiMap<int, int>& kernel2GroupMap) override;
    void showGroups(const QMultiMap<int, int>& kernel2GroupMap, bool isShow) override;

    int getNodeCount(int kernelID) override;
    QVector<double> getNodePosition(int kernelID, int nodeID) override;
    int getElementCount(int kernelID) override;
    QVector<int> getElementNodes(int kernelID, int elementID) override;
    QVector<int> getNodeElements(int kernelID, int nodeID) override;

    QVector<double> getBoundingBox(const QList<int>& kernelIDList) override;
    bool save(const QString& filePath) override;
    /// Mesh files are sought beside the file. Reads them before it returns; restore() does so in the background.
    bool load(const QString& filePath) override;
    /// Whether the file describes meshes, so that load() and restore() go on to the mesh files. Any thread may ask.
    static bool isDescription(const QString& filePath);

    /// The mesh of a kernel; null when there is no such kernel.
    QSharedPointer<const KernelMesh> mesh(int kernelID) const;
    bool isKernelShown(int kernelID) const;
    bool isGroupShown(int kernelID, int groupID) const;
    /// Places of the group's elements, ascending; none when there is no such group.
    std::vector<int> getGroupElements(int kernelID, int groupID) const;
    /// The physical tag of a group of the file; 0 for others.
    int getGroupPhysicalTag(int kernelID, int groupID) const;
    int getGroupSize(int kernelID, int groupID) const;
    /// Where the kernel's mesh comes from, see MeshSource; empty when that is not known.
    QString getOrigin(int kernelID) const;
    /// Whether an element, by its place, is to be seen: its kernel and no group of it is hidden.
    std::vector<char> shownElements(int kernelID) const;

    /// Reads a mesh in the background, which then takes the place of all others. A copy goes to the project's working
    /// directory, and one to where the predictor reads. Ends with signal_loadFinished; a reading that is under way is
    /// cancelled first.
    void openMesh(const QString& filePath, const MeshSource& source = {});
    /// As load(), in the background. Kernels that could not be read, or whose reading was given up, stay in the
    /// description that save() writes until another mesh is opened; their files stay, too.
    void restore(const QString& filePath);
    /// The names of those kernels.
    QStringList getUnreadNames() const;
    /// Tries to read them again.
    void readUnread();
    bool isLoading() const;
    /// Returns when what is being read is there and told.
    void waitForLoad();
    /// Whether the signals just now tell of what a file described, not of a change.
    bool isRestoring() const { return m_isRestoring; }
    /// Gives the reading up; what was there before stays.
    void cancelLoad();

    /// Removes everything and starts counting again; gives a reading up.
    void clear();

Q_SIGNALS:
    void signal_loadStarted(QString filePath);
    void signal_loadProgress(int percent);
    /// The kernel that was read last; 0 after a failure, which was told by a message, and after cancelling.
    void signal_loadFinished(int kernelID);
    /// Kernels or groups were shown or hidden.
    void signal_visibilityChanged();

private:
    struct Group
    {
        QString name;
        /// Of a group of the file; 0 for one that the user added.
        int physicalTag = 0;
        bool isShown = true;
        /// Places, ascending; empty for a group of the file, whose elements the mesh knows.
        std::vector<int> elements;
    };

    struct Kernel
    {
        QString name;
        /// In the project's working directory.
        QString fileName;
        QString origin;
        bool isShown = true;
        QSharedPointer<const KernelMesh> mesh;
        QMap<int, Group> groups;
        int groupMaxID = 0;
    };

    MeshManager();
    ~MeshManager() override = default;

    const Kernel* kernel(int kernelID) const;
    bool isNameTaken(const QString& name, int kernelID) const;
    bool isGroupNameTaken(const Kernel& kernel, const QString& name, int groupID) const;
    const Group* group(int kernelID, int groupID) const;
    /// An element, by its place.
    static bool isInHiddenGroup(const Kernel& kernel, int place);
    static void removeFromSelection(const QList<int>& kernelIDList);
    void checkHighLight(bool& isAllowed, int selectModel, int firstID, int secondID) const;

    void insertKernels(const QMap<int, Kernel>& kernels);
    int insertKernel(int kernelID, const Kernel& kernel);
    void finishOpening(const QString& filePath, const Kernel& kernel, const QVector<KernelReading>& readings);
    bool isUsable(const QVector<KernelReading>& readings, const QString& filePath);
    static void makeFileGroups(Kernel& kernel);

    void readDescribed(const QString& filePath, const QJsonObject& description);
    void keepUnread(const QJsonObject& description);
    void forgetUnread();
    QJsonObject kernelToJson(int kernelID) const;
    static Kernel kernelFromJson(const QJsonObject& object, const QSharedPointer<const KernelMesh>& mesh);
    void takeDescription(const QJsonObject& description, const QVector<KernelReading>& readings);

    QMap<int, Kernel> m_kernels;
    NamedSets m_sets;
    /// What a file says of kernels that are not there.
    QJsonArray m_unread;
    MeshLoader* m_loader;
    bool m_isRestoring = false;
};

} // namespace Workbench
