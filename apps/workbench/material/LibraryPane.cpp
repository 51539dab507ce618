// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/LibraryPane.h>

#include <workbench/material/DeleteQuestion.h>
#include <workbench/material/ImportDialog.h>
#include <workbench/material/MaterialDialog.h>
#include <workbench/material/MaterialFavourites.h>
#include <workbench/material/MaterialFilter.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>
#include <workbench/material/MaterialTable.h>

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QToolButton>
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
    : QWidget(parent), m_type(type), m_table(new MaterialTable(type, this)), m_found(new MaterialFilter(this)),
      m_view(new QTreeView(this)), m_title(new QLabel(this)), m_search(new QLineEdit(this)),
      m_onlyFavourites(new QToolButton(this)), m_create(new QPushButton(this)), m_edit(new QPushButton(this)),
      m_delete(new QPushButton(this)), m_import(new QPushButton(this)), m_favourite(new QPushButton(this))
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
    m_view->setObjectName(nameOf("materials", m_type));
    m_view->setModel(m_found);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(MaterialTable::IdentifierColumn, Qt::AscendingOrder);
    m_view->setColumnWidth(MaterialTable::IdentifierColumn, fontMetrics().averageCharWidth() * 7);
    m_view->setColumnWidth(MaterialTable::FavouriteColumn, fontMetrics().averageCharWidth() * 4);
    m_view->setColumnHidden(MaterialTable::OriginColumn, m_type == BaseModule::SoftwareLib);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->moveSection(m_view->header()->visualIndex(MaterialTable::FavouriteColumn), 0);
    m_view->header()->moveSection(m_view->header()->visualIndex(MaterialTable::OriginColumn), 4);
    connect(m_view, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (index.column() != MaterialTable::FavouriteColumn) {
            editMaterial();
        }
    });
    connect(m_view, &QTreeView::clicked, this, &LibraryPane::toggleFavourite);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        updateButtons();
        Q_EMIT selectionChanged();
    });
}

void LibraryPane::nameButtons()
{
    m_search->setObjectName(nameOf("search", m_type));
    m_search->setClearButtonEnabled(true);
    m_create->setObjectName(nameOf("create", m_type));
    m_edit->setObjectName(nameOf("edit", m_type));
    m_delete->setObjectName(nameOf("delete", m_type));
    m_import->setObjectName(nameOf("importFrom", m_type));
    m_favourite->setObjectName(nameOf("favourite", m_type));
    m_onlyFavourites->setObjectName(nameOf("onlyFavourites", m_type));
}

void LibraryPane::createButtons()
{
    nameButtons();
    m_onlyFavourites->setCheckable(true);
    m_onlyFavourites->setText(QString(QChar(0x2605)));
    connect(m_onlyFavourites, &QToolButton::toggled, m_found, &MaterialFilter::showOnlyFavourites);
    connect(m_favourite, &QPushButton::clicked, this, &LibraryPane::toggleFavourites);
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
    auto* const search = new QHBoxLayout;
    search->addWidget(m_search);
    search->addWidget(m_onlyFavourites);
    grid->addLayout(search, 0, 1, 1, 2);
    grid->addWidget(m_view, 1, 0, 1, 3);
    grid->addWidget(m_create, 2, 0);
    grid->addWidget(m_edit, 2, 1);
    grid->addWidget(m_delete, 2, 2);
    grid->addWidget(m_import, 3, 0, 1, 2);
    grid->addWidget(m_favourite, 3, 2);
}

void LibraryPane::retranslate()
{
    m_title->setText(libraryTitle(m_type));
    m_search->setPlaceholderText(tr("Search names and properties"));
    m_search->setAccessibleName(tr("Search in: %1").arg(libraryTitle(m_type)));
    m_view->setAccessibleName(libraryTitle(m_type));
    m_onlyFavourites->setToolTip(tr("Only favourites"));
    m_onlyFavourites->setAccessibleName(tr("Only favourites"));
    m_favourite->setText(tr("Favourite"));
    m_favourite->setToolTip(tr("Marks the selected materials with a star, or takes the stars away"));
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
    m_favourite->setEnabled(count > 0);
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

void LibraryPane::toggleFavourites()
{
    QSet<QString> names;
    bool areAllMarked = true;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows()) {
        names.insert(index.data(MaterialTable::EnglishNameRole).toString());
        areAllMarked = areAllMarked && index.data(MaterialTable::FavouriteRole).toBool();
    }
    mark(names, !areAllMarked);
}

// The table is read again when the view has done with the line that was clicked.
void LibraryPane::toggleFavourite(const QModelIndex& index)
{
    if (index.column() == MaterialTable::FavouriteColumn) {
        const QString name = index.data(MaterialTable::EnglishNameRole).toString();
        const bool isFavourite = index.data(MaterialTable::FavouriteRole).toBool();
        QMetaObject::invokeMethod(
            this, [this, name, isFavourite] { mark({name}, !isFavourite); }, Qt::QueuedConnection);
    }
}

void LibraryPane::mark(const QSet<QString>& names, bool areFavourites)
{
    MaterialFavourites::mark(m_type, names, areFavourites);
    read();
}

void LibraryPane::importMaterials()
{
    ImportDialog::openFor(m_type, selectedIDs(), this);
}

} // namespace Workbench
