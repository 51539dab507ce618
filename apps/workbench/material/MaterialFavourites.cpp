// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialFavourites.h>

#include <QSettings>
#include <QStringList>

namespace Workbench {

namespace {

QString key(BaseModule::MaterialLibType type)
{
    return type == BaseModule::ProjectLib ? QStringLiteral("materials/projectFavourites")
                                          : QStringLiteral("materials/softwareFavourites");
}

} // namespace

QSet<QString> MaterialFavourites::names(BaseModule::MaterialLibType type)
{
    const QStringList stored = QSettings().value(key(type)).toStringList();
    return {stored.begin(), stored.end()};
}

void MaterialFavourites::mark(BaseModule::MaterialLibType type, const QSet<QString>& names, bool areFavourites)
{
    QSet<QString> marked = MaterialFavourites::names(type);
    if (areFavourites) {
        marked += names;
    } else {
        marked -= names;
    }
    QStringList stored = marked.values();
    stored.sort();
    QSettings().setValue(key(type), stored);
}

void MaterialFavourites::rename(BaseModule::MaterialLibType type, const QString& from, const QString& to)
{
    if (from != to && names(type).contains(from)) {
        mark(type, {from}, false);
        mark(type, {to}, true);
    }
}

} // namespace Workbench
