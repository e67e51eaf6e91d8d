// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "LasTestFiles.h"
#include "support/Programs.h"
#include "support/TestFiles.h"

#include <QFile>

namespace {
class LasMemory : public testing::Test
{
#if defined(__SANITIZE_ADDRESS__) || !defined(__linux__)
    void SetUp() override
    {
        GTEST_SKIP() << "the sanitizer's memory hides ours";
    }
#endif
};

struct Measurement
{
    double megabytes;
    std::string outcome;
};

/// Loads the file in a process of its own.
Measurement Measure(QString const& path)
{
    auto const [exit_code, text] = RunProgram(QUORREL_LAS_MEMORY_PROGRAM, {path});
    EXPECT_EQ(exit_code, 0);
    std::string const output = text.toStdString();
    std::size_t const blank = output.find(' ');
    if (blank == std::string::npos) {
        ADD_FAILURE() << "no measurement of " << path.toStdString();
        return {};
    }
    return {std::stod(output) / 1000.0, output.substr(blank + 1)};
}

/// Writes `head` and then `body` over and over up to `size` bytes.
QString WriteRepeated(test_files::Folder const& folder, std::string const& head, std::string const& body,
                      std::int64_t size)
{
    QString const path = folder.Path("file.las");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    std::string block;
    while (block.size() < 1'000'000) {
        block += body;
    }
    file.write(head.c_str());
    while (file.size() < size) {
        file.write(block.c_str());
    }
    return path;
}
} // namespace

TEST_F(LasMemory, ARegularFileTakesLittleMoreThanItsNumbers)
{
    std::size_t const rows = 100'000;
    std::size_t const columns = 40;
    test_files::Folder const folder;
    for (std::string const step : {"1", "0"}) {
        std::string text = "~V\nVERS. 2.0 :\n~W\nSTRT.M 0 :\nSTOP.M " + std::to_string(rows - 1) +
                           " :\nSTEP.M " + step + " :\n~C\nDEPT.M :\n";
        for (std::size_t column = 0; column < columns; ++column) {
            text += std::string("C").append(std::to_string(column)) + ". :\n";
        }
        text += "~A\n";
        for (std::size_t row = 0; row < rows; ++row) {
            text += std::to_string(row);
            for (std::size_t column = 0; column < columns; ++column) {
                text += column == row % columns ? " -999.25" : " 12.3456";
            }
            text += '\n';
        }
        Measurement const result = Measure(folder.Write("regular.las", QByteArray::fromStdString(text)));
        EXPECT_EQ(result.outcome, std::to_string(rows) + " rows\n");
        double const numbers = static_cast<double>(rows * (8 + 4 * columns)) / 1e6;
        std::printf("STEP %s: %.1f MB for %.1f MB of numbers\n", step.c_str(), result.megabytes, numbers);
        EXPECT_LT(result.megabytes, 1.15 * numbers + 12.0) << "STEP " << step;
    }
}

TEST_F(LasMemory, NoFileTakesMoreThanFourTimesItsSize)
{
    std::int64_t const large = 100'000'000;
    std::int64_t const medium = 20'000'000;
    std::string const one_channel =
        "~V\nVERS. 2.0 :\n~W\nSTRT.M 0 :\nSTOP.M 9 :\nSTEP.M 0 :\n~C\nDEPT.M :\nA. :\n~A\n";
    std::string const no_channel =
        "~V\nVERS. 2.0 :\n~W\nSTRT.M 0 :\nSTOP.M 9 :\nSTEP.M 0 :\n~C\nDEPT.M :\n~A\n";
    test_files::Folder const folder;
    for (auto const& [name, head, body, size, outcome] :
         std::vector<std::tuple<char const*, std::string, std::string, std::int64_t, char const*>>{
             {"no line feed", "", "x", large, "Undefined Mnem: VERS"},
             {"one section line", "~V", "x", medium, "Undefined Mnem: VERS"},
             {"one header line", "~V\nVERS. 2.0 :\n~W\n", "x", medium, "A line of the file's header is "},
             {"one header line of 3.0", "~V\nVERS. 3.0 :\n~W\n", "a.b c:d", medium,
              "A line of the file's header is "},
             {"one word", one_channel, "x", medium, " Invalid value"},
             {"one number", one_channel, "7", medium, "Reached end of LAS file in the middle"},
             {"one line of numbers", one_channel, "1 2 ", medium, ""},
             {"one comment", one_channel + "#", "x", medium, "0 rows"},
             {"one blank", one_channel, " ", medium, "0 rows"},
             {"commas", one_channel, ",", medium, "Reached end of LAS file before"},
             {"dashes", one_channel, "-", medium, "The data section of the file holds more values"},
             {"index only", no_channel, "1\n", medium, ""},
             {"short header lines", "~V\nVERS. 2.0 :\n~W\n", "a\n", medium,
              "The header sections of the file are too long"},
             {"data as header", "~V\nVERS. 2.0 :\n~A\n", "1.0 2.0 3.0 4.0\n", medium,
              "The header sections of the file are too long"},
             {"one row of 3.0",
              las_test::FileV3("0", "9", "0", "~Log_Definition\nD.M :\nA. :\n~Log_Data | Log_Definition\n"),
              "1 2 ", medium, "1 rows"},
             {"rows of 3.0",
              las_test::FileV3("0", "9", "0", "~Log_Definition\nD.M :\nA. :\n~Log_Data | Log_Definition\n"),
              "1.5 2.5\n", medium, ""},
             {"binary", "~V\nVERS. 2.0 :\n~W\n", std::string("\x01\x00\xFF~\n.:", 7), medium, ""},
         }) {
        Measurement const result = Measure(WriteRepeated(folder, head, body, size));
        double const megabytes = static_cast<double>(size) / 1e6;
        std::printf("%-24s %6.1f MB for %6.1f MB: %.60s\n", name, result.megabytes, megabytes,
                    result.outcome.c_str());
        EXPECT_LT(result.megabytes, 4.0 * megabytes + 64.0) << name;
        EXPECT_TRUE(result.outcome.starts_with(outcome)) << name << ": " << result.outcome;
    }
}
