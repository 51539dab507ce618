// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// The first byte chooses a class of records, the rest is a JSON text: loaded, saved, loaded and saved again. The second
// text must be the first, in both layouts, and must hold whatever a text held that counts as covered by its record.

#include "FuzzInput.h"

#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>
#include <datamanager/material/private/RecordCoverage.h>

#include <basemodule/QJsonHelper.h>
#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialDataArray.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedPointer>
#include <QVector>

namespace {

using Classes = QVector<const QMetaObject*>;

Classes classesOf(char choice)
{
    using namespace DataModel;
    switch (choice) {
    case 'a':
        return {&MaterialDataArray::staticMetaObject, &MaterialData::staticMetaObject,
                &MaterialPropertyData::staticMetaObject};
    case 'm':
        return {&MaterialData::staticMetaObject, &MaterialPropertyData::staticMetaObject};
    case 'p':
        return {&MaterialPropertyData::staticMetaObject};
    case 'l':
        return {&ExampleLibData::staticMetaObject, &ExampleData::staticMetaObject};
    case 'e':
        return {&ExampleData::staticMetaObject};
    default:
        return {&DataManager::RelativeCoordinateSystemDateManager::staticMetaObject};
    }
}

QObject* loaded(const QByteArray& json, const QMetaObject& meta, bool& isObject)
{
    QObject* const record = meta.newInstance();
    require(record != nullptr, "a record can be made");
    isObject = QJsonHelper::DeserializerBase::deserialize(json, record, &meta);
    return record;
}

QByteArray saved(const QObject& record, const QMetaObject& meta, bool isIndented)
{
    const QByteArray json = QJsonHelper::SerializerBase::serialize(&record, meta, isIndented);
    require(!json.isEmpty(), "a record can be saved");
    return json;
}

qint64 numberCount(const QJsonValue& value)
{
    qint64 count = 0;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            const bool isList = member.key() == QLatin1String("components");
            count += isList ? member.value().toArray().size() : numberCount(member.value());
        }
    }
    for (const QJsonValue element : value.toArray()) {
        count += numberCount(element);
    }
    return count;
}

/// Numbers and texts that stand for the same double count as one.
bool isNumberText(const QJsonValue& value)
{
    return value.isDouble() || value.toString().startsWith(QLatin1String("NaN")) ||
           value.toString() == QLatin1String("-0");
}

/// Whether all that `whole` holds stands in `copy`, too.
bool holds(const QJsonValue& copy, const QJsonValue& whole)
{
    if (whole.isObject()) {
        const QJsonObject object = whole.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            if (!holds(copy.toObject().value(member.key()), member.value())) {
                return false;
            }
        }
        return copy.isObject();
    }
    if (whole.isArray()) {
        const QJsonArray elements = whole.toArray();
        const QJsonArray copies = copy.toArray();
        bool isSame = elements.size() == copies.size();
        for (int i = 0; isSame && i < elements.size(); ++i) {
            isSame = holds(copies.at(i), elements.at(i));
        }
        return isSame;
    }
    return copy == whole || (isNumberText(copy) && isNumberText(whole));
}

/// The library's own question before it replaces a file: would anything of it be lost?
void checkCoverage(const QByteArray& json, const QByteArray& copy, const Classes& classes)
{
    const QJsonDocument whole = QJsonDocument::fromJson(json);
    if (!whole.isObject()) {
        return;
    }
    const DataManager::RecordCoverage coverage = DataManager::recordCoverage(json, classes);
    const QJsonObject again = QJsonDocument::fromJson(copy).object();
    if (coverage.isComplete && coverage.valueCount == numberCount(again)) {
        require(holds(again, whole.object()), "a covered text loses nothing");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const Classes classes = classesOf(input.take<char>());
    const QMetaObject& meta = *classes.first();
    const QByteArray json = input.takeRest();
    bool isObject = false;
    const QScopedPointer<QObject> first(loaded(json, meta, isObject));
    require(isObject == QJsonDocument::fromJson(json).isObject(), "an object is told from other texts");
    const QByteArray compact = saved(*first, meta, false);
    const QByteArray indented = saved(*first, meta, true);
    const QScopedPointer<QObject> second(loaded(indented, meta, isObject));
    require(isObject, "what is saved can be loaded");
    QByteArray again = saved(*second, meta, false);
#ifdef FUZZ_DEFECT
    again.replace("\"kind\":", "\"kinds\":");
#endif
    require(again == compact, "the second save is the first");
    // The record of the coordinate systems is not asked about its coverage.
    if (&meta != &DataManager::RelativeCoordinateSystemDateManager::staticMetaObject) {
        checkCoverage(json, compact, classes);
        require(DataManager::recordCoverage(compact, classes).isComplete, "what is saved counts as covered");
    }
    return 0;
}
