// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <basemodule/CoordinateSystemType.h>
#include <datamodel/PropertyTableData.h>

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>

class vtkMatrix4x4;

namespace BaseWidget {
class FixedPixelSizeAxesActor;
}

namespace DataManager {

/// One user coordinate system, defined relative to another one, its basic system; the system with ID 0 is the global
/// one. Four chain lists of (owner ID, value) hold the type, the origin's offset, the rotation angles and the rotation
/// steps of the axes actor, from the top of the chain down to the system's own entry, the last.
///
/// Systems name each other by ID; whatever is looked up is looked up in `RelativeCoordinateSystemDate`, where the first
/// system with an ID counts. Whatever is missing there is passed over.
class DATAMANAGER_EXPORT RelativeCoordinateSystem : public QObject
{
    Q_OBJECT

public:
    /// ID 0, basic system 0, no name, empty chains, no actor and no matrix. Counts one construction more.
    RelativeCoordinateSystem();
    /// Leaves the actor and its matrix alone.
    ~RelativeCoordinateSystem() override;

    /// How many systems were constructed since the last `resetMaxID`; destruction and IDs have no influence.
    static int getMaxID();
    static void resetMaxID();

    int getID() const;
    void setID(int id);
    int getBasicCoordinateSystemID() const;
    void setBasicCoordinateSystemID(int id);
    QString getName() const;
    void setName(QString name);

    /// The axes actor drawn for this system, or null; not owned.
    BaseWidget::FixedPixelSizeAxesActor* getActor() const;
    void setActor(BaseWidget::FixedPixelSizeAxesActor* actor);
    /// The matrix that carries points given in this system into global coordinates, or null; not owned.
    vtkMatrix4x4* getActorMatrix() const;
    void setActorMatrix(vtkMatrix4x4* matrix);
    /// The address of the four stored doubles, through which the caller may write.
    double* getActorQuaternion();
    /// Copies four doubles; null changes nothing.
    void setActorQuaternion(double* quaternion);

    // The chain setters. `modifyID` other than -1: every entry of that owner gets the new value, and nothing else
    // happens. -1: when `ownerID` is 1 or more the chain is first replaced by that of the system `basicID` (kept when
    // there is none), then (ownerID, value) is appended. The cached results of the getters stay as they are.

    void setType(BaseModule::CoordinateSystemType type, int ownerID, int basicID, int modifyID);
    /// `offset` is the origin (x, y, z) in the owner's basic system; null changes nothing.
    void setOffsetCoordinate(double* offset, int ownerID, int basicID, int modifyID);
    /// `angles` are about x, y and z, in radians; null changes nothing. When modifying, the owner of an entry is taken
    /// from the entry of the offset chain at the same position.
    void setRotateDirection(double* angles, int ownerID, int basicID, int modifyID);
    /// `step` is a text that names the step and an angle.
    void setActorRotateDirection(QPair<QString, double> step, int ownerID, int basicID, int modifyID);

    /// The type of the last entry of the chain, which is then cached; with an empty chain the cached type.
    BaseModule::CoordinateSystemType getType();
    /// The system's origin in global coordinates: an offset of the chain, carried through the matrix of its owner's
    /// basic system. The last entry whose owner, basic system and matrix all exist decides, which is the system's own
    /// as a rule. The address of three cached doubles, which stay as they were when there is no such entry.
    double* getOffsetCoordinate();
    /// The angles (x, y, z) of every level of the chain, in radians, each carried through the rotations of its owner's
    /// basic system by `RelativeCoordinateSystemDate::getCSRotateDirection`. Cached here, and in every system that
    /// takes part, together with the types of the latter. A level whose basic system closes a loop stays as it is.
    QList<QList<double>> getRotateDirection();
    /// The (text, angle) steps of the chain, which are then cached.
    QList<QPair<QString, double>> getActorRotateDirection();

    QList<QPair<int, BaseModule::CoordinateSystemType>> getTypePairList() const;
    QList<QPair<int, QList<double>>> getOffsetCoordinateListPairList() const;
    QList<QPair<int, QList<double>>> getRotateDirectionListPairList() const;
    QList<QPair<int, QPair<QString, double>>> getActorRoateDirPairPairList() const;

    /// A table of ID, basic system, name, cached origin and quaternion, owned by this system and rebuilt by each call.
    DataModel::PropertyTableData* getProperty();
    /// Does nothing.
    void printRelativeCoordinateSystem();

private:
    static int m_idOffset;

    DataModel::PropertyTableData m_property;
    int m_ID = 0;
    int m_basicCoordinateSystemID = 0;
    QString m_name;
    BaseModule::CoordinateSystemType m_type = BaseModule::CoordinateSystemType(0);
    QList<QPair<int, BaseModule::CoordinateSystemType>> m_typePairList;
    double m_offsetCoordinate[3] = {0, 0, 0};
    QList<QPair<int, QList<double>>> m_offsetCoordinatePairList;
    QList<QList<double>> m_rotateDirection;
    QList<QPair<int, QList<double>>> m_rotateDirectionPairList;
    QList<QPair<QString, double>> m_actorRotateDirection;
    QList<QPair<int, QPair<QString, double>>> m_actorRotateDirPairList;
    BaseWidget::FixedPixelSizeAxesActor* m_actor = nullptr;
    vtkMatrix4x4* m_actorMatrix = nullptr;
    double m_actorQuaternion[4] = {0, 0, 0, 0};
};

} // namespace DataManager
