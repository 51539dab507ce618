// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>

class QUndoStack;

namespace Workbench {

/// Makes every change of the selection undoable, whoever made it. Undoing goes through the selection store like any
/// other change, and selects only what still may be picked. Opening a project or a mesh forgets all steps.
class SelectionUndo : public QObject
{
    Q_OBJECT

public:
    /// The selected pairs by select model.
    using Selection = QMap<int, QList<QPair<int, int>>>;

    /// While one lives, changes of the selection are one: when the last of them ends, they make one step or, where the
    /// selection is again what it was, none.
    class Burst
    {
    public:
        Burst() { ++instance()->m_bursts; }
        ~Burst();
        Q_DISABLE_COPY(Burst)
    };

    /// The undo of the process, created by the first call and never destroyed.
    static SelectionUndo* instance();

    QUndoStack* stack() const { return m_stack; }
    /// Makes the store hold this selection, as one step.
    void select(const Selection& selection);
    /// Makes the store hold exactly this selection, without a step.
    void restore(const Selection& selection);
    void forget();

private:
    SelectionUndo();
    ~SelectionUndo() override = default;

    void noteChange();

    QUndoStack* m_stack;
    Selection m_known;
    bool m_isRestoring = false;
    int m_bursts = 0;
};

} // namespace Workbench
