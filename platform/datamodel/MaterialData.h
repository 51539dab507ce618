// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <datamodel/MaterialPropertyData.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace DataModel {

/// A material of a library: its names and up to five property records, any of which may be null. Plain data; the
/// property records are shared with whoever gave or took them.
class DATAMODEL_EXPORT MaterialData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString chineseName MEMBER chineseName)
    Q_PROPERTY(QString englishName MEMBER englishName)
    Q_PROPERTY(int id MEMBER id)
    Q_PROPERTY(QSharedPointer<DataModel::MaterialPropertyData> property1 MEMBER property1)
    Q_PROPERTY(QSharedPointer<DataModel::MaterialPropertyData> property2 MEMBER property2)
    Q_PROPERTY(QSharedPointer<DataModel::MaterialPropertyData> property3 MEMBER property3)
    Q_PROPERTY(QSharedPointer<DataModel::MaterialPropertyData> property4 MEMBER property4)
    Q_PROPERTY(QSharedPointer<DataModel::MaterialPropertyData> property5 MEMBER property5)
    Q_PROPERTY(bool isDeleted MEMBER isDeleted)

public:
    /// A material without names and properties under identifier 0, which no library hands out.
    Q_INVOKABLE MaterialData() = default;
    /// A live material. The property records are shared, not copied.
    MaterialData(int id, QString chineseName, QString englishName, QSharedPointer<MaterialPropertyData> p1,
                 QSharedPointer<MaterialPropertyData> p2, QSharedPointer<MaterialPropertyData> p3,
                 QSharedPointer<MaterialPropertyData> p4, QSharedPointer<MaterialPropertyData> p5);
    ~MaterialData() override;

    /// Replaces everything but `isDeleted`. The property records are shared, not copied.
    void update(int id, QString chineseName, QString englishName, QSharedPointer<MaterialPropertyData> p1,
                QSharedPointer<MaterialPropertyData> p2, QSharedPointer<MaterialPropertyData> p3,
                QSharedPointer<MaterialPropertyData> p4, QSharedPointer<MaterialPropertyData> p5);

    QString chineseName;                            ///< shown when the interface language is "Chinese"
    QString englishName;                            ///< shown otherwise
    int id = 0;                                     ///< within its library
    QSharedPointer<MaterialPropertyData> property1; ///< first property record, or null
    QSharedPointer<MaterialPropertyData> property2; ///< second property record, or null
    QSharedPointer<MaterialPropertyData> property3; ///< third property record, or null
    QSharedPointer<MaterialPropertyData> property4; ///< fourth property record, or null
    QSharedPointer<MaterialPropertyData> property5; ///< fifth property record, or null
    bool isDeleted = false;                         ///< a tombstone: the material is gone, its identifier stays taken
};

} // namespace DataModel
