// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>

class QByteArray;

namespace DataManager {

class RelativeCoordinateSystem;
class RelativeCoordinateSystemDateManager;

/// The process-wide registry of all coordinate systems, in the order in which they were appended. Position 0 is that of
/// the global system (ID 0). It owns its systems, except those taken out by ID, and keeps all but the one at position 0
/// in the project's file.
///
/// Listeners of its signals may call it, also to change it: what they took out or destroyed is then left alone.
class DATAMANAGER_EXPORT RelativeCoordinateSystemDate : public QObject
{
    Q_OBJECT

public:
    /// The registry, created by the first call and never destroyed.
    static RelativeCoordinateSystemDate* getInstance();

    /// Appends a system, which the registry then owns, and writes the file (`writeConfig`, with its signal). Null, and
    /// a system that is registered already, are not appended.
    void appendCoordinateSystem(RelativeCoordinateSystem* cs);

    /// The number of systems, the global one included.
    int getRelativeCoordinateSystemDateCount() const;
    /// The first system with that ID, or null.
    RelativeCoordinateSystem* getCoordinateSystemByID(int id) const;
    /// The system at that position, or null.
    RelativeCoordinateSystem* getCoordinateSystemByIndex(int index) const;
    /// The position of the first system with that ID. Also 0 when there is none.
    int getCoordinateSystemIndexByID(int id) const;
    /// The position of that system, -1 when it is not registered.
    int getIndexByCoordinateSystem(RelativeCoordinateSystem* cs) const;

    /// Takes every system with one of these IDs out, except ID 0. Emits `signal_dataDeleted` with the IDs as given,
    /// without 0, while all systems can still be looked up; then, without them, writes the file (`writeConfig`). The
    /// systems are not destroyed: nobody owns them any more. Does nothing at all when no ID is left.
    void removeCoordinateSystemByID(QList<int> ids);
    /// Emits `signal_dataDeleted` with the ID of the system at that position, any of them, and destroys the system. The
    /// file is not written. A position that does not exist does nothing.
    void removeCoordinateSystemByIndex(int index);
    /// Emits `signal_dataDeleted` with all IDs but the first 0, also when none is left, and destroys every system
    /// except the one at position 0. The file is not written.
    void clear();
    /// `clear`, then makes ID 0 current, which emits `signal_dataChanged`, restarts the count of
    /// `RelativeCoordinateSystem::getMaxID` and empties the record that is written to the file. The file is not
    /// written.
    void resetData();
    /// Sorts the systems by their addresses. The file is not written.
    void sort();

    /// Stores the ID, whether such a system exists or not, and emits `signal_dataChanged` with all IDs.
    void setCurrentCoordinateSystemID(int id);
    /// The ID that was stored last; 0 at the start.
    int getCurrentCoordinateSystemID() const;

    /// Whether a new system is being created, kept for the view.
    void setNeWCoordinateSystemSign(bool sign);
    /// What was set last; false at the start.
    bool getNeWCoordinateSystemSign() const;
    /// Whether the current system is being switched, kept for the view.
    void setSwitchCoordinateSystemSign(bool sign);
    /// What was set last; false at the start.
    bool getSwitchCoordinateSystemSign() const;

    /// Rebuilds the systems from "RelativeCoordinateSystemDate.json" in the project's working directory and appends
    /// them, each with a write of the file. Of the systems registered before, it first takes out, without destroying
    /// them, those at the positions 1, 3, 5 and so on: call `resetData` before. No signal of this class is emitted.
    /// Without a readable file nothing happens; a damaged one gives the systems that are left in it, a list that ends
    /// early being continued with 0 or an empty text.
    ///
    /// The cost grows with the square of the number of systems, in a chain with the cube, because the whole file is
    /// written after each of them; a file made by hand with many thousand IDs takes long. No limit is checked. The
    /// first write replaces the file by one of the first system, the last one completes it again: what is not yet read
    /// is lost when the process is killed in between.
    void readConfig();
    /// Writes all systems but the one at position 0 to that file and emits `IBaseSignal::signal_updateWindowTitle`,
    /// whether or not the file could be written.
    void writeConfig();
    /// Appends the bytes of that file, which is written first when it does not exist. An empty registry appends
    /// nothing.
    void dataToByteArray(QByteArray* out);

    /// Turns the vector of three doubles at `v` in place by the rotations of the system `id`
    /// (`RelativeCoordinateSystem::getRotateDirection`), one after the other in the order of its chain. Each entry
    /// turns about one fixed axis, right-handed, by an angle in radians; entries of zeros are passed over, and one with
    /// more than one angle leaves the vector as it was on entry. An ID below 1, or of no system, does nothing.
    void getCSRotateDirection(double* v, int id);

Q_SIGNALS:
    /// The current system, or all of them, changed.
    void signal_dataChanged(QList<int> ids);
    /// Systems are about to be taken out; they can still be looked up.
    void signal_dataDeleted(QList<int> ids);

private:
    RelativeCoordinateSystemDate();
    ~RelativeCoordinateSystemDate() override;

    static RelativeCoordinateSystemDate* _instance;

    QList<RelativeCoordinateSystem*> m_coordinateSystemList;
    int m_currentCoordinateSystemID = 0;
    bool m_newCoordinateSystemSign = false;
    bool m_switchCoordinateSystemSign = false;
    QSharedPointer<RelativeCoordinateSystemDateManager> m_dataManager;
};

} // namespace DataManager
