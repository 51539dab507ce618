// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QProcess>

namespace Workbench {

/// A child process with all that it starts itself, which ends with this program, however that ends.
class MesherChild : public QProcess
{
    Q_OBJECT

public:
    using QProcess::QProcess;
    /// Ends it and waits for that.
    ~MesherChild() override;

    /// Ends the child and what it started, without asking, and waits until it is gone.
    void end();

protected:
    void setupChildProcess() override;
};

} // namespace Workbench
