// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Command.h>

#include <console/Console.h>

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Console::setProgramName(QStringLiteral("meshquality"));
    return MeshQuality::runCommand(QCoreApplication::arguments());
}
