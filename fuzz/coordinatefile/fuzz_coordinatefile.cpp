// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Any bytes as the project's file of coordinate systems: read, every system asked for all it can tell, written, and
// read again. The second reading must leave the file as the first one did.

#include "FuzzInput.h"

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>

#include <basemodule/GlobalHelper.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <vtkMatrix4x4.h>
#include <vtkNew.h>

namespace {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

RelativeCoordinateSystemDate& registry()
{
    return *RelativeCoordinateSystemDate::getInstance();
}

QString filePath()
{
    return BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/RelativeCoordinateSystemDate.json");
}

void putFile(const QByteArray& content)
{
    QFile file(filePath());
    require(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size(),
            "the file can be written");
}

/// The file after a reading, which writes it once for each system.
QByteArray readAgain()
{
    registry().resetData();
    registry().readConfig();
    registry().writeConfig();
    QByteArray content;
    registry().dataToByteArray(&content);
    return content;
}

/// Every question that the properties panel and the view ask.
void askAll()
{
    static const vtkNew<vtkMatrix4x4> matrix;
    for (int i = 0; i < registry().getRelativeCoordinateSystemDateCount(); ++i) {
        RelativeCoordinateSystem& system = *registry().getCoordinateSystemByIndex(i);
        require(registry().getIndexByCoordinateSystem(&system) == i, "a system is found where it is");
        // Every third has none, as if its actor were missing.
        system.setActorMatrix(i % 3 == 2 ? nullptr : matrix.Get());
        system.getType();
        system.getOffsetCoordinate();
        require(system.getProperty()->getRowCount() == 5, "the table has five rows");
        require(system.getRotateDirection().size() == system.getRotateDirectionListPairList().size(),
                "each level of the chain is turned");
        require(system.getActorRotateDirection().size() == system.getActorRoateDirPairPairList().size(),
                "each step of the chain is listed");
        double vector[3] = {1, 0, 0};
        registry().getCSRotateDirection(vector, system.getID());
        registry().setCurrentCoordinateSystemID(system.getID());
    }
}

bool prepare()
{
    static QTemporaryDir directory;
    BaseModule::GlobalHelper::setProjectTempIODir(directory.path());
    auto* const global = new RelativeCoordinateSystem;
    double zero[3] = {0, 0, 0};
    global->setName(QStringLiteral("Global"));
    global->setType(BaseModule::Cartesian, 0, 0, -1);
    global->setOffsetCoordinate(zero, 0, 0, -1);
    global->setRotateDirection(zero, 0, 0, -1);
    registry().appendCoordinateSystem(global);
    return directory.isValid();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = prepare();
    require(isPrepared, "there is a directory");
    putFile(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)));
    const QByteArray first = readAgain();
    askAll();
    QByteArray second = readAgain();
#ifdef FUZZ_DEFECT
    second.replace("m_nameList", "m_names");
#endif
    require(second == first, "the second reading leaves the file as it is");
    require(QDir(BaseModule::GlobalHelper::getProjectTempIODir()).entryList(QDir::Files | QDir::Hidden).size() == 1,
            "there is one file");
    registry().removeCoordinateSystemByIndex(registry().getRelativeCoordinateSystemDateCount() / 2 + 1);
    registry().clear();
    return 0;
}
