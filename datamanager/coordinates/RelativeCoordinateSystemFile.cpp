// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDateManager.h>
#include <datamanager/coordinates/private/StoredSystems.h>
#include <datamanager/frame/RecordReader.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <basemodule/QJsonHelper.h>

#include <QDebug>
#include <QFileInfo>

#include <new>

using BaseModule::GlobalHelper;

namespace DataManager {

namespace {

QString filePath()
{
    return GlobalHelper::getProjectTempIODir() + QStringLiteral("/RelativeCoordinateSystemDate.json");
}

} // namespace

void RelativeCoordinateSystemDate::writeConfig()
{
    if (m_dataManager.isNull()) {
        m_dataManager.reset(new RelativeCoordinateSystemDateManager);
    } else {
        m_dataManager->clear();
    }
    storeSystems(m_coordinateSystemList, *m_dataManager);
    const QByteArray json = QJsonHelper::SerializerBase::serialize(
        m_dataManager.data(), RelativeCoordinateSystemDateManager::staticMetaObject, true);
    GlobalHelper::writeFile(filePath(), json, QIODevice::WriteOnly | QIODevice::Truncate);
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_updateWindowTitle();
}

void RelativeCoordinateSystemDate::readConfig()
{
    QByteArray json;
    if (!GlobalHelper::readFile(filePath(), json)) {
        return;
    }
    const auto record = readRecord<RelativeCoordinateSystemDateManager>(json);
    if (record.isNull()) {
        qDebug() << "deserialize RelativeCoordinateSystemDate fail !";
        return;
    }
    m_dataManager = record;
    for (int i = 1; i < m_coordinateSystemList.size(); ++i) {
        m_coordinateSystemList.removeAt(i);
    }
    // A copy, because every append below writes the record anew.
    const StoredSystems stored(*record);
    const int keptCount = m_coordinateSystemList.size();
    try {
        for (int i = 0; i < stored.count(); ++i) {
            appendCoordinateSystem(stored.rebuild(i));
        }
    } catch (const std::bad_alloc&) {
        // A content that does not fit into the memory is read like an empty one, and stays in the file.
        while (m_coordinateSystemList.size() > keptCount) {
            delete m_coordinateSystemList.takeLast();
        }
        GlobalHelper::writeFile(filePath(), json, QIODevice::WriteOnly | QIODevice::Truncate);
    }
}

void RelativeCoordinateSystemDate::dataToByteArray(QByteArray* out)
{
    if (out == nullptr || m_coordinateSystemList.isEmpty()) {
        return;
    }
    if (!QFileInfo::exists(filePath())) {
        writeConfig();
    }
    QByteArray json;
    if (GlobalHelper::readFile(filePath(), json)) {
        out->append(json);
    }
}

} // namespace DataManager
