// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <QObject>
#include <QString>

namespace DataModel {

/// One example project that the application offers, described in both interface languages. Plain data. Paths are
/// relative to the directory of the example library file; one project or picture may serve both languages.
class DATAMODEL_EXPORT ExampleData : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString chineseTitle MEMBER chineseTitle)
    Q_PROPERTY(QString englishTitle MEMBER englishTitle)
    Q_PROPERTY(QString chineseDescription MEMBER chineseDescription)
    Q_PROPERTY(QString englishDescription MEMBER englishDescription)
    Q_PROPERTY(QString chineseCategory MEMBER chineseCategory)
    Q_PROPERTY(QString englishCategory MEMBER englishCategory)
    Q_PROPERTY(QString chineseProjectPath MEMBER chineseProjectPath)
    Q_PROPERTY(QString englishProjectPath MEMBER englishProjectPath)
    Q_PROPERTY(QString chinesePicturePath MEMBER chinesePicturePath)
    Q_PROPERTY(QString englishPicturePath MEMBER englishPicturePath)

public:
    /// An example without any text.
    Q_INVOKABLE ExampleData() = default;
    ~ExampleData() override;

    QString chineseTitle;       ///< shown when the interface language is "Chinese"
    QString englishTitle;       ///< shown when the interface language is not "Chinese"
    QString chineseDescription; ///< one or two sentences about it
    QString englishDescription; ///< one or two sentences about it
    QString chineseCategory;    ///< the group under which the example is listed
    QString englishCategory;    ///< the group under which the example is listed
    QString chineseProjectPath; ///< the project to open
    QString englishProjectPath; ///< the project to open
    QString chinesePicturePath; ///< empty when there is no picture
    QString englishPicturePath; ///< empty when there is no picture
};

} // namespace DataModel
