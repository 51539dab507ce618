// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>

namespace BaseModule {

IBaseSignal* IBaseSignal::getInstance()
{
    static IBaseSignal* const hub = new IBaseSignal;
    return hub;
}

QMap<QString, QByteArray>& GlobalHelper::files()
{
    static auto* const files = new QMap<QString, QByteArray>;
    return *files;
}

bool GlobalHelper::readFile(QString path, QByteArray& out)
{
    out = files().value(path);
    return files().contains(path);
}

bool GlobalHelper::writeFile(QString path, QByteArray data, QIODevice::OpenMode)
{
    files().insert(path, data);
    return true;
}

QString GlobalHelper::getProjectTempIODir()
{
    return QStringLiteral("memory");
}

} // namespace BaseModule
