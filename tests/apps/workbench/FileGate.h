// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QCoreApplication>
#include <QSemaphore>
#include <QString>
#include <QTextCodec>
#include <QThread>

#include <atomic>

/// Holds up every thread but the application's own when it comes to a file of this name, until the gate is opened: the
/// names of files are encoded by the codec of the locale, for which this one stands in. Qt owns codecs, so a gate is
/// made by `new` and not deleted.
class FileGate : public QTextCodec
{
public:
    /// Closed from now on.
    explicit FileGate(const QString& fileName) : m_fileName(fileName), m_codec(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(this);
    }

    /// For good.
    void open()
    {
        m_passes.release();
        QTextCodec::setCodecForLocale(m_codec);
    }
    /// Whether a thread has come to the gate while it was closed.
    bool hasHeld() const { return m_hasHeld; }

    QByteArray name() const override { return "file gate"; }
    int mibEnum() const override { return 0; }

protected:
    QString convertToUnicode(const char* bytes, int length, ConverterState* state) const override
    {
        return m_codec->toUnicode(bytes, length, state);
    }
    QByteArray convertFromUnicode(const QChar* text, int length, ConverterState* state) const override
    {
        if (QThread::currentThread() != QCoreApplication::instance()->thread() &&
            QString(text, length).endsWith(m_fileName)) {
            m_hasHeld = m_hasHeld || m_passes.available() == 0;
            m_passes.acquire();
            m_passes.release();
        }
        return m_codec->fromUnicode(text, length, state);
    }

private:
    QString m_fileName;
    QTextCodec* m_codec;
    mutable QSemaphore m_passes;
    mutable std::atomic<bool> m_hasHeld{false};
};
