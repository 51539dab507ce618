// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSharedPointer>
#include <QString>

namespace DataModel {
class MaterialPropertyData;
}

namespace DataManager {

/// The line of text that stands for a material property in the user interface.
namespace MaterialPropertyText {

/// Empty when the property has not nine components.
QString write(const DataModel::MaterialPropertyData& property);

/// Null when the text stands for no property.
QSharedPointer<DataModel::MaterialPropertyData> read(const QString& text);

} // namespace MaterialPropertyText

} // namespace DataManager
