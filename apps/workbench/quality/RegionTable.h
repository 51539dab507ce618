// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QTableWidget>

namespace Workbench {

/// A row of figures for each physical group of the mesh.
class RegionTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit RegionTable(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void fill();
};

} // namespace Workbench
