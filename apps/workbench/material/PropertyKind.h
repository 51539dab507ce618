// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QVector>

namespace Workbench {

/// A quantity of the default material library. A record stores its number; other numbers are kept as they are.
struct PropertyKind
{
    int number;
    QString label; ///< as the library's records name it; not translated, because it is stored
    QString unit;
};

const QVector<PropertyKind>& propertyKinds();

/// The quantity as records name it; empty for an unknown number.
QString propertyKindLabel(int number);

/// The quantity for the user; empty for an unknown number.
QString propertyKindTitle(int number);

/// The unit of a property: the one that the remark states as "unit X", or else that of its kind; empty when neither
/// tells.
QString propertyUnit(int kind, const QString& remark);

} // namespace Workbench
