// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

namespace DataModel {

class ExampleLibData : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE ExampleLibData() = default;
};

} // namespace DataModel
