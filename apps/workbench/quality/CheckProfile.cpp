// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/CheckProfile.h>

#include <basemodule/IBaseSignal.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>

using BaseModule::IBaseSignal;
using MeshQuality::Profile;

namespace Workbench {
namespace {

QString key()
{
    return QStringLiteral("quality/profile");
}

} // namespace

CheckProfile* CheckProfile::instance()
{
    static auto* const profile = new CheckProfile;
    return profile;
}

CheckProfile::CheckProfile()
{
    // One that cannot be read today may be there tomorrow, so the settings keep it.
    const QString chosen = QSettings().value(key()).toString();
    if (chosen.isEmpty() || !take(chosen)) {
        take(QString());
    }
}

QString CheckProfile::title() const
{
    if (m_path.isEmpty()) {
        return tr("%1 (built in)").arg(m_profile->name);
    }
    const QString file = QFileInfo(m_path).fileName();
    return m_profile->name.isEmpty() ? file : QStringLiteral("%1 (%2)").arg(m_profile->name, file);
}

bool CheckProfile::choose(const QString& path)
{
    if (!take(path)) {
        return false;
    }
    QSettings().setValue(key(), path);
    Q_EMIT signal_changed();
    return true;
}

bool CheckProfile::take(const QString& path)
{
    Profile profile;
    QString problem;
    const bool isRead = path.isEmpty() ? Profile::parse(Profile::defaultText(), profile, problem)
                                       : Profile::read(path, profile, problem);
    if (!isRead) {
        Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(
            2, tr("The profile %1 cannot be used: %2").arg(QDir::toNativeSeparators(path), problem));
        return false;
    }
    m_path = path;
    m_profile = QSharedPointer<const Profile>::create(profile);
    return true;
}

} // namespace Workbench
