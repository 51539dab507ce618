// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/QualityDock.h>

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/quality/CheckTable.h>
#include <workbench/quality/ElementSelection.h>
#include <workbench/quality/HistogramView.h>
#include <workbench/quality/KernelChoice.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/RegionTable.h>
#include <workbench/quality/ScorePanel.h>
#include <workbench/quality/WorstList.h>

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

QString cell(const QString& name, const QString& value)
{
    return QStringLiteral("<td>%1</td><td align=right><b>%2</b>&nbsp;&nbsp;</td>").arg(name, value);
}

QString cell(const QString& name, double value)
{
    return cell(name, QString::number(value, 'g', 6));
}

} // namespace

QualityDock::QualityDock(QWidget* parent)
    : QWidget(parent), m_kernel(new KernelChoice(this)), m_metric(new QComboBox), m_title(new QLabel),
      m_summary(new QLabel), m_histogram(new HistogramView), m_tabs(new QTabWidget)
{
    arrange();
    m_metric->addItem(QString());
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        m_metric->addItem(MeshQualityReport::metricName(static_cast<MeshQualityReport::Metric>(i)));
    }
    connect(m_metric, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &QualityDock::choose);
    connect(m_histogram, &HistogramView::signal_binsChosen, this, &QualityDock::selectBins);
    connect(MeshDisplay::instance(), &MeshDisplay::signal_colouringChanged, this, &QualityDock::followColouring);
    connect(MeshFigures::instance(), &MeshFigures::signal_changed, this, &QualityDock::fill);
    followColouring();
    retranslate();
}

void QualityDock::arrange()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    m_metric->setObjectName(QStringLiteral("metric"));
    m_summary->setObjectName(QStringLiteral("summary"));
    m_summary->setTextFormat(Qt::RichText);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_tabs->addTab(new WorstList, QString());
    m_tabs->addTab(new RegionTable, QString());
    m_tabs->addTab(new CheckTable, QString());
    for (QWidget* part : std::initializer_list<QWidget*>{m_kernel, m_metric, m_title, m_summary}) {
        layout->addWidget(part);
    }
    layout->addWidget(m_histogram, 2);
    layout->addWidget(m_tabs, 3);
    layout->addWidget(new ScorePanel);
}

void QualityDock::retranslate()
{
    setWindowTitle(tr("Quality"));
    m_metric->setItemText(0, tr("Colour by face"));
    m_metric->setToolTip(tr("By what the mesh is coloured"));
    m_metric->setAccessibleName(tr("Metric"));
    m_tabs->setAccessibleName(tr("Lists"));
    m_tabs->setTabText(0, tr("Worst elements"));
    m_tabs->setTabText(1, tr("Regions"));
    fill();
}

void QualityDock::followColouring()
{
    const MeshDisplay* display = MeshDisplay::instance();
    const QSignalBlocker blocker(m_metric);
    m_metric->setCurrentIndex(display->isColouredByMetric() ? static_cast<int>(display->metric()) + 1 : 0);
}

void QualityDock::choose(int place)
{
    if (place > 0) {
        MeshDisplay::instance()->colourByMetric(static_cast<MeshQualityReport::Metric>(place - 1));
    } else {
        MeshDisplay::instance()->colourByFace();
    }
}

void QualityDock::fill()
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    m_histogram->setHistogram(figures.histogram);
    const QString verdict = CheckTable::verdictText();
    m_tabs->setTabText(2, verdict.isEmpty() ? tr("Check") : tr("Check: %1").arg(verdict));
    if (!figures.request.mesh) {
        m_title->setText(tr("No mesh"));
        m_summary->clear();
        return;
    }
    const MeshQualityReport& report = figures.request.mesh->report;
    const MeshQualityReport::Summary& s = figures.summary;
    const QString count = tr("%1 of %2 elements");
    m_title->setText(count.arg(MeshQualityReport::metricName(figures.request.metric)).arg(report.elementCount()));
    m_summary->setText(
        QStringLiteral("<table><tr>") + cell(tr("Minimum"), s.minimum) + cell(QStringLiteral("1 %"), s.percentile1) +
        QStringLiteral("</tr><tr>") + cell(QStringLiteral("5 %"), s.percentile5) + cell(tr("Median"), s.median) +
        QStringLiteral("</tr><tr>") + cell(tr("Mean"), s.mean) + cell(QStringLiteral("95 %"), s.percentile95) +
        QStringLiteral("</tr><tr>") + cell(QStringLiteral("99 %"), s.percentile99) + cell(tr("Maximum"), s.maximum) +
        QStringLiteral("</tr><tr>") + cell(tr("Not finite"), QString::number(s.nonFinite)) +
        cell(tr("Inverted / flat"), QStringLiteral("%1 / %2").arg(report.invertedCount()).arg(report.flatCount())) +
        QStringLiteral("</tr></table>"));
}

void QualityDock::selectBins(int first, int last, bool isAdded)
{
    const QualityFigures& figures = MeshFigures::instance()->figures();
    if (figures.request.mesh) {
        selectElements(figures.request.kernelID, elementsInBins(figures, first, last), isAdded);
    }
}

void QualityDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace Workbench
