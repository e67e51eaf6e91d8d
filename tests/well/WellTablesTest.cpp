// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "well/DepthMarkerTable.h"
#include "well/DirectionalSurveyTable.h"
#include "well/PipeComponentTable.h"
#include "well/PipeTable.h"
#include "well/WellComponentTable.h"
#include "well/ZoneTable.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>

// Copy, paste and delete of each table through the clipboard and the keys.

namespace {
/// A "|" stands for a tab.
QString Tabs(QString text)
{
    return text.replace('|', '\t');
}

void Paste(QWidget& table, QString const& text)
{
    QApplication::clipboard()->setText(Tabs(text));
    QTest::keyClick(&table, Qt::Key_V, Qt::ControlModifier);
}

/// Selects all rows and copies them.
QString Copy(QTableView& table)
{
    QApplication::clipboard()->setText("before");
    table.selectAll();
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
}

/// Numbers are written in US format.
class WellTables : public testing::TestWithParam<NumberFormat>
{
protected:
    ~WellTables() override { EXPECT_EQ(dialogs_.GetMessages(), QStringList()); }

    void PasteText(QWidget& table, QString const& us) { Paste(table, GetParam().Text(us)); }
    static QString Cell(QTableView const& table, int row, int column)
    {
        return table.model()->index(row, column).data().toString();
    }
    [[nodiscard]] QString T(QString const& us) const { return Tabs(GetParam().Text(us)); }
    /// Metres of a depth in the settings' unit, in single precision.
    [[nodiscard]] float M(float depth) const { return GetParam().is_metric ? depth : depth * 0.3048F; }
    [[nodiscard]] double MD(float depth) const { return static_cast<double>(M(depth)); }

    NumberFormatScope scope_{GetParam()};
    DialogAnswer dialogs_;
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Formats, WellTables, testing::ValuesIn(NumberFormat::All()),
                         [](auto const& info) { return "Number" + std::to_string(info.index); });

TEST_P(WellTables, SurveyPastesAndCopies)
{
    DirectionalSurveyTable table;
    // As spreadsheets end it, with a blank line and one of another form.
    PasteText(table, "1,234.50|12.25|359.00\r\n\r\nnotes\r\n2,000.00|-1.50|0.00|more\r\n");
    std::vector<DirectionalSurveyItem> const expected = {{M(1234.5F), 12.25F, 359}, {M(2000), -1.5F, 0}};
    EXPECT_EQ(table.GetSurveyVector(), expected);
    EXPECT_EQ(Copy(table), T("1,234.50|12.25|359.00\n2,000.00|-1.50|0.00"));
    Paste(table, QApplication::clipboard()->text());
    EXPECT_EQ(table.rowCount(), 4) << "rows are appended";
    EXPECT_EQ(table.currentRow(), 2) << "and shown";
    EXPECT_EQ(table.GetSurveyVector()[3], expected[1]);
}

TEST_P(WellTables, ZonesPasteAndCopy)
{
    ZoneTable table;
    table.SetDefaultColor(Qt::darkGreen);
    PasteText(table, "1,300.00|1,234.50|upper|#ff8000\n10.00|20.00\n30.00|40.00|bad color|#ff80gg");
    EXPECT_EQ(table.GetZones(), QList<Zone>({Zone({MD(1234.5F), MD(1300)}, "upper", QColor(255, 128, 0)),
                                             Zone({MD(10), MD(20)}, "", Qt::darkGreen),
                                             Zone({MD(30), MD(40)}, "bad color", Qt::darkGreen)}))
        << "each in ascending order";
    EXPECT_EQ(Cell(table, 0, 2), T("-65.50")) << "as entered";
    EXPECT_FALSE(table.model()->index(0, 2).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_EQ(Copy(table).split('\n')[0], T("1,300.00|1,234.50|upper|#ff8000"));
}

TEST_P(WellTables, MarkersPasteAndCopy)
{
    DepthMarkerTable table;
    PasteText(table, "1,234.50|top sand\n7.00");
    EXPECT_EQ(table.GetMarkers(), QList<DepthMarker>({{M(1234.5F), "top sand"}, {M(7), ""}}));
    EXPECT_EQ(Copy(table), T("1,234.50|top sand\n7.00|"));
    // A tab or line end in a text is no column or row.
    table.InitializeTable({DepthMarker(0, "a\tb\nc")});
    EXPECT_EQ(Copy(table), T("0.00|a b c"));
}

TEST_P(WellTables, PipesPasteAndCopy)
{
    PipeTable table;
    QString const casing = "0.00|1,234.50|9.625|8.535|53.500|no|casing";
    PasteText(table,
              casing + "\n 0.00 |1,200.00|4.500|-999.250|12.600|yes|\nheading|To|OD|ID|Weight|Tubing\n");
    auto const pipes = table.GetPipes_OD_Sorted();
    ASSERT_EQ(pipes.size(), 2);
    EXPECT_EQ(pipes[0], Pipe({}, 4.5F, -999.25F, 12.6F, true, ""));
    EXPECT_EQ(pipes[1], Pipe({}, 9.625F, 8.535F, 53.5F, false, "casing"));
    EXPECT_EQ(pipes[1].depth, Interval(0, MD(1234.5F)));
    EXPECT_EQ(Copy(table), T(casing + "\n0.00|1,200.00|4.500|-999.250|12.600|yes|"));
}

TEST_P(WellTables, PipeComponentsPasteAndCopy)
{
    PipeComponentTable table;
    table.SetSetDepth(MD(2000));
    QString const rows = "9.625|8.535|53.500|1,234.500|joint\n-999.250|-999.250|0.000|10.000";
    PasteText(table, rows);
    EXPECT_EQ(table.GetPipeComponents(),
              std::vector<PipeComponent>({PipeComponent(9.625F, 8.535F, 53.5F, MD(1234.5F), "joint"),
                                          PipeComponent(-999.25F, -999.25F, 0, MD(10), "")}));
    EXPECT_EQ(Cell(table, 0, 5), T("755.50"));
    EXPECT_EQ(Cell(table, 0, 6), T("1,990.00"));
    EXPECT_EQ(Cell(table, 1, 0), "") << "unknown";
    EXPECT_EQ(Copy(table), T(rows + "|"));
}

TEST_P(WellTables, ComponentsPasteAndCopy)
{
    WellComponentTable table;
    PasteText(table, "1,236.00|1,234.50|10|main\n1.00|2.00|Safety Valve|by name\n3.00|4.00|99|\n");
    EXPECT_EQ(table.GetComponents(),
              QList<WellComponent>(
                  {WellComponent({MD(1234.5F), MD(1236)}, "main", WellComponentType::ProductionPacker),
                   WellComponent({MD(1), MD(2)}, "by name", WellComponentType::SafetyValve),
                   WellComponent({MD(3), MD(4)}, "", static_cast<WellComponentType>(99))}));
    EXPECT_EQ(Cell(table, 0, 2), "Production Packer");
    EXPECT_EQ(Cell(table, 2, 2), "");
    EXPECT_EQ(Copy(table), T("1,236.00|1,234.50|10|main\n1.00|2.00|5|by name\n3.00|4.00|99|"));
}

TEST(WellTablePaste, TakesTheBlanksOfSpreadsheets)
{
    NumberFormatScope const scope({AlternativeInternational, true});
    for (QChar const blank : {QChar(0x202F), QChar(0x00A0), QChar(' ')}) {
        DirectionalSurveyTable table;
        DialogAnswer const dialogs;
        Paste(table, QString("12") + blank + "345,5|1|2");
        EXPECT_EQ(table.GetSurveyVector(), std::vector<DirectionalSurveyItem>({{12345.5F, 1, 2}}));
        EXPECT_EQ(dialogs.GetMessages(), QStringList());
    }
}

TEST(WellTablePaste, WhatCannotBeReadIsToldAndLeftOut)
{
    NumberFormatScope const scope;
    DirectionalSurveyTable survey;
    ZoneTable zones;
    DepthMarkerTable markers;
    PipeTable pipes;
    PipeComponentTable pipe_components;
    WellComponentTable components;
    QString const number = ": Unable to convert to number. ";
    // A table, its kind as told of a text without any row, and a text with wrong numbers.
    for (auto const& [table, kind, text, message] :
         std::vector<std::tuple<QTableView*, QString, QString, QString>>{
             {&survey, "survey", "MD|Incl|Azi\n4|nan|5\n6|inf|1e99",
              "Error in Survey values" + number + "MD: MD  Incl: Incl  Azi: Azi\nError in Survey values" +
                  number + "MD: 4  Incl: nan  Azi: 5\nError in Survey values" + number +
                  "MD: 6  Incl: inf  Azi: 1e99"},
             {&zones, "Zone/Perf", "1|x|zone",
              "Error in Zone/Perf depths" + number + "Min. Depth: 1  Max. Depth: x"},
             {&markers, "Depth Marker", "", ""},
             {&pipes, "Pipe", "1|2|3|4|5,,5|no",
              "Error in Pipe depths/values" + number + "From: 1  To: 2  OD: 3  ID: 4  Weight: 5,,5"},
             {&pipe_components, "Pipe Component", "1|2|3|long|joint",
              "Error in PipeComponent depths/values" + number + "OD: 1  ID: 2  Weight: 3  Length: long"},
             {&components, "Component", "a|b|10|packer",
              "Error in Components depths" + number + "Min. Depth: a  Max. Depth: b"}}) {
        QStringList expected(2,
                             "No " + kind + " data found in pasted data. Check number format and try again");
        DialogAnswer const dialogs;
        Paste(*table, "");
        Paste(*table, " \n\r\n");
        if (table != &markers) { // one column is a marker's form
            expected << expected[0] << message;
            Paste(*table, "one column");
            Paste(*table, text);
        }
        EXPECT_EQ(dialogs.GetMessages(), expected);
        EXPECT_EQ(table->model()->rowCount(), 0);
    }
    DialogAnswer const dialogs;
    Paste(survey, "1|2|3\n4|nan|5\n7|8|9");
    EXPECT_EQ(survey.GetSurveyVector(), std::vector<DirectionalSurveyItem>({{1, 2, 3}, {7, 8, 9}}));
    QString const text = QString("y").repeated(65536);
    Paste(zones, "1|2|" + text + "\n3|4|short");
    EXPECT_EQ(zones.GetZones(), QList<Zone>({Zone({3, 4}, "short", Zone::DEFAULT_COLOR)}));
    EXPECT_EQ(
        dialogs.GetMessages().value(1),
        "The text beginning with \"" + text.left(40) +
            "...\" is too long for a project file: 65536 bytes of at most 65535. Please shorten the text.");
}

TEST(WellTablePaste, AMarkerWithoutDepthIsAskedFor)
{
    NumberFormatScope const scope;
    using Button = QMessageBox::StandardButton;
    auto const error = [](QString const& text) {
        return "Paste Error - Unable to convert to depth: " + text +
               "\nDo you want to continue(current line will be discarded)?";
    };
    QList<DepthMarker> const good = {{1, "a"}, {2, "d"}};
    QString const two_bad = "1|a\nx|b\ny|c\n2|d";
    for (auto const& [text, buttons, questions, markers] :
         std::vector<std::tuple<QString, std::vector<Button>, QStringList, QList<DepthMarker>>>{
             {two_bad, {QMessageBox::Yes, QMessageBox::Yes}, {error("x"), error("y")}, good},
             {two_bad, {QMessageBox::YesToAll}, {error("x")}, good},
             {two_bad, {QMessageBox::Yes, QMessageBox::No}, {error("x"), error("y")}, {}},
             {QString("x\n").repeated(12) + "1|a\n2|d", std::vector<Button>(10, QMessageBox::Yes),
              QStringList(9, error("x")) << error("x\n(and 2 more lines)"), good}}) {
        std::vector<DialogAnswer::Answer> answers;
        for (auto const button : buttons) {
            answers.push_back(DialogAnswer::Press(button));
        }
        DialogAnswer const dialogs(answers);
        DepthMarkerTable table;
        Paste(table, text);
        EXPECT_EQ(dialogs.GetMessages(), questions);
        EXPECT_EQ(table.GetMarkers(), markers);
    }
}

TEST(WellTablePaste, AMillionRowsAreRefusedAtOnce)
{
    NumberFormatScope const scope;
    DialogAnswer const dialogs;
    QElapsedTimer timer;
    timer.start();
    ZoneTable zones;
    Paste(zones, QString("1|2|z\n").repeated(1000000));
    DirectionalSurveyTable survey;
    Paste(survey, QString("1|x|3\n").repeated(1000000));
    EXPECT_EQ(zones.model()->rowCount() + survey.rowCount(), 0);
    QString const message = "A table holds at most 100000 rows. Nothing was pasted.";
    EXPECT_EQ(dialogs.GetMessages(), QStringList({message, message}));

    // As many as fit are taken, and bad lines do not open a box each.
    Paste(survey, QString("1|2|3\n").repeated(50000) + QString("1|x|3\n").repeated(50000));
    EXPECT_EQ(survey.rowCount(), 50000);
    EXPECT_EQ(dialogs.GetMessages().size(), 3);
    EXPECT_TRUE(dialogs.GetMessages().back().endsWith("\n(and 49990 more lines)"));
    Paste(survey, QString("1|2|3\n").repeated(50001));
    EXPECT_EQ(survey.rowCount(), 50000);
    EXPECT_EQ(dialogs.GetMessages().back(), message) << "with the rows already there";

    // One line of 10 million characters.
    PipeTable pipes;
    Paste(pipes, QString("1").repeated(5000000) + QString(" ").repeated(5000000) + "|1");
    EXPECT_EQ(pipes.rowCount(), 0);
    EXPECT_LT(timer.elapsed(), 60000);
}

TEST(WellTableKeys, TheDeleteKeyTakesOutTheSelectedRows)
{
    NumberFormatScope const scope;
    DirectionalSurveyTable survey;
    DepthMarkerTable markers;
    for (int i = 0; i < 6; ++i) {
        survey.AddSurveyItem({static_cast<float>(i), 0, 0});
        markers.AddRow(DepthMarker(static_cast<float>(i), "m"));
    }
    for (QTableView* table : std::initializer_list<QTableView*>{&survey, &markers}) {
        table->clearSelection();
        for (int const row : {1, 2, 4}) {
            table->selectionModel()->select(table->model()->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
        QTest::keyClick(table, Qt::Key_Delete, table == &survey ? Qt::NoModifier : Qt::KeypadModifier);
        ASSERT_EQ(table->model()->rowCount(), 3);
        for (int row = 0; row < 3; ++row) {
            EXPECT_EQ(table->model()->index(row, 0).data(), QStringList({"0.00", "3.00", "5.00"})[row]);
        }
        table->clearSelection();
        QApplication::clipboard()->setText("kept");
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_Delete);
        EXPECT_EQ(table->model()->rowCount(), 3);
        EXPECT_EQ(QApplication::clipboard()->text(), "kept");
    }
}
