// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

inline const char* const keys[] = {"m_IDList",           "m_basicCoorSysIDList",   "m_nameList",
                                   "m_typeList",         "m_offsetCoordinateList", "m_rotateDirectionList",
                                   "m_actorRoateDirList"};

inline QJsonObject parsed(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

/// A file content whose seven lists are given in the order of the keys.
inline QByteArray fileOf(const QVector<QJsonArray>& lists)
{
    QJsonObject object;
    for (int i = 0; i < lists.size(); ++i) {
        object.insert(QString::fromLatin1(keys[i]), lists.at(i));
    }
    return QJsonDocument(object).toJson();
}

/// Three systems in a chain, below a global one that is not stored.
inline QByteArray goodFile()
{
    return fileOf({{3, 5, 9},
                   {0, 3, 5},
                   {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")},
                   {QStringLiteral("0:0;3:1"), QStringLiteral("0:0;3:1;5:2"), QStringLiteral("0:0;3:1;5:2;9:3")},
                   {QStringLiteral("3:1,2,3"), QStringLiteral("5:4,5,6"), QStringLiteral("9:7,8,9")},
                   {QStringLiteral("3:0.5,0,0"), QStringLiteral("5:0,0.5,0"), QStringLiteral("9:0,0,0.5")},
                   {QStringLiteral("3:X,1"), QStringLiteral("5:Y,2"), QStringLiteral("9:Z,3")}});
}
