// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "Widgets.h"

#include <coordinates/RegistryFixture.h>
#include <support/FilesAndLog.h>
#include <workbench/coordinates/CoordinateSystems.h>

#include <QTemporaryDir>

/// The global system alone and an empty project directory, for the time of one test function. The registry is that of
/// the process. Needs private access.
class CoordinateViewFixture
{
public:
    using System = DataManager::RelativeCoordinateSystem;
    using Registry = DataManager::RelativeCoordinateSystemDate;

    CoordinateViewFixture()
    {
        BaseModule::GlobalHelper::setProjectTempIODir(m_directory.path());
        systems().clearProject();
        QCoreApplication::processEvents();
    }
    ~CoordinateViewFixture()
    {
        systems().clearProject();
        QCoreApplication::processEvents();
        BaseModule::GlobalHelper::setProjectTempIODir(QString());
    }

    static Workbench::CoordinateSystems& systems() { return *Workbench::CoordinateSystems::instance(); }
    static System& system(int id) { return *Registry::getInstance()->getCoordinateSystemByID(id); }
    /// "[0,1,2]"
    static QString ids() { return textOf(RegistryFixture::ids()); }

    static int create(int basicID, const QString& name, const Workbench::Vector3& offset = {0, 0, 0},
                      const Workbench::Vector3& angles = {0, 0, 0})
    {
        return systems().create(basicID, {name, BaseModule::Cartesian, offset, angles});
    }

    QString path() const { return m_directory.path() + QStringLiteral("/RelativeCoordinateSystemDate.json"); }
    QByteArray file() const { return contentOf(path()); }

private:
    QTemporaryDir m_directory;
};
