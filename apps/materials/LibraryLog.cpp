// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/LibraryLog.h>

#include <QtGlobal>

namespace Materials {

namespace {

QStringList& lines()
{
    static QStringList list;
    return list;
}

void keep(QtMsgType, const QMessageLogContext&, const QString& line)
{
    lines().append(line);
}

} // namespace

void startLibraryLog()
{
    qInstallMessageHandler(keep);
}

QStringList takeLibraryLog()
{
    QStringList taken;
    taken.swap(lines());
    return taken;
}

} // namespace Materials
