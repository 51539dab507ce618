// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QTabWidget;

namespace Workbench {

class HistogramView;
class KernelChoice;

/// How good the mesh is: a metric, how its values are spread, the worst elements, and the score.
class QualityDock : public QWidget
{
    Q_OBJECT

public:
    explicit QualityDock(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    void retranslate();
    void followColouring();
    void fill();
    static void choose(int place);
    void selectBins(int first, int last, bool isAdded);

    KernelChoice* m_kernel;
    QComboBox* m_metric;
    QLabel* m_title;
    QLabel* m_summary;
    HistogramView* m_histogram;
    QTabWidget* m_tabs;
};

} // namespace Workbench
