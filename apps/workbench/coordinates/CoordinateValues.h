// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QTableWidget;

namespace Workbench {

/// The values of one coordinate system: origin and rotation in its basic system beside those in global coordinates, and
/// the library's property table.
class CoordinateValues : public QWidget
{
    Q_OBJECT

public:
    explicit CoordinateValues(QWidget* parent);

    /// Shows the present state of a system; nothing when there is none.
    void show(int id);
    void retranslate();

private:
    void showValues(int id);
    void showProperties(int id);

    QTableWidget* m_values;
    QTableWidget* m_properties;
};

} // namespace Workbench
