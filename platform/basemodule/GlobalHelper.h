// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace BaseModule {

/// Files and directories that the libraries share.
class BASEMODULE_EXPORT GlobalHelper
{
public:
    /// Reads the whole of a regular file. True on success; otherwise false, and `out` is left as it was.
    static bool readFile(QString path, QByteArray& out);

    /// Writes a file; true when every byte has reached the disk.
    /// With `WriteOnly | Truncate` the file is replaced as a whole: after a crash, a full disk or any other failure it
    /// holds its old content or the new one, never a part. A symbolic link is followed; anything but a regular file is
    /// refused. With any other mode the file is opened in that mode and the bytes are written to it.
    static bool writeFile(QString path, QByteArray data, QIODevice::OpenMode mode);

    /// The directory, without a trailing separator, where the open project keeps its working files. Before the first
    /// `setProjectTempIODir` it is "../temp" beside the programs.
    static QString getProjectTempIODir();
    /// Names the project's working directory; one trailing separator is dropped. An empty text restores the default.
    static void setProjectTempIODir(QString directory);
};

} // namespace BaseModule
