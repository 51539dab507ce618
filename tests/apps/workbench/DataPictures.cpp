// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "DataPictures.h"

#include "Widgets.h"

#include <workbench/coordinates/Angle.h>
#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/material/ImportDialog.h>
#include <workbench/material/MaterialDialog.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/material/MaterialLibraries.h>

#include <datamodel/MaterialData.h>

#include <QDockWidget>
#include <QPixmap>
#include <QTreeView>
#include <QTreeWidget>

using namespace Workbench;

namespace {

bool take(QWidget& widget, const QString& path, const QSize& size)
{
    widget.resize(size);
    QTest::qWait(100);
    return widget.grab().save(path);
}

/// The dialog of that name, which is closed afterwards.
bool takeDialog(const char* name, const QString& path, const QSize& size)
{
    QWidget* const dialog = windowNamed(name);
    const bool isTaken = dialog != nullptr && take(*dialog, path, size);
    if (dialog != nullptr) {
        dialog->close();
    }
    return isTaken;
}

/// False without the default library beside the program.
bool makeMaterials()
{
    MaterialLibraries& libraries = *MaterialLibraries::instance();
    libraries.import(BaseModule::SoftwareLib, {1, 2, 15}, {});
    const auto copper = MaterialLibraries::material(BaseModule::ProjectLib, 1);
    if (copper.isNull() || copper->property3.isNull()) {
        return false;
    }
    const auto warm = QSharedPointer<DataModel::MaterialPropertyData>::create();
    warm->label = copper->property3->label;
    warm->kind = copper->property3->kind;
    warm->components = {4.6e7, 0, 0, 0, 4.6e7, 0, 0, 0, 4.6e7};
    warm->remark = QStringLiteral("unit S/m; measured; 80 C");
    libraries.update(BaseModule::ProjectLib, 1,
                     {1, copper->chineseName, copper->englishName, copper->property1, copper->property2, warm,
                      copper->property4, copper->property5});
    return true;
}

bool takeMaterials(QWidget& window, const QString& directory)
{
    if (!makeMaterials()) {
        return false;
    }
    auto& dock = *window.findChild<MaterialDock*>();
    dock.window()->raise();
    const bool isDockTaken = dock.grab().save(directory + QStringLiteral("/workbench-materials.png"));
    MaterialDialog::openFor(BaseModule::ProjectLib, 1, &dock);
    windowNamed("materialDialog")->findChild<QTabWidget*>()->setCurrentIndex(2);
    const bool isDialogTaken =
        takeDialog("materialDialog", directory + QStringLiteral("/workbench-material.png"), {780, 480});
    ImportDialog::openFor(BaseModule::SoftwareLib, {1, 2, 3, 4}, &dock);
    return isDockTaken && isDialogTaken &&
           takeDialog("importDialog", directory + QStringLiteral("/workbench-import.png"), {640, 340});
}

bool takeCoordinates(QWidget& window, const QString& directory)
{
    CoordinateSystems& systems = *CoordinateSystems::instance();
    const int table = systems.create(0, {QStringLiteral("Table"), BaseModule::Cartesian, {40, 0, 20}, {0, 0, 0}});
    const int spindle =
        systems.create(table, {QStringLiteral("Spindle"), BaseModule::Cylindrical, {0, 30, 10}, {0, 0, radiansOf(30)}});
    systems.create(0, {QStringLiteral("Support"), BaseModule::Cartesian, {-50, 0, 0}, {radiansOf(90), 0, 0}});
    systems.setCurrent(table);
    auto& dock = *window.findChild<CoordinateDock*>();
    QTreeWidget& tree = *dock.findChild<QTreeWidget*>();
    tree.setCurrentItem(tree.findItems(QStringLiteral("Spindle"), Qt::MatchExactly | Qt::MatchRecursive).value(0));
    const bool isDockTaken = dock.grab().save(directory + QStringLiteral("/workbench-coordinates.png"));
    CoordinateDialog::openFor(spindle, &dock);
    return isDockTaken &&
           takeDialog("coordinateDialog", directory + QStringLiteral("/workbench-coordinate.png"), {560, 300});
}

} // namespace

bool takeDataPictures(QWidget& window, const QString& directory)
{
    for (QDockWidget* const dock : window.findChildren<QDockWidget*>()) {
        if (qobject_cast<MaterialDock*>(dock->widget()) != nullptr ||
            qobject_cast<CoordinateDock*>(dock->widget()) != nullptr) {
            dock->show();
            dock->raise();
        }
    }
    QTest::qWait(200);
    return takeMaterials(window, directory) && takeCoordinates(window, directory);
}
