// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/CoordinateDefinition.h>
#include <workbench/coordinates/CoordinateDisplay.h>
#include <workbench/coordinates/CoordinateTree.h>

#include <QByteArray>
#include <QList>
#include <QObject>

namespace Workbench {

class CoordinateAxes;

/// The coordinate systems as the workbench edits them. Every change goes through the library's registry, and is told by
/// the registry's own signals: `signal_dataDeleted` before systems go, `signal_dataChanged` after every change made
/// here. At that moment every system has its axes actor, matrix and quaternion. Its own signal is for the project.
class CoordinateSystems : public QObject
{
    Q_OBJECT

public:
    /// Created by the first call, which gives the registry the global system (ID 0) when it is empty. Call it before
    /// a project is read: without the global system the registry would not keep the first system of the file.
    static CoordinateSystems* instance();

    /// How the registered systems hang together, in the registry's order.
    static CoordinateTree tree();
    /// Where the systems of the tree stand in global coordinates, in its order; those at the top as if global.
    static QVector<Placement> placements(const CoordinateTree& tree);
    /// The same of one system; that of the global one when there is no such system.
    static Placement placement(int id);
    /// The system's own level; defaults when there is no such system.
    static CoordinateDefinition definition(int id);

    /// Adds a system relative to `basicID` and returns its identifier, one above the highest that the open project had,
    /// so that nothing which remembers a deleted system takes the new one for it. 0 when there is no such basic system,
    /// or keepDamagedFile() fails.
    int create(int basicID, const CoordinateDefinition& definition);
    /// Keeps a copy of the project's file, beside it, when it is damaged and the next system would take its place.
    /// False when none can be made.
    bool keepDamagedFile() const;
    /// Changes a system and with it all systems below. Nothing happens for the global system and unknown ones.
    void change(int id, const CoordinateDefinition& definition);
    /// The same, and makes it relative to another basic system; the definition is then meant in that one. Systems below
    /// go with it. Nothing happens where `basicRefusal` has a reason.
    void change(int id, int basicID, const CoordinateDefinition& definition);
    /// Why a system cannot be made relative to another one, for the user; empty when it can.
    static QString basicRefusal(int id, int basicID);
    /// Removes systems with all systems below them, except the global one. When the current system goes, the global
    /// one becomes current.
    void remove(const QList<int>& ids);
    void setCurrent(int id);

    /// Whether the axes of all systems, or those of one, are to be seen. Axes are seen when both say so.
    bool areAxesShown() const;
    void showAxes(bool isShown);
    bool areAxesShown(int id) const;
    void showAxes(int id, bool isShown);

    /// Which system is current and which axes are hidden, as the project keeps it.
    CoordinateDisplay display() const;
    /// The same again. Systems that are not there are passed over.
    void setDisplay(const CoordinateDisplay& display);

    /// Replaces all systems but the global one by those of the project's working directory. False when their file has
    /// a content that cannot be read.
    bool loadProject();
    /// Makes sure that the project's file holds the systems, also after a write that failed unnoticed. False when it
    /// cannot be written. A file that could not be read stays while there is no system but the global one.
    bool saveProject();
    /// Removes all systems but the global one, which is then current and shown. The file stays as it is.
    void clearProject();

Q_SIGNALS:
    /// What `display` gives changed, whoever changed it.
    void signal_displayChanged();

private:
    CoordinateSystems();

    int nextID() const;
    void noteDisplay();

    CoordinateAxes* m_axes;
    /// What was told last.
    CoordinateDisplay m_display;
    /// Of those that were deleted since the project was opened, too.
    int m_highestID = 0;
    /// The content of a file that gave no system.
    QByteArray m_unread;
    bool m_isDamaged = false;
};

} // namespace Workbench
