// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Measurement.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double kibibytes(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(name, 0) == 0) {
            return std::strtod(line.c_str() + name.size(), nullptr);
        }
    }
    return 0.0;
}

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           1e-6 * static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

Measurement measureHere(const std::function<double()>& task)
{
    std::ofstream("/proc/self/clear_refs") << "5"; // forgets the peak so far
    const double before = kibibytes("VmRSS:");
    const double processorStart = processorSeconds();
    const auto start = std::chrono::steady_clock::now();
    Measurement result;
    result.figure = task();
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.processorSeconds = processorSeconds() - processorStart;
    result.peakBytes = (kibibytes("VmHWM:") - before) * 1024.0;
    return result;
}

Measurement measureInChild(const std::function<double()>& task)
{
    int ends[2];
    if (pipe(ends) != 0) {
        std::abort();
    }
    const pid_t child = fork();
    if (child == 0) {
        const Measurement result = measureHere(task);
        const bool isWritten = write(ends[1], &result, sizeof result) == static_cast<ssize_t>(sizeof result);
        _exit(isWritten ? 0 : 1);
    }
    close(ends[1]);
    Measurement result;
    const bool isRead = read(ends[0], &result, sizeof result) == static_cast<ssize_t>(sizeof result);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!isRead) {
        std::fputs("a contender failed\n", stderr);
        std::exit(1);
    }
    return result;
}

} // namespace

Measurement measure(const std::function<double()>& task, int runs)
{
    Measurement best = measureInChild(task);
    for (int run = 1; run < runs; ++run) {
        const Measurement next = measureInChild(task);
        best = next.processorSeconds < best.processorSeconds ? next : best;
    }
    return best;
}
