// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateRecord.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <cmath>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;

namespace {

constexpr int append = -1;

/// The rotation as one step of an axes actor: the axes that take part, and the angle of the whole rotation.
QPair<QString, double> actorStep(const Vector3& angles)
{
    static const QString axes = QStringLiteral("XYZ");
    QString name = QStringLiteral("Rotate");
    double angle = 0;
    for (std::size_t i = 0; i < angles.size(); ++i) {
        if (angles[i] != 0) {
            name += axes.at(static_cast<int>(i));
            angle = angles[i];
        }
    }
    const bool isSingle = name.size() == 7;
    if (!isSingle) {
        const auto quaternion = quaternionOf(placed({0, 0, 0}, angles));
        angle = 2 * std::atan2(std::hypot(quaternion[1], quaternion[2], quaternion[3]), quaternion[0]);
    }
    return {name, angle};
}

void setLevel(RelativeCoordinateSystem& record, const CoordinateDefinition& definition, int id, int basicID,
              int modifyID)
{
    Vector3 offset = definition.offset;
    Vector3 angles = definition.angles;
    record.setType(definition.type, id, basicID, modifyID);
    record.setOffsetCoordinate(offset.data(), id, basicID, modifyID);
    record.setRotateDirection(angles.data(), id, basicID, modifyID);
    record.setActorRotateDirection(actorStep(angles), id, basicID, modifyID);
}

Vector3 lastLevel(const QList<QPair<int, QList<double>>>& chain, int ownerID)
{
    if (chain.isEmpty() || chain.last().first != ownerID || chain.last().second.size() < 3) {
        return {0, 0, 0};
    }
    const QList<double>& values = chain.last().second;
    return {values.at(0), values.at(1), values.at(2)};
}

} // namespace

RelativeCoordinateSystem* newCoordinateRecord(int id, int basicID, const CoordinateDefinition& definition)
{
    auto* const record = new RelativeCoordinateSystem;
    record->setID(id);
    record->setBasicCoordinateSystemID(basicID);
    record->setName(definition.name);
    setLevel(*record, definition, id, basicID, append);
    return record;
}

CoordinateDefinition coordinateDefinition(const RelativeCoordinateSystem& record)
{
    const auto types = record.getTypePairList();
    const int id = record.getID();
    const bool hasType = !types.isEmpty() && types.last().first == id;
    return {record.getName(), hasType ? types.last().second : BaseModule::Cartesian,
            lastLevel(record.getOffsetCoordinateListPairList(), id),
            lastLevel(record.getRotateDirectionListPairList(), id)};
}

void rebaseCoordinateRecord(RelativeCoordinateSystem& record, const CoordinateDefinition& definition)
{
    setLevel(record, definition, record.getID(), record.getBasicCoordinateSystemID(), append);
}

void changeCoordinateLevel(RelativeCoordinateSystem& record, int ownerID, const CoordinateDefinition& definition)
{
    setLevel(record, definition, ownerID, record.getBasicCoordinateSystemID(), ownerID);
}

} // namespace Workbench
