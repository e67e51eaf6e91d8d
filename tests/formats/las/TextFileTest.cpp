// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/TextFile.h"
#include "support/TestFiles.h"

using Columns = std::vector<std::vector<std::string>>;

namespace {
struct Table
{
    Columns columns;
    bool is_premature;
    std::string notice;
};

Table Read(QByteArray const& content, std::size_t first_line, std::string const& separators)
{
    test_files::Folder const folder;
    TextFile file(folder.Write("table \xC3\xA6.txt", content).toStdString(), first_line, separators);
    EXPECT_TRUE(file.Is_Open());
    std::string notice;
    file.ParseData(
        [&notice](char const* title, char const* text) { notice = std::string(title) + ": " + text; });
    EXPECT_EQ(file.EofPos(), content.size());
    return {file.GetData(), file.IsPrematureEnd(), notice};
}
} // namespace

TEST(TextFile, CutsAtEverySeparatorAndTrims)
{
    TextFile file("/nonexistent/file.txt", 1, ",");
    EXPECT_FALSE(file.Is_Open());
    file.ParseData();
    EXPECT_TRUE(file.GetData().empty());
    EXPECT_FALSE(file.IsPrematureEnd());
    EXPECT_EQ(file.ParseTextLine("1, 2 ,\t3\r"), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(file.ParseTextLine(",,"), (std::vector<std::string>{"", "", ""}));
    EXPECT_EQ(file.ParseTextLine(""), (std::vector<std::string>{""}));
    // Each appended separator ends a token of its own.
    TextFile const blanks("", 1, " \t");
    EXPECT_EQ(blanks.ParseTextLine("1 2\t3"), (std::vector<std::string>{"1", "2", "3", ""}));
    EXPECT_EQ(TextFile("", 1, "").ParseTextLine("1 2"), std::vector<std::string>());
}

TEST(TextFile, ReadsColumnsFromTheFirstDataLineOn)
{
    Table const table = Read("MD;Incl\n(m);(deg)\n0;0\r\n10.5; 1.25\n20;2", 3, ";");
    EXPECT_EQ(table.columns, (Columns{{"0", "10.5", "20"}, {"0", "1.25", "2"}}));
    EXPECT_FALSE(table.is_premature);
    EXPECT_EQ(Read("a;b\n", 5, ";").columns, Columns());
    EXPECT_EQ(Read("", 1, ";").columns, Columns());
}

TEST(TextFile, AnotherTokenCountEndsTheReadAndALongRestIsTold)
{
    // 20 bytes behind the odd line are no reason for a notice, 21 are.
    Table const short_rest = Read("1,2\nend\n" + QByteArray(20, 'x'), 1, ",");
    EXPECT_EQ(short_rest.columns, (Columns{{"1"}, {"2"}}));
    EXPECT_FALSE(short_rest.is_premature);
    EXPECT_EQ(short_rest.notice, "");

    Table const long_rest = Read("1,2\nend\n" + QByteArray(21, 'x'), 1, ",");
    EXPECT_EQ(long_rest.columns, (Columns{{"1"}, {"2"}}));
    EXPECT_TRUE(long_rest.is_premature);
    EXPECT_EQ(long_rest.notice,
              "Survey Import: Premature end of import. Confirm that all data has been imported");
}
