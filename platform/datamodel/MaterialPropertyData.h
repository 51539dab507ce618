// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <QList>
#include <QObject>
#include <QString>

namespace DataModel {

/// One property of a material, such as its relative permittivity, as a tensor in the material's own axes. Plain data,
/// shared through `QSharedPointer`; who holds the record may change it.
class DATAMODEL_EXPORT MaterialPropertyData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(int kind MEMBER kind)
    Q_PROPERTY(QList<double> components MEMBER components)
    Q_PROPERTY(QString remark MEMBER remark)
    Q_PROPERTY(bool flag MEMBER flag)

public:
    /// An unnamed property without components: kind 0, flag false.
    Q_INVOKABLE MaterialPropertyData() = default;
    ~MaterialPropertyData() override;

    QString label;            ///< what the property is, for example "relative permittivity"
    int kind = 0;             ///< the application's own number for the kind of property
    QList<double> components; ///< the 3 by 3 tensor row by row: nine values in a complete record, none in a new one
    QString remark;           ///< free text, for example the unit and the source of the values
    bool flag = false;        ///< an on/off mark of the application
};

} // namespace DataModel
