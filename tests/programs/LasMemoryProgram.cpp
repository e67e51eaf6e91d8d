// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"

#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <string>

namespace {
/// A line of the process's status in kB, such as "VmHWM:", the largest memory so far.
long StatusKilobytes(char const* name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stol(line.substr(std::strlen(name)));
        }
    }
    return -1;
}
} // namespace

/// Loads the file given as argument and prints what that took at most, in kB, and the rows or the refusal.
int main(int argc, char** argv)
{
    if (argc != 2) {
        return 1;
    }
    long const before = StatusKilobytes("VmRSS:");
    std::string outcome;
    try {
        LASFile const file{std::string(argv[1])};
        outcome = std::to_string(file.GetDepthVector().size()) + " rows";
    } catch (std::exception const& exception) {
        outcome = std::string(exception.what()).substr(0, 300);
    }
    std::printf("%ld %s\n", StatusKilobytes("VmHWM:") - before, outcome.c_str());
    return 0;
}
