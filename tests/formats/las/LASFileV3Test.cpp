// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "LasTestFiles.h"

using namespace las_test;

namespace {
std::string const DEFINITION = "~Log_Definition\n"
                               "DEPT.M 0 : Depth {F}\n"
                               "GR.GAPI 1 : Gamma ray {F}\n"
                               "RHOB.G/C3 2 : Bulk density {F} | RUN[1]\n";
std::string const DATA = "~Log_Data | Log_Definition\n";

std::string GoodFile(std::string const& sections)
{
    return FileV3("1.0", "2.0", "0.5", sections);
}
} // namespace

TEST(LASFileV3, LoadsInTheShapeOfVersion2)
{
    LASFile const file =
        Load(GoodFile("~Log_Parameter\nBS.IN 8.5 : Bit size {F}\n" + DEFINITION + DATA + GOOD_ROWS));
    EXPECT_EQ(file.GetLASWellInfo().at(0), HeaderRow("STRT", "M", "1.0", "First index"));
    EXPECT_EQ(file.GetLASParameterInfo().at(0), HeaderRow("BS", "IN", "8.5", "Bit size"));
    EXPECT_EQ(file.GetIndexRow(), HeaderRow("DEPT", "M", "0", "Depth"));
    ASSERT_EQ(file.GetLASCurveInfo().size(), 2U);
    EXPECT_EQ(file.GetLASCurveInfo().at(1), HeaderRow("RHOB", "G/C3", "2", "Bulk density"));
    ExpectGoodRows(file);
    EXPECT_EQ(file.GetDepthStep(), 0.5F);
    EXPECT_TRUE(file.IsMetric());
    EXPECT_TRUE(file.GetParameterSections().contains("Log_Parameter"));
    EXPECT_TRUE(file.GetDefinitionSections().contains("Log_Definition"));
}

TEST(LASFileV3, RecognisesDataSectionsByTheirLine)
{
    std::string const curve = "~Curve Information\nDEPT.M : d {F}\nGR. : g {F}\nRHOB. : r {F}\n";
    for (std::string const& sections : {
             DEFINITION + "~Log_Data|Log_Definition\n",
             DEFINITION + "~Log_Data   |   Log_Definition   \n",
             "~Log_Definition[1]\n" + DEFINITION.substr(DEFINITION.find('\n') + 1) +
                 "~Log_Data[1] | Log_Definition[1]\n",
             DEFINITION + "~ASCII | Log_Definition\n",
             DEFINITION + "~Ascii | Log_Definition\n",
             curve + "~ASCII\n",
             curve + "~Ascii Data\n",
             curve + "~ascii | whatever\n",
             curve + "~Log_Data | Curve\n",
             std::string("~CURVE\nDEPT.M : d\nGR. :\nRHOB. :\n~ASCII\n"),
         }) {
        ExpectGoodRows(Load(GoodFile(sections + GOOD_ROWS)), sections);
    }
    // The legacy curve section fills the index row too.
    EXPECT_EQ(Load(GoodFile(curve + "~ASCII\n" + GOOD_ROWS)).GetIndexRow(), HeaderRow("DEPT", "M", "", "d"));

    std::string const no_data = "The LAS V.3 file has no data section";
    EXPECT_EQ(Refusal(GoodFile("")), no_data);
    EXPECT_EQ(Refusal(GoodFile(curve + "~A\n" + GOOD_ROWS)), no_data);
    EXPECT_EQ(Refusal(GoodFile(DEFINITION + "~LOG_DATA | Log_Definition\n" + GOOD_ROWS)), no_data);
    EXPECT_EQ(Refusal("~V\nVERS. 3.0 :\n"), no_data);
    // A line too long to be a section name is another section.
    EXPECT_EQ(Refusal(GoodFile(DEFINITION + "~" + std::string(100'000, '~') + "_Data | Log_Definition\n" +
                               GOOD_ROWS)),
              no_data);
}

TEST(LASFileV3, RunsOfBlanksAreOneCutAndExtraTokensAreDropped)
{
    ExpectGoodRows(Load(GoodFile(DEFINITION + DATA +
                                 "# comment\n\n  1.0   10\t 2.1  \r\n1.5 +20 2.2e0 99 x\n2.0 3.0E+1 .23e1")));
    // Without DLM the file is separated by blanks all the same.
    std::string text = GoodFile(DEFINITION + DATA + GOOD_ROWS);
    std::size_t const delimiter = text.find(" DLM");
    text.erase(delimiter, text.find('\n', delimiter) - delimiter + 1);
    EXPECT_EQ(Load(text).GetDepthVector().size(), 3U);
}

TEST(LASFileV3, EmptyLinesAndASectionEndTheRows)
{
    EXPECT_EQ(Load(GoodFile(DEFINITION + DATA + GOOD_ROWS + "\n  \n\n")).GetDepthVector().size(), 3U);
    EXPECT_EQ(Load(GoodFile(DEFINITION + DATA + GOOD_ROWS + "\n~Other\ntext\n")).GetDepthVector().size(), 3U);
    EXPECT_EQ(Refusal(GoodFile(DEFINITION + DATA + "1.0 1 1\n\n1.5 2 2\n2.0 3 3\n")),
              "Expected number of columns are: 3 Actual number of columns are: 0");
    EXPECT_EQ(Refusal(GoodFile(DEFINITION + DATA + "1.0 1 1\n# no\n1.5 2 2\n2.0 3 3\n")),
              "Expected number of columns are: 3 Actual number of columns are: 2");
}

TEST(LASFileV3, RefusesBadSections)
{
    std::string const one_run =
        "Quorrel only supports LAS V.3 files containing one run. Actual runs in file: ";
    EXPECT_EQ(Refusal(GoodFile("~Log_Parameter\nRUNS. 2 : runs\n")), one_run + "2");
    EXPECT_EQ(Refusal(GoodFile("~Log_Parameter\nRUNS. 1 : a\nRUNS. 3 : b\n")), one_run + "3");
    EXPECT_EQ(Refusal(GoodFile("~Log_Parameter\nRUNS. 1 : runs\n" + DEFINITION + DATA + GOOD_ROWS)), "");
    for (std::string const section : {"~Core_Definition", "~Curve"}) {
        for (std::string const format : {"S", "S20", "AS", "AS;5"}) {
            EXPECT_EQ(Refusal(GoodFile(section + "\nTOP.M : t {F}\nTEXT. : x {" + format + "}\n")),
                      "String format{S} for logging data-columns not supported");
        }
    }
    // The file is in Latin-1, the message in UTF-8.
    for (auto const& [data, definition] :
         std::map<std::string, char const*>{{DATA, "Log_Definition"},
                                            {"~ASCII\n", "Curve"},
                                            {"~Log_Data | For\xEAt_Definition\n", "For\u00EAt_Definition"}}) {
        EXPECT_EQ(Refusal(GoodFile(data + GOOD_ROWS)),
                  std::string("LASDataFileMatrix LASFile::LoadDataSectionV3(std::ifstream&, std::string) "
                              "Unknown definition for LAS v3 file: ") +
                      definition);
    }
    EXPECT_THROW(Load("~V\nVERS. 3.0 :\n~W\nSTRT. 1 :\nSTOP. 1 :\n" + DEFINITION + DATA + GOOD_ROWS),
                 std::bad_optional_access);
    EXPECT_EQ(Refusal(GoodFile("~Log_Definition\n" + DATA)).find("The definition section"), std::string::npos)
        << "the row count comes first";
    EXPECT_EQ(Refusal(FileV3("0", "0", "0", "~Log_Definition\n" + DATA)),
              "The definition section of the LAS V.3 file's data section \"Log_Data\" is empty");
}

TEST(LASFileV3, RefusesBadRows)
{
    auto const refusal = [](std::string const& rows) { return Refusal(GoodFile(DEFINITION + DATA + rows)); };
    EXPECT_EQ(refusal("1.0 10\n"), "Expected number of columns are: 3 Actual number of columns are: 2");
    EXPECT_EQ(refusal("1.0 10 2.1\n1.6 20 2.2\n"),
              "At depth: 1.600000 - Expected STEP is: 0.500000 m Actual STEP is: 0.600000 m");
    EXPECT_EQ(refusal("1.0 10 2.1\n1.50011 20 2.2\n"),
              "At depth: 1.500110 - Expected STEP is: 0.500000 m Actual STEP is: 0.500110 m");
    EXPECT_EQ(refusal("1.0 10 2.1\n1.50009 20 2.2\n2.00009 1 1\n"), "");
    EXPECT_EQ(refusal("1.0 10 2.1\n"), "Did not read expected number of rows: Expected: 3    Actual: 1");
    EXPECT_EQ(refusal(GOOD_ROWS + "2.5 1 1\n"),
              "Did not read expected number of rows: Expected: 3    Actual: 4");
    // Any other unit counts as feet.
    std::string feet = GoodFile(DEFINITION + DATA + "1 10 2\n2 20 2\n");
    feet.replace(feet.find("DEPT.M"), 6, "DEPT.F");
    EXPECT_EQ(Refusal(feet),
              "At depth: 2.000000 - Expected STEP is: 0.500000 ft Actual STEP is: 1.000000 ft");
    for (std::string const word : {"x", "1.5x", "nan", "inf", "1e999", "--1", "5\xB5"}) {
        EXPECT_EQ(refusal("1.0 " + word + " 2.1\n"),
                  InvalidValue(QString::fromLatin1(word.c_str()).toStdString()));
    }
}

TEST(LASFileV3, DescendingRowsAreReversedAndStep0IsResampled)
{
    // The number of descending rows is free.
    LASFile const down = Load(FileV3("2.0", "1.0", "-0.5", DEFINITION + DATA + "2.0 30 3\n1.5 20 2\n"));
    EXPECT_EQ(down.GetDepthVector(), (Doubles{1.5, 2.0}));
    EXPECT_EQ(*down.GetDataMatrix()[0], (Floats{20.0F, 30.0F}));
    LASFile const file =
        Load(FileV3("10", "16", "0", DEFINITION + DATA + "16 60 6\n13 30 3\n11 10 1\n10 0 -999.25\n"));
    EXPECT_EQ(file.GetDepthVector(), (Doubles{10.0, 12.0, 14.0, 16.0}));
    EXPECT_EQ(*file.GetDataMatrix()[1], (Floats{-999.25F, 2.0F, 4.0F, 6.0F}));
    EXPECT_TRUE(Load(FileV3("10", "16", "0", DEFINITION + DATA)).GetDepthVector().empty());
}

// 0.1 at a depth of 100 km is far below the precision of a float, but the text is regular.
TEST(LASFileV3, TheStepIsTestedBeforeTheIndexIsNarrowed)
{
    std::string rows;
    for (int i = 0; i <= 100; ++i) {
        rows += std::to_string(100'000 + i / 10) + "." + std::to_string(i % 10) + " 1 2\n";
    }
    LASFile const file = Load(FileV3("100000", "100010", "0.1", DEFINITION + DATA + rows));
    ASSERT_EQ(file.GetDepthVector().size(), 101U);
    EXPECT_EQ(file.GetDepthVector()[1], static_cast<double>(100'000.1F));
}

TEST(LASFileV3, TheFirstDataSectionByNameIsUsed)
{
    std::string const two = DEFINITION +
                            "~Aux_Definition\nTIME.S : t {F}\nP.PSI : p {F}\n"
                            "~Log_Data | Log_Definition\n" +
                            GOOD_ROWS + "~Aux_Data | Aux_Definition\n1.0 5\n1.5 6\n2.0 7\n";
    LASFile const file = Load(GoodFile(two));
    EXPECT_EQ(file.GetIndexRow().mnemonic, "TIME");
    ASSERT_EQ(file.GetDataMatrix().size(), 1U);
    EXPECT_EQ(*file.GetDataMatrix()[0], (Floats{5.0F, 6.0F, 7.0F}));

    // The index row is that of the section in use, wherever its definition stands.
    LASFile const zoned =
        Load(GoodFile(DEFINITION + DATA + GOOD_ROWS + "~Zone_Definition\nTIME.S : t {F}\nX. : x {F}\n"));
    EXPECT_EQ(zoned.GetIndexRow().mnemonic, "DEPT");
    EXPECT_EQ(zoned.GetLASParameterInfo().size(), 0U);
}

TEST(LASFileV3, RepeatedSectionsKeepDataAndDefinitionTogether)
{
    // The first data section of a name counts, with the definition that stood before it.
    LASFile const file =
        Load(GoodFile("~Curve\nDEPT.M :\nA. :\n~ASCII\n1.0 1\n1.5 2\n2.0 3\n"
                      "~Curve\nDEPT.M :\nB. :\nC. :\nD. :\n~ASCII\n1.0 4 5 6\n1.5 4 5 6\n2.0 4 5 6\n"
                      "~Curve\nX. :\n"));
    ASSERT_EQ(file.GetLASCurveInfo().size(), 1U);
    EXPECT_EQ(file.GetLASCurveInfo().at(0).mnemonic, "A");
    ASSERT_EQ(file.GetDataMatrix().size(), 1U);
    EXPECT_EQ(*file.GetDataMatrix()[0], (Floats{1.0F, 2.0F, 3.0F}));
}

TEST(LASFileV3, ArrayMnemonicsComeFromTheFormats)
{
    LASFile const file =
        Load(GoodFile("~Log_Definition\nDEPT.M : d {F}\nNMR[1].ms : echo {A:0}\nNMR[2].ms : echo {AF}\n"
                      "T2.ms : single {AE}\nGR1. : g {F}\nGR2. : g {F}\n" +
                      DATA + "1 1 2 3 4 5\n1.5 1 2 3 4 5\n2 1 2 3 4 5\n"));
    EXPECT_EQ(file.GetArrayMnems(), (std::set<std::string>{"NMR", "T2"}));
}

TEST(LASFileV3, TheFirstLogParameterSectionBecomesTheParameterSection)
{
    LASFile const file = Load(GoodFile("~Core_Parameter\nA. 1 : a\n~Log_Parameter[2]\nB. 2 : b\n"
                                       "~Log_Parameter[1]\nC. 3 : c\n~Parameter\nD. 4 : d\n" +
                                       DEFINITION + DATA + GOOD_ROWS));
    ASSERT_EQ(file.GetLASParameterInfo().size(), 1U);
    EXPECT_EQ(file.GetLASParameterInfo().at(0).mnemonic, "C");
    EXPECT_TRUE(file.GetParameterSections().contains("parameter"));
}
