// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LASFile.h"

#include "LasTestFiles.h"
#include "formats/las/FileBuffer.h"
#include "formats/las/LasV2Reader.h"
#include "model/UndefinedMnem.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QLocale>

#include <array>
#include <clocale>
#include <locale>
#include <unistd.h>

using namespace las_test;

namespace {
std::string const GOOD_FILE = FileV2("1.0", "2.0", "0.5", GOOD_ROWS);

/// The data part of the refusal for a bad index.
std::string IndexRefusal(std::string const& previous, std::string const& current, std::string const& expected)
{
    return " Incorrect consecutive index in LAS-File. Consider opening the file in a text editor, go to the "
           "previous "
           "index time/depth and look for errors. Previous index: " +
           previous + "   Current index: " + current + "  Expected: " + expected;
}

} // namespace

TEST(LASFile, LoadsAFileOfVersion2)
{
    LASFile const file = Load(GOOD_FILE);
    EXPECT_EQ(file.GetLASVersion().GetData("VERS"), "2.0");
    EXPECT_EQ(file.GetLASWellInfo().size(), 4U);
    EXPECT_EQ(file.GetIndexRow(), HeaderRow("DEPT", "M", "", "1 DEPTH"));
    ASSERT_EQ(file.GetLASCurveInfo().size(), 2U);
    EXPECT_EQ(file.GetLASCurveInfo().at(1), HeaderRow("RHOB", "K/M3", "45 350 01 00", "3 BULK DENSITY"));
    ExpectGoodRows(file);
    EXPECT_EQ(file.GetStartDepth(), 1.0F);
    EXPECT_EQ(file.GetStopDepth(), 2.0F);
    EXPECT_EQ(file.GetDepthStep(), 0.5F);
    EXPECT_EQ(file.CalculateNumberOfColumns(), 2U);
    EXPECT_EQ(file.GetDelimiter(), ' ');
    EXPECT_TRUE(file.IsMetric());
    EXPECT_FALSE(file.IsTimeLog());
}

TEST(LASFile, TheSecondSectionIsTheWellSectionAndOthersGoByTwoLetters)
{
    LASFile const file =
        Load("ignored\n\n~anything\nVERS. 2.00: x\n~also anything\nSTEP. 0 : \n#comment\n\n"
             "~\nX. 1 : skipped\n~Zones\nY. 2 : skipped\n~p\nZ. 3 : skipped\n"
             "~Params\nBS.IN 8.5 : Bit size\n~Other\nRemark one\n~C\nTIME.S :\nA. : a\n~A\n");
    EXPECT_EQ(file.GetLASWellInfo().size(), 1U);
    ASSERT_EQ(file.GetLASParameterInfo().size(), 1U);
    EXPECT_EQ(file.GetLASParameterInfo().at(0), HeaderRow("BS", "IN", "8.5", "Bit size"));
    ASSERT_EQ(file.GetLASOtherInfo().size(), 1U);
    EXPECT_EQ(file.GetLASOtherInfo().at(0).mnemonic, "Remark one");
    EXPECT_TRUE(file.IsTimeLog());
    EXPECT_FALSE(file.IsMetric());
    ASSERT_EQ(file.GetDataMatrix().size(), 1U);
    EXPECT_TRUE(file.GetDataMatrix()[0]->empty());
}

TEST(LASFile, AHeaderAloneLoadsWithEmptyColumns)
{
    LASFile const file = Load(FileV2("1", "2", "0.5", "").substr(0, FileV2("1", "2", "0.5", "").find("~A")));
    EXPECT_EQ(file.GetDataMatrix().size(), file.GetLASCurveInfo().size());
    EXPECT_TRUE(file.GetDepthVector().empty());

    LASFile const version_only = Load("~V\nVERS. 2.0 : x");
    EXPECT_THROW((void)version_only.GetDepthStep(), std::invalid_argument);
}

TEST(LASFile, DataIsAStreamOfNumbers)
{
    // Wrapped rows, commas, tabs, comments between rows, blank lines, Windows line ends, no last line feed.
    for (std::string const data : {
             "1.0\n10\n2.10\n1.5 20\n2.20 2.0\n30 2.30\n",
             "1.0,10,2.10\n1.5,20,2.20\n2.0,30,2.30",
             "1.0\t10\t2.10\r\n1.5\t20\t2.20\r\n2.0\t30\t2.30\r\n",
             "# first\n\n  1.0 10 2.10\n#\n# second\n1.5 20 2.20\n  #third\n2.0 30 2.30\n\n \n#last",
             "1.0 10 2.10 1.5 20 2.20 2.0 30 2.30",
         }) {
        ExpectGoodRows(Load(FileV2("1.0", "2.0", "0.5", data)), data);
    }
    // Inside a row "#" is nothing special.
    EXPECT_EQ(*Load(FileV2("1", "1", "1", "1 #2 3")).GetDataMatrix()[0], Floats{2.0F});
}

TEST(LASFile, DescendingRowsAreReversed)
{
    std::string data;
    for (int i = 1000; i >= 0; --i) {
        data += std::to_string(i / 10) + "." + std::to_string(i % 10) + " " + std::to_string(i) + " 1\n";
    }
    LASFile const file = Load(FileV2("100", "0", "-0.1", data));
    ASSERT_EQ(file.GetDepthVector().size(), 1001U);
    EXPECT_EQ(file.GetDepthVector().front(), 0.0);
    EXPECT_EQ(file.GetDepthVector().back(), 100.0);
    EXPECT_EQ(file.GetDataMatrix()[0]->front(), 0.0F);
    EXPECT_EQ(file.GetDataMatrix()[0]->back(), 1000.0F);
    // The header stays as the file has it.
    EXPECT_EQ(file.GetStartDepth(), 100.0F);
    EXPECT_EQ(file.GetDepthStep(), -0.1F);

    // One row with a negative step is in order as it is.
    EXPECT_EQ(Load(FileV2("5", "5", "-1", "5 1 2")).GetDepthVector(), Doubles{5.0});
}

TEST(LASFile, Step0IsResampled)
{
    // Depths 10, 11, 13, 16 become 10, 12, 14, 16.
    std::string const data = "10 0 -999.25\n11 10 1\n13 30 3\n16 60 6\n";
    for (std::string const step : {"0", "0.000", "", "unknown", "1,0"}) {
        LASFile const file = Load(FileV2("10", "16", step, data));
        EXPECT_EQ(file.GetDepthVector(), (Doubles{10.0, 12.0, 14.0, 16.0})) << step;
        EXPECT_EQ(*file.GetDataMatrix()[0], (Floats{0.0F, 20.0F, 40.0F, 60.0F})) << step;
        EXPECT_EQ(*file.GetDataMatrix()[1], (Floats{-999.25F, 2.0F, 4.0F, 6.0F})) << step;
        EXPECT_EQ(file.GetLASWellInfo().GetData("STEP").toStdString(), step);
    }
    // Descending rows are reversed first.
    LASFile const file = Load(FileV2("16", "10", "0", "16 60 6\n13 30 3\n11 10 1\n10 0 0\n"));
    EXPECT_EQ(file.GetDepthVector(), (Doubles{10.0, 12.0, 14.0, 16.0}));
    EXPECT_EQ(*file.GetDataMatrix()[0], (Floats{0.0F, 20.0F, 40.0F, 60.0F}));

    EXPECT_TRUE(Load(FileV2("1", "2", "0", "")).GetDepthVector().empty());
    EXPECT_EQ(*Load(FileV2("1", "2", "0", "7 8 9")).GetDataMatrix()[1], Floats{9.0F});
    EXPECT_EQ(Load(FileV2("1", "2", "0", "7 1 1 7 2 2 7 3 3")).GetDepthVector(), (Doubles{7.0, 7.0, 7.0}));
}

TEST(LASFile, AFileWithoutChannelsKeepsItsIndex)
{
    std::string const header = "~V\nVERS. 2.0 :\n~W\nSTRT.M 0 :\nSTOP.M 3 :\nSTEP.M ";
    EXPECT_EQ(Load(header + "1 :\n~C\nDEPT.M :\n~A\n0 1 2 3").GetDepthVector(), (Doubles{0, 1, 2, 3}));
    EXPECT_EQ(Load(header + "0 :\n~C\nDEPT.M :\n~A\n0 2 3").GetDepthVector(), (Doubles{0, 1.5, 3}));
    EXPECT_EQ(Load(header + "1 :\n~C\n~A\n0 1 2 3").GetIndexRow(), HeaderRow());
}

TEST(LASFile, RefusesBadData)
{
    auto const refusal = [](std::string const& data) { return Refusal(FileV2("1.0", "2.0", "0.5", data)); };
    EXPECT_EQ(refusal(GOOD_ROWS), "");
    EXPECT_EQ(refusal("1.0 NaN 2.1\n"), InvalidValue("NaN"));
    EXPECT_EQ(refusal("1.0 1.5E3 2.1\n"), InvalidValue("E"));
    EXPECT_EQ(refusal(GOOD_ROWS + "~Other\n"), InvalidValue("~Other"));
    EXPECT_EQ(refusal(""), "Expected number of data-rows: 3   Actual rows read: 0");
    EXPECT_EQ(refusal(GOOD_ROWS + "2.5 40 2.4"), "Expected number of data-rows: 3   Actual rows read: 4");
    std::string const end = "Reached end of LAS file in the middle of data conversion in data-row: ";
    EXPECT_EQ(refusal("1.0 10"), end + "1 out of 3 - at column: 2 out of 2");
    EXPECT_EQ(refusal("1.0 10 2.1 1.5"), end + "2 out of 3 - at column: 1 out of 2");
    EXPECT_EQ(refusal(GOOD_ROWS + "\n,,\n"),
              "Reached end of LAS file before the depth/time(first) column at data-row number: 4");
    EXPECT_EQ(refusal("1.0 10 2.1\n1.6 20 2.2"), IndexRefusal("1.000000", "1.600000", "1.500000"));
    EXPECT_EQ(refusal("1.0 10 2.1\n1.502 20 2.2"), IndexRefusal("1.000000", "1.502000", "1.500000"));
    EXPECT_EQ(refusal("1.0 10 2.1\n1.5009 20 2.2 2.0009 1 1"), "");
    EXPECT_EQ(
        refusal("1.0 0.000000000000000000001 2.1"),
        "Number of decimals exceed floating point converter capability. Following number failed to convert: "
        "0.000000000000000000001");
    EXPECT_THROW(Load(FileV2("1", "2", "1", "x")), std::logic_error);
}

TEST(LASFile, RefusesBadHeaders)
{
    for (char const* text : {"", "no section", "~V\nvers. 2.0 : lower case\n"}) {
        EXPECT_EQ(Refusal(text), "Undefined Mnem: VERS");
    }
    for (std::string const version : {"1.2", "2.1", "3"}) {
        EXPECT_EQ(Refusal("~V\nVERS. " + version + " :\n"), "Unknown Version: " + version);
    }
    EXPECT_EQ(Refusal("~V\nVERS. 2.00 :\n"), "");
    std::string const no_space =
        "\"DLM\" is not equal to \"SPACE\". Only LAS Files with \"SPACE\" delimiter are supported";
    for (std::string const version : {"2.0", "3.0", "9"}) {
        EXPECT_EQ(Refusal("~V\nVERS. " + version + " :\nDLM. COMMA :\n"), no_space);
        EXPECT_EQ(Refusal("~V\nDLM. TAB : before VERS\n"), no_space);
    }
    EXPECT_EQ(Refusal("~V\nVERS. 2.0 :\n~W\n~A\n1"),
              "DataValueType LASFile::GetDepthStep() Function called before "
              "loading Well Info header section has been loaded");
    EXPECT_EQ(Refusal("~V\nVERS. 2.0 :\n~W\nNULL. 0 :\n~A\n1"), "Undefined Mnem: STEP");
    EXPECT_EQ(Refusal("~V\nVERS. 2.0 :\n~W\nSTEP. 1 :\n~A\n1"), "Undefined Mnem: STOP");
    EXPECT_EQ(
        Refusal(FileV2("5", "1", "0.5", GOOD_ROWS)),
        "Incorrect LAS File header. Check STRT, STOP and STEP parameters to confirm that they are valid");
    EXPECT_THROW(Load("~V\n"), UndefinedMnem);
}

TEST(LASFile, DepthsOfAnEmptyWellSectionAreRefusedByName)
{
    LASFile const file;
    for (auto const& [name, get] : {std::pair("GetStartDepth", &LASFile::GetStartDepth),
                                    std::pair("GetStopDepth", &LASFile::GetStopDepth),
                                    std::pair("GetDepthStep", &LASFile::GetDepthStep)}) {
        EXPECT_EQ(MessageOf<std::invalid_argument>([&] { (void)(file.*get)(); }),
                  std::string("DataValueType LASFile::") + name +
                      "() Function called before loading Well Info header section has been loaded");
    }
}

TEST(LASFile, HugeHeaderNumbersAreNoBurden)
{
    // The row count does not fit; nothing of the sort is reserved.
    for (auto const& [start, stop, step, rows] :
         {std::array{"0", "1e30", "1", "9223372036854775807"},
          std::array{"0", "4000000000", "1", "4000000000"}, std::array{"nan", "1", "1", "0"},
          std::array{"0", "1", "1e-30", "9223372036854775807"}}) {
        EXPECT_EQ(Refusal(FileV2(start, stop, step, "0 1 2")),
                  std::string("Expected number of data-rows: ") + rows + "   Actual rows read: 1");
    }
    // A number of 60 digits wraps, but it is a number.
    EXPECT_EQ(Load(FileV2("1", "1", "1", "1 " + std::string(60, '9') + " 2")).GetDepthVector().size(), 1U);
}

TEST(LASFile, RowsMayBeLongerThanTheBufferedMargin)
{
    // 30000 columns of 7 characters each: rows of 210 kB, three of which cross the end of a block.
    int const columns = 30'000;
    std::string text = "~V\nVERS. 2.0 :\n~W\nSTRT.M 0 :\nSTOP.M 11 :\nSTEP.M 1 :\n~C\nDEPT.M :\n";
    for (int column = 0; column < columns; ++column) {
        text += "C. :\n";
    }
    text += "~A\n";
    for (int row = 0; row < 12; ++row) {
        text += std::to_string(row);
        for (int column = 0; column < columns; ++column) {
            text += ' ';
            text += std::to_string(100'000 + row * 10'000 + column % 10'000);
        }
        text += "\n#" + std::string(9000, ' ') + "\n";
    }
    LASFile const file = Load(text);
    ASSERT_EQ(file.GetDepthVector().size(), 12U);
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < 12; ++row) {
            ASSERT_EQ(
                file.GetDataMatrix()[static_cast<std::size_t>(column)]->at(static_cast<std::size_t>(row)),
                static_cast<float>(100'000 + row * 10'000 + column % 10'000));
        }
    }
}

TEST(LASFile, AStreamThatStopsEarlyIsRefused)
{
    // Delivers `text` and then an error, although the file goes on for `missing` bytes.
    class Broken : public std::stringbuf
    {
    public:
        Broken(std::string const& text, std::streamoff missing) : std::stringbuf(text), missing_(missing) {}

    protected:
        pos_type seekpos(pos_type position, std::ios::openmode which) override
        {
            is_at_end_ = false;
            return std::stringbuf::seekpos(position, which);
        }

        pos_type seekoff(off_type offset, std::ios::seekdir direction, std::ios::openmode which) override
        {
            is_at_end_ = direction == std::ios::end || (is_at_end_ && direction == std::ios::cur);
            return std::stringbuf::seekoff(offset, direction, which) + (is_at_end_ ? missing_ : 0);
        }

    private:
        std::streamoff missing_;
        bool is_at_end_ = false;
    };
    Broken buffer(GOOD_FILE, 100);
    std::istream stream(&buffer);
    EXPECT_EQ(MessageOf([&] { LASFile const file(stream); }),
              "Stopped reading LAS File at position: " + std::to_string(GOOD_FILE.size()) +
                  "   End-position: " + std::to_string(GOOD_FILE.size() + 100) + "   Unread characters: 100");
}

TEST(LASFile, OpensFilesOfAnyNameAndRefusesWhatIsNoFile)
{
    test_files::Folder const folder;
    QString const path =
        folder.Write(QString::fromUtf8("br\xC3\xB8nn 7 \xE6\xB2\xB9.las"), GOOD_FILE.c_str());
    LASFile const file(QFile::encodeName(path).toStdString());
    EXPECT_EQ(file.GetFileInfo().filePath(), path);
    EXPECT_EQ(file.GetDepthVector().size(), 3U);

    auto const refusal = [](QString const& name) {
        return MessageOf<std::invalid_argument>(
            [&] { LASFile const file(QFile::encodeName(name).toStdString()); });
    };
    QString const missing = folder.Path("none.las");
    EXPECT_EQ(refusal(missing), "Error Msg: No such file or directory\nFilepath: " + missing.toStdString());
    QString const directory = QFileInfo(path).path();
    EXPECT_EQ(refusal(directory), "Error Msg: Is a directory\nFilepath: " + directory.toStdString());
    EXPECT_EQ(refusal(""), "Error Msg: No such file or directory\nFilepath: ");
    if (QFile::exists("/dev/zero")) {
        EXPECT_EQ(refusal("/dev/zero"), "Error Msg: Illegal seek\nFilepath: /dev/zero");
    }
    if (::geteuid() != 0) {
        QFile::setPermissions(path, {});
        EXPECT_EQ(refusal(path), "Error Msg: Permission denied\nFilepath: " + path.toStdString());
    }
}

TEST(LASFile, FindsArrayMnemonics)
{
    auto const find = [](std::vector<char const*> const& mnemonics) {
        LASHeaderSection section;
        for (char const* mnemonic : mnemonics) {
            section.push_back({mnemonic, "", "", ""});
        }
        return LasV2Reader::FindArrayMnemsV2(section);
    };
    using Set = std::set<std::string>;
    EXPECT_EQ(find({"RADI[1]", "RADI[2]", "FING01", "FING02", "CAL1", "GR", "GR"}), (Set{"RADI", "FING"}));
    EXPECT_EQ(find({"GR1", "GR2"}), Set{"GR"});
    EXPECT_EQ(find({"A1B1", "A1B2", "a1"}), Set{"A"});
    EXPECT_EQ(find({}), Set());
    // Computed without the index row.
    EXPECT_EQ(Load("~V\nVERS. 2.0 :\n~W\n~C\nGR1. :\nGR2. :\n").GetArrayMnems(), Set());
    EXPECT_EQ(Load("~V\nVERS. 2.0 :\n~W\n~C\nX. :\nGR1. :\nGR2. :\n").GetArrayMnems(), Set{"GR"});
}

TEST(LASFile, NumbersAndTextsDoNotDependOnTheLocale)
{
    struct CommaForPoint : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::string const before = std::setlocale(LC_ALL, nullptr);
    QLocale const qt_before;
    std::locale const standard_before = std::locale::global(std::locale(std::locale(), new CommaForPoint));
    QLocale::setDefault(QLocale::German);
    // Where a locale with a decimal comma is installed, the C library uses it too.
    (void)(std::setlocale(LC_ALL, "de_DE.UTF-8") || std::setlocale(LC_ALL, "nb_NO.UTF-8"));

    std::string const refusal = Refusal(FileV2("1.0", "2.0", "0.5", "1000.0 1 1\n1000.6 1 1\n"));
    std::string const count = Refusal(FileV2("1", "2000", "1", "1 1 1"));
    LASFile const file = Load(GOOD_FILE);

    QLocale::setDefault(qt_before);
    std::locale::global(standard_before);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(refusal, IndexRefusal("1000.000000", "1000.600000", "1000.500000"));
    EXPECT_EQ(count, "Expected number of data-rows: 2000   Actual rows read: 1");
    EXPECT_EQ(file.GetDepthStep(), 0.5F);
    ExpectGoodRows(file);
}
