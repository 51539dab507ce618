// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace DataModel {
class ExampleLibData;
}

namespace DataManager {

/// Keeps the application's example library: one record, shared with the callers, that `saveData` writes as it is then.
/// Failures of files and JSON go to the debug log. A file that was not loaded, or not without loss, is copied to
/// "<name>.unreadable" before it is replaced. All calls come from the user-interface thread.
class DATAMANAGER_EXPORT ExampleLibraryManager : public QObject
{
    Q_OBJECT

public:
    /// The manager, created by the first call, which loads "ConfigFiles/ExampleLibrary.json" beside the application;
    /// never destroyed.
    static ExampleLibraryManager* getInstance();

    /// The record that the manager holds; without a readable file it has its default values.
    QSharedPointer<DataModel::ExampleLibData> getExampleLibData();

    /// Writes the record to the file that it was loaded from.
    void saveData();

private:
    ExampleLibraryManager();
    ~ExampleLibraryManager() override = default;

    static ExampleLibraryManager* m_instance;

    QString m_exampleLibPath;
    QSharedPointer<DataModel::ExampleLibData> m_exampleLibData;
};

} // namespace DataManager
