// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

namespace Workbench {

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
    void layOut();
    void search(const QString& text);
    void select(const QList<int>& ids);
    void updateButtons();

    void createMaterial();
    void editMaterial();
    void deleteMaterials();
    void importMaterials();

    BaseModule::MaterialLibType m_type;
    MaterialTable* m_table;
    QSortFilterProxyModel* m_found;
    QTreeView* m_view;
    QLabel* m_title;
    QLineEdit* m_search;
    QPushButton* m_create;
    QPushButton* m_edit;
    QPushButton* m_delete;
    QPushButton* m_import;
};

} // namespace Workbench
