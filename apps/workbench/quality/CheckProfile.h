// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/Profile.h>

#include <QObject>
#include <QSharedPointer>

namespace Workbench {

/// The thresholds that meshes are checked against: those that are built into the programs, or those of a profile that
/// the user chose, whose path the settings keep.
class CheckProfile : public QObject
{
    Q_OBJECT

public:
    /// The profile of the process, created by the first call and never destroyed.
    static CheckProfile* instance();

    /// Another object after each change; never null.
    QSharedPointer<const MeshQuality::Profile> profile() const { return m_profile; }
    /// Empty for the built-in one.
    QString path() const { return m_path; }
    /// What the user calls it: its own name or that of its file.
    QString title() const;

    /// An empty path stands for the built-in one. A profile that cannot be read is told by a message, and the one
    /// before stays; false then.
    bool choose(const QString& path);

Q_SIGNALS:
    void signal_changed();

private:
    CheckProfile();
    ~CheckProfile() override = default;

    bool take(const QString& path);

    QString m_path;
    QSharedPointer<const MeshQuality::Profile> m_profile;
};

} // namespace Workbench
