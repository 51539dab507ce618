// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/MaterialLibType.h>
#include <datamodel/MaterialData.h>
#include <support/FilesAndLog.h>

#include <QByteArray>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// Gives every test function a project directory, an application directory without libraries and, through private
/// access, managers of its own.
class MaterialFixture
{
public:
    using Manager = DataManager::MaterialLibraryManager;
    using Property = QSharedPointer<DataModel::MaterialPropertyData>;

    MaterialFixture();
    ~MaterialFixture();

    /// A manager as a new process would have it. Without a software library file it logs one line, which is declared.
    Manager* newManager();
    Manager& manager() { return *m_managers.back(); }

    static QString softwarePath();
    QString projectPath() const;
    QString projectDirectory() const { return m_projectDirectory->path(); }

    /// A record with nine components that start with `first`.
    static Property property(const QString& label, double first);
    void createProject(const QString& name);
    void createSoftware(const QString& name);

    /// "1:steel 2:copper(deleted) next 3": identifiers, English names and the next identifier.
    static QString state(Manager& manager, BaseModule::MaterialLibType type);
    QString project() { return state(manager(), BaseModule::ProjectLib); }
    QString software() { return state(manager(), BaseModule::SoftwareLib); }

private:
    std::vector<Manager*> m_managers;
    std::unique_ptr<QTemporaryDir> m_projectDirectory;
};

/// Every hub signal of the material manager in order, with its arguments and the project library's state behind it.
class HubLog : public QObject
{
    Q_OBJECT

public:
    explicit HubLog(DataManager::MaterialLibraryManager& manager);
    QStringList take();

private:
    QStringList m_lines;
};

/// What stands in the file of a project library.
QByteArray enciphered(const QByteArray& json);
/// The library file's content as JSON whatever the development setting.
QByteArray decipheredContentOf(const QString& path);

/// Declares the line of the cipher for a text that it refuses.
void expectRefusedCipherText();
