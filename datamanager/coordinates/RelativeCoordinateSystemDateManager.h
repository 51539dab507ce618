// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/datamanager_export.h>

#include <QList>
#include <QObject>
#include <QString>

namespace DataManager {

/// The record that is written to the project's coordinate system file: seven lists with one element for each system,
/// the chains as texts. Its properties, in this order, are the keys of the file.
class DATAMANAGER_EXPORT RelativeCoordinateSystemDateManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<int> m_IDList READ getIDList WRITE setIDList)
    Q_PROPERTY(QList<int> m_basicCoorSysIDList READ getBasicCoorSysIDList WRITE setBasicCoorSysIDList)
    Q_PROPERTY(QList<QString> m_nameList READ getNameList WRITE setNameList)
    Q_PROPERTY(QList<QString> m_typeList READ getTypeList WRITE setTypeList)
    Q_PROPERTY(QList<QString> m_offsetCoordinateList READ getOffsetCoordinateList WRITE setOffsetCoordinateList)
    Q_PROPERTY(QList<QString> m_rotateDirectionList READ getRotateDirectionList WRITE setRotateDirectionList)
    Q_PROPERTY(QList<QString> m_actorRoateDirList READ getActorRoateDirList WRITE setActorRoateDirList)

public:
    /// Seven empty lists.
    Q_INVOKABLE RelativeCoordinateSystemDateManager();
    ~RelativeCoordinateSystemDateManager() override;

    /// The IDs of the systems.
    QList<int> getIDList() const;
    /// Replaces the list; lengths are not compared, here and below.
    void setIDList(QList<int> list);
    /// The IDs of their basic systems.
    QList<int> getBasicCoorSysIDList() const;
    /// Replaces the list.
    void setBasicCoorSysIDList(QList<int> list);
    /// Their names.
    QList<QString> getNameList() const;
    /// Replaces the list.
    void setNameList(QList<QString> list);
    /// The chains as texts of `BaseModule::GlobalHelper`: (owner ID, type).
    QList<QString> getTypeList() const;
    /// Replaces the list.
    void setTypeList(QList<QString> list);
    /// (owner ID, text of a list of doubles: x, y, z).
    QList<QString> getOffsetCoordinateList() const;
    /// Replaces the list.
    void setOffsetCoordinateList(QList<QString> list);
    /// (owner ID, text of a list of doubles: about x, y, z).
    QList<QString> getRotateDirectionList() const;
    /// Replaces the list.
    void setRotateDirectionList(QList<QString> list);
    /// (owner ID, text of a pair of a text and a double).
    QList<QString> getActorRoateDirList() const;
    /// Replaces the list.
    void setActorRoateDirList(QList<QString> list);

    /// Empties every list except that of the basic systems.
    void clear();

private:
    QList<int> m_IDList;
    QList<int> m_basicCoorSysIDList;
    QList<QString> m_nameList;
    QList<QString> m_typeList;
    QList<QString> m_offsetCoordinateList;
    QList<QString> m_rotateDirectionList;
    QList<QString> m_actorRoateDirList;
};

} // namespace DataManager
