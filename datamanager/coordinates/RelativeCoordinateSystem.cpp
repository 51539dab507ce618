// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/coordinates/private/ChainLevel.h>
#include <datamanager/coordinates/private/RotationComposition.h>

#include <vtkMatrix4x4.h>

#include <algorithm>
#include <utility>

namespace DataManager {

namespace {

/// Carries the offset of a chain level, given in the basic system of the level's owner, into global coordinates. False,
/// with `origin` unchanged, when one of the two systems or the matrix is missing.
bool carryToGlobal(const QPair<int, QList<double>>& level, double* origin)
{
    RelativeCoordinateSystemDate* const registry = RelativeCoordinateSystemDate::getInstance();
    RelativeCoordinateSystem* const owner = registry->getCoordinateSystemByID(level.first);
    if (owner == nullptr) {
        return false;
    }
    RelativeCoordinateSystem* const basic = registry->getCoordinateSystemByID(owner->getBasicCoordinateSystemID());
    if (basic == nullptr || basic->getActorMatrix() == nullptr) {
        return false;
    }
    const double point[4] = {level.second.at(0), level.second.at(1), level.second.at(2), 1.0};
    double product[4];
    basic->getActorMatrix()->MultiplyPoint(point, product);
    std::copy_n(product, 3, origin);
    return true;
}

} // namespace

int RelativeCoordinateSystem::m_idOffset = 0;

RelativeCoordinateSystem::RelativeCoordinateSystem()
{
    ++m_idOffset;
}

RelativeCoordinateSystem::~RelativeCoordinateSystem() = default;

int RelativeCoordinateSystem::getMaxID()
{
    return m_idOffset;
}

void RelativeCoordinateSystem::resetMaxID()
{
    m_idOffset = 0;
}

int RelativeCoordinateSystem::getID() const
{
    return m_ID;
}

void RelativeCoordinateSystem::setID(int id)
{
    m_ID = id;
}

int RelativeCoordinateSystem::getBasicCoordinateSystemID() const
{
    return m_basicCoordinateSystemID;
}

void RelativeCoordinateSystem::setBasicCoordinateSystemID(int id)
{
    m_basicCoordinateSystemID = id;
}

QString RelativeCoordinateSystem::getName() const
{
    return m_name;
}

void RelativeCoordinateSystem::setName(QString name)
{
    m_name = std::move(name);
}

BaseWidget::FixedPixelSizeAxesActor* RelativeCoordinateSystem::getActor() const
{
    return m_actor;
}

void RelativeCoordinateSystem::setActor(BaseWidget::FixedPixelSizeAxesActor* actor)
{
    m_actor = actor;
}

vtkMatrix4x4* RelativeCoordinateSystem::getActorMatrix() const
{
    return m_actorMatrix;
}

void RelativeCoordinateSystem::setActorMatrix(vtkMatrix4x4* matrix)
{
    m_actorMatrix = matrix;
}

double* RelativeCoordinateSystem::getActorQuaternion()
{
    return m_actorQuaternion;
}

void RelativeCoordinateSystem::setActorQuaternion(double* quaternion)
{
    if (quaternion != nullptr) {
        std::copy_n(quaternion, 4, m_actorQuaternion);
    }
}

void RelativeCoordinateSystem::setType(BaseModule::CoordinateSystemType type, int ownerID, int basicID, int modifyID)
{
    setChainLevel(m_typePairList, m_typePairList, type, {ownerID, basicID, modifyID},
                  &RelativeCoordinateSystem::getTypePairList);
}

void RelativeCoordinateSystem::setOffsetCoordinate(double* offset, int ownerID, int basicID, int modifyID)
{
    if (offset != nullptr) {
        setChainLevel(m_offsetCoordinatePairList, m_offsetCoordinatePairList, {offset[0], offset[1], offset[2]},
                      {ownerID, basicID, modifyID}, &RelativeCoordinateSystem::getOffsetCoordinateListPairList);
    }
}

void RelativeCoordinateSystem::setRotateDirection(double* angles, int ownerID, int basicID, int modifyID)
{
    if (angles != nullptr) {
        setChainLevel(m_rotateDirectionPairList, m_offsetCoordinatePairList, {angles[0], angles[1], angles[2]},
                      {ownerID, basicID, modifyID}, &RelativeCoordinateSystem::getRotateDirectionListPairList);
    }
}

void RelativeCoordinateSystem::setActorRotateDirection(QPair<QString, double> step, int ownerID, int basicID,
                                                       int modifyID)
{
    setChainLevel(m_actorRotateDirPairList, m_actorRotateDirPairList, step, {ownerID, basicID, modifyID},
                  &RelativeCoordinateSystem::getActorRoateDirPairPairList);
}

BaseModule::CoordinateSystemType RelativeCoordinateSystem::getType()
{
    if (!m_typePairList.isEmpty()) {
        m_type = m_typePairList.last().second;
    }
    return m_type;
}

double* RelativeCoordinateSystem::getOffsetCoordinate()
{
    // Each level's point replaces that of the level before, so the last one that can be carried decides.
    for (auto level = m_offsetCoordinatePairList.crbegin(); level != m_offsetCoordinatePairList.crend(); ++level) {
        if (carryToGlobal(*level, m_offsetCoordinate)) {
            break;
        }
    }
    return m_offsetCoordinate;
}

QList<QList<double>> RelativeCoordinateSystem::getRotateDirection()
{
    RotationComposition composition(*RelativeCoordinateSystemDate::getInstance());
    composition.compose(*this, [](RelativeCoordinateSystem& system, const QList<QList<double>>& rotations) {
        system.m_rotateDirection = rotations;
    });
    return m_rotateDirection;
}

QList<QPair<QString, double>> RelativeCoordinateSystem::getActorRotateDirection()
{
    m_actorRotateDirection.clear();
    for (const auto& level : qAsConst(m_actorRotateDirPairList)) {
        m_actorRotateDirection.append(level.second);
    }
    return m_actorRotateDirection;
}

QList<QPair<int, BaseModule::CoordinateSystemType>> RelativeCoordinateSystem::getTypePairList() const
{
    return m_typePairList;
}

QList<QPair<int, QList<double>>> RelativeCoordinateSystem::getOffsetCoordinateListPairList() const
{
    return m_offsetCoordinatePairList;
}

QList<QPair<int, QList<double>>> RelativeCoordinateSystem::getRotateDirectionListPairList() const
{
    return m_rotateDirectionPairList;
}

QList<QPair<int, QPair<QString, double>>> RelativeCoordinateSystem::getActorRoateDirPairPairList() const
{
    return m_actorRotateDirPairList;
}

DataModel::PropertyTableData* RelativeCoordinateSystem::getProperty()
{
    const double* const origin = m_offsetCoordinate;
    const double* const quaternion = m_actorQuaternion;
    const QString coordinate = QStringLiteral("(%1,%2,%3)").arg(origin[0]).arg(origin[1]).arg(origin[2]);
    const QString orientation =
        QStringLiteral("(%1,%2,%3,%4)").arg(quaternion[0]).arg(quaternion[1]).arg(quaternion[2]).arg(quaternion[3]);
    m_property.removeAllRowData();
    m_property.appendRowKeyValue(QStringLiteral("ID"), QString::number(m_ID), false);
    m_property.appendRowKeyValue(QObject::tr("BasicCoordinateSystemID"), QString::number(m_basicCoordinateSystemID),
                                 false);
    m_property.appendRowKeyValue(QObject::tr("Name"), m_name, false);
    m_property.appendRowKeyValue(QObject::tr("Coordinate"), coordinate, false);
    m_property.appendRowKeyValue(QObject::tr("Quaternion"), orientation, false);
    return &m_property;
}

void RelativeCoordinateSystem::printRelativeCoordinateSystem() {}

} // namespace DataManager
