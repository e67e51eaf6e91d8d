// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/LASHeaderSection.h"

#include "model/UndefinedMnem.h"

TEST(HeaderRow, CutsHeaderLines)
{
    for (auto const& [line, row] : std::vector<std::pair<char const*, HeaderRow>>{
             {"STRT.M        1670.0 : START DEPTH", {"STRT", "M", "1670.0", "START DEPTH"}},
             // The first dot ends the mnemonic, the last colon the data: times and later dots stay in the
             // data.
             {"TIME.  13:45:10 : Time of day", {"TIME", "", "13:45:10", "Time of day"}},
             {"VERS.   2.0:   CWLS LAS 2.0", {"VERS", "", "2.0", "CWLS LAS 2.0"}},
             {"\tGR .GAPI\t45 310 01 00\t: Gamma\t", {"GR", "GAPI", "45 310 01 00", "Gamma"}},
             {"", {"", "", "", ""}},
             {"   ", {"", "", "", ""}},
             // Without a dot the whole line is mnemonic and unit, the data all before the last colon.
             {"COMMENT line : text", {"COMMENT line : text", "COMMENT line : text", "COMMENT line", "text"}},
             // Without a colon the data run to the end of the line, and the whole line is the description.
             {"COMP.  ANY OIL COMPANY", {"COMP", "", "ANY OIL COMPANY", "COMP.  ANY OIL COMPANY"}},
             // No blank behind the unit.
             {"DEPT.M:Depth", {"DEPT", "M:Depth", "DEPT.M", "Depth"}},
             // A blank only behind the colon.
             {"A.M:deep down", {"A", "M:deep", "down", "deep down"}},
             {".", {"", "", ".", "."}},
             {":", {":", ":", "", ""}},
             {"TEMP.\xB0"
              "C  20 : Bohrl\xF6"
              "cher",
              {"TEMP", QString::fromUtf8("°C"), "20", QString::fromUtf8("Bohrlöcher")}},
         }) {
        EXPECT_EQ(HeaderRow(std::string(line)), row) << line;
    }
}

TEST(LASHeaderSection, FindsDataByExactMnemonic)
{
    LASHeaderSection section;
    section.push_back(HeaderRow("null", "", "lower case", ""));
    section.push_back(HeaderRow("NULL", "", "-999.25", ""));
    section.push_back(HeaderRow("NULL", "", "second", ""));
    EXPECT_EQ(section.GetData("NULL"), "-999.25");
    section.delete_element(1);
    EXPECT_EQ(section.GetData("NULL"), "second");
    EXPECT_EQ(section.size(), 2U);
    EXPECT_THROW(section.delete_element(2), std::out_of_range);
    EXPECT_THAT([&] { (void)section.GetData("STEP"); },
                testing::Throws<UndefinedMnem>(testing::AllOf(
                    testing::Property(&UndefinedMnem::what, testing::StrEq("Undefined Mnem: STEP")),
                    testing::Property(&UndefinedMnem::GetMnemonic, "STEP"))));
}
