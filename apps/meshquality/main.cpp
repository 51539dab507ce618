// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Command.h>

#include <console/Console.h>
#include <console/Translations.h>

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setProgramName(QStringLiteral("meshquality"));
    QStringList arguments = QCoreApplication::arguments();
    Console::Translations translations({QStringLiteral("datamanager"), QStringLiteral("tools")});
    if (!translations.choose(arguments)) {
        Console::printLanguageError();
        return MeshQuality::UsageError;
    }
    return MeshQuality::runCommand(arguments);
}
