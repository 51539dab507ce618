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
    /// The next construction counts as the first.
    static void resetMaxID();

    /// The number by which the system is looked up.
    int getID() const;
    /// Not checked for being taken. Chains that name the old one stay as they are.
    void setID(int id);
    /// The ID of the system relative to which this one is defined.
    int getBasicCoordinateSystemID() const;
    /// Not checked, not even for loops. The chains stay as they are.
    void setBasicCoordinateSystemID(int id);
    /// The name for people; it may repeat.
    QString getName() const;
    /// Any text, also an empty one.
    void setName(QString name);

    /// The axes actor drawn for this system, or null; not owned.
    BaseWidget::FixedPixelSizeAxesActor* getActor() const;
    /// The actor must stay alive while it is set; null for none.
    void setActor(BaseWidget::FixedPixelSizeAxesActor* actor);
    /// The matrix that carries points given in this system into global coordinates, or null; not owned.
    vtkMatrix4x4* getActorMatrix() const;
    /// The matrix must stay alive while it is set; null for none.
    void setActorMatrix(vtkMatrix4x4* matrix);
    /// The address of the four stored doubles, through which the caller may write.
    double* getActorQuaternion();
    /// Copies four doubles; null changes nothing.
    void setActorQuaternion(double* quaternion);

    // The chain setters. `modifyID` other than -1: every entry of that owner gets the new value, and nothing else
    // happens. -1: when `ownerID` is 1 or more the chain is first replaced by that of the system `basicID` (kept when
    // there is none), then (ownerID, value) is appended. The cached results of the getters stay as they are.

    /// How the coordinates of the system are measured.
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

    /// The chain of types as it is: (owner ID, type).
    QList<QPair<int, BaseModule::CoordinateSystemType>> getTypePairList() const;
    /// The chain of offsets as it is: (owner ID, [x, y, z]).
    QList<QPair<int, QList<double>>> getOffsetCoordinateListPairList() const;
    /// The chain of rotations as it is: (owner ID, angles about [x, y, z] in radians).
    QList<QPair<int, QList<double>>> getRotateDirectionListPairList() const;
    /// The chain of rotation steps of the actor as it is: (owner ID, (text, angle)).
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
