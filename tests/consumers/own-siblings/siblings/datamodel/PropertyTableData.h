// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>
#include <QString>

namespace DataModel {

class PropertyTableData : public QObject
{
    Q_OBJECT

public:
    void removeAllRowData() {}
    void appendRowKeyValue(QString, QString, bool) {}
};

} // namespace DataModel
