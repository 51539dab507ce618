// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateName.h>

#include <workbench/coordinates/CoordinateRegistry.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <QCoreApplication>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::CoordinateName)
};

} // namespace

QString coordinateName(const RelativeCoordinateSystem& system)
{
    return system.getID() == 0 ? Texts::tr("Global") : system.getName();
}

QString coordinateTitle(const RelativeCoordinateSystem& system)
{
    return QStringLiteral("%1 (%2)").arg(coordinateName(system), QString::number(system.getID()));
}

QString coordinateTypeTitle(BaseModule::CoordinateSystemType type)
{
    switch (type) {
    case BaseModule::Cartesian:
        return Texts::tr("Cartesian");
    case BaseModule::Cylindrical:
        return Texts::tr("Cylindrical");
    case BaseModule::Spherical:
        return Texts::tr("Spherical");
    }
    return QString::number(int(type));
}

QString coordinateNameRefusal(const QString& name, int id)
{
    if (name.trimmed().isEmpty()) {
        return Texts::tr("A coordinate system needs a name.");
    }
    const RelativeCoordinateSystemDate& registry = coordinateRegistry();
    for (int i = 0; i < registry.getRelativeCoordinateSystemDateCount(); ++i) {
        const RelativeCoordinateSystem& system = *registry.getCoordinateSystemByIndex(i);
        const bool isOther = id == 0 || system.getID() != id;
        if (isOther && system.getName() == name) {
            return Texts::tr("Coordinate system %1 is already called '%2'.").arg(system.getID()).arg(name);
        }
    }
    return {};
}

} // namespace Workbench
