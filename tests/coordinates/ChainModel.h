// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "RegistryFixture.h"

#include <QMap>

#include <algorithm>
#include <functional>

/// What a system is, in plain data; its chains as the texts of their levels.
struct PlainSystem
{
    int id = 0;
    int basicID = 0;
    QString name;
    QVector<QStringList> chains = QVector<QStringList>(4);

    bool operator==(const PlainSystem& other) const
    {
        return id == other.id && basicID == other.basicID && name == other.name && chains == other.chains;
    }
};

/// The four values of one level, all derived from one number.
struct LevelValues
{
    explicit LevelValues(int number)
        : type(number % 5), offset{number * 0.1, -number / 3.0, 1e-300 * number}, angles{number / 7.0, 0, -0.0},
          step(QStringLiteral("turn;%1:,%").arg(number), number / 11.0)
    {
    }

    BaseModule::CoordinateSystemType coordinateType() const { return BaseModule::CoordinateSystemType(type); }

    QStringList texts(int ownerID) const
    {
        return {text(ownerID, {double(type)}), text(ownerID, offset), text(ownerID, angles),
                step.first + text(ownerID, {step.second})};
    }

    static QString text(int ownerID, const QList<double>& values)
    {
        QString text = QString::number(ownerID);
        for (const double value : values) {
            text += QLatin1Char(' ') + QString::number(value, 'g', 17);
        }
        return text;
    }

    int type;
    QList<double> offset;
    QList<double> angles;
    QPair<QString, double> step;
};

inline void setLevels(RegistryFixture::System& system, const LevelValues& values, int ownerID, int basicID,
                      int modifyID)
{
    QList<double> offset = values.offset;
    QList<double> angles = values.angles;
    system.setType(values.coordinateType(), ownerID, basicID, modifyID);
    system.setOffsetCoordinate(&*offset.begin(), ownerID, basicID, modifyID);
    system.setRotateDirection(&*angles.begin(), ownerID, basicID, modifyID);
    system.setActorRotateDirection(values.step, ownerID, basicID, modifyID);
}

/// A system that is not registered, with a level of its own on top of its basic system's chains.
inline RegistryFixture::System* makeSystem(int id, int basicID, const QString& name, int number)
{
    auto* const system = new RegistryFixture::System;
    system->setID(id);
    system->setBasicCoordinateSystemID(basicID);
    system->setName(name);
    setLevels(*system, LevelValues(number), id, basicID, -1);
    return system;
}

inline void addGlobalSystem()
{
    setLevels(*RegistryFixture::add(0), LevelValues(0), 0, 0, -1);
}

inline PlainSystem plain(const RegistryFixture::System& system)
{
    PlainSystem result;
    result.id = system.getID();
    result.basicID = system.getBasicCoordinateSystemID();
    result.name = system.getName();
    for (const auto& level : system.getTypePairList()) {
        result.chains[0].append(LevelValues::text(level.first, {double(level.second)}));
    }
    for (const auto& level : system.getOffsetCoordinateListPairList()) {
        result.chains[1].append(LevelValues::text(level.first, level.second));
    }
    for (const auto& level : system.getRotateDirectionListPairList()) {
        result.chains[2].append(LevelValues::text(level.first, level.second));
    }
    for (const auto& level : system.getActorRoateDirPairPairList()) {
        result.chains[3].append(level.second.first + LevelValues::text(level.first, {level.second.second}));
    }
    return result;
}

inline QList<PlainSystem> plainRegistry()
{
    QList<PlainSystem> systems;
    for (int i = 0; i < RegistryFixture::registry()->getRelativeCoordinateSystemDateCount(); ++i) {
        systems.append(plain(*RegistryFixture::registry()->getCoordinateSystemByIndex(i)));
    }
    return systems;
}

/// The registry as plain data: what the same operations must leave.
class ChainModel
{
public:
    QList<PlainSystem> systems;

    /// A system whose chains are its basic system's and one level of its own.
    void append(int id, int basicID, const QString& name, int number)
    {
        PlainSystem system;
        const auto basic = std::find_if(systems.begin(), systems.end(), hasID(basicID));
        if (id >= 1 && basic != systems.end()) {
            system.chains = basic->chains;
        }
        system.id = id;
        system.basicID = basicID;
        system.name = name;
        for (int chain = 0; chain < 4; ++chain) {
            system.chains[chain].append(LevelValues(number).texts(id).at(chain));
        }
        systems.append(system);
    }

    /// Only the system itself changes: the chains of the systems below were copied before.
    void modify(int position, int ownerID, int number)
    {
        for (int chain = 0; chain < 4; ++chain) {
            for (QString& level : systems[position].chains[chain]) {
                const QString owner = ownerOf(level);
                if (owner == QString::number(ownerID)) {
                    level = LevelValues(number).texts(ownerID).at(chain);
                }
            }
        }
    }

    void remove(int id) { systems.erase(std::remove_if(systems.begin(), systems.end(), hasID(id)), systems.end()); }

    /// What is read from a file written now: each chain is that of the basic system, as read, and the last level.
    void reload()
    {
        const QList<PlainSystem> stored = systems;
        systems = stored.mid(0, 1);
        for (const PlainSystem& system : stored.mid(1)) {
            PlainSystem rebuilt = system;
            const auto basic = std::find_if(systems.begin(), systems.end(), hasID(system.basicID));
            if (basic != systems.end()) {
                for (int chain = 0; chain < 4; ++chain) {
                    rebuilt.chains[chain] = basic->chains.at(chain) + QStringList{system.chains.at(chain).last()};
                }
            }
            systems.append(rebuilt);
        }
    }

private:
    static std::function<bool(const PlainSystem&)> hasID(int id)
    {
        return [id](const PlainSystem& system) { return system.id == id; };
    }

    /// Levels read "owner value..." or, in the last chain, "turn;number:,%owner value".
    static QString ownerOf(const QString& level)
    {
        return level.mid(level.lastIndexOf(QLatin1Char('%')) + 1).section(QLatin1Char(' '), 0, 0);
    }
};
