// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>

/// Records that cannot be created or serialised. That does not happen with the records as they are, so a program with
/// RecordFaults.cpp puts itself in front of Qt's creation of objects by meta-object and of the serializer. There, and
/// where files are read, the memory may also end. Needs shared libraries and exported symbols of the program.
struct RecordFaults
{
    bool isCreationFailing = false;
    bool isSerializationFailing = false;
    /// How many records are serialised before the memory ends; negative: it never does.
    int serializationsLeft = -1;
    /// How many records are created before it ends, for one more.
    int creationsLeft = -1;
    /// No file fits into the memory.
    bool isReadingShort = false;

    /// Those that are in force.
    static RecordFaults& now()
    {
        static RecordFaults faults;
        return faults;
    }

    /// What is logged when a record cannot be created.
    static QStringList failedCreation(const char* className)
    {
        return {QStringLiteral("critical: Failed to create an instance of type ") + QString::fromUtf8(className),
                QStringLiteral("critical: Did you forget to declare a public parameterless Q_INVOKABLE constructor?")};
    }
};
