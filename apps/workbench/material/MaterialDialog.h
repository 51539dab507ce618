// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Material.h>
#include <workbench/dialog/FieldLabels.h>

#include <QDialog>
#include <QVector>

class QLineEdit;
class QTabWidget;

namespace Workbench {

class PropertyEditor;
class Refusal;

/// Creates a material of a library, or edits one: both names and the five property records. Accepting it makes the
/// change; what the library must not take is refused with the reason, and the dialog stays.
class MaterialDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a dialog that destroys itself when it is closed. `id` 0 stands for a new material. No dialog for a
    /// material that is not in the library any more.
    static void openFor(BaseModule::MaterialLibType type, int id, QWidget* parent);

    void accept() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// `material` is null for a new one.
    MaterialDialog(BaseModule::MaterialLibType type, const Materials::Material& material, QWidget* parent);

    void createEditors(const Materials::Material& material);
    void layOut();
    void retranslate();
    void showAllTabs();
    /// What a property is called here: as its record says, else by its place.
    QString propertyName(int index) const;
    void nameTab(int index);
    /// False when a name or a number is refused; then the reason is shown, and the field has the focus.
    bool check();
    bool checkNumber();
    void apply();

    BaseModule::MaterialLibType m_type;
    int m_id;
    QLineEdit* m_englishName;
    QLineEdit* m_chineseName;
    QTabWidget* m_tabs;
    QVector<PropertyEditor*> m_editors;
    Refusal* m_refusal;
    FieldLabels m_labels;
};

} // namespace Workbench
