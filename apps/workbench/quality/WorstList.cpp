// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/WorstList.h>

#include <meshquality/ElementCsv.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/quality/ElementSelection.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityFigures.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

using DataManager::MeshQualityReport;

namespace Workbench {

WorstList::WorstList(QWidget* parent)
    : QWidget(parent), m_label(new QLabel), m_count(new QSpinBox), m_select(new QPushButton), m_save(new QPushButton),
      m_table(new QTableWidget(0, 3))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(m_label);
    line->addWidget(m_count);
    line->addStretch();
    line->addWidget(m_select);
    line->addWidget(m_save);
    layout->addLayout(line);
    layout->addWidget(m_table);
    m_count->setRange(1, MeshFigures::mostWorst);
    m_count->setValue(MeshFigures::instance()->worstCount());
    m_count->setKeyboardTracking(false);
    m_label->setBuddy(m_count);
    m_count->setObjectName(QStringLiteral("worstCount"));
    m_save->setObjectName(QStringLiteral("saveWorst"));
    m_select->setObjectName(QStringLiteral("selectWorst"));
    m_table->setObjectName(QStringLiteral("worst"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->setDefaultSectionSize(22);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_count, QOverload<int>::of(&QSpinBox::valueChanged), MeshFigures::instance(), &MeshFigures::setWorstCount);
    connect(m_table, &QTableWidget::cellActivated, this, &WorstList::focus);
    connect(m_select, &QPushButton::clicked, this, &WorstList::select);
    connect(m_save, &QPushButton::clicked, this, &WorstList::openSaving);
    connect(MeshFigures::instance(), &MeshFigures::signal_changed, this, &WorstList::fill);
    retranslate();
}

void WorstList::retranslate()
{
    m_label->setText(tr("Number:"));
    m_select->setText(tr("Select"));
    m_select->setToolTip(tr("Selects the elements of the marked rows, or all of the list when none is marked"));
    m_save->setText(tr("Save..."));
    m_save->setToolTip(tr("Writes the list with all metrics as CSV, as 'meshquality report' does"));
    m_table->setAccessibleName(tr("Worst elements"));
    m_table->setHorizontalHeaderLabels({tr("Element"), tr("Region"), tr("Value")});
    m_table->setToolTip(tr("A double click or Enter looks at the element"));
    fill();
}

void WorstList::fill()
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    m_table->clearSelection();
    m_table->setRowCount(static_cast<int>(figures.worst.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        fillRow(row);
    }
    m_select->setEnabled(m_table->rowCount() > 0);
    m_save->setEnabled(m_table->rowCount() > 0);
}

void WorstList::fillRow(int row)
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    const MeshQualityReport& report = figures.request.mesh->report;
    const auto place = static_cast<std::size_t>(figures.worst[static_cast<std::size_t>(row)]);
    const int element = static_cast<int>(place);
    const int group = report.physicalTag(element);
    const double value = report.values(figures.request.metric)[place];
    const QStringList texts{QString::number(report.tag(element)), regionText(group, report.groupNames().value(group)),
                            QString::number(value, 'g', 6)};
    for (int column = 0; column < texts.size(); ++column) {
        m_table->setItem(row, column, new QTableWidgetItem(texts.at(column)));
    }
}

void WorstList::focus(int row)
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    const int place = figures.worst.at(static_cast<std::size_t>(row));
    const int elementID = figures.request.mesh->elementNumbers.number(place);
    MeshDisplay::instance()->focusElement(figures.request.kernelID, elementID);
}

void WorstList::select()
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    std::vector<int> places;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows()) {
        places.push_back(figures.worst.at(static_cast<std::size_t>(index.row())));
    }
    selectElements(figures.request.kernelID, places.empty() ? figures.worst : places, false);
}

void WorstList::openSaving()
{
    auto* const dialog = new QFileDialog(this);
    dialog->setObjectName(QStringLiteral("saveDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(QStringLiteral("CSV (*.csv)"));
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    connect(dialog, &QFileDialog::fileSelected, this, &WorstList::save);
    dialog->open();
}

// The mesh may have gone while the name was chosen; the file then holds the names of the columns.
void WorstList::save(const QString& path) const
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    const QString mesh = MeshManager::instance()->getKernelName(figures.request.kernelID);
    QByteArray content = MeshQuality::elementHeader();
    for (const int place : figures.worst) {
        content += MeshQuality::elementLine(mesh, figures.request.mesh->report, place);
    }
    if (!BaseModule::GlobalHelper::writeFile(path, content, QIODevice::WriteOnly | QIODevice::Truncate)) {
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(
            2, tr("The list could not be written to %1.").arg(QDir::toNativeSeparators(path)));
    }
}

void WorstList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace Workbench
