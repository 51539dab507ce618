// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Comparison.h>

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace Workbench {

class Refusal;

/// Compares materials of one library with the other one, and then copies the chosen ones: new materials under new
/// identifiers, changed ones onto the material that has their name. What differs stands below each changed material;
/// why one is refused beside it, and why the chosen ones cannot be copied together below them all.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a dialog that destroys itself when it is closed. Without identifiers it compares the whole library.
    static void openFor(BaseModule::MaterialLibType from, const QList<int>& ids, QWidget* parent);

    void accept() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    ImportDialog(BaseModule::MaterialLibType from, const QList<int>& ids, QWidget* parent);

    void compare(const QList<int>& ids);
    void addComparison(const Materials::Comparison& comparison);
    QList<Materials::Comparison> chosen() const;
    bool check();
    void showCounts();
    void layOut();
    void retranslate();

    BaseModule::MaterialLibType m_from;
    QList<Materials::Comparison> m_comparisons;
    QTreeWidget* m_list;
    QLabel* m_counts;
    Refusal* m_refusal;
    QPushButton* m_copy;
};

} // namespace Workbench
