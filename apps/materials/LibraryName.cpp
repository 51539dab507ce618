// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/LibraryName.h>

#include <QCoreApplication>

namespace Materials {

namespace {
const QLatin1String projectPrefix("project:");
}

QString LibraryName::path() const
{
    if (type == BaseModule::SoftwareLib) {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/ConfigFiles/MaterialLibrary.json");
    }
    return directory + QStringLiteral("/MaterialLibrary.json");
}

QString LibraryName::text() const
{
    return type == BaseModule::SoftwareLib ? QStringLiteral("software") : projectPrefix + directory;
}

bool parseLibraryName(const QString& text, LibraryName& name)
{
    if (text == QLatin1String("software")) {
        name = {};
        return true;
    }
    if (!text.startsWith(projectPrefix) || text.size() == projectPrefix.size()) {
        return false;
    }
    name = {BaseModule::ProjectLib, text.mid(projectPrefix.size())};
    return true;
}

} // namespace Materials
