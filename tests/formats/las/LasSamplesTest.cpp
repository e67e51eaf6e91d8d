// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QFileInfo>

namespace {
/// How the texts begin with which a file of numbers and headers may be refused. LASFileTest has them in full.
bool IsKnownRefusal(std::string const& text)
{
    static std::vector<std::string> const refusals = {
        "\"DLM\" is not equal to \"SPACE\".",
        "Unknown Version: ",
        "Undefined Mnem: VERS",
        "Undefined Mnem: ST",
        "Incorrect LAS File header. Check STRT, STOP and STEP",
        " Invalid value in ASCII data-section of LAS-file.",
        "Reached end of LAS file before the depth/time(first) column at data-row number: ",
        "Number of decimals exceed floating point converter capability.",
        " Incorrect consecutive index in LAS-File.",
        "Reached end of LAS file in the middle of data conversion in data-row: ",
        "Expected number of data-rows: ",
        "Quorrel only supports LAS V.3 files containing one run.",
        "String format{S} for logging data-columns not supported",
        "LASDataFileMatrix LASFile::LoadDataSectionV3(std::ifstream&, std::string) Unknown definition ",
        "bad optional access",
        "Expected number of columns are: ",
        "At depth: ",
        "Did not read expected number of rows: ",
        "The LAS V.3 file has no data section"};
    return std::any_of(refusals.begin(), refusals.end(),
                       [&text](std::string const& refusal) { return text.starts_with(refusal); });
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
                EXPECT_EQ(file.GetDataMatrix().size(), file.GetLASCurveInfo().size()) << name;
                for (auto const& column : file.GetDataMatrix()) {
                    EXPECT_EQ(column->size(), file.GetDepthVector().size()) << name;
                }
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
