// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/file/ReplacementFile.h>

#include <basemodule/private/FileReplacement.h>

#include <QFile>

namespace Workbench {

// Not buffered, so that it is known at once when the disk is full.
class ReplacementFile::Content : public QFile
{
public:
    explicit Content(const QString& path) : m_replacement(path) {}

    BaseModule::FileReplacement& replacement() { return m_replacement; }

protected:
    qint64 writeData(const char* data, qint64 size) override { return m_replacement.write(data, size) ? size : -1; }

private:
    BaseModule::FileReplacement m_replacement;
};

ReplacementFile::ReplacementFile(const QString& path) : m_content(std::make_unique<Content>(path)) {}

ReplacementFile::~ReplacementFile() = default;

bool ReplacementFile::open()
{
    BaseModule::FileReplacement& file = m_content->replacement();
    return file.open(0) && m_content->open(file.descriptor(), QIODevice::ReadWrite | QIODevice::Unbuffered);
}

bool ReplacementFile::setPermissions(QFileDevice::Permissions permissions)
{
    return m_content->setPermissions(permissions);
}

QIODevice& ReplacementFile::device()
{
    return *m_content;
}

bool ReplacementFile::commit()
{
    m_content->close();
    return m_content->replacement().commit();
}

bool ReplacementFile::commitUnsynced()
{
    m_content->close();
    return m_content->replacement().commitUnsynced();
}

QString ReplacementFile::problem() const
{
    const int error = m_content->replacement().error();
    return error == 0 ? QString() : qt_error_string(error);
}

void ReplacementFile::removeAbandoned(const QString& path)
{
    BaseModule::FileReplacement(path).removeAbandoned();
}

} // namespace Workbench
