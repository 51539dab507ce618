// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Material.h>
#include <workbench/material/MaterialOrigins.h>

#include <QList>
#include <QObject>
#include <QPair>
#include <QSet>

#include <functional>

namespace Workbench {

/// The material libraries as the workbench edits them: every change goes through the library's manager and is then told
/// to all views, which the manager itself does not do. A change of the project library also asks for a new window title
/// (`IBaseSignal::signal_updateWindowTitle`), and a save that failed is told to the user.
class MaterialLibraries : public QObject
{
    Q_OBJECT

public:
    using Type = BaseModule::MaterialLibType;

    static MaterialLibraries* instance();

    /// The materials that are not deleted, in ascending order of identifiers. Records are shared with the library: do
    /// not change them.
    static QList<Materials::Material> materials(Type type);
    /// The material that is not deleted under this identifier; null when there is none.
    static Materials::Material material(Type type, int id);

    /// Where a material of the project came from.
    MaterialOrigins::Origin origin(int projectID) const { return m_origins.of(projectID); }

    /// Add a material, or give one the names and properties of `content`, whose property records become shared.
    void create(Type type, const DataModel::MaterialData& content);
    void update(Type type, int id, const DataModel::MaterialData& content);
    /// Deletes from the highest identifier down, so that no tombstone is left above what stays.
    void remove(Type type, QList<int> ids);
    /// Copies `newIDs` of the library `from` into the other one, then gives the material `second` of each pair there
    /// the content of the material `first` of `from`.
    void import(Type from, const QList<int>& newIDs, const QList<QPair<int, int>>& updates);

    /// Reads the project's library from the working directory.
    void loadProject();
    /// Makes sure that the working directory holds the project's library, also after a write that failed. False when it
    /// cannot be written. A file that could not be read stays while the library is empty.
    bool saveProject();
    /// Empties the project's library and removes its file.
    void clearProject();

Q_SIGNALS:
    /// Materials of this library came, went or changed: read it again.
    void changed(BaseModule::MaterialLibType type);

private:
    MaterialLibraries();

    void save(Type type, const std::function<void()>& edit);
    void tell(Type type);
    void noteReplaced(Type from, int id, const DataModel::MaterialData& source);
    void noteOrigins(const QSet<int>& before, const QList<Materials::Material>& sources);

    MaterialOrigins m_origins;
    bool m_isEditing = false;
};

/// The library that is not this one.
BaseModule::MaterialLibType otherLibrary(BaseModule::MaterialLibType type);

} // namespace Workbench
