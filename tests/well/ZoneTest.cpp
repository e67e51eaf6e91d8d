// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/Zone.h"

#include "well/WellComponentType.h"
#include "well/ZoneTrack.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace {
QImage Painted(Zone const& zone, int y, int height)
{
    QImage image(40, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    zone.PaintMe(&painter, 10, y, 20, height, zone.GetColor());
    return image;
}

/// Rows of column 11 (clear of any text) that have the colour; first and last.
std::pair<int, int> Rows(QImage const& image, QColor const& color)
{
    std::pair<int, int> rows(-1, -1);
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(11, y) == color) {
            rows = {rows.first < 0 ? y : rows.first, y};
        }
    }
    return rows;
}

int CountOtherThan(QImage const& image, QColor const& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 10; x < 30; ++x) {
            count += image.pixelColor(x, y) != color && image.pixelColor(x, y) != Qt::black ? 1 : 0;
        }
    }
    return count;
}
} // namespace

TEST(Zone, PaintsInsideTheWindow)
{
    Zone const zone({0, 1}, "", QColor(200, 10, 30));
    EXPECT_EQ(Rows(Painted(zone, 20, 30), zone.GetColor()), std::make_pair(20, 49));
    EXPECT_EQ(Rows(Painted(zone, -50, 60), zone.GetColor()), std::make_pair(0, 9));
    EXPECT_EQ(Rows(Painted(zone, 90, 5000), zone.GetColor()), std::make_pair(90, 99));
    EXPECT_EQ(Rows(Painted(zone, 40, 0), zone.GetColor()), std::make_pair(40, 40));
    EXPECT_EQ(Rows(Painted(zone, -2'000'000'000, 2'147'483'647), zone.GetColor()), std::make_pair(0, 99));
    QImage const image = Painted(zone, 20, 30);
    EXPECT_EQ(image.pixelColor(9, 30), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(30, 30), QColor(Qt::black));
}

TEST(Zone, WritesOnlyWhatFits)
{
    Zone const zone({0, 1}, "Sand", QColor(0, 0, 200));
    EXPECT_GT(CountOtherThan(Painted(zone, 0, 100), zone.GetColor()), 10) << "text in the difference colour";
    EXPECT_EQ(CountOtherThan(Painted(zone, 0, 5), zone.GetColor()), 0);
}

TEST(ZoneTrack, SortsByDepth)
{
    ZoneTrack track("Formation");
    double const nan = std::nan("");
    track.SetZones({Zone({nan, 1}, "n", Qt::red), Zone({5, 9}, "c", Qt::red), Zone({1, 9}, "b", Qt::red),
                    Zone({1, 2}, "a", Qt::red)});
    track.SortZones();
    QString order;
    for (Zone const& zone : track.GetZones()) {
        order += zone.GetDescription();
    }
    EXPECT_EQ(order, "abcn");
}

TEST(WellComponentType, NamesBothWays)
{
    QStringList names;
    for (auto const& [type, name] : ComponentTypesMap) {
        EXPECT_EQ(static_cast<int>(type), names.size());
        EXPECT_EQ(ConvertNameToComponentType(name), type);
        EXPECT_EQ(ConvertComponentTypeToName(type), name);
        names << name;
    }
    EXPECT_EQ(names.join("|"),
              "|HUD|Plug|Fish|Restriction|Safety Valve|SPM|PDHG|Sleeve|Nipple|Production Packer|Leak|"
              "Formation|Cut|ASV Packer|Perforation|Openhole Packer|Straddle|Cement Plug|Tubing Punch");
    EXPECT_EQ(ConvertComponentTypeToName(static_cast<WellComponentType>(-7)), "");
    EXPECT_EQ(ConvertNameToComponentType("spm"), WellComponentType::Undefined);
}
