// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>
#include <string>
#include <vector>

namespace {
/// Every text with which a file of numbers and headers may be refused.
bool IsKnownRefusal(std::string const& text)
{
    static std::string const number = "-?\\d+(?:\\.\\d+)?";
    static std::vector<std::regex> const refusals = {
        std::regex(
            "\"DLM\" is not equal to \"SPACE\"\\. Only LAS Files with \"SPACE\" delimiter are supported"),
        std::regex("Unknown Version: .*"),
        std::regex("Undefined Mnem: (?:VERS|STRT|STOP|STEP)"),
        std::regex(
            "Incorrect LAS File header\\. Check STRT, STOP and STEP parameters to confirm that they are "
            "valid"),
        std::regex(
            " Invalid value in ASCII data-section of LAS-file\\. Only numeric values are allowed here\\. "
            "Consider replacing the invalid value with \"-999\\.25\" in a text editor and try again\\. "
            "Invalid value found: .+"),
        std::regex(
            "Reached end of LAS file before the depth/time\\(first\\) column at data-row number: \\d+"),
        std::regex(
            "Number of decimals exceed floating point converter capability\\. Following number failed to "
            "convert: .+"),
        std::regex(
            " Incorrect consecutive index in LAS-File\\. Consider opening the file in a text editor, go to "
            "the previous index time/depth and look for errors\\. Previous index: " +
            number + "   Current index: " + number + "  Expected: " + number),
        std::regex(
            "Reached end of LAS file in the middle of data conversion in data-row: \\d+ out of \\d+ - at "
            "column: \\d+ out of \\d+"),
        std::regex("Expected number of data-rows: \\d+   Actual rows read: \\d+"),
        std::regex("Quorrel only supports LAS V\\.3 files containing one run\\. Actual runs in file: .+"),
        std::regex("String format\\{S\\} for logging data-columns not supported"),
        std::regex("LASDataFileMatrix LASFile::LoadDataSectionV3\\(std::ifstream&, std::string\\) Unknown "
                   "definition for LAS v3 file: .*"),
        std::regex("bad optional access"),
        std::regex("Expected number of columns are: \\d+ Actual number of columns are: \\d+"),
        std::regex("At depth: " + number + " - Expected STEP is: " + number +
                   " (m|ft) Actual STEP is: " + number + " (m|ft)"),
        std::regex("Did not read expected number of rows: Expected: -?\\d+    Actual: \\d+"),
        std::regex("The LAS V\\.3 file has no data section"),
    };
    for (std::regex const& refusal : refusals) {
        if (std::regex_match(text, refusal)) {
            return true;
        }
    }
    return false;
}

void ExpectInvariants(LASFile const& file, std::string const& name)
{
    ASSERT_EQ(file.GetDataMatrix().size(), file.GetLASCurveInfo().size()) << name;
    for (auto const& column : file.GetDataMatrix()) {
        ASSERT_EQ(column->size(), file.GetDepthVector().size()) << name;
    }
}
} // namespace

// Prints what becomes of each file, so that a change of the reader shows in the log.
TEST(LasSamples, EachFileLoadsOrIsRefusedForAKnownReason)
{
    QUORREL_SKIP_WITHOUT_SAMPLES();
    int files = 0;
    int loaded = 0;
    for (char const* folder : {"las2", "las3", "las_other"}) {
        for (QString const& path : test_files::SampleFiles(folder)) {
            std::string const name = std::string(folder) + "/" + QFileInfo(path).fileName().toStdString();
            ++files;
            try {
                LASFile const file(QFile::encodeName(path).toStdString());
                ++loaded;
                ExpectInvariants(file, name);
                std::printf("%-90s %zu x %zu\n", name.c_str(), file.GetDepthVector().size(),
                            file.GetDataMatrix().size());
            } catch (std::exception const& exception) {
                std::printf("%-90s %s\n", name.c_str(), exception.what());
                EXPECT_TRUE(IsKnownRefusal(exception.what())) << name << ": " << exception.what();
            }
        }
    }
    std::printf("%d files, %d loaded, %d refused\n", files, loaded, files - loaded);
    EXPECT_GT(loaded, 0);
}
