// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/private/LineSource.h>

#include <QMap>
#include <QString>

namespace DataManager {

/// What stands in a mesh file before its nodes: the format, and the names of the volume groups.
class MeshHeader
{
public:
    /// Takes the next line that is outside of nodes and elements. False when the file is in a format that cannot be
    /// read.
    bool take(TextRange line);

    /// Whether the file says that it is MSH 2 in ASCII.
    bool isReadable() const;
    /// The format in words, such as "MSH 4.1 binary".
    QString formatText() const;
    /// By physical tag.
    const QMap<int, QString>& groupNames() const { return m_groupNames; }

private:
    enum class Section : int
    {
        Other,
        Format,
        GroupNames
    };

    void takeFormat(const QString& line);
    void takeGroupName(const QString& line);

    Section m_section = Section::Other;
    bool m_isFormatAnnounced = false;
    bool m_isFormatBlank = false;
    QString m_version;
    QString m_fileType;
    QMap<int, QString> m_groupNames;
};

} // namespace DataManager
