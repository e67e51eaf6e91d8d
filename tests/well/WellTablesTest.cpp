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

#include <QAbstractButton>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

// Copy, paste and delete of each table through the clipboard and the keys.

namespace {
/// 1,234.5 as text is this many metres, in single precision, in either unit.
float Metres(float settings_depth, NumberFormat const& format)
{
    return format.is_metric ? settings_depth : settings_depth * 0.3048F;
}

void Paste(QWidget& table, QString const& text)
{
    QApplication::clipboard()->setText(text);
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

void SelectRow(QTableView& table, int row)
{
    table.selectionModel()->select(table.model()->index(row, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

class WellTables : public testing::TestWithParam<NumberFormat>
{
protected:
    [[nodiscard]] QString T(char const* us) const { return GetParam().Text(us); }
    [[nodiscard]] float M(float depth) const { return Metres(depth, GetParam()); }
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
    Paste(table, T("1,234.50") + "\t" + T("12.25") + "\t" + T("359.00") + "\r\n\r\nnotes\r\n" +
                     T("2,000.00") + "\t" + T("-1.50") + "\t" + T("0.00") + "\tmore\r\n");
    std::vector<DirectionalSurveyItem> const expected = {{M(1234.5F), 12.25F, 359}, {M(2000), -1.5F, 0}};
    EXPECT_EQ(table.GetSurveyVector(), expected);
    EXPECT_EQ(Copy(table), T("1,234.50") + "\t" + T("12.25") + "\t" + T("359.00") + "\n" + T("2,000.00") +
                               "\t" + T("-1.50") + "\t" + T("0.00"));
    Paste(table, QApplication::clipboard()->text());
    EXPECT_EQ(table.rowCount(), 4) << "rows are appended";
    EXPECT_EQ(table.GetSurveyVector()[3], expected[1]);
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST_P(WellTables, ZonesPasteAndCopy)
{
    ZoneTable table;
    table.SetDefaultColor(Qt::darkGreen);
    Paste(table, T("1,300.00") + "\t" + T("1,234.50") + "\tupper\t#ff8000\n" + T("10.00") + "\t" +
                     T("20.00") + "\n" + T("30.00") + "\t" + T("40.00") + "\tbad color\t#ff80gg");
    QList<Zone> const expected = {
        Zone({MD(1234.5F), MD(1300)}, "upper", QColor(255, 128, 0)),
        Zone({MD(10), MD(20)}, "", Qt::darkGreen),
        Zone({MD(30), MD(40)}, "bad color", Qt::darkGreen),
    };
    EXPECT_EQ(table.GetZones(), expected) << "each in ascending order";
    EXPECT_EQ(table.model()->index(0, 2).data().toString(), T("-65.50")) << "as entered";
    EXPECT_FALSE(table.model()->index(0, 2).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_EQ(Copy(table).split('\n')[0], T("1,300.00") + "\t" + T("1,234.50") + "\tupper\t#ff8000");
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST_P(WellTables, MarkersPasteAndCopy)
{
    DepthMarkerTable table;
    Paste(table, T("1,234.50") + "\ttop sand\n" + T("7.00"));
    EXPECT_EQ(table.GetMarkers(), QList<DepthMarker>({{M(1234.5F), "top sand"}, {M(7), ""}}));
    EXPECT_EQ(Copy(table), T("1,234.50") + "\ttop sand\n" + T("7.00") + "\t");
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST_P(WellTables, PipesPasteAndCopy)
{
    PipeTable table;
    QString const line =
        T("0.00") + "\t" + T("1,234.50") + "\t" + T("9.625") + "\t" + T("8.535") + "\t" + T("53.500");
    Paste(table, line + "\tno\tcasing\n " + T("0.00") + " \t" + T("1,200.00") + "\t" + T("4.500") + "\t" +
                     T("-999.250") + "\t" + T("12.600") + "\tyes\t\nheading\tTo\tOD\tID\tWeight\tTubing\n");
    auto const pipes = table.GetPipes_OD_Sorted();
    ASSERT_EQ(pipes.size(), 2);
    EXPECT_EQ(pipes[0], Pipe({}, 4.5F, -999.25F, 12.6F, true, ""));
    EXPECT_EQ(pipes[0].depth, Interval(0, MD(1200)));
    EXPECT_EQ(pipes[1], Pipe({}, 9.625F, 8.535F, 53.5F, false, "casing"));
    EXPECT_EQ(pipes[1].depth, Interval(0, MD(1234.5F)));
    EXPECT_EQ(Copy(table).split('\n')[0], line + "\tno\tcasing");
    EXPECT_TRUE(Copy(table).endsWith("\tyes\t"));
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST_P(WellTables, PipeComponentsPasteAndCopy)
{
    PipeComponentTable table;
    table.SetSetDepth(MD(2000));
    QString const joint = T("9.625") + "\t" + T("8.535") + "\t" + T("53.500") + "\t" + T("1,234.500");
    Paste(table, joint + "\tjoint\n" + T("-999.250") + "\t" + T("-999.250") + "\t" + T("0.000") + "\t" +
                     T("10.000"));
    std::vector<PipeComponent> const expected = {
        PipeComponent(9.625F, 8.535F, 53.5F, MD(1234.5F), "joint"),
        PipeComponent(-999.25F, -999.25F, 0, MD(10), ""),
    };
    EXPECT_EQ(table.GetPipeComponents(), expected);
    EXPECT_EQ(table.model()->index(1, 5).data().toString(), T("1,990.00"));
    EXPECT_EQ(table.model()->index(0, 5).data().toString(), T("755.50"));
    EXPECT_EQ(table.model()->index(0, 6).data().toString(), T("1,990.00"));
    EXPECT_EQ(table.model()->index(1, 0).data().toString(), "") << "unknown";
    EXPECT_EQ(Copy(table), joint + "\tjoint\n" + T("-999.250") + "\t" + T("-999.250") + "\t" + T("0.000") +
                               "\t" + T("10.000") + "\t");
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST_P(WellTables, ComponentsPasteAndCopy)
{
    WellComponentTable table;
    Paste(table, T("1,236.00") + "\t" + T("1,234.50") + "\t10\tmain\n" + T("1.00") + "\t" + T("2.00") +
                     "\tSafety Valve\tby name\n" + T("3.00") + "\t" + T("4.00") + "\t99\t\n");
    EXPECT_EQ(table.GetComponents(),
              QList<WellComponent>(
                  {WellComponent({MD(1234.5F), MD(1236)}, "main", WellComponentType::ProductionPacker),
                   WellComponent({MD(1), MD(2)}, "by name", WellComponentType::SafetyValve),
                   WellComponent({MD(3), MD(4)}, "", static_cast<WellComponentType>(99))}));
    EXPECT_EQ(table.model()->index(0, 2).data().toString(), "Production Packer");
    EXPECT_EQ(table.model()->index(2, 2).data().toString(), "");
    EXPECT_EQ(Copy(table).split('\n')[0], T("1,236.00") + "\t" + T("1,234.50") + "\t10\tmain");
    EXPECT_TRUE(Copy(table).endsWith("\t99\t"));
    EXPECT_EQ(dialogs_.GetMessages(), QStringList());
}

TEST(WellTablePaste, TakesTheBlanksOfSpreadsheets)
{
    NumberFormatScope const scope({AlternativeInternational, true});
    for (char16_t const blank : {u'\u202F', u'\u00A0', u' '}) {
        DirectionalSurveyTable table;
        DialogAnswer const dialogs;
        Paste(table,
              QString("1%12 345,5\t1\t2").replace("%1", " ").replace("1 2 ", QString("12") + QChar(blank)));
        EXPECT_EQ(table.GetSurveyVector(), std::vector<DirectionalSurveyItem>({{12345.5F, 1, 2}}));
        PipeTable pipes;
        Paste(pipes, QString("0\t12") + QChar(blank) + "345,5\t7\t6\t29\tyes\tp");
        ASSERT_EQ(pipes.GetPipes_OD_Sorted().size(), 1);
        EXPECT_EQ(pipes.GetPipes_OD_Sorted()[0].depth, Interval(0, 12345.5));
        EXPECT_EQ(dialogs.GetMessages(), QStringList());
    }
}

TEST(WellTablePaste, NothingOfTheTablesFormIsToldAndChangesNothing)
{
    NumberFormatScope const scope;
    DirectionalSurveyTable survey;
    ZoneTable zones;
    DepthMarkerTable markers;
    PipeTable pipes;
    PipeComponentTable pipe_components;
    WellComponentTable components;
    std::vector<std::pair<QTableView*, QString>> const tables = {
        {&survey, "No survey data found in pasted data. Check number format and try again"},
        {&zones, "No Zone/Perf data found in pasted data. Check number format and try again"},
        {&markers, "No Depth Marker data found in pasted data. Check number format and try again"},
        {&pipes, "No Pipe data found in pasted data. Check number format and try again"},
        {&pipe_components, "No Pipe Component data found in pasted data. Check number format and try again"},
        {&components, "No Component data found in pasted data. Check number format and try again"}};
    for (auto const& [table, message] : tables) {
        for (auto const* text : {"", " \n\r\n", "one column"}) {
            if (table == &markers && text[0] == 'o') {
                continue; // one column is a marker's form
            }
            DialogAnswer const dialogs;
            Paste(*table, text);
            EXPECT_EQ(dialogs.GetMessages(), QStringList{message});
            EXPECT_EQ(table->model()->rowCount(), 0);
        }
    }
}

TEST(WellTablePaste, BadNumbersAreToldAndTheirLinesLeftOut)
{
    NumberFormatScope const scope;
    {
        DialogAnswer const dialogs;
        DirectionalSurveyTable table;
        Paste(table, "MD\tIncl\tAzi\n1\t2\t3\n4\tnan\t5\n6\tinf\t1e99\n7\t8\t9");
        EXPECT_EQ(table.GetSurveyVector(), std::vector<DirectionalSurveyItem>({{1, 2, 3}, {7, 8, 9}}));
        EXPECT_EQ(
            dialogs.GetMessages(),
            QStringList{"Error in Survey values: Unable to convert to number. MD: MD  Incl: Incl  Azi: Azi\n"
                        "Error in Survey values: Unable to convert to number. MD: 4  Incl: nan  Azi: 5\n"
                        "Error in Survey values: Unable to convert to number. MD: 6  Incl: inf  Azi: 1e99"});
    }
    {
        DialogAnswer const dialogs;
        ZoneTable table;
        Paste(table, "1\tx\tzone");
        EXPECT_EQ(table.GetZones(), QList<Zone>());
        EXPECT_EQ(dialogs.GetMessages(),
                  QStringList{"Error in Zone/Perf depths: Unable to convert to number. Min. Depth: 1  Max. "
                              "Depth: x"});
    }
    {
        DialogAnswer const dialogs;
        PipeComponentTable table;
        Paste(table, "1\t2\t3\tlong\tjoint");
        EXPECT_EQ(table.model()->rowCount(), 0);
        EXPECT_EQ(
            dialogs.GetMessages(),
            QStringList{"Error in PipeComponent depths/values: Unable to convert to number. OD: 1  ID: 2  "
                        "Weight: 3  Length: long"});
    }
    {
        DialogAnswer const dialogs;
        WellComponentTable table;
        Paste(table, "a\tb\t10\tpacker");
        EXPECT_EQ(table.model()->rowCount(), 0);
        EXPECT_EQ(dialogs.GetMessages(),
                  QStringList{"Error in Components depths: Unable to convert to number. Min. Depth: a  Max. "
                              "Depth: b"});
    }
}

TEST(WellTablePaste, AMarkerWithoutDepthIsAskedFor)
{
    NumberFormatScope const scope;
    auto const click = [](QMessageBox::StandardButton button) {
        return [button](QDialog* dialog) { qobject_cast<QMessageBox*>(dialog)->button(button)->click(); };
    };
    QString const text = "1\ta\nx\tb\ny\tc\n2\td";
    QString const question =
        "Paste Error - Unable to convert to depth: %1\nDo you want to continue(current line "
        "will be discarded)?";
    QList<DepthMarker> const good = {{1, "a"}, {2, "d"}};
    struct Case
    {
        std::vector<DialogAnswer::Answer> answers;
        QStringList questions;
        QList<DepthMarker> markers;
    };
    for (auto const& [answers, questions, markers] :
         std::vector<Case>{{{click(QMessageBox::Yes), click(QMessageBox::Yes)},
                            {question.arg("x"), question.arg("y")},
                            good},
                           {{click(QMessageBox::YesToAll)}, {question.arg("x")}, good},
                           {{click(QMessageBox::Yes), click(QMessageBox::No)},
                            {question.arg("x"), question.arg("y")},
                            {}}}) {
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
    Paste(zones, QString("1\t2\tz\n").repeated(1000000));
    DirectionalSurveyTable survey;
    Paste(survey, QString("1\tx\t3\n").repeated(1000000));
    EXPECT_EQ(zones.model()->rowCount() + survey.rowCount(), 0);
    QString const message = "A table holds at most 100000 rows. Nothing was pasted.";
    EXPECT_EQ(dialogs.GetMessages(), QStringList({message, message}));

    // As many as fit are taken, and bad lines do not open a box each.
    Paste(survey, QString("1\t2\t3\n").repeated(50000) + QString("1\tx\t3\n").repeated(50000));
    EXPECT_EQ(survey.rowCount(), 50000);
    EXPECT_EQ(dialogs.GetMessages().size(), 3);
    EXPECT_TRUE(dialogs.GetMessages().back().endsWith("\n(and 49990 more lines)"));
    Paste(survey, QString("1\t2\t3\n").repeated(50001));
    EXPECT_EQ(survey.rowCount(), 50000);
    EXPECT_EQ(dialogs.GetMessages().back(), message) << "with the rows already there";

    // One line of 10 million characters.
    PipeTable pipes;
    Paste(pipes, QString("1").repeated(5000000) + QString(" ").repeated(5000000) + "\t1");
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
            SelectRow(*table, row);
        }
        QTest::keyClick(table, Qt::Key_Delete);
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

TEST(WellTableKeys, DescriptionsWithTabsStayOneColumn)
{
    NumberFormatScope const scope;
    DepthMarkerTable table;
    table.AddRow(DepthMarker(1, "a\tb\nc"));
    EXPECT_EQ(Copy(table), "1.00\ta b c");
}
