// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/quality/QualityFigures.h>

#include <QObject>

class QThread;

namespace Workbench {

/// Keeps the figures of one mesh by the metric that MeshDisplay names and the profile that CheckProfile names. They are
/// computed in a thread of their own, so that the window goes on while millions of values are sorted.
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

    /// The mesh that the user chose; 0, as at first and again when it goes, for shownKernel().
    int chosenKernel() const { return m_chosenKernel; }
    /// The mesh that is shown, of several the last, and when none is shown the last of all; 0 without a mesh.
    static int shownKernel();
    void chooseKernel(int kernelID);

    /// How many of the worst elements are listed, from 1 to mostWorst; 20 at first.
    int worstCount() const { return m_worstCount; }
    void setWorstCount(int count);

Q_SIGNALS:
    /// figures() are others now.
    void signal_changed();
    /// Another mesh was chosen.
    void signal_kernelChosen();

private:
    MeshFigures();
    ~MeshFigures() override = default;

    int kernelID() const;
    FiguresRequest wanted() const;
    void update();
    void dropChoice();
    void start(const FiguresRequest& request);
    void take(const QualityFigures& figures);
    void stopThread();

    QualityFigures m_figures;
    QThread* m_thread = nullptr;
    int m_worstCount = 20;
    int m_chosenKernel = 0;
};

} // namespace Workbench
