// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Drives the workbench through its main states and saves a picture of each.
//   workbench_pictures SAMPLES DIRECTORY

#include "DataPictures.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/project/Project.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/Graphics.h>
#include <workbench/window/Language.h>
#include <workbench/window/MainWindow.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

using DataManager::SelectedDataManager;
using namespace Workbench;

namespace {

class Pictures
{
public:
    Pictures(const QString& samples, const QString& directory) : m_samples(samples), m_directory(directory) {}

    bool openMesh(const QString& name)
    {
        MeshManager::instance()->openMesh(m_samples + name);
        const bool isRead = QTest::qWaitFor([] { return !MeshManager::instance()->isLoading(); }, 60000);
        QTest::qWait(300);
        return isRead && MeshManager::instance()->getKernelCount() == 1;
    }

    bool take(QWidget& window, const QString& name)
    {
        for (int turn = 0; turn < 5; ++turn) {
            QTest::qWait(300); // what one turn of a slow machine has begun the next ones finish
        }
        const QPixmap picture = window.screen()->grabWindow(0, window.x(), window.y(), window.width(), window.height());
        return picture.toImage().scaledToWidth(1100, Qt::SmoothTransformation).save(m_directory + name);
    }

    QString directory() const { return m_directory; }

private:
    QString m_samples;
    QString m_directory;
};

bool takeAll(MainWindow& window, Pictures& pictures)
{
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    bool isGood = pictures.openMesh(QStringLiteral("/bearing-housing.msh"));
    isGood = isGood && pictures.take(window, QStringLiteral("/workbench-mesh.png"));
    selection->setSelectModelInMainWindow(BaseModule::GeometryFace);
    const QList<int> volumes = GeometryManager::instance()->findComponents(QString());
    const QList<int> faces = GeometryManager::instance()->getFaces(volumes.value(0));
    selection->addSelectedTargetList(BaseModule::GeometryFace, {{volumes.value(0), faces.value(1)}});
    isGood = isGood && pictures.take(window, QStringLiteral("/workbench-selection.png"));
    selection->clearAllSelectedTarget();
    MeshDisplay::instance()->colourByMetric(DataManager::MeshQualityReport::Metric::Shape);
    isGood = isGood && pictures.take(window, QStringLiteral("/workbench-quality.png"));
    Language::instance()->choose(QStringLiteral("Chinese"));
    isGood = isGood && pictures.take(window, QStringLiteral("/workbench-chinese.png"));
    Language::instance()->choose(QStringLiteral("English"));
    isGood = isGood && takeDataPictures(window, pictures.directory());
    isGood = isGood && pictures.take(window, QStringLiteral("/workbench-axes.png"));
    return isGood;
}

} // namespace

int main(int argc, char** argv)
{
    prepareGraphics();
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setOrganizationName(QStringLiteral("DataManager"));
    QApplication::setApplicationName(QStringLiteral("workbench-pictures"));
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        return 2;
    }
    bool isGood = false;
    {
        MainWindow window;
        window.setGeometry(0, 0, 1500, 930);
        window.show();
        Pictures pictures(arguments.at(1), arguments.at(2));
        isGood = QTest::qWaitForWindowExposed(&window) && takeAll(window, pictures);
    }
    Project::instance()->close();
    return isGood ? 0 : 1;
}
