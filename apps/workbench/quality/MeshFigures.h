// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/quality/QualityFigures.h>

#include <QObject>

class QThread;

namespace Workbench {

/// Keeps the figures of the mesh that was read last, by the metric that MeshDisplay names. They are computed in a
/// thread of their own, so that the window goes on while millions of values are sorted.
class MeshFigures : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostWorst = 1000;

    /// The figures of the process, created by the first call and never destroyed.
    static MeshFigures* instance();

    /// Those that are ready: of the present mesh or none, but while others are computed perhaps by the metric before.
    const QualityFigures& figures() const { return m_figures; }
    bool isWorking() const { return m_thread != nullptr; }

    /// How many of the worst elements are listed, from 1 to mostWorst; 20 at first.
    int worstCount() const { return m_worstCount; }
    void setWorstCount(int count);

Q_SIGNALS:
    /// figures() are others now.
    void signal_changed();

private:
    MeshFigures();
    ~MeshFigures() override = default;

    FiguresRequest wanted() const;
    void update();
    void start(const FiguresRequest& request);
    void take(const QualityFigures& figures);
    void stopThread();

    QualityFigures m_figures;
    QThread* m_thread = nullptr;
    int m_worstCount = 20;
};

} // namespace Workbench
