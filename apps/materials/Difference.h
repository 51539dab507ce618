// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QVector>

namespace DataModel {
class MaterialData;
}

namespace Materials {

/// One member that is not the same in two materials.
struct Difference
{
    QString member; ///< a path such as "property3.components[4]"
    QString source; ///< the value in the first material; numbers in their shortest exact form, "-" where there is none
    QString target; ///< the same in the second one
};

/// Every name and every member of the properties that differs, in the order of the record. Identifiers and tombstones
/// are not compared. Empty exactly when `compareMaterials` calls the two the same.
QVector<Difference> differences(const DataModel::MaterialData& source, const DataModel::MaterialData& target);

} // namespace Materials
