// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "resources/Resources.h"

#include "support/Texts.h"

#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {
QStringList FilesUnder(QString const& folder)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        files << it.next();
    return files;
}

QImage Render(QString const& file, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// Relative luminance of a colour as WCAG 2 defines it.
double Luminance(QColor const& color)
{
    auto const linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(QColor const& a, QColor const& b)
{
    double const la = Luminance(a);
    double const lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

/// Of the picture's opaque pixels, the share that stands out (contrast of 3 or more) from the background.
double ReadableShare(QImage const& picture, QColor const& background)
{
    int opaque = 0;
    int readable = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            QColor const color = picture.pixelColor(x, y);
            if (color.alpha() < 250)
                continue;
            ++opaque;
            readable += Contrast(color, background) >= 3;
        }
    }
    return opaque == 0 ? 0 : static_cast<double>(readable) / opaque;
}

QColor const LIGHT_BACKGROUND(0xf0, 0xf0, 0xf0);
QColor const DARK_BACKGROUND(0x23, 0x26, 0x29);

QStringList const ACTION_ICONS =
    List("Convert DLIS|DLIS Browser|New Survey|Open Project|New Project|Add LAS File|Save Project|"
         "Generate PDF|Exit|Set Display Interval|Zoom In|Zoom Out|Undo|Redo|Reset Zooms|"
         "Zoom Vertical Interval|Zoom Horizontal Interval|Adjust Scales|Well Details|Import Well Details|"
         "Calculate Well Volumes|DataBrowser|Change Visible Dataviews|Edit Survey Notes|Generate Pipe Wall|"
         "About|About Qt|Homepage|Check for Updates|Settings|MFC Mode|MFC Color Map|MFC 3D Window|"
         "MFC Cross Section|Tracking Mode|Define Interpretation Zones|Spinner Calibration|"
         "Edit Interpretation Zones|Edit Interpretation Parameters|Show Vertical Section|"
         "Show 3D Well Trajectory|Screens Manager|Quorrel|Depth_Metric|Depth_Imperial|Separator_Period|"
         "Separator_Comma");
QStringList const SWITCHED_ICONS = List("Depth_Metric|Depth_Imperial|Separator_Period|Separator_Comma");
QStringList const PASS_ICONS = List("Next Pass|Previous Pass|Hide Pass|Highlight pass|Stretch|Shift");
QStringList const AREA_FILL_ICONS =
    List("A_left_of_B|A_right_of_B|A_left_of_Value|A_right_of_Value|Always_between_A_and_B|"
         "Always_between_A_and_Value");
QStringList const BROWSER_ICONS =
    List("Survey|Log Data|Log Pass|Time Log|Data Channel|Time Channel|Data Storage|Storage Channel|Views|"
         "User Views|User View|Image Views|Image View|New User View|New Image View|Math|Smooth Curve|"
         "Derivative|Rename|Export");

class ResourcesTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { qInitResources_Quorrel(); }
};
} // namespace

TEST_F(ResourcesTest, EveryNamedIconIsInTheBundle)
{
    // Code asks for the dark forms by name, without looking whether they exist.
    for (auto const& [folder, names] :
         {std::pair("", ACTION_ICONS), std::pair("Pass Toolbar/", PASS_ICONS),
          std::pair("AreaFill/", AREA_FILL_ICONS), std::pair("DataBrowser/", BROWSER_ICONS),
          std::pair("DarkTheme/", SWITCHED_ICONS),
          std::pair("DataBrowser/DarkTheme/", List("Math|Derivative|Rename|Export")),
          std::pair("Pass Toolbar/DarkTheme/", PASS_ICONS)}) {
        for (QString const& name : names) {
            EXPECT_TRUE(QFile::exists(":/Icons/" + QString(folder) + name + ".svg"))
                << folder << name.toStdString();
        }
    }
}

TEST_F(ResourcesTest, EveryIconIsASquarePictureOfItsOwn)
{
    std::set<QByteArray> contents;
    for (QString const& file : FilesUnder(":/Icons")) {
        SCOPED_TRACE(file.toStdString());
        QSvgRenderer renderer(file);
        ASSERT_TRUE(renderer.isValid());
        EXPECT_EQ(renderer.viewBox().width(), renderer.viewBox().height());
        QFile source(file);
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        EXPECT_TRUE(contents.insert(source.readAll()).second) << "the same picture under two names";
    }
    EXPECT_GE(contents.size(), 80u);
}

TEST_F(ResourcesTest, EveryDarkFormHasALightOneOfTheSameShape)
{
    int dark_forms = 0;
    for (QString const& file : FilesUnder(":/Icons")) {
        if (!file.contains("/DarkTheme/"))
            continue;
        SCOPED_TRACE(file.toStdString());
        ++dark_forms;
        QString light = file;
        light.remove("DarkTheme/");
        ASSERT_TRUE(QFile::exists(light));
        QImage const dark_alpha = Render(file, 48).convertToFormat(QImage::Format_Alpha8);
        QImage const light_alpha = Render(light, 48).convertToFormat(QImage::Format_Alpha8);
        EXPECT_EQ(dark_alpha, light_alpha);
    }
    EXPECT_GE(dark_forms, 30);
}

// The form that is used on each background stands out from it with the contrast that WCAG asks of
// graphics. Coloured inner areas may be fainter, so a part of the pixels may fall short.
TEST_F(ResourcesTest, IconsReadOnTheirBackground)
{
    for (QString const& file : FilesUnder(":/Icons")) {
        SCOPED_TRACE(file.toStdString());
        if (file == ":/Icons/Quorrel.svg")
            continue; // the application's icon brings its own background
        if (file.contains("/DarkTheme/")) {
            EXPECT_GT(ReadableShare(Render(file, 48), DARK_BACKGROUND), 0.7);
            continue;
        }
        EXPECT_GT(ReadableShare(Render(file, 48), LIGHT_BACKGROUND), 0.7);
        int const cut = static_cast<int>(file.lastIndexOf('/')) + 1;
        if (!QFile::exists(file.left(cut) + "DarkTheme/" + file.mid(cut))) {
            EXPECT_GT(ReadableShare(Render(file, 48), DARK_BACKGROUND), 0.7);
        }
    }
}
