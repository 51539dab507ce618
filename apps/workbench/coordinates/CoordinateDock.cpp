// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateDock.h>

#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateRegistry.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/coordinates/CoordinateValues.h>
#include <workbench/coordinates/RemovalQuestion.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamodel/SelectedDataBase.h>

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

enum Column : int
{
    NameColumn,
    IdentifierColumn,
    TypeColumn,
    FaultColumn
};

QString faultText(const CoordinateTree::Node& node)
{
    switch (node.fault) {
    case CoordinateTree::None:
        break;
    case CoordinateTree::BasicMissing:
        return CoordinateDock::tr("its basic system %1 is missing; placed as if global").arg(node.basicID);
    case CoordinateTree::Loop:
        return CoordinateDock::tr("its basic system %1 leads back to it; placed as if global").arg(node.basicID);
    }
    return {};
}

QTreeWidgetItem* newItem(const RelativeCoordinateSystem& system, const CoordinateTree::Node& node)
{
    const auto type = CoordinateSystems::definition(node.id).type;
    auto* const item = new QTreeWidgetItem(
        {coordinateName(system), QString::number(node.id), coordinateTypeTitle(type), faultText(node)});
    item->setData(NameColumn, Qt::UserRole, node.id);
    item->setCheckState(NameColumn, CoordinateSystems::instance()->areAxesShown(node.id) ? Qt::Checked : Qt::Unchecked);
    QFont font = item->font(NameColumn);
    font.setBold(node.id == coordinateRegistry().getCurrentCoordinateSystemID());
    item->setFont(NameColumn, font);
    return item;
}

} // namespace

CoordinateDock::CoordinateDock(QWidget* parent)
    : QWidget(parent), m_tree(new QTreeWidget(this)), m_values(new CoordinateValues(this)),
      m_create(new QPushButton(this)), m_change(new QPushButton(this)), m_remove(new QPushButton(this)),
      m_makeCurrent(new QPushButton(this)), m_axes(new QCheckBox(this))
{
    CoordinateSystems::instance();
    createTree();
    createButtons();
    layOut();
    listen();
    retranslate();
    read();
}

void CoordinateDock::createTree()
{
    m_tree->setObjectName(QStringLiteral("coordinateTree"));
    m_tree->setColumnCount(FaultColumn + 1);
    connect(m_tree, &QTreeWidget::itemChanged, this, &CoordinateDock::setAxesShown);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CoordinateDock::updateChosen);
}

void CoordinateDock::createButtons()
{
    m_create->setObjectName(QStringLiteral("createSystem"));
    m_change->setObjectName(QStringLiteral("changeSystem"));
    m_remove->setObjectName(QStringLiteral("removeSystem"));
    m_makeCurrent->setObjectName(QStringLiteral("makeCurrent"));
    m_axes->setObjectName(QStringLiteral("showAxes"));
    connect(m_create, &QPushButton::clicked, this, &CoordinateDock::createSystem);
    connect(m_change, &QPushButton::clicked, this, &CoordinateDock::changeSystem);
    connect(m_remove, &QPushButton::clicked, this, &CoordinateDock::removeSystem);
    connect(m_makeCurrent, &QPushButton::clicked, this, &CoordinateDock::makeCurrent);
    connect(m_axes, &QCheckBox::toggled, this, [](bool isShown) { CoordinateSystems::instance()->showAxes(isShown); });
}

void CoordinateDock::layOut()
{
    auto* const grid = new QGridLayout(this);
    grid->addWidget(m_tree, 0, 0, 1, 2);
    grid->addWidget(m_create, 1, 0);
    grid->addWidget(m_change, 1, 1);
    grid->addWidget(m_makeCurrent, 2, 0);
    grid->addWidget(m_remove, 2, 1);
    grid->addWidget(m_axes, 3, 0, 1, 2);
    grid->addWidget(m_values, 4, 0, 1, 2);
}

void CoordinateDock::listen()
{
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataChanged, this, &CoordinateDock::read);
    // Before systems go; and all that is heard when somebody else appends some, many at a time.
    m_update.setSingleShot(true);
    m_update.setInterval(0);
    connect(&m_update, &QTimer::timeout, this, &CoordinateDock::read);
    const auto updateSoon = QOverload<>::of(&QTimer::start);
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataDeleted, &m_update, updateSoon);
    connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateWindowTitle, &m_update,
            updateSoon);
    connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_refreshActionOnSelectDataChanged,
            this, &CoordinateDock::chooseSelected);
}

// A system that is selected alone, in the view or the project tree, is the one to look at.
void CoordinateDock::chooseSelected()
{
    const auto items = DataManager::SelectedDataManager::getInstance()->getSelectedDataList();
    if (items.size() == 1 && items.constFirst()->getSelectModel() == BaseModule::CoordinateAxes) {
        choose(items.constFirst()->getFirstID());
    }
}

void CoordinateDock::retranslate()
{
    setWindowTitle(tr("Coordinate systems"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Name"), tr("ID"), tr("Type"), tr("Fault")});
    m_create->setText(tr("New below..."));
    m_change->setText(tr("Change..."));
    m_remove->setText(tr("Delete..."));
    m_makeCurrent->setText(tr("Make current"));
    m_axes->setText(tr("Show axes"));
    m_values->retranslate();
}

void CoordinateDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        read();
    }
    QWidget::changeEvent(event);
}

void CoordinateDock::read()
{
    const int chosen = chosenID();
    const QSignalBlocker treeBlocker(m_tree);
    const QSignalBlocker axesBlocker(m_axes);
    m_tree->clear();
    const CoordinateTree tree = CoordinateSystems::tree();
    QVector<QTreeWidgetItem*> items(tree.nodes.size());
    for (const int position : tree.downwards()) {
        const CoordinateTree::Node& node = tree.nodes.at(position);
        items[position] = newItem(*coordinateRegistry().getCoordinateSystemByIndex(position), node);
        if (node.parent < 0) {
            m_tree->addTopLevelItem(items.at(position));
        } else {
            items.at(node.parent)->addChild(items.at(position));
        }
    }
    m_tree->expandAll();
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        m_tree->resizeColumnToContents(column);
    }
    m_axes->setChecked(CoordinateSystems::instance()->areAxesShown());
    choose(chosen);
    updateChosen();
}

void CoordinateDock::choose(int id)
{
    for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item) {
        if ((*item)->data(NameColumn, Qt::UserRole).toInt() == id) {
            m_tree->setCurrentItem(*item);
            return;
        }
    }
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

int CoordinateDock::chosenID() const
{
    const QTreeWidgetItem* const item = m_tree->currentItem();
    return item == nullptr ? 0 : item->data(NameColumn, Qt::UserRole).toInt();
}

void CoordinateDock::updateChosen()
{
    const int id = chosenID();
    m_change->setEnabled(id != 0);
    m_remove->setEnabled(id != 0);
    m_makeCurrent->setEnabled(id != coordinateRegistry().getCurrentCoordinateSystemID());
    m_values->show(id);
}

// Telling of the change rebuilds the tree, so it waits until the item has told of its own.
void CoordinateDock::setAxesShown(QTreeWidgetItem* item)
{
    const int id = item->data(NameColumn, Qt::UserRole).toInt();
    const bool isShown = item->checkState(NameColumn) == Qt::Checked;
    QTimer::singleShot(0, this, [id, isShown] { CoordinateSystems::instance()->showAxes(id, isShown); });
}

void CoordinateDock::createSystem()
{
    CoordinateDialog::openForNew(chosenID(), this);
}

void CoordinateDock::changeSystem()
{
    CoordinateDialog::openFor(chosenID(), this);
}

void CoordinateDock::removeSystem()
{
    RemovalQuestion::openFor(chosenID(), this);
}

void CoordinateDock::makeCurrent()
{
    CoordinateSystems::instance()->setCurrent(chosenID());
}

} // namespace Workbench
