// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/LASFile.h"

#include <sstream>

/// LAS files made in memory for tests.
namespace las_test {
using Floats = std::vector<float>;
using Doubles = std::vector<double>;

/// Three rows of DEPT, GR and RHOB from 1 to 2 m.
inline std::string const GOOD_ROWS = "1.0 10 2.10\n1.5 20 2.20\n2.0 30 2.30\n";

/// The file holds GOOD_ROWS.
inline void ExpectGoodRows(LASFile const& file, std::string const& what = {})
{
    EXPECT_EQ(file.GetDepthVector(), (Doubles{1.0, 1.5, 2.0})) << what;
    ASSERT_EQ(file.GetDataMatrix().size(), 2U) << what;
    EXPECT_EQ(*file.GetDataMatrix()[0], (Floats{10.0F, 20.0F, 30.0F})) << what;
    EXPECT_EQ(*file.GetDataMatrix()[1], (Floats{2.1F, 2.2F, 2.3F})) << what;
}

/// The text that refuses a word among the numbers.
inline std::string InvalidValue(std::string const& word)
{
    return " Invalid value in ASCII data-section of LAS-file. Only numeric values are allowed here. Consider "
           "replacing the invalid value with \"-999.25\" in a text editor and try again. Invalid value "
           "found: " +
           word;
}

inline LASFile Load(std::string const& content)
{
    std::istringstream stream(content);
    return LASFile(stream);
}

/// A LAS 2.0 file of index DEPT in metres and the channels GR and RHOB; `data` follows the line "~A".
inline std::string FileV2(std::string const& start, std::string const& stop, std::string const& step,
                          std::string const& data)
{
    return "~Version\n VERS. 2.0 : CWLS LOG ASCII STANDARD\n WRAP. NO  : ONE LINE PER DEPTH STEP\n"
           "~Well\n STRT.M " +
           start + " : START\n STOP.M " + stop + " : STOP\n STEP.M " + step +
           " : STEP\n NULL.  -999.25 : NULL VALUE\n"
           "~Curves\n DEPT.M   : 1 DEPTH\n GR.GAPI  : 2 GAMMA RAY\n RHOB.K/M3 45 350 01 00 : 3 BULK DENSITY\n"
           "~A DEPT GR RHOB\n" +
           data;
}

/// A LAS 3.0 file of three lines in the well section; `sections` follows it.
inline std::string FileV3(std::string const& start, std::string const& stop, std::string const& step,
                          std::string const& sections)
{
    return "~Version\n VERS. 3.0   : CWLS LOG ASCII STANDARD\n WRAP. NO    : ONE LINE PER DEPTH STEP\n"
           " DLM . SPACE : DELIMITER\n~Well\n STRT.M " +
           start + " : First index {F}\n STOP.M " + stop + " : Last index {F}\n STEP.M " + step +
           " : Step {F}\n" + sections;
}

/// The text with which the file is refused; empty when it loads.
inline std::string Refusal(std::string const& content)
{
    return MessageOf([&content] { Load(content); });
}
} // namespace las_test
