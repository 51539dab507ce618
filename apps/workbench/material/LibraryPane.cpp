// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/LibraryPane.h>

#include <workbench/material/DeleteQuestion.h>
#include <workbench/material/ImportDialog.h>
#include <workbench/material/MaterialDialog.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>
#include <workbench/material/MaterialTable.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace Workbench {

namespace {

QString nameOf(const char* part, BaseModule::MaterialLibType type)
{
    return QLatin1String(part) +
           (type == BaseModule::ProjectLib ? QStringLiteral("Project") : QStringLiteral("Software"));
}

} // namespace

LibraryPane::LibraryPane(BaseModule::MaterialLibType type, QWidget* parent)
    : QWidget(parent), m_type(type), m_table(new MaterialTable(type, this)), m_found(new QSortFilterProxyModel(this)),
      m_view(new QTreeView(this)), m_title(new QLabel(this)), m_search(new QLineEdit(this)),
      m_create(new QPushButton(this)), m_edit(new QPushButton(this)), m_delete(new QPushButton(this)),
      m_import(new QPushButton(this))
{
    createTable();
    createButtons();
    layOut();
    retranslate();
    updateButtons();
    connect(m_search, &QLineEdit::textChanged, this, &LibraryPane::search);
    connect(MaterialLibraries::instance(), &MaterialLibraries::changed, this,
            [this](BaseModule::MaterialLibType changed) {
                if (changed == m_type) {
                    read();
                }
            });
}

void LibraryPane::createTable()
{
    m_found->setSourceModel(m_table);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_found->setFilterKeyColumn(-1);
    m_found->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_view->setObjectName(nameOf("materials", m_type));
    m_view->setModel(m_found);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(MaterialTable::IdentifierColumn, Qt::AscendingOrder);
    m_view->setColumnWidth(MaterialTable::IdentifierColumn, fontMetrics().averageCharWidth() * 7);
    connect(m_view, &QTreeView::doubleClicked, this, &LibraryPane::editMaterial);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        updateButtons();
        Q_EMIT selectionChanged();
    });
}

void LibraryPane::createButtons()
{
    m_search->setObjectName(nameOf("search", m_type));
    m_search->setClearButtonEnabled(true);
    m_create->setObjectName(nameOf("create", m_type));
    m_edit->setObjectName(nameOf("edit", m_type));
    m_delete->setObjectName(nameOf("delete", m_type));
    m_import->setObjectName(nameOf("importFrom", m_type));
    connect(m_create, &QPushButton::clicked, this, &LibraryPane::createMaterial);
    connect(m_edit, &QPushButton::clicked, this, &LibraryPane::editMaterial);
    connect(m_delete, &QPushButton::clicked, this, &LibraryPane::deleteMaterials);
    connect(m_import, &QPushButton::clicked, this, &LibraryPane::importMaterials);
}

void LibraryPane::layOut()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_title, 0, 0);
    grid->addWidget(m_search, 0, 1, 1, 2);
    grid->addWidget(m_view, 1, 0, 1, 3);
    grid->addWidget(m_create, 2, 0);
    grid->addWidget(m_edit, 2, 1);
    grid->addWidget(m_delete, 2, 2);
    grid->addWidget(m_import, 3, 0, 1, 3);
}

void LibraryPane::retranslate()
{
    m_title->setText(libraryTitle(m_type));
    m_search->setPlaceholderText(tr("Search names and properties"));
    m_create->setText(tr("New..."));
    m_edit->setText(tr("Edit..."));
    m_delete->setText(tr("Delete..."));
    m_import->setText(m_type == BaseModule::SoftwareLib ? tr("Copy to the project...")
                                                        : tr("Copy to the software library..."));
    m_import->setToolTip(tr("Compares the selected materials, or all when none is selected, before it copies."));
    Q_EMIT m_table->headerDataChanged(Qt::Horizontal, 0, MaterialTable::ColumnCount - 1);
}

void LibraryPane::search(const QString& text)
{
    m_found->setFilterFixedString(text);
}

void LibraryPane::read()
{
    const QList<int> ids = selectedIDs();
    m_table->read();
    select(ids);
}

QList<int> LibraryPane::selectedIDs() const
{
    QList<int> ids;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows()) {
        ids.append(index.data(MaterialTable::IdentifierRole).toInt());
    }
    return ids;
}

void LibraryPane::select(const QList<int>& ids)
{
    const QSet<int> wanted(ids.begin(), ids.end());
    QItemSelection selection;
    for (int row = 0; row < m_found->rowCount(); ++row) {
        const QModelIndex index = m_found->index(row, 0);
        if (wanted.contains(index.data(MaterialTable::IdentifierRole).toInt())) {
            selection.select(index, index);
        }
    }
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    updateButtons();
    Q_EMIT selectionChanged();
}

void LibraryPane::updateButtons()
{
    const int count = selectedIDs().size();
    m_edit->setEnabled(count == 1);
    m_delete->setEnabled(count > 0);
}

void LibraryPane::createMaterial()
{
    MaterialDialog::openFor(m_type, 0, this);
}

void LibraryPane::editMaterial()
{
    const QList<int> ids = selectedIDs();
    if (ids.size() == 1) {
        MaterialDialog::openFor(m_type, ids.first(), this);
    }
}

void LibraryPane::deleteMaterials()
{
    DeleteQuestion::openFor(m_type, selectedIDs(), this);
}

void LibraryPane::importMaterials()
{
    ImportDialog::openFor(m_type, selectedIDs(), this);
}

} // namespace Workbench
