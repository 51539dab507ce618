// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/LibraryName.h>

#include <QString>
#include <QStringList>

namespace Materials {

/// The command line, taken apart.
struct Options
{
    QString command;
    QStringList operands; ///< what is no option
    LibraryName library;  ///< the software library unless named
    QString format;       ///< "csv" or "json"; empty when not given
    QString output;       ///< a path; empty for standard output
    bool isJson = false;
    bool isPlain = false;
    bool isUpdating = false;
    bool isDryRun = false;
    bool isHelp = false;
    QString fault; ///< what is wrong with the command line; empty when nothing is
};

/// `arguments` begins with the program's name.
Options parseOptions(const QStringList& arguments);

} // namespace Materials
