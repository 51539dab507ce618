// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <unistd.h>

/// What is written to standard output during its lifetime.
class StandardOutput
{
public:
    StandardOutput() : m_file(std::tmpfile()), m_saved(dup(1))
    {
        std::fflush(stdout);
        dup2(fileno(m_file), 1);
    }
    ~StandardOutput()
    {
        text();
        std::fclose(m_file);
    }
    QByteArray text()
    {
        if (m_saved >= 0) {
            std::fflush(stdout);
            dup2(m_saved, 1);
            close(m_saved);
            m_saved = -1;
            std::rewind(m_file);
            QFile file;
            file.open(m_file, QIODevice::ReadOnly);
            m_text = file.readAll();
        }
        return m_text;
    }

private:
    std::FILE* m_file;
    int m_saved;
    QByteArray m_text;
};
