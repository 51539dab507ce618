// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/AngleFields.h>

#include <workbench/coordinates/Angle.h>
#include <workbench/material/NumberField.h>

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace Workbench {

AngleFields::AngleFields(QWidget* parent)
    : QWidget(parent), m_title(new QLabel(this)), m_convention(new QLabel(this)), m_unit(new QComboBox(this))
{
    for (const char* const name : {"angleX", "angleY", "angleZ"}) {
        m_fields.append(new NumberField(this));
        m_fields.last()->setObjectName(QLatin1String(name));
    }
    m_unit->setObjectName(QStringLiteral("angleUnit"));
    m_unit->addItems({QString(), QString()});
    layOut();
    retranslate();
    show();
    connect(m_unit, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &AngleFields::changeUnit);
}

void AngleFields::layOut()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_title, 0, 0);
    m_title->setBuddy(m_unit);
    grid->addWidget(m_unit, 0, 1);
    for (int axis = 0; axis < m_fields.size(); ++axis) {
        grid->addWidget(m_fields.at(axis), 1, axis);
    }
    m_convention->setWordWrap(true);
    // Two lines: a form does not grow with a text that wraps.
    m_convention->setMinimumHeight(2 * m_convention->fontMetrics().lineSpacing());
    grid->addWidget(m_convention, 2, 0, 1, 3);
}

void AngleFields::retranslate()
{
    m_title->setText(tr("Rotation about x, y, z, &in"));
    m_unit->setItemText(0, tr("degrees"));
    m_unit->setItemText(1, tr("radians"));
    m_convention->setText(tr("Right-handed, about the fixed axes of the basic system (extrinsic): first about x, then "
                             "about y, then about z."));
    const QStringList names{tr("Rotation about x"), tr("Rotation about y"), tr("Rotation about z")};
    for (int axis = 0; axis < m_fields.size(); ++axis) {
        m_fields.at(axis)->setAccessibleName(names.at(axis));
    }
}

void AngleFields::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void AngleFields::setAngles(const Vector3& angles)
{
    m_shown = angles;
    show();
}

void AngleFields::show()
{
    for (int axis = 0; axis < m_fields.size(); ++axis) {
        const double radians = m_shown[static_cast<std::size_t>(axis)];
        m_fields.at(axis)->setValue(m_isInDegrees ? degreesOf(radians) : radians);
    }
}

double AngleFields::angle(int axis) const
{
    const NumberField& field = *m_fields.at(axis);
    if (!field.isEdited()) {
        return m_shown[static_cast<std::size_t>(axis)];
    }
    return m_isInDegrees ? radiansOf(field.value()) : field.value();
}

Vector3 AngleFields::angles() const
{
    return {angle(0), angle(1), angle(2)};
}

QList<NumberField*> AngleFields::fields() const
{
    return m_fields;
}

void AngleFields::changeUnit()
{
    const Vector3 radians = angles();
    m_isInDegrees = m_unit->currentIndex() == 0;
    for (int axis = 0; axis < m_fields.size(); ++axis) {
        // What cannot be read stays for the user to see.
        if (m_fields.at(axis)->refusal().isEmpty()) {
            const double angle = radians[static_cast<std::size_t>(axis)];
            m_shown[static_cast<std::size_t>(axis)] = angle;
            m_fields.at(axis)->setValue(m_isInDegrees ? degreesOf(angle) : angle);
        }
    }
}

} // namespace Workbench
