// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/dialog/FieldLabels.h>

#include <QSharedPointer>
#include <QVector>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace DataModel {
class MaterialPropertyData;
}

namespace Workbench {

class NumberField;

/// Edits one property record of a material, or none. Never changes the record that it was given: records are shared
/// between libraries.
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    using Property = QSharedPointer<DataModel::MaterialPropertyData>;

    PropertyEditor(const Property& property, QWidget* parent);

    /// The first field that is refused; null when none is.
    NumberField* refusedField() const;
    /// The record as edited: the one given when nothing was changed, otherwise a new one; null when there is none.
    Property property() const;
    /// What the record says that it is: its label, in the interface language where it is that of its kind; without one
    /// the name of the kind. Empty when there is no record, or when it does not say.
    QString title() const;

Q_SIGNALS:
    /// Also when the interface language changes.
    void titleChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void nameFields();
    void listQuantities();
    void layOut();
    void retranslate();
    QGridLayout* layOutComponents();
    void show(const DataModel::MaterialPropertyData& property);
    void chooseQuantity(int index);
    void showQuantityAndUnit();
    /// Whether all fields stand as `show` left them.
    bool isUnchanged() const;
    /// Whether the record has another number of components than nine, which stay while none is typed.
    bool keepsComponents() const;
    QList<double> components() const;

    Property m_given;
    QGroupBox* m_group;
    QComboBox* m_quantity;
    QSpinBox* m_kind;
    QLineEdit* m_label;
    QVector<NumberField*> m_components;
    QLabel* m_unit;
    QLineEdit* m_remark;
    QCheckBox* m_flag;
    FieldLabels m_labels;
};

} // namespace Workbench
