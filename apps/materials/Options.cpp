// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/Options.h>

#include <QCoreApplication>
#include <QHash>

namespace Materials {

namespace {

/// Options without a value, by name.
bool setFlag(Options& options, const QString& name)
{
    static const QHash<QString, bool Options::*> flags = {{QStringLiteral("--json"), &Options::isJson},
                                                          {QStringLiteral("--plain"), &Options::isPlain},
                                                          {QStringLiteral("--update"), &Options::isUpdating},
                                                          {QStringLiteral("--dry-run"), &Options::isDryRun},
                                                          {QStringLiteral("--help"), &Options::isHelp}};
    if (!flags.contains(name)) {
        return false;
    }
    options.*flags.value(name) = true;
    return true;
}

/// False when there is no such option.
bool setValue(Options& options, const QString& name, const QString& value)
{
    if (name == QLatin1String("--library")) {
        if (!parseLibraryName(value, options.library)) {
            options.fault =
                QCoreApplication::translate("materials", "--library takes 'software' or 'project:DIR', not '%1'")
                    .arg(value);
        }
    } else if (name == QLatin1String("--format")) {
        options.format = value;
        if (value != QLatin1String("csv") && value != QLatin1String("json")) {
            options.fault =
                QCoreApplication::translate("materials", "--format takes 'csv' or 'json', not '%1'").arg(value);
        }
    } else if (name == QLatin1String("--output")) {
        options.output = value;
    } else {
        return false;
    }
    return true;
}

} // namespace

Options parseOptions(const QStringList& arguments)
{
    Options options;
    for (int i = 1; i < arguments.size() && options.fault.isEmpty(); ++i) {
        const QString& argument = arguments.at(i);
        if (!argument.startsWith(QLatin1String("--"))) {
            if (options.command.isEmpty()) {
                options.command = argument;
            } else {
                options.operands.append(argument);
            }
        } else if (!setFlag(options, argument)) {
            const bool isLast = i + 1 == arguments.size();
            if (!setValue(options, argument, arguments.value(i + 1))) {
                options.fault = QCoreApplication::translate("materials", "unknown option '%1'").arg(argument);
            } else if (isLast) {
                options.fault = QCoreApplication::translate("materials", "%1 needs a value").arg(argument);
            }
            ++i;
        }
    }
    return options;
}

} // namespace Materials
