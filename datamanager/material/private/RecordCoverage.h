// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QVector>

class QByteArray;
struct QMetaObject;

namespace DataManager {

/// Whether records take up all that a JSON text holds, so that writing them back loses nothing.
struct RecordCoverage
{
    bool isComplete;   ///< the root has all its members; every member is known, stands once and has its property's type
    qint64 valueCount; ///< elements of lists of numbers: one that is no number empties its list when it is read
};

/// The coverage of a JSON text, which must parse. `classes` are the class of the record at the root, of the records in
/// its properties, and so on. One pass without copies.
RecordCoverage recordCoverage(const QByteArray& json, const QVector<const QMetaObject*>& classes);

} // namespace DataManager
