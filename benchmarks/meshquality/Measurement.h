// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <functional>

struct Measurement
{
    double seconds = 0.0;
    /// Processor time, which other work on the machine disturbs less.
    double processorSeconds = 0.0;
    /// By how much the process grew at most.
    double peakBytes = 0.0;
    double figure = 0.0;
};

/// Runs `task` in a process of its own, several times, and keeps the run with the least processor time.
Measurement measure(const std::function<double()>& task, int runs);
