// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <datamodel/ExampleData.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>

namespace DataModel {

/// The content of the example library file.
class DATAMODEL_EXPORT ExampleLibData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QSharedPointer<DataModel::ExampleData>> exampleList MEMBER exampleList)

public:
    /// A library without examples.
    Q_INVOKABLE ExampleLibData() = default;
    ~ExampleLibData() override = default;

    /// The examples in the order in which they are offered. Entries may be null when a file says so.
    QList<QSharedPointer<ExampleData>> exampleList;
};

} // namespace DataModel
