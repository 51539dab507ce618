// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QTemporaryDir>

namespace Workbench {

/// The files of a working directory as they are now, whatever becomes of them later: another name for each in a
/// directory below, which goes with this object. Files are replaced by whoever changes them, never written into.
class Snapshot
{
public:
    explicit Snapshot(const QString& directory);

    /// Whether all files are in it.
    bool isComplete() const { return m_isComplete; }
    QString path() const { return m_links.path(); }

private:
    QTemporaryDir m_links;
    bool m_isComplete;
};

} // namespace Workbench
