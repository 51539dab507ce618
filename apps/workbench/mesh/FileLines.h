// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QFile>

#include <functional>

namespace Workbench {

/// Passes the lines of a text file on, one after the other, without their line ends. Lines of more than a mebibyte are
/// left out, so that memory stays bounded whatever the file holds.
class FileLines
{
public:
    /// Told the bytes read so far and the size; false ends the reading.
    using Progress = std::function<bool(qint64 read, qint64 size)>;
    /// A line, valid during the call.
    using Line = std::function<void(const char* begin, const char* end)>;

    explicit FileLines(const QString& path) : m_file(path) {}

    /// False when the file could not be read to its end, or `progress` ended it.
    bool forEach(const Line& line, const Progress& progress);

private:
    void takeBlock(const QByteArray& block, const Line& line);
    void takePart(const char* begin, const char* end);
    void endLine(const Line& line);

    static constexpr int longestLine = 1 << 20;

    QFile m_file;
    QByteArray m_rest;
    bool m_isTooLong = false;
};

} // namespace Workbench
