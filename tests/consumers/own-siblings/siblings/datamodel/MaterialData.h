// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/MaterialPropertyData.h>

#include <QSharedPointer>

namespace DataModel {

class MaterialData : public QObject
{
    Q_OBJECT

public:
    using Property = QSharedPointer<MaterialPropertyData>;

    MaterialData(int number, QString chinese, QString english, Property p1, Property p2, Property p3, Property p4,
                 Property p5)
    {
        update(number, chinese, english, p1, p2, p3, p4, p5);
    }

    void update(int number, QString chinese, QString english, Property p1, Property p2, Property p3, Property p4,
                Property p5)
    {
        id = number;
        chineseName = chinese;
        englishName = english;
        property1 = p1;
        property2 = p2;
        property3 = p3;
        property4 = p4;
        property5 = p5;
    }

    QString chineseName;
    QString englishName;
    int id = 0;
    Property property1;
    Property property2;
    Property property3;
    Property property4;
    Property property5;
    bool isDeleted = false;
};

} // namespace DataModel
