// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/CheckTable.h>

#include <workbench/quality/CheckProfile.h>
#include <workbench/quality/ElementSelection.h>
#include <workbench/quality/MeshFigures.h>

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

using DataManager::MeshQualityReport;
using MeshQuality::Finding;
using MeshQuality::Threshold;
using MeshQuality::Verdict;

namespace Workbench {
namespace {

const QualityFigures& figures()
{
    return MeshFigures::instance()->figures();
}

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

/// "0.2 to 1", "at least 0.2", "at most 3"
QString rangeText(const Threshold& threshold)
{
    if (std::isinf(threshold.maximum)) {
        return CheckTable::tr("at least %1").arg(number(threshold.minimum));
    }
    return std::isinf(threshold.minimum)
               ? CheckTable::tr("at most %1").arg(number(threshold.maximum))
               : CheckTable::tr("%1 to %2").arg(number(threshold.minimum), number(threshold.maximum));
}

QColor colourOf(Verdict verdict)
{
    return verdict == Verdict::Fail ? QColor(176, 0, 0) : verdict == Verdict::Warn ? QColor(150, 90, 0) : QColor();
}

} // namespace

CheckTable::CheckTable(QWidget* parent)
    : QWidget(parent), m_profile(new QLabel), m_open(new QPushButton), m_builtIn(new QPushButton),
      m_select(new QPushButton), m_table(new QTableWidget(0, 5))
{
    arrange();
    connect(m_open, &QPushButton::clicked, this, &CheckTable::openProfile);
    connect(m_builtIn, &QPushButton::clicked, CheckProfile::instance(),
            [] { CheckProfile::instance()->choose(QString()); });
    connect(m_select, &QPushButton::clicked, this, &CheckTable::select);
    connect(MeshFigures::instance(), &MeshFigures::signal_changed, this, &CheckTable::fill);
    connect(CheckProfile::instance(), &CheckProfile::signal_changed, this, &CheckTable::fill);
    retranslate();
}

void CheckTable::arrange()
{
    m_profile->setObjectName(QStringLiteral("profile"));
    m_profile->setTextFormat(Qt::PlainText);
    m_profile->setWordWrap(true);
    m_open->setObjectName(QStringLiteral("openProfile"));
    m_builtIn->setObjectName(QStringLiteral("builtInProfile"));
    m_select->setObjectName(QStringLiteral("selectOutside"));
    m_table->setObjectName(QStringLiteral("checks"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(22);
    m_table->horizontalHeader()->setStretchLastSection(true);
    auto* const line = new QHBoxLayout;
    line->addWidget(m_open);
    line->addWidget(m_builtIn);
    line->addStretch();
    line->addWidget(m_select);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->addWidget(m_profile);
    layout->addLayout(line);
    layout->addWidget(m_table);
}

void CheckTable::retranslate()
{
    m_open->setText(tr("Profile..."));
    m_open->setToolTip(tr("Checks against the thresholds of a file, as 'meshquality check --profile' does"));
    m_builtIn->setText(tr("Built in"));
    m_builtIn->setToolTip(tr("Checks against the thresholds that are built into the programs"));
    m_select->setText(tr("Select outside"));
    m_select->setToolTip(tr("Selects the elements outside of the marked thresholds, or of all when none is marked"));
    m_table->setHorizontalHeaderLabels({tr("Metric"), tr("Wanted"), tr("Outside"), tr("Allowed"), tr("Verdict")});
    m_table->setAccessibleName(tr("Checks"));
    fill();
}

void CheckTable::fill()
{
    m_profile->setText(tr("Profile: %1").arg(CheckProfile::instance()->title()));
    m_profile->setToolTip(QDir::toNativeSeparators(CheckProfile::instance()->path()));
    m_builtIn->setEnabled(!CheckProfile::instance()->path().isEmpty());
    m_table->clearSelection();
    m_table->setRowCount(static_cast<int>(figures().findings.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        fillRow(row);
    }
    m_table->resizeColumnsToContents();
    m_select->setEnabled(m_table->rowCount() > 0);
}

void CheckTable::fillRow(int row)
{
    const Threshold& threshold = figures().request.profile->thresholds[static_cast<std::size_t>(row)];
    const Finding& finding = figures().findings[static_cast<std::size_t>(row)];
    const QStringList texts{MeshQualityReport::metricName(threshold.metric), rangeText(threshold),
                            QStringLiteral("%1 (%2 %)").arg(QString::number(finding.failing), number(finding.percent)),
                            QStringLiteral("%1 %").arg(number(threshold.allowedPercent)),
                            MeshQuality::verdictText(finding.verdict)};
    for (int column = 0; column < texts.size(); ++column) {
        auto* const item = new QTableWidgetItem(texts.at(column));
        item->setToolTip(QStringLiteral("<qt>%1</qt>").arg(threshold.source.toHtmlEscaped()));
        item->setData(Qt::AccessibleDescriptionRole, threshold.source);
        m_table->setItem(row, column, item);
    }
    const QColor colour = colourOf(finding.verdict);
    if (colour.isValid()) {
        m_table->item(row, m_table->columnCount() - 1)->setForeground(colour);
    }
}

QString CheckTable::verdictText()
{
    const std::vector<Finding>& findings = figures().findings;
    const auto worst = std::max_element(findings.begin(), findings.end(),
                                        [](const Finding& a, const Finding& b) { return a.verdict < b.verdict; });
    return worst == findings.end() ? QString() : MeshQuality::verdictText(worst->verdict);
}

void CheckTable::openProfile()
{
    auto* const dialog = new QFileDialog(this);
    dialog->setObjectName(QStringLiteral("profileDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(QStringLiteral("JSON (*.json)"));
    connect(dialog, &QFileDialog::fileSelected, CheckProfile::instance(), &CheckProfile::choose);
    dialog->open();
}

void CheckTable::select()
{
    if (!figures().request.mesh) {
        return;
    }
    std::vector<int> rows;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    selectElements(figures().request.kernelID, elementsOutside(figures(), rows), false);
}

void CheckTable::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace Workbench
