// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeStringData.h"

#include "support/NumberFormats.h"
#include "support/TestFiles.h"
#include "well/SketchWell.h"

namespace {
using sketch_well::Data;

/// Barrels per metre of bores of 4 and 5 inches: pi / 4 d^2 * 0.00064516 * 6.28981077.
constexpr double BORE_4 = 0.05099350469532682;
constexpr double BORE_5 = 0.07967735108644816;

using Parts = std::vector<std::pair<QString, Interval>>;

Parts ToParts(PipeStringData::ComponentList const& list)
{
    Parts parts;
    for (CalculatedPipeComponent const& component : list) {
        parts.emplace_back(component.GetDescription(), component.GetDepth());
    }
    return parts;
}

/// A string of one component that is named like the string.
PipeString Single(QString const& name, double top, double bottom, float od, float id, bool tubing = false)
{
    return {name, bottom, tubing, {PipeComponent(od, id, 0, bottom - top, name)}};
}

PipeString const& Named(PipeStringData const& data, QString const& name)
{
    for (PipeString const& string : data.GetPipeStringVector()) {
        if (string.GetName() == name) {
            return string;
        }
    }
    throw std::runtime_error("no such string");
}

/// Casing to 1000 m, a liner hung off it at 900 m to 1500 m, tubing to 800 m.
PipeStringData LinerWell()
{
    return Data({Single("liner", 900, 1500, 7, 6), Single("casing", 0, 1000, 9.6F, 8.7F),
                 Single("tubing", 0, 800, 4.5F, 4, true), Single("conductor", 0, 100, 20, 19)});
}

/// A component at a depth, with a bore in inches.
CalculatedPipeComponent Part(double top, double bottom, float id, QString const& name = "p")
{
    CalculatedPipeComponent component(PipeComponent(id + 1, id, 0, 0, name), id, id + 1);
    component.SetDepth({top, bottom});
    return component;
}

/// Lines as they stand in the reference; depths with 12 significant digits, barrels with 6.
QString Line(QString line, std::initializer_list<double> numbers, int digits = 12)
{
    for (double const number : numbers) {
        line += ' ' + QString::number(number, 'g', digits);
    }
    return line;
}

QStringList DescribeStrings(PipeStringData const& data)
{
    QStringList lines = {"order"};
    for (PipeString const& string : data.GetPipeStringVector()) {
        lines[0] += ' ' + string.GetName();
        lines << Line("nominal " + string.GetName(),
                      {string.GetNominalID(), string.GetNominalOD(), string.GetDepthInterval().lower});
    }
    return lines;
}

QStringList DescribePath(PipeStringData const& data, QString const& kind, Interval const& interval)
{
    auto const path = kind == "annulus"      ? data.Find_A_AnnulusAssembly()
                      : kind == "top"        ? data.FindInnerComponentsFromTop()
                      : kind == "accessible" ? data.FindAccessibleTubingAssembly()
                      : kind == "production" ? data.FindProductionCasings(interval.lower)
                      : kind == "outer"      ? data.TraceOuterPipeDownwards(interval)
                                             : data.TraceDownwards(Named(data, kind), interval.lower);
    QStringList lines;
    for (CalculatedPipeComponent const& part : path) {
        lines << Line("part " + part.GetDescription(), {part.GetMinDepth(), part.GetMaxDepth()});
    }
    return lines << Line("volumes",
                         {PipeStringData::CalculateVolume(path, interval, nullptr).volume,
                          PipeStringData::CalculateDisplacement(path, interval, nullptr).volume,
                          PipeStringData::CalculateVolumeBelowDepth(path, interval.lower, nullptr).volume,
                          PipeStringData::CalculateTotalVolume(path)},
                         6);
}
} // namespace

TEST(PipeStringData, AgreesWithReferenceWells)
{
    QByteArray const reference = test_files::Read(test_files::DataPath("well/pipes.txt"));
    std::vector<PipeString> strings;
    QStringList actual;
    int compared = 0;
    for (QString const& line : QString::fromUtf8(reference).split('\n', Qt::SkipEmptyParts)) {
        QStringList const words = line.split(' ');
        auto const number = [&words](int word) { return words[word].toDouble(); };
        if (words[0] == "well") {
            strings.clear();
        } else if (words[0] == "string") {
            strings.emplace_back(words[1], number(2), number(3) != 0, std::vector<PipeComponent>());
        } else if (words[0] == "joint") {
            PipeString& string = strings.back();
            auto joints = string.GetPipeComponentVector();
            joints.emplace_back(words[2].toFloat(), words[3].toFloat(), 0.0F, number(4), words[1]);
            string = PipeString(string.GetName(), string.GetSetDepth_metric(), string.GetIsTubing(), joints);
        } else if (words[0] == "path") {
            ASSERT_TRUE(actual.isEmpty()) << "more than expected before " << qPrintable(line);
            actual = DescribePath(Data(strings), words[1], {number(2), number(3)});
        } else if (words[0] != "#") {
            if (words[0] == "order") {
                actual = DescribeStrings(Data(strings));
            }
            ASSERT_FALSE(actual.isEmpty()) << qPrintable(line);
            ASSERT_EQ(actual.takeFirst(), line);
            ++compared;
        }
    }
    EXPECT_TRUE(actual.isEmpty());
    EXPECT_EQ(compared, 1401);
}

TEST(PipeStringData, LookupsFollowTheOrderFromInsideOut)
{
    PipeStringData const data = LinerWell();
    EXPECT_EQ(DescribeStrings(data)[0], "order tubing liner casing conductor");
    EXPECT_EQ(data.FindLargestPipe()->GetName(), "conductor");
    EXPECT_EQ(data.FindUpperCasing()->GetName(), "casing") << "the earlier of two that begin at 0";
    EXPECT_EQ(data.FindInnerPipeAtDepth(950)->GetName(), "liner");
    EXPECT_EQ(data.FindInnerPipeComponentAtDepth(800)->GetDescription(), "tubing");
    EXPECT_EQ(data.FindSmallestCasingAtDepth(500)->GetName(), "casing");
    EXPECT_EQ(data.FindTubingComponentAtDepth(801), nullptr);
    EXPECT_EQ(data.FindInnerPipeAtDepth(1501), nullptr);
    EXPECT_EQ(data.GetDepthInterval_metric(), Interval(0, 1500));
    EXPECT_EQ(data.FindOutsideComponentAtDepth(Named(data, "tubing"), 500)->GetDescription(), "casing");
    EXPECT_EQ(data.FindOutsidePipeAtDepth(Named(data, "tubing"), 900), nullptr) << "no tubing there";
    EXPECT_EQ(data.FindAttachedLiner(Named(data, "casing"), 1500), nullptr);

    PipeStringData const none;
    EXPECT_FALSE(none.GetDepthInterval_metric().has_value());
    EXPECT_TRUE(none.FindInnerComponentsFromTop().empty());
    EXPECT_EQ(none.FindOutsidePipeAtDepth(Named(data, "casing"), 500), nullptr);
}

TEST(PipeStringData, PathsGoThroughShoesAndLiners)
{
    PipeStringData const data = LinerWell();
    EXPECT_TRUE(data.TraceDownwards(Named(data, "tubing"), 801).empty());
    // From below its top the liner does not end the stretch, and around the casing's shoe there is only the
    // liner, which is no wider: the path ends.
    EXPECT_EQ(ToParts(data.TraceDownwards(Named(data, "casing"), 950)), Parts({{"casing", {950, 1000}}}));
    // A first component past the end is given with its part below the end.
    EXPECT_EQ(ToParts(data.TraceOuterPipeDownwards({150, 400})), Parts({{"casing", {400, 1000}}}));

    // A tubing with a screen hung off it is accessible down to the screen's top only.
    PipeStringData const screen =
        Data({Single("tubing", 0, 800, 4.5F, 4, true), Single("screen", 750, 900, 3.5F, 3)});
    EXPECT_EQ(ToParts(screen.FindAccessibleTubingAssembly()), Parts({{"tubing", {0, 750}}}));
    EXPECT_EQ(ToParts(screen.FindCompleteTubingAssembly()), Parts({{"tubing", {0, 800}}}));
}

TEST(PipeStringData, SortsUnknownDiametersWithoutHarm)
{
    float const ids[] = {-5, 1, 17, std::numeric_limits<float>::quiet_NaN(), 3, 8, 2};
    std::vector<PipeString> strings;
    for (int i = 0; i < 300; ++i) {
        strings.push_back(Single(QString::number(i), 0, i,
                                 i % 2 == 0 ? PipeComponent::NULL_DIAMETER : ids[i % 7] + 1, ids[i % 7]));
    }
    PipeStringData const data = Data(strings);
    EXPECT_EQ(data.GetPipeStringVector().size(), 300U);
    (void)data.FindInnerComponentsFromTop();
    (void)data.TraceOuterPipeDownwards({0, 1e9});
}

TEST(PipeStringData, StringsThatLeadBackEnd)
{
    // A negative length makes a component that reaches below its string's shoe, so that the path leads
    // upwards.
    PipeString const a("a", 100, false,
                       {PipeComponent(7, 6, 0, 200, "a1"), PipeComponent(7, 6, 0, -100, "a2")});
    PipeString const b("b", 100, false,
                       {PipeComponent(8, 7, 0, 200, "b1"), PipeComponent(6, 5, 0, -100, "b2")});
    PipeString const c("c", 100, false,
                       {PipeComponent(9, 4, 0, 300, "c1"), PipeComponent(6.5F, 5, 0, -200, "c2")});
    PipeStringData const data = Data({a, b, c});
    for (PipeString const& string : data.GetPipeStringVector()) {
        for (double depth = -250; depth < 350; depth += 12.5) {
            EXPECT_LE(data.TraceDownwards(string, depth).size(), 12U);
            EXPECT_LE(data.TraceOuterPipeDownwards({depth, 1000}).size(), 12U);
        }
    }

    // Where a centimetre is less than the last bit, stepping past the shoe leads to the same pipe.
    double const far = 1e18;
    PipeStringData const endless = Data({Single("far", far - 4096, far, 9, 8)});
    EXPECT_EQ(endless.TraceOuterPipeDownwards({far, 2 * far}).size(), 1U);

    PipeStringData const infinite =
        Data({Single("x", -INFINITY, INFINITY, 9, 8), Single("y", 0, INFINITY, 10, 9),
              Single("z", 0, std::nan(""), 11, 10), Single("t", 0, INFINITY, 5, 4, true)});
    for (double depth : std::vector<double>{-INFINITY, 0, 1e300, INFINITY, NAN}) {
        EXPECT_LE(infinite.TraceOuterPipeDownwards({depth, INFINITY}).size(), 4U);
        EXPECT_LE(infinite.TraceDownwards(*infinite.FindTubing(), depth).size(), 4U);
    }
}

TEST(PipeStringData, VolumeOfAnInterval)
{
    PipeStringData::ComponentList const list = {Part(0, 100, 4), Part(100, 200, 5), Part(200, 300, 6)};
    auto const volume = [](PipeStringData::ComponentList const& parts, double from, double to) {
        return PipeStringData::CalculateVolume(parts, {from, to}, nullptr).volume;
    };
    EXPECT_EQ(volume(list, 300, 400), 0);
    // Inside one component: its whole rest counts, and the next one takes off the excess with its own bore.
    EXPECT_FLOAT_EQ(volume(list, 20, 60), static_cast<float>(80 * BORE_4 - 40 * BORE_5));
    EXPECT_FLOAT_EQ(volume({Part(0, 100, 4)}, 20, 60), static_cast<float>(80 * BORE_4));
    // An overlap of 40 m counts once, with the lower component's bore.
    EXPECT_FLOAT_EQ(
        PipeStringData::CalculateVolumeBelowDepth({Part(0, 200, 5), Part(160, 300, 4)}, 100, nullptr).volume,
        static_cast<float>(60 * BORE_5 + 140 * BORE_4));
}

TEST(PipeStringData, VolumeLogAndWarnings)
{
    NumberFormatScope const scope;
    CalculatedPipeComponent unknown(PipeComponent(5, PipeComponent::NULL_DIAMETER, 0, 0, "%7 pup"), 5, 6);
    unknown.SetDepth({100, 200});
    QString log = "Log:\n";
    VolumeResult const result = PipeStringData::CalculateVolume(
        {Part(0, 100, 4, "top"), unknown, Part(200, 300, 6, "end")}, {50, 250}, &log);
    EXPECT_EQ(
        log,
        "Log:\n"
        "Pipe: top. From: 0.00 m MD,  To: 250.00 m MD,  Volume: 2.5 bbls,  Accumulated Vol: 2.5 bbls \n"
        "Pipe: %7 pup. From: 100.00 m MD,  To: 200.00 m MD,  Volume: 8.0 bbls,  Accumulated Vol: 10.5 bbls \n"
        "Pipe: end. From: 200.00 m MD,  To: 250.00 m MD,  Volume: 5.7 bbls,  Accumulated Vol: 16.3 bbls \n");
    ASSERT_EQ(result.warnings.size(), 1);
    EXPECT_TRUE(
        result.warnings[0].startsWith("ID not available for component \"%7 pup\" w/ Length: 100.000m."));
    NumberFormatScope::Set({US, false});
    EXPECT_EQ(PipeStringData::GenerateDebugString(Part(0, 1, 4), 100, 1000, 1234.56, -0.26),
              "Pipe: p. From: 328.08 ft MD,  To: 3,280.84 ft MD,  Volume: 1,234.6 bbls,  "
              "Accumulated Vol: -0.3 bbls \n");
}
