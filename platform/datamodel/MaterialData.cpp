// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/MaterialData.h>

#include <basemodule/RecordType.h>

#include <utility>

namespace DataModel {

namespace {
// Runs in a static link, too: the destructor below is out of line, so that whoever uses the class links this file.
[[maybe_unused]] const bool isRegistered = QJsonHelper::registerRecordType<MaterialData>();
} // namespace

MaterialData::~MaterialData() = default;

MaterialData::MaterialData(int newID, QString newChineseName, QString newEnglishName,
                           QSharedPointer<MaterialPropertyData> p1, QSharedPointer<MaterialPropertyData> p2,
                           QSharedPointer<MaterialPropertyData> p3, QSharedPointer<MaterialPropertyData> p4,
                           QSharedPointer<MaterialPropertyData> p5)
{
    update(newID, std::move(newChineseName), std::move(newEnglishName), std::move(p1), std::move(p2), std::move(p3),
           std::move(p4), std::move(p5));
}

void MaterialData::update(int newID, QString newChineseName, QString newEnglishName,
                          QSharedPointer<MaterialPropertyData> p1, QSharedPointer<MaterialPropertyData> p2,
                          QSharedPointer<MaterialPropertyData> p3, QSharedPointer<MaterialPropertyData> p4,
                          QSharedPointer<MaterialPropertyData> p5)
{
    id = newID;
    chineseName = std::move(newChineseName);
    englishName = std::move(newEnglishName);
    property1 = std::move(p1);
    property2 = std::move(p2);
    property3 = std::move(p3);
    property4 = std::move(p4);
    property5 = std::move(p5);
}

} // namespace DataModel
