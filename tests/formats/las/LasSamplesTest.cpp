// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {
/// Every text with which a file of numbers and headers may be refused.
bool IsKnownRefusal(std::string const& text)
{
    static QString const number = "-?\\d+(?:\\.\\d+)?";
    static std::vector<QString> const refusals = {
        QString("\"DLM\" is not equal to \"SPACE\"\\. Only LAS Files with \"SPACE\" delimiter are supported"),
        QString("Unknown Version: .*"),
        QString("Undefined Mnem: (?:VERS|STRT|STOP|STEP)"),
        QString("Incorrect LAS File header\\. Check STRT, STOP and STEP parameters to confirm that they are "
                "valid"),
        QString(" Invalid value in ASCII data-section of LAS-file\\. Only numeric values are allowed here\\. "
                "Consider replacing the invalid value with \"-999\\.25\" in a text editor and try again\\. "
                "Invalid value found: .+"),
        QString("Reached end of LAS file before the depth/time\\(first\\) column at data-row number: \\d+"),
        QString("Number of decimals exceed floating point converter capability\\. Following number failed to "
                "convert: .+"),
        QString(
            " Incorrect consecutive index in LAS-File\\. Consider opening the file in a text editor, go to "
            "the previous index time/depth and look for errors\\. Previous index: " +
            number + "   Current index: " + number + "  Expected: " + number),
        QString("Reached end of LAS file in the middle of data conversion in data-row: \\d+ out of \\d+ - at "
                "column: \\d+ out of \\d+"),
        QString("Expected number of data-rows: \\d+   Actual rows read: \\d+"),
        QString("Quorrel only supports LAS V\\.3 files containing one run\\. Actual runs in file: .+"),
        QString("String format\\{S\\} for logging data-columns not supported"),
        QString("LASDataFileMatrix LASFile::LoadDataSectionV3\\(std::ifstream&, std::string\\) Unknown "
                "definition for LAS v3 file: .*"),
        QString("bad optional access"),
        QString("Expected number of columns are: \\d+ Actual number of columns are: \\d+"),
        QString("At depth: " + number + " - Expected STEP is: " + number +
                " (m|ft) Actual STEP is: " + number + " (m|ft)"),
        QString("Did not read expected number of rows: Expected: -?\\d+    Actual: \\d+"),
        QString("The LAS V\\.3 file has no data section"),
    };
    QString const whole = QString::fromStdString(text);
    return std::any_of(refusals.begin(), refusals.end(), [&whole](QString const& refusal) {
        return QRegularExpression(QRegularExpression::anchoredPattern(refusal)).match(whole).hasMatch();
    });
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
