// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QtTest>

// What tests of files need everywhere: texts, contents of files, and log lines.

inline QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// The content of a file; null when there is none.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeContent(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/// Declares a debug line. Declared lines may come in any order; where it matters use `LogLines`.
inline void expectLine(const QString& line)
{
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
}

/// Takes every log line while it lives, in order, in place of the test's own log.
class LogLines
{
public:
    LogLines() : m_previous(qInstallMessageHandler(&LogLines::note)) { lines().clear(); }
    ~LogLines() { qInstallMessageHandler(m_previous); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    /// The lines since the last call; critical ones begin with "critical: ".
    QStringList take()
    {
        QStringList taken;
        taken.swap(lines());
        return taken;
    }

private:
    static QStringList& lines()
    {
        static QStringList list;
        return list;
    }
    static void note(QtMsgType type, const QMessageLogContext&, const QString& line)
    {
        lines().append(type == QtCriticalMsg ? QStringLiteral("critical: ") + line : line);
    }

    QtMessageHandler m_previous;
};
