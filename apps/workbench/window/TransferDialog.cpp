// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/TransferDialog.h>

#include <workbench/project/Project.h>

#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

namespace Workbench {
namespace {

constexpr int patience = 300; // milliseconds; a window that only flashes disturbs

bool isAtWork()
{
    return Project::instance()->isOpening() || Project::instance()->isSaving();
}

} // namespace

TransferDialog::TransferDialog(QWidget* parent, const QString& text) : QDialog(parent), m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("transferDialog"));
    setWindowTitle(tr("Please wait"));
    auto* layout = new QVBoxLayout(this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    layout->addWidget(new QLabel(text, this));
    layout->addWidget(m_bar);
    layout->addWidget(buttons);
    m_bar->setRange(0, 100);
    connect(buttons, &QDialogButtonBox::rejected, this, &TransferDialog::reject);
    connect(Project::instance(), &Project::signal_transferProgress, m_bar, &QProgressBar::setValue);
    connect(Project::instance(), &Project::signal_transferFinished, this, &TransferDialog::accept);
}

bool TransferDialog::wait(QWidget* parent, const QString& text)
{
    bool isDone = false;
    QEventLoop loop;
    connect(Project::instance(), &Project::signal_transferFinished, &loop, [&isDone, &loop](bool isSuccess) {
        isDone = isSuccess;
        loop.quit();
    });
    if (isAtWork()) {
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (isAtWork()) {
        TransferDialog dialog(parent, text);
        dialog.exec();
    }
    return isDone;
}

// The dialog closes when the work has really ended.
void TransferDialog::reject()
{
    Project::instance()->cancelTransfer();
}

} // namespace Workbench
