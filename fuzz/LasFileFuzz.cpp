// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Any bytes are a LAS file or are refused by an exception; a file that loads keeps the promises of LASFile.

#include "formats/las/LASFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <sstream>
#include <string>

namespace {
void Require(bool is_kept, char const* promise)
{
    if (!is_kept) {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    try {
        std::istringstream stream(std::string(reinterpret_cast<char const*>(data), size));
        LASFile const file(stream, "fuzz.las");
        Require(file.GetDataMatrix().size() == file.GetLASCurveInfo().size(),
                "one curve row for each column");
        Require(file.CalculateNumberOfColumns() == file.GetDataMatrix().size(), "the number of columns");
        for (auto const& column : file.GetDataMatrix()) {
            Require(column != nullptr && column->size() == file.GetDepthVector().size(),
                    "columns as long as the index");
        }
        (void)file.IsTimeLog();
        (void)file.IsMetric();
        (void)file.GetDelimiter();
    } catch (std::exception const& exception) {
        Require(exception.what()[0] != '\0', "a refusal has a text");
    }
    return 0;
}
