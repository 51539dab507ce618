// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QSet>
#include <QString>

namespace Workbench {

/// The materials that the user marked as favourites, for each library by their English names, which are unique there:
/// identifiers are given again, and another project has others. They are kept in the settings.
class MaterialFavourites
{
public:
    static QSet<QString> names(BaseModule::MaterialLibType type);
    static void mark(BaseModule::MaterialLibType type, const QSet<QString>& names, bool areFavourites);
    /// A material keeps its mark when it is renamed.
    static void rename(BaseModule::MaterialLibType type, const QString& from, const QString& to);
};

} // namespace Workbench
