// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialLibraryFile.h>

#include <datamanager/frame/RecordReader.h>
#include <datamanager/material/private/LibraryFile.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/SerializerBase.h>
#include <configoption/TextCipher.h>
#include <datamodel/MaterialDataArray.h>

#include <QDebug>

namespace DataManager {

namespace {

bool isEnciphered(const MaterialLibraryKind& kind)
{
    return kind.isEnciphered && !GlobalConfig::getIsDevelop();
}

QByteArray decipher(const QByteArray& bytes)
{
    return ConfigOption::TextCipher::getInstance()->decryptData_CBC(QString::fromUtf8(bytes)).toUtf8();
}

QByteArray encipher(const QByteArray& json)
{
    return ConfigOption::TextCipher::getInstance()->encryptData_CBC(QString::fromUtf8(json)).toUtf8();
}

LibraryFile libraryFile(const QString& path, const MaterialLibraryKind& kind)
{
    return {path, QStringLiteral("materialList"), isEnciphered(kind) ? &decipher : nullptr};
}

void logPath(const char* text, const QString& path)
{
    qDebug().noquote() << QString::fromUtf8(text).arg(path);
}

/// False when no record could be made of the bytes.
bool parse(const MaterialLibrary& library, const QString& path, const QByteArray& bytes)
{
    bool isParsed = false;
    const auto content =
        readRecord<DataModel::MaterialDataArray>(isEnciphered(library.kind) ? decipher(bytes) : bytes, &isParsed);
    if (!isParsed) {
        libraryFile(path, library.kind).markUnreadable();
    }
    if (content.isNull()) {
        qDebug() << library.kind.deserializeFailure;
        return false;
    }
    for (const auto& material : qAsConst(content->materialList)) {
        // A damaged file may hold `null` in place of a material.
        if (!material.isNull()) {
            library.materials.insert(material->id, material);
        }
    }
    return true;
}

QByteArray jsonOf(const MaterialMap& materials)
{
    DataModel::MaterialDataArray content;
    content.materialList = materials.values();
    return QJsonHelper::SerializerBase::serialize(&content, DataModel::MaterialDataArray::staticMetaObject, false);
}

} // namespace

void loadMaterialLibrary(MaterialLibrary library, const QString& path)
{
    library.materials.clear();
    QByteArray bytes;
    const bool isRead = BaseModule::GlobalHelper::readFile(path, bytes);
    if (!isRead) {
        logPath(library.kind.readFailure, path);
    }
    const bool isParsing = isRead || library.kind.isApplicationWide;
    if (isParsing && !parse(library, path, bytes) && library.kind.isApplicationWide) {
        return;
    }
    library.nextID = library.materials.size() + 1;
}

void saveMaterialLibrary(const MaterialMap& materials, const MaterialLibraryKind& kind, const QString& path)
{
    QByteArray bytes = jsonOf(materials);
    if (bytes.isEmpty()) {
        qDebug() << kind.serializeFailure;
        return;
    }
    if (isEnciphered(kind)) {
        bytes = encipher(bytes);
    }
    // No bytes mean that enciphering failed: the file keeps what it has.
    if (bytes.isEmpty() || !libraryFile(path, kind).write(bytes)) {
        logPath(kind.writeFailure, path);
    }
}

} // namespace DataManager
