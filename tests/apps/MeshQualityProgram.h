// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

/// What one run of the program left behind.
struct ProgramRun
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs the program that was built, or a copy of it.
ProgramRun runMeshQuality(const QStringList& arguments, const QString& program = QString());

/// The same, with its standard output into a file or device.
ProgramRun runMeshQualityInto(const QString& output, const QStringList& arguments);

/// The only object of a JSON array; empty when there is another number of them.
QJsonObject onlyObject(const QByteArray& json);

/// Files of one test program, removed at its end, and the models made for tests.
struct ScratchFiles
{
    QString path(const char* name) const;
    /// The path of a new file with this content.
    QString file(const char* name, const QByteArray& content) const;
    static QString model(const char* name);

    QTemporaryDir m_directory;
};
