// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/ParameterDataLine.h"
#include "formats/las/HeaderSection.h"

#include <array>

namespace {
/// Mnemonic, unit, value, description, format, associations.
std::array<QString, 6> Parts(ParameterDataLine const& line)
{
    return {line.GetMnem(),        line.GetUnit(),   line.GetValue(),
            line.GetDescription(), line.GetFormat(), line.GetAssociations()};
}
} // namespace

TEST(ParameterDataLine, CutsALineIntoItsSixParts)
{
    for (auto const& [line, parts] : std::vector<std::pair<char const*, std::array<QString, 6>>>{
             {"STRT .M 1670.0 : First Index {F}", {"STRT", "M", "1670.0", "First Index", "F", ""}},
             {"LAT .DEG  34.56 : Latitude  {DEG} | RUN[1]",
              {"LAT", "DEG", "34.56", "Latitude", "DEG", "RUN[1]"}},
             {"COMP . ANY OIL CO. : Company", {"COMP", "", "ANY OIL CO.", "Company", "", ""}},
             {"MATR . SAND : Neutron Matrix | NMAT_Depth[1]",
              {"MATR", "", "SAND", "Neutron Matrix", "", "NMAT_Depth[1]"}},
             {"NMR[1] .ms 123 : Echo Array {A:0 }", {"NMR[1]", "ms", "123", "Echo Array", "A:0", ""}},
             // The value ends at the first colon, and the description begins there.
             {"TIME. 12:30 : Logged {HH:MM} | A | B", {"TIME", "", "12", "30 : Logged", "HH:MM", "A | B"}},
             // Without a blank behind the unit, the value is the line up to the colon.
             {"STRT.M:text", {"STRT", "M:text", "STRT.M", "text", "", ""}},
             {"EREF.M\t98.2\t: Elevation", {"EREF", "M", "98.2", "Elevation", "", ""}},
             // Without a dot there is no mnemonic.
             {"NODOT 5 : desc", {"", "NODOT", "5", "desc", "", ""}},
             {"NULL. -999.25", {"NULL", "", "-999.25", "", "", ""}},
             // Of several bars the last one counts unless a format comes first.
             {"X.M 1 : a | b | c", {"X", "M", "1", "a | b", "", "c"}},
             {"X.M 1 : a | b {F}", {"X", "M", "1", "a | b", "F", ""}},
             {"X.M 1 : open {F", {"X", "M", "1", "open", "F", ""}},
             {"X.M 1 : open {F | y", {"X", "M", "1", "open {F", "", "y"}},
             // Braces in front of the colon belong to the value.
             {"X.M {1|2} : z", {"X", "M", "{1|2}", "z", "", ""}},
             {"desc : no dot. {F} | a", {"desc : no dot", "", "", "no dot.", "F", "a"}},
             {".", {"", "", ".", "", "", ""}},
             {"", {"", "", "", "", "", ""}},
         }) {
        EXPECT_EQ(Parts(ParameterDataLine(std::string(line))), parts) << line;
    }
    EXPECT_EQ(ParameterDataLine(std::string("TEMP.\xB0"
                                            "C 5 : x"))
                  .GetUnit(),
              QString(QChar(0xB0)) + "C");
}

TEST(ParameterDataLine, IsOverwrittenByTheNextLine)
{
    ParameterDataLine line("A.B c : d {e} | f");
    line.ParseRawLine("G. 1");
    EXPECT_EQ(Parts(line), (std::array<QString, 6>{"G", "", "1", "", "", ""}));
}

TEST(HeaderSection, FindsTheFirstExactMnemonicAndDropsFormatsInConversion)
{
    HeaderSection section;
    section.push_back(ParameterDataLine(std::string("RUN.  1 : first {F} | X")));
    section.push_back(ParameterDataLine(std::string("RUN.  2 : second")));
    EXPECT_EQ(section.GetLineCount(), 2U);
    ASSERT_TRUE(section.GetParameterLine("RUN"));
    EXPECT_EQ(section.GetParameterLine("RUN")->GetValue(), "1");
    EXPECT_FALSE(section.GetParameterLine("Run"));
    EXPECT_THROW((void)section.at(2), std::out_of_range);

    LASHeaderSection const converted = section.ConvertToV2();
    ASSERT_EQ(converted.size(), 2U);
    EXPECT_EQ(converted.at(0), HeaderRow("RUN", "", "1", "first"));
    EXPECT_EQ(converted.at(1), HeaderRow("RUN", "", "2", "second"));
}
