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
    const QByteArray name = (isChinese ? material->chineseName : material->englishName).toUtf8();
    // Listeners have always been given the name up to its first NUL character.
    return QObject::tr("Material: %1").arg(QString::fromUtf8(name.constData()));
}

} // namespace DataManager
