// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/property/PropertyTable.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>
#include <workbench/property/SelectionDescription.h>

#include <basemodule/IBaseSignal.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

using BaseModule::IBaseSignal;
using DataManager::RelativeCoordinateSystemDate;

namespace Workbench {

PropertyTable::PropertyTable(QWidget* parent) : QWidget(parent), m_table(new QTableWidget(0, 2, this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(22);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &PropertyTable::fill);
    listen();
    retranslate();
}

void PropertyTable::listen()
{
    const auto fillSoon = [this] { m_timer.start(0); };
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_refreshActionOnSelectDataChanged, this, fillSoon);
    connect(GeometryManager::instance(), &GeometryManager::signal_componentListDataChanged, this, fillSoon);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListChanged, this, fillSoon);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, fillSoon);
    connect(MeshManager::instance(), &MeshManager::signal_groupDataListChanged, this, fillSoon);
    connect(Project::instance(), &Project::signal_changed, this, fillSoon);
    connect(RelativeCoordinateSystemDate::getInstance(), &RelativeCoordinateSystemDate::signal_dataChanged, this,
            fillSoon);
}

void PropertyTable::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void PropertyTable::retranslate()
{
    setWindowTitle(tr("Properties"));
    m_table->setAccessibleName(windowTitle());
    m_table->setHorizontalHeaderLabels({tr("Property"), tr("Value")});
    m_timer.start(0);
}

void PropertyTable::fill()
{
    const DataModel::PropertyTableData rows = describeSelection();
    m_table->setRowCount(rows.getRowCount());
    for (int row = 0; row < rows.getRowCount(); ++row) {
        m_table->setItem(row, 0, new QTableWidgetItem(rows.getRowKey(row)));
        m_table->setItem(row, 1, new QTableWidgetItem(rows.getRowValue(row)));
        m_table->item(row, 1)->setToolTip(rows.getRowValue(row));
    }
}

} // namespace Workbench
