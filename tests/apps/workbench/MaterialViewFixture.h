// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "Widgets.h"

#include <material/MaterialFixture.h>
#include <support/SignalLog.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/material/MaterialLibraries.h>

#include <datamanager/selection/SelectedDataManager.h>

#include <datamodel/SelectedDataBase.h>

#include <QItemSelectionModel>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>

/// A dock over new libraries, for the time of one test function: it stands where the process's own manager would.
/// Needs private access.
class MaterialViewFixture
{
public:
    using Manager = DataManager::MaterialLibraryManager;

    MaterialViewFixture()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName(QStringLiteral("DataManager"));
        Manager::m_instance = &m_libraries.manager();
        Workbench::GeometryManager::instance()->clear();
        DataManager::SelectedDataManager::getInstance()->clearAllSelectedTarget();
    }
    ~MaterialViewFixture() { Manager::m_instance = nullptr; }

    Workbench::MaterialDock& dock()
    {
        if (!m_dock) {
            m_dock = std::make_unique<Workbench::MaterialDock>();
            m_dock->resize(900, 500);
            m_dock->show();
        }
        return *m_dock;
    }

    MaterialFixture& libraries() { return m_libraries; }

    /// A volume of that name.
    int addVolume(const QString& name) const
    {
        return Workbench::GeometryManager::instance()->addComponent(name, QCoreApplication::applicationFilePath());
    }

    static void selectVolumes(const QList<int>& volumes)
    {
        QList<QPair<int, int>> items;
        for (const int volume : volumes) {
            items.append({volume, -1});
        }
        DataManager::SelectedDataManager::getInstance()->addSelectedTargetList(BaseModule::GeometryComponent, items);
    }

    /// "1 Copper; 3 Steel": what a list of the dock shows, in its order.
    QString rows(const char* list)
    {
        QStringList texts;
        const QAbstractItemModel& model = *part<QTreeView>(dock(), list).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.append(model.index(row, 0).data().toString() + QLatin1Char(' ') +
                         model.index(row, 1).data().toString());
        }
        return texts.join(QStringLiteral("; "));
    }

    /// Clicks the rows with these identifiers, Ctrl held from the second one on.
    void choose(const char* list, const QList<int>& ids)
    {
        QTreeView& view = part<QTreeView>(dock(), list);
        view.clearSelection();
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            const QModelIndex index = view.model()->index(row, 1);
            if (ids.contains(index.siblingAtColumn(0).data().toInt())) {
                view.scrollTo(index);
                QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier,
                                  view.visualRect(index).center());
            }
        }
    }

    /// What stands in the project's file, read by a manager of its own.
    QString savedProject()
    {
        Manager& reader = *m_libraries.newManager();
        reader.initProjectMaterial();
        return MaterialFixture::state(reader, BaseModule::ProjectLib);
    }

private:
    QTemporaryDir m_settings;
    MaterialFixture m_libraries;
    std::unique_ptr<Workbench::MaterialDock> m_dock;
};

/// The hub, the change signals of the workbench's managers and the state of the project's library behind each.
class MaterialViewLog : public QObject
{
public:
    explicit MaterialViewLog(MaterialFixture& libraries) : m_log([&libraries] { return libraries.project(); })
    {
        connect(Workbench::MaterialLibraries::instance(), &Workbench::MaterialLibraries::changed, this,
                [this](BaseModule::MaterialLibType type) { m_log.append(QStringLiteral("changed %1").arg(type)); });
        connect(Workbench::GeometryManager::instance(), &Workbench::GeometryManager::signal_componentListDataChanged,
                this, [this](const QList<int>& ids) { m_log.append(QStringLiteral("components %1").arg(ids.size())); });
    }
    QStringList take() { return m_log.take(); }

private:
    SignalLog m_log;
};
