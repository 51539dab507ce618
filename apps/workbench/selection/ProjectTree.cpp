// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/ProjectTree.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>

#include <basemodule/IBaseSignal.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using BaseModule::IBaseSignal;
using DataManager::RelativeCoordinateSystemDate;

namespace Workbench {

ProjectTree::ProjectTree(QWidget* parent) : QWidget(parent), m_tree(new QTreeWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree);
    m_tree->setColumnCount(2);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_tree->header()->setStretchLastSection(false);
    m_rebuild.setSingleShot(true);
    m_follow.setSingleShot(true);
    connect(&m_rebuild, &QTimer::timeout, this, &ProjectTree::rebuild);
    connect(&m_follow, &QTimer::timeout, this, &ProjectTree::followSelection);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &ProjectTree::select);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ProjectTree::showOrHide);
    connect(m_tree, &QTreeWidget::customContextMenuRequested, this, &ProjectTree::openMenu);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &ProjectTree::selectSet);
    listen();
    retranslate();
}

void ProjectTree::listen()
{
    const auto rebuildSoon = [this] { m_rebuild.start(0); };
    const GeometryManager* geometry = GeometryManager::instance();
    connect(geometry, &GeometryManager::signal_componentListDataChanged, this, rebuildSoon);
    connect(geometry, &GeometryManager::signal_componentListRemoved, this, rebuildSoon);
    connect(geometry, &GeometryManager::signal_geoSetListDataChanged, this, rebuildSoon);
    connect(geometry, &GeometryManager::signal_geoSetListRemoved, this, rebuildSoon);
    const MeshManager* meshes = MeshManager::instance();
    connect(meshes, &MeshManager::signal_kernalDataListChanged, this, rebuildSoon);
    connect(meshes, &MeshManager::signal_kernalDataListDeleted, this, rebuildSoon);
    connect(meshes, &MeshManager::signal_groupDataListChanged, this, rebuildSoon);
    connect(meshes, &MeshManager::signal_groupDataListDeleted, this, rebuildSoon);
    connect(meshes, &MeshManager::signal_visibilityChanged, this, rebuildSoon);
    const RelativeCoordinateSystemDate* systems = RelativeCoordinateSystemDate::getInstance();
    connect(systems, &RelativeCoordinateSystemDate::signal_dataChanged, this, rebuildSoon);
    connect(systems, &RelativeCoordinateSystemDate::signal_dataDeleted, this, rebuildSoon);
    connect(Project::instance(), &Project::signal_opened, this, rebuildSoon);
    connect(Project::instance(), &Project::signal_changed, this, rebuildSoon);
    const IBaseSignal* hub = IBaseSignal::getInstance();
    connect(hub, &IBaseSignal::signal_delMatUpdateGeometryData, this, rebuildSoon);
    connect(hub, &IBaseSignal::signal_updateWindowTitle, this, rebuildSoon);
    connect(hub, &IBaseSignal::signal_refreshActionOnSelectDataChanged, this, [this] { m_follow.start(0); });
}

void ProjectTree::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void ProjectTree::retranslate()
{
    setWindowTitle(tr("Project"));
    m_tree->setHeaderLabels({tr("Name"), tr("Details")});
    m_rebuild.start(0);
}

void ProjectTree::rebuild()
{
    {
        const QScopedValueRollback<bool> updating(m_isUpdating, true);
        for (const QTreeWidgetItem* item : allItems()) {
            m_isExpanded.insert(item->data(1, Qt::UserRole).toString(), item->isExpanded());
        }
        m_tree->clear();
        for (const ProjectTreeLine& line : projectTreeContent()) {
            QTreeWidgetItem* item = makeItem(line, QString::number(line.firstID));
            m_tree->addTopLevelItem(item);
            restoreExpansion(item);
        }
    }
    followSelection();
}

QTreeWidgetItem* ProjectTree::makeItem(const ProjectTreeLine& line, const QString& path)
{
    auto* item = new QTreeWidgetItem({line.text, line.details});
    item->setData(0, Qt::UserRole,
                  QVariantList{static_cast<int>(line.kind), line.selectModel, line.firstID, line.secondID, line.isOwn});
    item->setData(1, Qt::UserRole, path);
    item->setForeground(1, QColor(95, 105, 118));
    item->setToolTip(0, line.text);
    if (line.kind == ProjectTreeLine::Kind::Heading) {
        QFont font = m_tree->font();
        font.setBold(true);
        item->setFont(0, font);
        item->setFlags(item->flags() & ~Qt::ItemIsSelectable);
    }
    if (line.isCheckable) {
        item->setCheckState(0, line.isShown ? Qt::Checked : Qt::Unchecked);
    }
    for (const ProjectTreeLine& child : line.children) {
        const QString name = QStringLiteral("/%1:%2").arg(child.firstID).arg(child.secondID);
        item->addChild(makeItem(child, path + name));
    }
    return item;
}

// Headings and meshes are open at first, volumes are not.
void ProjectTree::restoreExpansion(QTreeWidgetItem* item)
{
    const bool isOpenAtFirst =
        item->data(0, Qt::UserRole).toList().value(0).toInt() != static_cast<int>(ProjectTreeLine::Kind::Volume);
    item->setExpanded(m_isExpanded.value(item->data(1, Qt::UserRole).toString(), isOpenAtFirst));
    for (int i = 0; i < item->childCount(); ++i) {
        restoreExpansion(item->child(i));
    }
}

QList<QTreeWidgetItem*> ProjectTree::allItems() const
{
    QList<QTreeWidgetItem*> items;
    for (QTreeWidgetItemIterator it(m_tree); *it != nullptr; ++it) {
        items.append(*it);
    }
    return items;
}

} // namespace Workbench
