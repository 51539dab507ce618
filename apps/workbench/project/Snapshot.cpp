// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/Snapshot.h>

#include <workbench/project/ProjectFiles.h>

#include <QFile>

#include <filesystem>

namespace Workbench {
namespace {

// A file system without links gets copies.
bool linkFile(const QString& source, const QString& target)
{
    std::error_code error;
    std::filesystem::create_hard_link(QFile::encodeName(source).constData(), QFile::encodeName(target).constData(),
                                      error);
    return !error || QFile::copy(source, target);
}

} // namespace

Snapshot::Snapshot(const QString& directory)
    : m_links(directory + QStringLiteral("/snapshot")), m_isComplete(m_links.isValid())
{
    for (const QString& fileName : ProjectFiles::all(directory)) {
        m_isComplete = m_isComplete && linkFile(directory + QLatin1Char('/') + fileName, m_links.filePath(fileName));
    }
}

} // namespace Workbench
