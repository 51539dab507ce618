// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/LibraryCheck.h>

class QJsonValue;
struct QMetaObject;

namespace Materials {

/// A number without fraction that fits an `int`.
bool isIdentifier(const QJsonValue& value);

/// What is wrong, of a source text in the context "materials".
Console::Message fault(const char* source, const QStringList& values = {});

/// Members that the record does not have or lacks.
void checkMembers(QVector<Fault>& faults, const QString& place, const QJsonObject& record, const QMetaObject& meta);

/// A property of a material, which may also be null.
void checkProperty(QVector<Fault>& faults, const QString& place, const QJsonValue& property);

} // namespace Materials
