// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "Samples.h"

#include <datamanager/material/MaterialLibraryManager.h>
#include <datamodel/MaterialData.h>
#include <datamodel/MaterialPropertyData.h>

/// The names in a directory, hidden ones too.
inline QStringList namesIn(const QString& directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// Bytes that do not compress, the same in every run.
inline QByteArray noise(int size)
{
    QByteArray bytes(size, '\0');
    quint32 state = 2463534242U;
    for (char& byte : bytes) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        byte = static_cast<char>(state);
    }
    return bytes;
}

constexpr int slowSize = 8 << 20;

/// A file in the working directory of the open project that takes a while to pack.
inline void makeSlow()
{
    writeFile(BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-9.msh"), noise(slowSize));
}

/// Gives the project's library a material with a property of this value.
inline void createMaterial(double value)
{
    auto property = QSharedPointer<DataModel::MaterialPropertyData>::create();
    property->label = QStringLiteral("permittivity");
    property->components = QList<double>{value, 0, 0, 0, value, 0, 0, 0, value};
    DataManager::MaterialLibraryManager::getInstance()->createProjectMat(QStringLiteral("钢"), QStringLiteral("steel"),
                                                                         property, {}, {}, {}, {});
}

/// Of the project's first material; 0 when there is none.
inline double materialValue()
{
    const auto material = DataManager::MaterialLibraryManager::getInstance()->getProjectMatByID(1);
    return material && material->property1 ? material->property1->components.value(0) : 0;
}
