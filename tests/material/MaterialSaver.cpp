// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// A process for others to kill: works on the project library in the directory that it is given.
//
//   materialsaver DIRECTORY save GENERATION   loads the library and saves it with every name set to GENERATION
//   materialsaver DIRECTORY loop              saves generation 0, 1, 2, ... until killed, a line printed before each
//   materialsaver DIRECTORY load              prints what the library holds
// A library is whole when it has all its materials and all of one generation.

#include <datamanager/material/MaterialLibraryManager.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QFile>
#include <QSet>

#include <cstdio>

using BaseModule::ProjectLib;
using DataManager::MaterialLibraryManager;

namespace {

void saveGeneration(MaterialLibraryManager& manager, const QString& generation)
{
    for (const auto& material : manager.getMatLibDataByType(ProjectLib)) {
        material->englishName = generation;
    }
    // Marks in a trace of system calls where the save begins.
    QFile::exists(QStringLiteral("/save-begins-here"));
    manager.writeProjectMatConfig();
}

QString content(MaterialLibraryManager& manager)
{
    const auto materials = manager.getMatLibDataByType(ProjectLib);
    QStringList generations;
    for (const auto& material : materials) {
        generations.append(material->englishName);
    }
    generations.removeDuplicates();
    return QStringLiteral("%1 of %2").arg(materials.size()).arg(generations.join(QLatin1Char('+')));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    BaseModule::GlobalHelper::setProjectTempIODir(arguments.value(1));
    MaterialLibraryManager& manager = *MaterialLibraryManager::getInstance();
    manager.initProjectMaterial();
    const QString command = arguments.value(2);
    if (command == QLatin1String("save")) {
        saveGeneration(manager, arguments.value(3));
    } else if (command == QLatin1String("load")) {
        std::puts(qPrintable(content(manager)));
    } else {
        for (int generation = 0;; ++generation) {
            std::puts("saving");
            std::fflush(stdout);
            saveGeneration(manager, QString::number(generation));
        }
    }
    return 0;
}
