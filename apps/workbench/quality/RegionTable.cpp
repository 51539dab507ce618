// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/RegionTable.h>

#include <workbench/quality/MeshFigures.h>

#include <QEvent>
#include <QHeaderView>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

QStringList texts(const MeshQualityReport::Region& region, MeshQualityReport::Metric metric)
{
    const MeshQualityReport::Summary& summary = region.summaries[static_cast<std::size_t>(metric)];
    return {regionText(region.physicalTag, region.name),
            QString::number(region.elementCount),
            number(summary.minimum),
            number(summary.percentile1),
            number(summary.percentile5),
            number(summary.median),
            number(summary.mean),
            number(summary.percentile95),
            number(summary.percentile99),
            number(summary.maximum),
            QString::number(summary.nonFinite),
            QString::number(region.invertedCount),
            QString::number(region.flatCount)};
}

} // namespace

RegionTable::RegionTable(QWidget* parent) : QTableWidget(0, 13, parent)
{
    setObjectName(QStringLiteral("regions"));
    setEditTriggers(NoEditTriggers);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(22);
    connect(MeshFigures::instance(), &MeshFigures::signal_changed, this, &RegionTable::fill);
    retranslate();
}

void RegionTable::retranslate()
{
    const QString percent = QStringLiteral("%1 %");
    setHorizontalHeaderLabels({tr("Region"), tr("Elements"), tr("Minimum"), percent.arg(1), percent.arg(5),
                               tr("Median"), tr("Mean"), percent.arg(95), percent.arg(99), tr("Maximum"),
                               tr("Not finite"), tr("Inverted"), tr("Flat")});
    setAccessibleName(tr("Regions"));
    fill();
}

void RegionTable::fill()
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    setRowCount(figures.regions ? static_cast<int>(figures.regions->size()) : 0);
    for (int row = 0; row < rowCount(); ++row) {
        const QStringList columns = texts(figures.regions->at(static_cast<std::size_t>(row)), figures.request.metric);
        for (int column = 0; column < columns.size(); ++column) {
            setItem(row, column, new QTableWidgetItem(columns.at(column)));
        }
    }
    resizeColumnsToContents();
}

void RegionTable::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QTableWidget::changeEvent(event);
}

} // namespace Workbench
