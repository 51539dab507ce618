// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MainWindow.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/MeshingDialog.h>
#include <workbench/window/TransferDialog.h>

#include <basemodule/IBaseSignal.h>

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QTimer>
#include <QUrl>

namespace Workbench {
namespace {

QString projectFilter()
{
    return MainWindow::tr("Projects (*.%1)").arg(Project::fileSuffix());
}

QStringList localFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}

// A mesh that was just made is in no file of the user's while it is read.
bool hasUnsaved()
{
    return Project::instance()->isModified() || MesherProcess::instance()->isResultRead();
}

} // namespace

void MainWindow::openFile(const QString& path)
{
    if (QFileInfo(path).suffix().compare(Project::fileSuffix(), Qt::CaseInsensitive) == 0) {
        openProject(path);
    } else if (MesherProcess::isGeometry(path)) {
        openGeometry(path);
    } else {
        MeshManager::instance()->openMesh(path);
    }
}

void MainWindow::openProject(const QString& path)
{
    if (mayLeave()) {
        Project::instance()->startOpening(path);
        TransferDialog::wait(this, tr("Opening %1").arg(QFileInfo(path).fileName()));
    }
}

void MainWindow::openGeometry(const QString& path)
{
    if (MesherProcess::instance()->mayStart() && Project::instance()->takeGeometry(path)) {
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
    if (Project::instance()->path().isEmpty()) {
        return saveAs();
    }
    Project::instance()->startSaving(Project::instance()->path());
    return true;
}

bool MainWindow::saveAs()
{
    const QString path = askForNewFile(tr("Save the project"), projectFilter(), Project::fileSuffix());
    if (!path.isEmpty()) {
        Project::instance()->startSaving(path);
    }
    return !path.isEmpty();
}

QString MainWindow::askForNewFile(const QString& title, const QString& filter, const QString& suffix)
{
    QFileDialog dialog(this, title, Project::instance()->path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool MainWindow::waitForSaving()
{
    return TransferDialog::wait(this, tr("Saving “%1”").arg(Project::instance()->name()));
}

// Whether the open project may be left: everything is saved that is to be, and nothing runs that would be missed.
bool MainWindow::mayLeave()
{
    if (Project::instance()->isSaving() && !waitForSaving()) {
        return false;
    }
    if (hasUnsaved()) {
        return mayDiscard();
    }
    if (!MesherProcess::instance()->isRunning()) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, tr("Meshing is under way"), stopsMeshing(),
                         QMessageBox::Yes | QMessageBox::Cancel, this);
    question.setInformativeText(tr("Go on?"));
    // The mesh may have come while the question was open.
    return question.exec() == QMessageBox::Yes && (!hasUnsaved() || mayDiscard());
}

QString MainWindow::stopsMeshing()
{
    return tr("The geometry is being meshed. This stops it.");
}

bool MainWindow::mayDiscard()
{
    QMessageBox question(QMessageBox::Question, tr("Unsaved changes"),
                         tr("Save the changes to “%1” first?").arg(Project::instance()->name()),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setDefaultButton(QMessageBox::Save);
    if (MesherProcess::instance()->isRunning()) {
        question.setInformativeText(stopsMeshing());
    }
    const int answer = question.exec();
    if (answer != QMessageBox::Save) {
        return answer == QMessageBox::Discard;
    }
    // What came while it was saved is not in the file.
    return save() && waitForSaving() && (!hasUnsaved() || mayDiscard());
}

void MainWindow::saveScreenshot()
{
    const QString path =
        askForNewFile(tr("Save a picture of the view"), tr("Pictures (*.png *.jpg)"), QStringLiteral("png"));
    if (!path.isEmpty()) {
        ViewCommands::instance()->saveScreenshot(path);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!mayLeave()) {
        event->ignore();
        return;
    }
    MesherProcess::instance()->cancel();
    MeshManager::instance()->cancelLoad();
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/docks"), saveState());
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

// Opened after the drag has ended: a question would hold up the program that it comes from.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList paths = localFiles(*event->mimeData());
    if (paths.isEmpty()) {
        return;
    }
    event->acceptProposedAction();
    if (paths.size() > 1) {
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(
            2, tr("One file is opened at a time: of %1 only %2.").arg(paths.size()).arg(paths.first()));
    }
    QTimer::singleShot(0, this, [this, path = paths.first()] { openFile(path); });
}

} // namespace Workbench
