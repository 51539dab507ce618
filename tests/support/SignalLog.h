// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/IBaseSignal.h>

#include <QStringList>

#include <functional>
#include <utility>

/// One ordered log over every signal of the hub: name and arguments, one text a signal. Own signals of the object
/// under test are appended to the same log by the test, so that their order against the hub's is seen. With a `state`,
/// each entry ends with " | " and what it returns at that moment.
class SignalLog
{
public:
    explicit SignalLog(std::function<QString()> state = {}) : m_state(std::move(state))
    {
        connectPlainSignals();
        connectSelectionSignals();
        connectMessages();
    }
    ~SignalLog()
    {
        for (const QMetaObject::Connection& connection : m_connections) {
            QObject::disconnect(connection);
        }
    }
    SignalLog(const SignalLog&) = delete;
    SignalLog& operator=(const SignalLog&) = delete;

    /// The entries since the last call.
    QStringList take()
    {
        QStringList entries;
        entries.swap(m_entries);
        return entries;
    }

    void append(const QString& entry) { m_entries.append(m_state ? entry + QStringLiteral(" | ") + m_state() : entry); }

private:
    using Hub = BaseModule::IBaseSignal;

    template <class Signal, class Slot>
    void listen(Signal signal, Slot slot)
    {
        m_connections.append(QObject::connect(Hub::getInstance(), signal, slot));
    }

    void logPlain(void (Hub::*signal)(), const QString& name)
    {
        listen(signal, [this, name] { append(name); });
    }

    void connectPlainSignals()
    {
        logPlain(&Hub::signal_updateInteraction, QStringLiteral("updateInteraction"));
        logPlain(&Hub::signal_updateMenuActionState, QStringLiteral("updateMenuActionState"));
        logPlain(&Hub::signal_refreshActionOnInteractionChanged, QStringLiteral("refreshActionOnInteractionChanged"));
        logPlain(&Hub::signal_refreshActionOnSelectDataChanged, QStringLiteral("refreshActionOnSelectDataChanged"));
        logPlain(&Hub::signal_updateIsCanSwitchSelectModel, QStringLiteral("updateIsCanSwitchSelectModel"));
        logPlain(&Hub::signal_clearAllHighLight, QStringLiteral("clearAllHighLight"));
        logPlain(&Hub::signal_updateWindowTitle, QStringLiteral("updateWindowTitle"));
    }

    void connectSelectionSignals()
    {
        listen(&Hub::signal_updateGeomrtryActorTransparency, [this](const QList<DataModel::SelectedDataBase*>& list) {
            append(QStringLiteral("updateGeomrtryActorTransparency %1").arg(list.size()));
        });
        listen(&Hub::signal_updateViewObjectState, [this](int model, int first, int second, bool isShow) {
            append(QStringLiteral("updateViewObjectState %1 (%2,%3) %4").arg(model).arg(first).arg(second).arg(isShow));
        });
        listen(&Hub::signal_setViewObjectListState, [this](int model, const QList<QPair<int, int>>& list, bool isShow) {
            append(QStringLiteral("setViewObjectListState %1 [%2] %3").arg(model).arg(pairs(list)).arg(isShow));
        });
        listen(&Hub::signal_checkHighLight, [this](bool& isAllowed, int model, int first, int second) {
            append(QStringLiteral("checkHighLight %1 %2 (%3,%4)").arg(isAllowed).arg(model).arg(first).arg(second));
        });
    }

    void connectMessages()
    {
        listen(&Hub::signal_delMatUpdateGeometryData,
               [this](int id) { append(QStringLiteral("delMatUpdateGeometryData %1").arg(id)); });
        listen(&Hub::signal_showMessageType, [this](int type, const QString& text) {
            append(QStringLiteral("showMessageType %1 %2").arg(type).arg(text));
        });
    }

    static QString pairs(const QList<QPair<int, int>>& list)
    {
        QStringList texts;
        for (const QPair<int, int>& pair : list) {
            texts.append(QStringLiteral("(%1,%2)").arg(pair.first).arg(pair.second));
        }
        return texts.join(QLatin1Char(' '));
    }

    std::function<QString()> m_state;
    QStringList m_entries;
    QList<QMetaObject::Connection> m_connections;
};
