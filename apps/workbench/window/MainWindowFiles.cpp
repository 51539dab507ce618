// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MainWindow.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/MeshingDialog.h>

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

namespace Workbench {
namespace {

QString projectFilter()
{
    return MainWindow::tr("Projects (*.%1)").arg(Project::fileSuffix());
}

} // namespace

void MainWindow::openFile(const QString& path)
{
    if (QFileInfo(path).suffix() == Project::fileSuffix()) {
        openProject(path);
    } else if (MesherProcess::isGeometry(path)) {
        openGeometry(path);
    } else {
        MeshManager::instance()->openMesh(path);
    }
}

void MainWindow::openProject(const QString& path)
{
    if (mayDiscard()) {
        Project::instance()->open(path);
    }
}

void MainWindow::openGeometry(const QString& path)
{
    if (Project::instance()->takeGeometry(path)) {
        mesh();
    }
}

void MainWindow::mesh()
{
    auto* dialog = new MeshingDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::open()
{
    const QString filter =
        tr("All that can be opened (*.%1 *.msh *.geo *.step *.stp *.brep *.iges *.igs)").arg(Project::fileSuffix());
    const QStringList filters{filter, projectFilter(), tr("Meshes (*.msh)"),
                              tr("Geometry (*.geo *.step *.stp *.brep *.iges *.igs)")};
    const QString path = QFileDialog::getOpenFileName(this, tr("Open"), QString(), filters.join(QStringLiteral(";;")));
    if (!path.isEmpty()) {
        openFile(path);
    }
}

bool MainWindow::save()
{
    return Project::instance()->path().isEmpty() ? saveAs() : Project::instance()->save();
}

bool MainWindow::saveAs()
{
    QString path =
        QFileDialog::getSaveFileName(this, tr("Save the project"), Project::instance()->path(), projectFilter());
    if (path.isEmpty()) {
        return false;
    }
    if (QFileInfo(path).suffix() != Project::fileSuffix()) {
        path += QLatin1Char('.') + Project::fileSuffix();
    }
    return Project::instance()->saveAs(path);
}

bool MainWindow::mayDiscard()
{
    if (!Project::instance()->isModified()) {
        return true;
    }
    const QMessageBox::StandardButton answer = QMessageBox::question(
        this, tr("Unsaved changes"), tr("Save the changes to “%1” first?").arg(Project::instance()->name()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void MainWindow::saveScreenshot()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save a picture of the view"), QString(), tr("Pictures (*.png *.jpg)"));
    if (!path.isEmpty()) {
        ViewCommands::instance()->saveScreenshot(path);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!mayDiscard()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/docks"), saveState());
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!urls.isEmpty() && urls.first().isLocalFile()) {
        openFile(urls.first().toLocalFile());
    }
}

} // namespace Workbench
