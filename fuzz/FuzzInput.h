// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// Ends the process, for the fuzzer to see, when something that must be true is not.
inline void require(bool isTrue, const char* what)
{
    if (!isTrue) {
        std::fprintf(stderr, "not so: %s\n", what);
        std::abort();
    }
}

/// The bits of two doubles, for which 0 is not -0 and each not-a-number is itself.
inline bool areSameBits(double one, double other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

/// The bytes of a fuzzer's input, taken from front to back. Beyond the end there are zeros.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_bytes(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)))
    {
    }

    bool isEmpty() const { return m_position >= m_bytes.size(); }

    template <class Number>
    Number take()
    {
        Number number{};
        const int size = std::min(int(sizeof number), m_bytes.size() - m_position);
        std::memcpy(&number, m_bytes.constData() + m_position, std::size_t(size));
        m_position += size;
        return number;
    }

    /// Any code units, also halves of surrogate pairs; how many they are stands before them.
    QString takeText()
    {
        const int length = std::min(int(take<std::uint8_t>()), (m_bytes.size() - m_position) / 2);
        QString text(length, Qt::Uninitialized);
        for (QChar& unit : text) {
            unit = QChar(take<std::uint16_t>());
        }
        return text;
    }

    QByteArray takeRest()
    {
        const QByteArray rest = m_bytes.mid(m_position);
        m_position = m_bytes.size();
        return rest;
    }

private:
    QByteArray m_bytes;
    int m_position = 0;
};
