// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstring>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// Measurements in a process of their own, so that each finds fresh memory.
namespace child_process {
/// A line of the process's status in MB (10^6 bytes), such as "VmRSS:" or "VmHWM:".
inline double StatusMegabytes(char const* name)
{
    std::ifstream stream("/proc/self/status");
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(name)) {
            return std::stod(line.substr(std::strlen(name))) * 1024 / 1e6;
        }
    }
    return 0;
}

/// By how much the largest memory during the work was above the memory before it, MB.
template <typename Work>
double PeakMegabytes(Work work)
{
    std::ofstream("/proc/self/clear_refs") << 5; // forgets the peak so far
    double const before = StatusMegabytes("VmRSS:");
    work();
    return StatusMegabytes("VmHWM:") - before;
}

/// What `measure` returns, plain data, run in a child; all zero when that fails.
template <typename Measure>
auto Run(Measure measure) -> decltype(measure())
{
    decltype(measure()) result{};
    int ends[2] = {};
    if (::pipe(ends) != 0) {
        return result;
    }
    ::pid_t const child = ::fork();
    if (child == 0) {
        auto const measured = measure();
        ::_exit(::write(ends[1], &measured, sizeof(measured)) == sizeof(measured) ? 0 : 1);
    }
    ::close(ends[1]);
    if (::read(ends[0], &result, sizeof(result)) != sizeof(result)) {
        result = {};
    }
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return result;
}
} // namespace child_process
