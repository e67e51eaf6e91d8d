// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Stands in for libFuzzer where there is none: runs a fuzz target once over each file of the folders and
// files given as arguments.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

int main(int argc, char** argv)
{
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i) {
        std::filesystem::path const argument = argv[i];
        if (std::filesystem::is_directory(argument)) {
            for (auto const& entry : std::filesystem::recursive_directory_iterator(argument)) {
                if (entry.is_regular_file()) {
                    files.push_back(entry.path());
                }
            }
        } else {
            files.push_back(argument);
        }
    }
    if (files.empty()) {
        std::fprintf(stderr, "nothing to replay: give a folder with files\n");
        return 1;
    }
    std::sort(files.begin(), files.end());
    for (std::filesystem::path const& path : files) {
        std::ifstream stream(path, std::ios::binary);
        if (!stream) {
            std::fprintf(stderr, "cannot read %s\n", path.c_str());
            return 1;
        }
        std::string const content((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
        // Names the culprit before a crash.
        std::printf("%s, %zu bytes\n", path.filename().c_str(), content.size());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(content.data()), content.size());
    }
    std::printf("%zu files replayed\n", files.size());
    return 0;
}
