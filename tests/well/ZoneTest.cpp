// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/Zone.h"

#include "support/Pixels.h"
#include "support/Texts.h"
#include "well/WellComponentType.h"
#include "well/ZoneTrack.h"

namespace {
QImage Painted(Zone const& zone, int y, int height)
{
    return pixels::Paint({40, 100}, Qt::black, [&](QPainter& painter) {
        zone.PaintMe(&painter, 10, y, 20, height, zone.GetColor());
    });
}
} // namespace

TEST(Zone, PaintsInsideTheWindow)
{
    Zone const zone({0, 1}, "", QColor(200, 10, 30));
    int const cases[][4] = {{20, 30, 20, 49},
                            {-50, 60, 0, 9},
                            {90, 5000, 90, 99},
                            {40, 0, 40, 40},
                            {-2'000'000'000, 2'147'483'647, 0, 99}};
    for (auto const& [y, height, first, last] : cases) {
        QImage const image = Painted(zone, y, height);
        int const pixels = 20 * (last - first + 1);
        EXPECT_EQ(pixels::Count(image, zone.GetColor(), QRect(QPoint(10, first), QPoint(29, last))), pixels);
        EXPECT_EQ(pixels::Count(image, Qt::black), 40 * 100 - pixels);
    }
}

TEST(Zone, WritesOnlyWhatFits)
{
    Zone const zone({0, 1}, "Sand", QColor(0, 0, 200));
    EXPECT_LT(pixels::Count(Painted(zone, 0, 100), zone.GetColor()), 20 * 100 - 10)
        << "text in another colour";
    EXPECT_EQ(pixels::Count(Painted(zone, 0, 5), zone.GetColor()), 20 * 5);
}

TEST(ZoneTrack, SortsByDepth)
{
    ZoneTrack track("Formation");
    double const nan = std::nan("");
    track.SetZones({Zone({nan, 1}, "n", Qt::red), Zone({5, 9}, "c", Qt::red), Zone({1, 9}, "b", Qt::red),
                    Zone({1, 2}, "a", Qt::red)});
    track.SortZones();
    EXPECT_EQ(Texts(track.GetZones(), &Zone::GetDescription).join(""), "abcn");
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
