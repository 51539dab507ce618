// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMap>
#include <QString>

namespace Workbench {

/// Where the materials of the project came from, as far as the workbench saw it: kept in the project's working
/// directory, MaterialOrigins.json, and so in the project.
class MaterialOrigins
{
public:
    struct Origin
    {
        enum Source : int
        {
            Unknown,  ///< it came when nobody looked
            Created,  ///< made in this project
            Software, ///< copied from the software library
        };
        Source source = Unknown;
        /// The identifier and the English name that it had in the software library.
        int sourceID = 0;
        QString sourceName;
        /// Whether it was edited after it was copied.
        bool isEdited = false;
    };

    Origin of(int id) const { return m_origins.value(id); }
    void set(int id, const Origin& origin);
    void markEdited(int id);
    void forget(int id);

    /// From and to the working directory. What cannot be read there counts as unknown: such a file stays as long as
    /// nothing takes its place, and is then copied to "MaterialOrigins.json.unreadable". False when the file that is
    /// wanted, or the copy, cannot be written.
    void read();
    bool write();
    /// Forgets all and removes the file.
    void clear();

private:
    QMap<int, Origin> m_origins;
    /// Whether all that the file says is here, or was copied.
    bool m_isFileHeld = true;
};

} // namespace Workbench
