// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/MaterialJson.h>

#include <materials/LibraryText.h>

#include <basemodule/DeserializerBase.h>
#include <basemodule/SerializerBase.h>
#include <datamodel/MaterialDataArray.h>

#include <QJsonDocument>

namespace Materials {

QJsonObject materialJson(const DataModel::MaterialData& material)
{
    const QMetaObject& meta = DataModel::MaterialData::staticMetaObject;
    return QJsonDocument::fromJson(QJsonHelper::SerializerBase::serialize(&material, meta, false)).object();
}

QByteArray libraryJson(const QList<Material>& materials)
{
    DataModel::MaterialDataArray library;
    library.materialList = materials;
    return QJsonHelper::SerializerBase::serialize(&library, DataModel::MaterialDataArray::staticMetaObject, true);
}

QList<Material> readMaterialJson(const QString& path, const QByteArray& json, QString& fault)
{
    fault = parseLibraryText(path, json).fault;
    if (!fault.isEmpty()) {
        return {};
    }
    DataModel::MaterialDataArray library;
    QJsonHelper::DeserializerBase::deserialize(json, &library, &DataModel::MaterialDataArray::staticMetaObject);
    QList<Material> materials;
    for (const Material& material : qAsConst(library.materialList)) {
        if (!material.isNull() && !material->isDeleted) {
            materials.append(material);
        }
    }
    return materials;
}

} // namespace Materials
