// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/MeshingDialog.h>

#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include <cmath>

namespace Workbench {

MeshingDialog::MeshingDialog(QWidget* parent)
    : QDialog(parent), m_size(new QLineEdit(this)), m_problem(new QLabel(this))
{
    setWindowTitle(tr("Mesh the geometry"));
    auto* layout = new QFormLayout(this);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_mesh = buttons->addButton(tr("Mesh"), QDialogButtonBox::AcceptRole);
    m_size->setPlaceholderText(tr("as the geometry says"));
    m_size->setToolTip(tr("In the unit of the geometry, with a point as decimal separator, for example 2.5e-3"));
    layout->addRow(tr("Geometry:"), new QLabel(Project::instance()->geometryName(), this));
    layout->addRow(tr("Largest element size:"), m_size);
    layout->addRow(m_problem);
    layout->addRow(buttons);
    m_problem->setStyleSheet(QStringLiteral("color: #b00020"));
    connect(m_size, &QLineEdit::textChanged, this, &MeshingDialog::check);
    connect(buttons, &QDialogButtonBox::accepted, this, &MeshingDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &MeshingDialog::reject);
    check();
}

double MeshingDialog::elementSize() const
{
    const QString text = m_size->text().trimmed();
    bool isNumber = false;
    const double size = QLocale::c().toDouble(text, &isNumber);
    if (text.isEmpty()) {
        return 0;
    }
    return isNumber && std::isfinite(size) && size > 0 && !text.contains(QLatin1Char(',')) ? size : -1;
}

void MeshingDialog::check()
{
    const bool isGood = elementSize() >= 0;
    m_problem->setText(isGood ? QString() : tr("A size is a positive number with a point, such as 0.01."));
    m_mesh->setEnabled(isGood);
}

void MeshingDialog::accept()
{
    if (elementSize() >= 0) {
        const Project* project = Project::instance();
        const QString name = QFileInfo(project->geometryName()).completeBaseName();
        MesherProcess::instance()->start(project->geometryPath(), elementSize(), {name, project->geometryOrigin()});
        QDialog::accept();
    }
}

} // namespace Workbench
