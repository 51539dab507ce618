// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

class CoordinateValues;

/// The tree of coordinate systems, each below its basic system, with a mark that shows or hides its axes; the values of
/// the one chosen; and what can be done with it. The current system is bold. It follows the registry's signals.
class CoordinateDock : public QWidget
{
    Q_OBJECT

public:
    explicit CoordinateDock(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void createTree();
    void createButtons();
    void layOut();
    void listen();
    void retranslate();

    void read();
    void chooseSelected();
    void choose(int id);
    int chosenID() const;
    void updateChosen();
    void setAxesShown(QTreeWidgetItem* item);

    void createSystem();
    void changeSystem();
    void removeSystem();
    void makeCurrent();

    QTreeWidget* m_tree;
    CoordinateValues* m_values;
    QPushButton* m_create;
    QPushButton* m_change;
    QPushButton* m_remove;
    QPushButton* m_makeCurrent;
    QCheckBox* m_axes;
    QTimer m_update;
};

} // namespace Workbench
