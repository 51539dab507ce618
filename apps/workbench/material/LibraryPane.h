// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QList>
#include <QSet>
#include <QWidget>

class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QToolButton;
class QTreeView;

namespace Workbench {

class MaterialFilter;
class MaterialTable;

/// One library in the dock: its materials with a search, and what can be done with them.
class LibraryPane : public QWidget
{
    Q_OBJECT

public:
    LibraryPane(BaseModule::MaterialLibType type, QWidget* parent);

    /// The identifiers of the selected materials, in the order shown.
    QList<int> selectedIDs() const;

    /// Takes the library's present state. The selection stays with its identifiers.
    void read();
    void retranslate();

Q_SIGNALS:
    void selectionChanged();

private:
    void createTable();
    void createButtons();
    void nameButtons();
    void layOut();
    void search(const QString& text);
    void select(const QList<int>& ids);
    void updateButtons();

    void createMaterial();
    void editMaterial();
    void deleteMaterials();
    void importMaterials();
    /// Marks the selected ones, or takes the marks away when all of them have one.
    void toggleFavourites();
    void toggleFavourite(const QModelIndex& index);
    void mark(const QSet<QString>& names, bool areFavourites);

    BaseModule::MaterialLibType m_type;
    MaterialTable* m_table;
    MaterialFilter* m_found;
    QTreeView* m_view;
    QLabel* m_title;
    QLineEdit* m_search;
    QToolButton* m_onlyFavourites;
    QPushButton* m_create;
    QPushButton* m_edit;
    QPushButton* m_delete;
    QPushButton* m_import;
    QPushButton* m_favourite;
};

} // namespace Workbench
