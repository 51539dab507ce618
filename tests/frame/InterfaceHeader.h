// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArrayList>
#include <QFile>
#include <QMetaMethod>
#include <QRegularExpression>

/// The names of the pure virtual operations that a header declares, in order.
inline QStringList pureVirtualOperations(const QString& header)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/datamanager/frame/") + header);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QString text = QString::fromUtf8(file.readAll());
    const QRegularExpression declaration(QStringLiteral("^\\s*virtual [^;]*?(\\w+)\\([^;]*\\) = 0;"),
                                         QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = declaration.globalMatch(text); match.hasNext();) {
        names.append(match.next().captured(1));
    }
    return names;
}

/// The signals that a class declares itself, with the names of their parameters, in the order of their indexes.
inline QByteArrayList signalsWithParameters(const QMetaObject& meta)
{
    QByteArrayList texts;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        texts.append((method.methodType() == QMetaMethod::Signal ? "signal " : "other ") + method.methodSignature() +
                     ' ' + method.parameterNames().join(','));
    }
    return texts;
}
