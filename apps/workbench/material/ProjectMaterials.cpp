// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/ProjectMaterials.h>

#include <datamanager/frame/RecordReader.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/SerializerBase.h>
#include <configoption/TextCipher.h>
#include <datamodel/MaterialDataArray.h>

#include <QFileInfo>

namespace Workbench {

using DataModel::MaterialDataArray;

namespace {

using Materials = QMap<int, QSharedPointer<DataModel::MaterialData>>;

QByteArray jsonOf(const Materials& materials)
{
    MaterialDataArray content;
    content.materialList = materials.values();
    return QJsonHelper::SerializerBase::serialize(&content, MaterialDataArray::staticMetaObject, false);
}

// As the library reads it.
Materials read(const QByteArray& bytes)
{
    const QByteArray json =
        GlobalConfig::getIsDevelop()
            ? bytes
            : ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(bytes)).toUtf8();
    Materials materials;
    if (json.isEmpty()) {
        return materials;
    }
    if (const auto content = DataManager::readRecord<MaterialDataArray>(json)) {
        for (const auto& material : qAsConst(content->materialList)) {
            if (material) {
                materials.insert(material->id, material);
            }
        }
    }
    return materials;
}

} // namespace

bool isProjectInFile(const Materials& materials)
{
    const QString path = BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/MaterialLibrary.json");
    QByteArray bytes;
    return QFileInfo(path).isFile() && BaseModule::GlobalHelper::readFile(path, bytes) &&
           jsonOf(read(bytes)) == jsonOf(materials);
}

} // namespace Workbench
