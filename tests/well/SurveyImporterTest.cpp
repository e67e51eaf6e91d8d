// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SurveyImporter.h"

#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "support/Pixels.h"
#include "support/TestFiles.h"
#include "well/PlainTextViewer.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include <sys/stat.h>

namespace {
class SurveyImporterTest : public testing::Test
{
protected:
    void Load(QByteArray const& text, QString const& separator = "Whitespace")
    {
        importer_.findChild<QLineEdit*>("DeviationFile")->setText(folder_.Write("deviation.txt", text));
        importer_.LoadTextFile();
        for (auto* button : importer_.findChildren<QRadioButton*>()) {
            button->setAutoExclusive(false);
            button->setChecked(button->text() == separator);
        }
    }
    void SetBox(QString const& name, int value) { importer_.findChild<QSpinBox*>(name)->setValue(value); }

    NumberFormatScope scope_{{US, false}};
    test_files::Folder folder_;
    SurveyImporter importer_;
};

using Stations = std::vector<DirectionalSurveyItem>;
} // namespace

TEST_F(SurveyImporterTest, ReadsWithEachSeparator)
{
    DialogAnswer const dialogs;
    Stations const expected = {{100 * 0.3048F, 1.5F, 2}, {50 * 0.3048F, 3, 4}};
    for (auto const& [separator, text] :
         {std::pair("Whitespace", " 100 \t 1.5   2\n50 3 4\n"), std::pair("Space", "100 1.5 2\n50 3 4"),
          std::pair("Tab", "100\t1.5\t2\r\n50\t3\t4\r\n"),
          std::pair("Comma", "\xEF\xBB\xBF"
                             "100, 1.5,2\n50,3 ,4\n")}) {
        Load(text, separator);
        EXPECT_EQ(importer_.GetSurvey(), expected) << separator;
    }
    // Heading lines, other columns, in file order.
    Load("Well X\n# azi md tvd incl\n2 100 99 1.5 more\n4 50 49 3\n");
    SetBox("FirstLine", 3);
    SetBox("AziColumn", 1);
    SetBox("MdColumn", 2);
    SetBox("InclColumn", 4);
    importer_.accept();
    EXPECT_EQ(importer_.GetImportedSurvey(), expected);
    EXPECT_EQ(importer_.result(), QDialog::Accepted);
    EXPECT_EQ(dialogs.GetMessages(), QStringList());
}

TEST_F(SurveyImporterTest, TellsWhatIsWrongAndStaysOpen)
{
    for (auto const& [text, separator, message] : std::vector<std::tuple<QByteArray, QString, QString>>{
             {"1 2 3", "Tab",
              "Not enough data column in imported data. Did you correctly specify the line number of the "
              "first data row??"},
             {"1 2 x", "Space",
              "Error in Survey File: Unable to convert to number. MD: 1  Incl: 2  Azi: x\nConfirm import "
              "number-format matches application settings and try again. Aborting!!"},
             {"", "Comma", "The file has no line 1."},
             {"1 2 3", "none of them", "No separator selected"}}) {
        DialogAnswer const dialogs;
        Load(text, separator);
        importer_.setResult(QDialog::Rejected);
        importer_.accept();
        EXPECT_EQ(dialogs.GetMessages(), QStringList{message});
        EXPECT_EQ(dialogs.GetTitles(), QStringList{"Survey Import"});
        EXPECT_EQ(importer_.result(), QDialog::Rejected);
        EXPECT_TRUE(importer_.GetImportedSurvey().empty());
    }
}

TEST_F(SurveyImporterTest, ShowsTheFileWithLineNumbers)
{
    Load("first\nsecond\n");
    auto* viewer = importer_.findChild<PlainTextViewer*>();
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->toPlainText(), "first\nsecond\n");
    EXPECT_TRUE(viewer->isReadOnly());
    int const narrow = viewer->lineNumberAreaWidth();
    viewer->setPlainText(QString("x\n").repeated(20000));
    EXPECT_GT(viewer->lineNumberAreaWidth(), narrow) << "room for five digits";

    // The strip shows something at the lines and nothing below the last one.
    viewer->setPlainText("one\ntwo");
    importer_.resize(800, 600);
    importer_.show();
    auto* area = viewer->findChild<QWidget*>("LineNumberArea");
    ASSERT_NE(area, nullptr);
    QImage const image = area->grab().toImage();
    QRect below = image.rect();
    below.setTop(3 * viewer->fontMetrics().height());
    QColor const ground = image.pixelColor(0, 0);
    EXPECT_EQ(pixels::Count(image, ground, below), below.width() * below.height());
    EXPECT_LT(pixels::Count(image, ground), image.width() * image.height());

    // A long file and long lines are shown in part.
    Load(QByteArray("1 2 3\n").repeated(1000000));
    EXPECT_LT(viewer->blockCount(), 500000);
    EXPECT_TRUE(viewer->toPlainText().endsWith("(The file is longer than shown here.)"));
    Load(QByteArray(100000, 'x') + "\nshort");
    EXPECT_EQ(viewer->toPlainText(), QString("x").repeated(2000) + "...\nshort");
    // As it is read.
    Load(QByteArray("\xFF\xFE"
                    "1\0",
                    4));
    EXPECT_EQ(viewer->toPlainText(), "1");

    // A pipe that nobody writes to.
    auto const pipe = folder_.Path("pipe");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    importer_.findChild<QLineEdit*>("DeviationFile")->setText(pipe);
    importer_.LoadTextFile();
    EXPECT_EQ(viewer->toPlainText(), "");
}
