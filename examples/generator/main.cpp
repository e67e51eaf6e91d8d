// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// quorrel_examples <folder>: writes the example logs, the same bytes on every run.

#include "CaliperLog.h"
#include "OpenHoleLogs.h"
#include "ProductionLogs.h"

#include <cstdio>
#include <exception>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: quorrel_examples <folder>\n");
        return 2;
    }
    try {
        std::filesystem::path const folder = argv[1];
        std::filesystem::create_directories(folder);

        OpenHoleLogs const open_hole;
        WriteLas2(folder / "demo-e1-openhole-main.las", open_hole.MainPass());
        WriteLas2(folder / "demo-e1-openhole-repeat.las", open_hole.RepeatPass());
        WriteLas3(folder / "demo-e1-while-drilling-las3.las", open_hole.WhileDrilling());

        ProductionLogs const production;
        for (int pass = 0; pass < ProductionLogs::PASSES; ++pass) {
            std::string const name = std::string("demo-a7-plt-") + ProductionLogs::PassName(pass) + ".las";
            WriteLas2(folder / name, production.Pass(pass));
        }
        WriteLas2(folder / "demo-a7-station-shut-in.las", production.ShutInStation());
        WriteLas2(folder / "demo-a7-caliper-40.las", MakeCaliperLog());
    } catch (std::exception const& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
