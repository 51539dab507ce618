// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace DataModel {

class MaterialPropertyData : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE MaterialPropertyData() = default;

    QString label;
    int kind = 0;
    QList<double> components;
    QString remark;
    bool flag = false;
};

} // namespace DataModel
