// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialDescription.h>

#include <configoption/ConfigManager.h>
#include <datamodel/MaterialData.h>

#include <QObject>

namespace DataManager {

QString describeMaterial(const DataModel::MaterialData* material)
{
    if (material == nullptr) {
        return QObject::tr("Material: Free Space");
    }
    const bool isChinese = ConfigOption::ConfigManager::getInstance()->getLanguage() == QLatin1String("Chinese");
    const QString& name = isChinese ? material->chineseName : material->englishName;
    // Listeners have always been given the name by way of UTF-8 up to its first NUL character. Coming back, a
    // byte-order mark at the beginning would be left out, which is part of the name.
    const QString mark = name.startsWith(QChar::ByteOrderMark) ? QString(QChar::ByteOrderMark) : QString();
    return QObject::tr("Material: %1").arg(mark + QString::fromUtf8(name.toUtf8().constData()));
}

} // namespace DataManager
