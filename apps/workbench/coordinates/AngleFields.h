// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/Placement.h>

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;

namespace Workbench {

class NumberField;

/// Three angles of rotation about the fixed axes of the basic system, in degrees or radians as the user chooses. Angles
/// that are not edited come back bit by bit.
class AngleFields : public QWidget
{
    Q_OBJECT

public:
    explicit AngleFields(QWidget* parent);

    /// In radians.
    void setAngles(const Vector3& angles);
    /// In radians; 0 where the field is refused.
    Vector3 angles() const;
    QList<NumberField*> fields() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void layOut();
    void retranslate();
    void changeUnit();
    void show();
    double angle(int axis) const;

    bool m_isInDegrees = true;
    Vector3 m_shown = {0, 0, 0};
    QLabel* m_title;
    QLabel* m_convention;
    QComboBox* m_unit;
    QList<NumberField*> m_fields;
};

} // namespace Workbench
