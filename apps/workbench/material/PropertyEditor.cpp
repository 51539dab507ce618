// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/PropertyEditor.h>

#include <workbench/material/NumberField.h>
#include <workbench/material/PropertyKind.h>

#include <datamodel/MaterialPropertyData.h>

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

#include <algorithm>
#include <limits>

namespace Workbench {

namespace {
constexpr int componentCount = 9;
}

PropertyEditor::PropertyEditor(const Property& property, QWidget* parent)
    : QWidget(parent), m_given(property), m_group(new QGroupBox(this)), m_quantity(new QComboBox(m_group)),
      m_kind(new QSpinBox(m_group)), m_label(new QLineEdit(m_group)), m_unit(new QLabel(m_group)),
      m_remark(new QLineEdit(m_group)), m_flag(new QCheckBox(m_group)), m_labels(new QFormLayout(m_group))
{
    for (int i = 0; i < componentCount; ++i) {
        m_components.append(new NumberField(m_group));
    }
    nameFields();
    listQuantities();
    layOut();
    m_group->setCheckable(true);
    m_group->setChecked(!property.isNull());
    if (!property.isNull()) {
        show(*property);
    }
    retranslate();
    connect(m_quantity, QOverload<int>::of(&QComboBox::activated), this, &PropertyEditor::chooseQuantity);
    connect(m_kind, QOverload<int>::of(&QSpinBox::valueChanged), this, &PropertyEditor::showQuantityAndUnit);
    connect(m_remark, &QLineEdit::textChanged, this, &PropertyEditor::showQuantityAndUnit);
    connect(m_kind, QOverload<int>::of(&QSpinBox::valueChanged), this, &PropertyEditor::titleChanged);
    connect(m_label, &QLineEdit::textChanged, this, &PropertyEditor::titleChanged);
    connect(m_group, &QGroupBox::toggled, this, &PropertyEditor::titleChanged);
}

void PropertyEditor::nameFields()
{
    static const char* const names[componentCount] = {"xx", "xy", "xz", "yx", "yy", "yz", "zx", "zy", "zz"};
    for (int i = 0; i < componentCount; ++i) {
        m_components.at(i)->setObjectName(QLatin1String(names[i]));
        m_components.at(i)->setPlaceholderText(QLatin1String(names[i]));
    }
    m_group->setObjectName(QStringLiteral("present"));
    m_quantity->setObjectName(QStringLiteral("quantity"));
    m_kind->setObjectName(QStringLiteral("kind"));
    m_label->setObjectName(QStringLiteral("label"));
    m_unit->setObjectName(QStringLiteral("unit"));
    m_remark->setObjectName(QStringLiteral("remark"));
    m_flag->setObjectName(QStringLiteral("flag"));
}

void PropertyEditor::listQuantities()
{
    m_quantity->addItem(QString(), 0);
    for (const PropertyKind& kind : propertyKinds()) {
        m_quantity->addItem(QString(), kind.number);
    }
    m_kind->setLocale(QLocale::c());
    m_kind->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

void PropertyEditor::layOut()
{
    for (QWidget* const field :
         {static_cast<QWidget*>(m_quantity), static_cast<QWidget*>(m_kind), static_cast<QWidget*>(m_label)}) {
        m_labels.addRow(field);
    }
    m_labels.addRow(layOutComponents(), m_components.first());
    m_labels.addRow(m_unit);
    m_labels.addRow(m_remark);
    m_labels.addRow(m_flag);
    for (int i = 0; i < componentCount; ++i) {
        setTabOrder(i == 0 ? m_label : static_cast<QWidget*>(m_components.at(i - 1)), m_components.at(i));
    }
    setTabOrder(m_components.last(), m_remark);
    setTabOrder(m_remark, m_flag);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(m_group);
}

void PropertyEditor::retranslate()
{
    m_group->setTitle(tr("The material &has this property"));
    m_labels.setTexts(
        {tr("&Quantity"), tr("&Kind"), tr("&Label"), tr("Co&mponents"), tr("Unit"), tr("&Remark"), tr("&Flag")});
    m_quantity->setItemText(0, tr("other"));
    for (int i = 1; i < m_quantity->count(); ++i) {
        m_quantity->setItemText(i, propertyKindTitle(m_quantity->itemData(i).toInt()));
    }
    for (NumberField* const field : qAsConst(m_components)) {
        field->setAccessibleName(tr("Component %1").arg(field->objectName()));
    }
    m_remark->setPlaceholderText(tr("unit X; source of the values; conditions"));
    m_flag->setText(tr("set; in the default library: differs between directions"));
    showQuantityAndUnit();
    Q_EMIT titleChanged();
}

void PropertyEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

QGridLayout* PropertyEditor::layOutComponents()
{
    auto* const grid = new QGridLayout;
    for (int i = 0; i < componentCount; ++i) {
        grid->addWidget(m_components.at(i), i / 3, i % 3);
    }
    return grid;
}

void PropertyEditor::show(const DataModel::MaterialPropertyData& property)
{
    m_kind->setValue(property.kind);
    m_label->setText(property.label);
    if (property.components.size() == componentCount) {
        for (int i = 0; i < componentCount; ++i) {
            m_components.at(i)->setValue(property.components.at(i));
        }
    }
    m_remark->setText(property.remark);
    m_flag->setChecked(property.flag);
}

void PropertyEditor::chooseQuantity(int index)
{
    const QVector<PropertyKind>& kinds = propertyKinds();
    const auto isKnown = [this](const PropertyKind& kind) { return kind.label == m_label->text(); };
    const bool isLabelFree = m_label->text().isEmpty() || std::any_of(kinds.begin(), kinds.end(), isKnown);
    m_kind->setValue(m_quantity->itemData(index).toInt());
    if (isLabelFree) {
        m_label->setText(index == 0 ? QString() : kinds.at(index - 1).label);
    }
}

void PropertyEditor::showQuantityAndUnit()
{
    m_quantity->setCurrentIndex(std::max(0, m_quantity->findData(m_kind->value())));
    const QString unit = propertyUnit(m_kind->value(), m_remark->text());
    m_unit->setText(unit.isEmpty() ? tr("not known: begin the remark with 'unit X'") : unit);
}

bool PropertyEditor::keepsComponents() const
{
    const bool isOdd = !m_given.isNull() && m_given->components.size() != componentCount;
    return isOdd && std::none_of(m_components.begin(), m_components.end(),
                                 [](const NumberField* field) { return field->isEdited(); });
}

NumberField* PropertyEditor::refusedField() const
{
    if (!m_group->isChecked() || keepsComponents()) {
        return nullptr;
    }
    const auto refused = std::find_if(m_components.begin(), m_components.end(),
                                      [](const NumberField* field) { return !field->refusal().isEmpty(); });
    return refused == m_components.end() ? nullptr : *refused;
}

bool PropertyEditor::isUnchanged() const
{
    const bool isAnyEdited = std::any_of(m_components.begin(), m_components.end(),
                                         [](const NumberField* field) { return field->isEdited(); });
    return !m_given.isNull() && !isAnyEdited && m_kind->value() == m_given->kind && m_label->text() == m_given->label &&
           m_remark->text() == m_given->remark && m_flag->isChecked() == m_given->flag;
}

QList<double> PropertyEditor::components() const
{
    if (keepsComponents()) {
        return m_given->components;
    }
    QList<double> values;
    for (const NumberField* const field : m_components) {
        values.append(field->value());
    }
    return values;
}

QString PropertyEditor::title() const
{
    if (!m_group->isChecked()) {
        return {};
    }
    const QString label = m_label->text().simplified();
    return label.isEmpty() || label == propertyKindLabel(m_kind->value()) ? propertyKindTitle(m_kind->value()) : label;
}

PropertyEditor::Property PropertyEditor::property() const
{
    if (!m_group->isChecked()) {
        return {};
    }
    if (isUnchanged()) {
        return m_given;
    }
    auto record = Property::create();
    record->kind = m_kind->value();
    record->label = m_label->text();
    record->components = components();
    record->remark = m_remark->text();
    record->flag = m_flag->isChecked();
    return record;
}

} // namespace Workbench
