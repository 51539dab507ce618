// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

namespace BaseModule {

/// Keeps files in memory. The converters know only empty lists: this application has no coordinate systems.
class GlobalHelper
{
public:
    static QMap<QString, QByteArray>& files();

    static bool readFile(QString path, QByteArray& out);
    static bool writeFile(QString path, QByteArray data, QIODevice::OpenMode mode);
    static QString getProjectTempIODir();

    static QString convertIntIntQListToQString(QList<QPair<int, int>>) { return {}; }
    static QList<QPair<int, int>> convertStringToIntIntQList(QString) { return {}; }
    static QString convertIntQStringQListToQString(QList<QPair<int, QString>>) { return {}; }
    static QList<QPair<int, QString>> convertStringToIntQStringQList(QString) { return {}; }
    static QString convertDoubleListToQString(QList<double>) { return {}; }
    static QList<double> convertStringToDoubleList(QString) { return {}; }
    static QString convertQStringDoubleQPairToQString(QPair<QString, double>) { return {}; }
    static QPair<QString, double> convertStringToQStringDoublePair(QString) { return {}; }
};

} // namespace BaseModule
