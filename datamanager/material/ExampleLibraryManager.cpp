// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/ExampleLibraryManager.h>

#include <datamanager/frame/RecordReader.h>
#include <datamanager/frame/Singleton.h>
#include <datamanager/material/private/LibraryFile.h>
#include <datamanager/material/private/RecordCoverage.h>

#include <basemodule/SerializerBase.h>
#include <datamodel/ExampleLibData.h>

#include <QCoreApplication>
#include <QDebug>

#include <new>
#include <type_traits>
#include <utility>

namespace DataManager {

namespace {

using DataModel::ExampleLibData;

/// The class of the library and that of its examples, if it has a list of them: an application's own record library may
/// keep them otherwise.
template <class Library, class Example = std::decay_t<decltype(*std::declval<Library&>().exampleList.first())>>
QVector<const QMetaObject*> recordClasses(const Library*)
{
    return {&Library::staticMetaObject, &Example::staticMetaObject};
}

[[maybe_unused]] QVector<const QMetaObject*> recordClasses(const QObject*)
{
    return {&ExampleLibData::staticMetaObject};
}

LibraryFile libraryFile(const QString& path)
{
    return {path, recordClasses(static_cast<const ExampleLibData*>(nullptr)), nullptr};
}

bool isWhole(const LibraryFile& file, const QByteArray& json, const ExampleLibData& record)
{
    try {
        return recordCoverage(json, file.classes).isComplete || !file.isComparable(record);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace

ExampleLibraryManager* ExampleLibraryManager::m_instance = nullptr;

ExampleLibraryManager* ExampleLibraryManager::getInstance()
{
    return singleton(m_instance, [] { return new ExampleLibraryManager; });
}

ExampleLibraryManager::ExampleLibraryManager()
    : m_exampleLibPath(QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/ExampleLibrary.json"))
{
    const LibraryFile file = libraryFile(m_exampleLibPath);
    QByteArray bytes;
    if (!file.read(bytes)) {
        qDebug().noquote() << QStringLiteral("read Example file fail, please check path: %1").arg(m_exampleLibPath);
    }
    bool isParsed = false;
    m_exampleLibData = readRecord<DataModel::ExampleLibData>(bytes, &isParsed);
    if (m_exampleLibData.isNull()) {
        qDebug() << "deserialize Example fail !";
    } else if (isParsed && isWhole(file, bytes, *m_exampleLibData)) {
        file.markHeld();
    }
}

QSharedPointer<DataModel::ExampleLibData> ExampleLibraryManager::getExampleLibData()
{
    return m_exampleLibData;
}

void ExampleLibraryManager::saveData()
{
    const QByteArray json = QJsonHelper::SerializerBase::serialize(m_exampleLibData.data(),
                                                                   DataModel::ExampleLibData::staticMetaObject, false);
    if (json.isEmpty()) {
        qDebug() << "serialize Example fail !";
        return;
    }
    if (!libraryFile(m_exampleLibPath).write(json)) {
        qDebug().noquote() << QStringLiteral("write Example file fail, please check path: %1").arg(m_exampleLibPath);
    }
}

} // namespace DataManager
