// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialLibraryFile.h>

#include <datamanager/frame/RecordReader.h>
#include <datamanager/material/private/LibraryFile.h>
#include <datamanager/material/private/RecordCoverage.h>

#include <basemodule/GlobalConfig.h>
#include <basemodule/SerializerBase.h>
#include <configoption/TextCipher.h>
#include <datamodel/MaterialDataArray.h>

#include <QDebug>

#include <new>

namespace DataManager {

namespace {

using DataModel::MaterialData;
using DataModel::MaterialDataArray;
using DataModel::MaterialPropertyData;

bool isEnciphered(const MaterialLibraryKind& kind)
{
    return kind.isEnciphered && !GlobalConfig::getIsDevelop();
}

/// UTF-8 as it stands: QString::fromUtf8(QByteArray) ends at a NUL and leaves out a byte-order mark at the beginning,
/// and so would make a good cipher text of a changed one.
QString textOf(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    return bytes.startsWith("\xef\xbb\xbf") ? QChar(QChar::ByteOrderMark) + text : text;
}

QByteArray decipher(const QByteArray& bytes)
{
    return ConfigOption::TextCipher::getInstance()->decryptData_CBC(textOf(bytes)).toUtf8();
}

QByteArray encipher(const QByteArray& json)
{
    return ConfigOption::TextCipher::getInstance()->encryptData_CBC(textOf(json)).toUtf8();
}

LibraryFile libraryFile(const QString& path, const MaterialLibraryKind& kind)
{
    return {path,
            {&MaterialDataArray::staticMetaObject, &MaterialData::staticMetaObject,
             &MaterialPropertyData::staticMetaObject},
            isEnciphered(kind) ? &decipher : nullptr};
}

void logPath(const char* text, const QString& path)
{
    qDebug().noquote() << QString::fromUtf8(text).arg(path);
}

qint64 componentCount(const MaterialData& material)
{
    qint64 count = 0;
    for (const auto& property :
         {material.property1, material.property2, material.property3, material.property4, material.property5}) {
        count += property.isNull() ? 0 : property->components.size();
    }
    return count;
}

/// Whether the library would be written back without losing anything of the text. `null` in place of a material is
/// nothing to lose.
bool isWhole(const MaterialMap& materials, const MaterialDataArray& content, const QByteArray& json,
             const LibraryFile& file)
{
    const RecordCoverage coverage = recordCoverage(json, file.classes);
    if (!coverage.isComplete) {
        return !file.isComparable(content);
    }
    qint64 components = 0;
    for (const auto& material : materials) {
        components += componentCount(*material);
    }
    const int count = content.materialList.size() - content.materialList.count(nullptr);
    return coverage.valueCount == components && count == materials.size();
}

/// False when no record could be made of the bytes.
bool parse(const MaterialLibrary& library, const LibraryFile& file, const QByteArray& bytes)
{
    const QByteArray json = isEnciphered(library.kind) ? decipher(bytes) : bytes;
    bool isParsed = false;
    const auto content = readRecord<MaterialDataArray>(json, &isParsed);
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
    if (isParsed && isWhole(library.materials, *content, json, file)) {
        file.markHeld();
    }
    return true;
}

/// As `parse`; a content that does not fit into the memory leaves an empty library.
bool parseWithinMemory(const MaterialLibrary& library, const LibraryFile& file, const QByteArray& bytes)
{
    try {
        return parse(library, file, bytes);
    } catch (const std::bad_alloc&) {
        library.materials.clear();
        return true;
    }
}

QByteArray jsonOf(const MaterialMap& materials)
{
    MaterialDataArray content;
    content.materialList = materials.values();
    return QJsonHelper::SerializerBase::serialize(&content, MaterialDataArray::staticMetaObject, false);
}

} // namespace

void loadMaterialLibrary(MaterialLibrary library, const QString& path)
{
    library.materials.clear();
    const LibraryFile file = libraryFile(path, library.kind);
    QByteArray bytes;
    const bool isRead = file.read(bytes);
    if (!isRead) {
        logPath(library.kind.readFailure, path);
    }
    const bool isParsing = isRead || library.kind.isApplicationWide;
    if (isParsing && !parseWithinMemory(library, file, bytes) && library.kind.isApplicationWide) {
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

void removeMaterialLibrary(const MaterialLibraryKind& kind, const QString& path)
{
    if (!libraryFile(path, kind).remove()) {
        logPath(kind.removeFailure, path);
    }
}

} // namespace DataManager
