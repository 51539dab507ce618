// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <basemodule/GlobalHelper.h>

#include <datamodel/SelectedDataBase.h>

#include <support/SignalLog.h>

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>

/// An empty registry and an empty project directory, for the time of one test function. Needs private access.
class RegistryFixture
{
public:
    using System = DataManager::RelativeCoordinateSystem;
    using Registry = DataManager::RelativeCoordinateSystemDate;

    /// The project directory is made below `parent`.
    explicit RegistryFixture(const QString& parent = quickDirectory())
        : m_directory(parent + QStringLiteral("/coordinates-XXXXXX"))
    {
        destroyRegistry();
        System::resetMaxID();
        BaseModule::GlobalHelper::setProjectTempIODir(m_directory.path());
    }
    ~RegistryFixture()
    {
        destroyRegistry();
        BaseModule::GlobalHelper::setProjectTempIODir(QString());
    }

    static Registry* registry() { return Registry::getInstance(); }

    /// Destroys the registry with its systems; the next access creates a new one.
    static void destroyRegistry()
    {
        delete Registry::_instance;
        Registry::_instance = nullptr;
    }

    /// A registered system without chains; the file is not written.
    static System* add(int id, int basicID = 0)
    {
        auto* const system = new System;
        system->setID(id);
        system->setBasicCoordinateSystemID(basicID);
        registry()->m_coordinateSystemList.append(system);
        return system;
    }

    static QList<int> ids()
    {
        QList<int> list;
        for (int i = 0; i < registry()->getRelativeCoordinateSystemDateCount(); ++i) {
            list.append(registry()->getCoordinateSystemByIndex(i)->getID());
        }
        return list;
    }

    QString path() const { return m_directory.path() + QStringLiteral("/RelativeCoordinateSystemDate.json"); }
    bool hasFile() const { return QFile::exists(path()); }
    QByteArray fileContent() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool setFileContent(const QByteArray& content) const
    {
        QFile file(path());
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
    }

private:
    /// In memory where the system offers enough of it: every write waits for its disk, and there are thousands.
    static QString quickDirectory()
    {
        constexpr qint64 enough = 32 * 1024 * 1024;
        const QString memory = QStringLiteral("/dev/shm");
        QTemporaryFile probe(memory + QStringLiteral("/coordinates-XXXXXX"));
        return probe.open() && QStorageInfo(memory).bytesAvailable() >= enough ? memory : QDir::tempPath();
    }

    QTemporaryDir m_directory;
};

inline QString textOf(const QList<int>& ids)
{
    QStringList texts;
    for (const int id : ids) {
        texts.append(QString::number(id));
    }
    return QLatin1Char('[') + texts.join(QLatin1Char(',')) + QLatin1Char(']');
}

/// Every signal of the registry and of the hub in one log, each with the IDs that are registered and the current ID at
/// that moment. Belongs to the registry that exists when it is made.
class RegistryLog : public QObject
{
public:
    RegistryLog()
    {
        using Registry = DataManager::RelativeCoordinateSystemDate;
        connect(Registry::getInstance(), &Registry::signal_dataChanged, this,
                [this](const QList<int>& ids) { m_log.append(QStringLiteral("changed ") + textOf(ids)); });
        connect(Registry::getInstance(), &Registry::signal_dataDeleted, this,
                [this](const QList<int>& ids) { m_log.append(QStringLiteral("deleted ") + textOf(ids)); });
    }

    QStringList take() { return m_log.take(); }

private:
    static QString state()
    {
        const int current = RegistryFixture::registry()->getCurrentCoordinateSystemID();
        return textOf(RegistryFixture::ids()) + QStringLiteral(" at ") + QString::number(current);
    }

    SignalLog m_log{state};
};
