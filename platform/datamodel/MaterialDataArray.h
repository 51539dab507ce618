// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <datamodel/MaterialData.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>

namespace DataModel {

/// The content of a material library file.
class DATAMODEL_EXPORT MaterialDataArray : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QSharedPointer<DataModel::MaterialData>> materialList MEMBER materialList)

public:
    /// An empty library.
    Q_INVOKABLE MaterialDataArray() = default;
    ~MaterialDataArray() override = default;

    /// The materials in the order of the file, tombstones included. Entries may be null when a file says so.
    QList<QSharedPointer<MaterialData>> materialList;
};

} // namespace DataModel
