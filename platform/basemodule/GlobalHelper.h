// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QPair>
#include <QString>

namespace BaseModule {

/// Files, directories and text forms that the libraries share.
class BASEMODULE_EXPORT GlobalHelper
{
public:
    /// Reads the whole of a regular file. True on success; otherwise false, and `out` is left as it was.
    static bool readFile(QString path, QByteArray& out);

    /// Writes a file; true when every byte has reached the disk.
    /// With `WriteOnly | Truncate` the file is replaced as a whole: after a crash, a full disk or any other failure it
    /// holds its old content or the new one, never a part. A symbolic link is followed; of a file with several hard
    /// links only this name gets the new content; anything but a regular file is refused. Another process that saves
    /// the same file is waited for, two seconds at most. With any other mode the file is opened in that mode and the
    /// bytes are written to it.
    static bool writeFile(QString path, QByteArray data, QIODevice::OpenMode mode);

    /// The directory, without a trailing separator, where the open project keeps its working files. Before the first
    /// `setProjectTempIODir` it is "../temp" beside the programs.
    static QString getProjectTempIODir();
    /// Names the project's working directory; one trailing separator is dropped. An empty text restores the default.
    static void setProjectTempIODir(QString directory);

    // Lists as texts. Each pair of calls round-trips every value: numbers to the last bit (also -0, infinities and the
    // bits of a not-a-number), texts with any code unit. The written texts hold no control characters, no half
    // surrogates and no noncharacters (they stand as '%' and four hexadecimal digits), so JSON carries them unchanged.
    // They do not depend on the locale. A text that is not of the described form as a whole reads as the empty value.

    /// "0:1;3:2"; the empty text for an empty list.
    static QString convertIntIntQListToQString(QList<QPair<int, int>> list);
    /// The list of such a text.
    static QList<QPair<int, int>> convertStringToIntIntQList(QString text);

    /// "0,0.5,-1e+300", each number in the shortest form that reads back to the same bits; the empty text for an empty
    /// list.
    static QString convertDoubleListToQString(QList<double> list);
    /// The list of such a text.
    static QList<double> convertStringToDoubleList(QString text);

    /// "0:first;3:second"; the empty text for an empty list, "3:" for a list of one empty text.
    static QString convertIntQStringQListToQString(QList<QPair<int, QString>> list);
    /// The list of such a text.
    static QList<QPair<int, QString>> convertStringToIntQStringQList(QString text);

    /// "RotateX,90": the text up to the last comma, then the number.
    static QString convertQStringDoubleQPairToQString(QPair<QString, double> pair);
    /// An empty text and 0 when `text` is not of that form.
    static QPair<QString, double> convertStringToQStringDoublePair(QString text);
};

} // namespace BaseModule
