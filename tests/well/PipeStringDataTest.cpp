// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeStringData.h"

#include "app/kit/SettingsSingleton.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

namespace {
/// Barrels per metre of bores of 4, 5 and 6 inches: pi / 4 d^2 * 0.00064516 * 6.28981077.
constexpr double BORE_4 = 0.05099350469532682;
constexpr double BORE_5 = 0.07967735108644816;
constexpr double BORE_6 = 0.11473538556448534;

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

PipeStringData Data(std::vector<PipeString> const& strings)
{
    PipeStringData data;
    data.SetPipeStringVector(strings);
    return data;
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
} // namespace

TEST(PipeStringData, AgreesWithReferenceWells)
{
    std::istringstream file(test_files::Read(test_files::DataPath("well/pipes.txt")).toStdString());
    std::vector<PipeString> strings;
    struct
    {
        std::string name;
        double set_depth = 0;
        double tubing = 0;
        std::vector<PipeComponent> joints;
    } pending;
    PipeStringData data;
    PipeStringData::ComponentList path;
    PipeStringData::ComponentList::const_iterator part;
    std::string path_name;
    int paths = 0;
    int parts = 0;
    auto const finish_string = [&] {
        if (!pending.joints.empty()) {
            strings.emplace_back(QString::fromStdString(pending.name), pending.set_depth, pending.tubing != 0,
                                 pending.joints);
            pending.joints.clear();
        }
    };
    for (std::string line; std::getline(file, line);) {
        SCOPED_TRACE(path_name + ": " + line);
        std::istringstream text(line);
        std::string word;
        std::string name;
        double v[6] = {};
        text >> word;
        if (word == "well") {
            strings.clear();
        } else if (word == "string") {
            finish_string();
            text >> pending.name >> pending.set_depth >> pending.tubing;
        } else if (word == "joint") {
            text >> name >> v[0] >> v[1] >> v[2];
            pending.joints.emplace_back(static_cast<float>(v[0]), static_cast<float>(v[1]), 0.0F, v[2],
                                        QString::fromStdString(name));
        } else if (word == "order") {
            finish_string();
            data.SetPipeStringVector(strings);
            ASSERT_EQ(data.GetPipeStringVector().size(), strings.size());
            for (PipeString const& string : data.GetPipeStringVector()) {
                text >> name;
                EXPECT_EQ(string.GetName().toStdString(), name);
            }
        } else if (word == "nominal") {
            text >> name >> v[0] >> v[1] >> v[2];
            PipeString const& string = Named(data, QString::fromStdString(name));
            EXPECT_DOUBLE_EQ(string.GetNominalID(), v[0]);
            EXPECT_DOUBLE_EQ(string.GetNominalOD(), v[1]);
            EXPECT_EQ(string.GetDepthInterval().lower, v[2]);
        } else if (word == "path") {
            EXPECT_TRUE(paths == 0 || part == path.cend()) << "more parts than expected in " << path_name;
            text >> path_name >> v[0] >> v[1];
            QString const kind = QString::fromStdString(path_name);
            path = kind == "annulus"      ? data.Find_A_AnnulusAssembly()
                   : kind == "top"        ? data.FindInnerComponentsFromTop()
                   : kind == "accessible" ? data.FindAccessibleTubingAssembly()
                   : kind == "production" ? data.FindProductionCasings(v[0])
                   : kind == "outer"      ? data.TraceOuterPipeDownwards({v[0], v[1]})
                                          : data.TraceDownwards(Named(data, kind.mid(6)), v[0]);
            part = path.cbegin();
            ++paths;
        } else if (word == "part") {
            text >> name >> v[0] >> v[1];
            ASSERT_NE(part, path.cend());
            EXPECT_EQ(part->GetDescription().toStdString(), name);
            EXPECT_EQ(part->GetDepth(), Interval(v[0], v[1]));
            ++part;
            ++parts;
        } else if (word == "volumes") {
            for (double& value : v) {
                text >> value;
            }
            Interval const interval(v[0], v[1]);
            EXPECT_FLOAT_EQ(PipeStringData::CalculateVolume(path, interval, nullptr).volume,
                            static_cast<float>(v[2]));
            EXPECT_FLOAT_EQ(PipeStringData::CalculateDisplacement(path, interval, nullptr).volume,
                            static_cast<float>(v[3]));
            EXPECT_FLOAT_EQ(PipeStringData::CalculateVolumeBelowDepth(path, v[0], nullptr).volume,
                            static_cast<float>(v[4]));
            EXPECT_FLOAT_EQ(PipeStringData::CalculateTotalVolume(path), static_cast<float>(v[5]));
        }
    }
    EXPECT_EQ(paths, 87);
    EXPECT_EQ(parts, 1259);
}

TEST(PipeStringData, LookupsFollowTheOrderFromInsideOut)
{
    PipeStringData const data = LinerWell();
    QStringList names;
    for (PipeString const& string : data.GetPipeStringVector()) {
        names << string.GetName();
    }
    EXPECT_EQ(names, QStringList({"tubing", "liner", "casing", "conductor"}));
    EXPECT_EQ(data.FindTubing()->GetName(), "tubing");
    EXPECT_EQ(data.FindLargestPipe()->GetName(), "conductor");
    EXPECT_EQ(data.FindUpperCasing()->GetName(), "casing") << "the earlier of two that begin at 0";
    EXPECT_EQ(data.FindLargestPipeAtDepth(50)->GetName(), "conductor");
    EXPECT_EQ(data.FindLargestPipeAtDepth(950)->GetName(), "casing");
    EXPECT_EQ(data.FindInnerPipeAtDepth(950)->GetName(), "liner");
    EXPECT_EQ(data.FindInnerPipeComponentAtDepth(800)->GetDescription(), "tubing");
    EXPECT_EQ(data.FindSmallestCasingAtDepth(500)->GetName(), "casing");
    EXPECT_EQ(data.FindTubingComponentAtDepth(801), nullptr);
    EXPECT_EQ(data.FindInnerPipeAtDepth(1501), nullptr);
    EXPECT_EQ(data.GetDepthInterval_metric(), Interval(0, 1500));
    EXPECT_EQ(data.FindOutsideComponentAtDepth(Named(data, "tubing"), 500)->GetDescription(), "casing");
    EXPECT_EQ(data.FindOutsidePipeAtDepth(Named(data, "tubing"), 900), nullptr) << "no tubing there";
    EXPECT_EQ(data.FindAttachedLiner(Named(data, "casing"), 0)->GetName(), "liner");
    EXPECT_EQ(data.FindAttachedLiner(Named(data, "casing"), 1500), nullptr);

    PipeStringData const none;
    EXPECT_EQ(none.FindLargestPipe(), nullptr);
    EXPECT_EQ(none.FindUpperCasing(), nullptr);
    EXPECT_FALSE(none.GetDepthInterval_metric().has_value());
    EXPECT_TRUE(none.FindInnerComponentsFromTop().empty());
    EXPECT_EQ(none.FindOutsidePipeAtDepth(Named(data, "casing"), 500), nullptr);
}

TEST(PipeStringData, PathsGoThroughShoesAndLiners)
{
    PipeStringData const data = LinerWell();
    EXPECT_EQ(ToParts(data.TraceDownwards(Named(data, "tubing"), 10)),
              Parts({{"tubing", {10, 800}}, {"casing", {800, 900}}, {"liner", {900, 1500}}}));
    EXPECT_TRUE(data.TraceDownwards(Named(data, "tubing"), 801).empty());
    EXPECT_EQ(ToParts(data.Find_A_AnnulusAssembly()), Parts({{"casing", {0, 900}}, {"liner", {900, 1500}}}));
    EXPECT_EQ(ToParts(data.FindAccessibleTubingAssembly()), Parts({{"tubing", {0, 800}}}));
    // From below its top the liner does not end the stretch, and around the casing's shoe there is only the
    // liner, which is no wider: the path ends.
    EXPECT_EQ(ToParts(data.TraceDownwards(Named(data, "casing"), 950)), Parts({{"casing", {950, 1000}}}));
    // The outermost wall steps from shoe to shoe, the last part up to the interval's end.
    EXPECT_EQ(ToParts(data.TraceOuterPipeDownwards({50, 2000})),
              Parts({{"conductor", {50, 100}}, {"casing", {100, 1000}}, {"liner", {1000, 1500}}}));
    // A first component past the end is given with its part below the end.
    EXPECT_EQ(ToParts(data.TraceOuterPipeDownwards({150, 400})), Parts({{"casing", {400, 1000}}}));

    PipeStringData const no_tubing = Data({Single("casing", 0, 1000, 9.6F, 8.7F)});
    EXPECT_TRUE(no_tubing.Find_A_AnnulusAssembly().empty());
    EXPECT_TRUE(no_tubing.FindCompleteTubingAssembly().empty());
    EXPECT_TRUE(no_tubing.FindAccessibleTubingAssembly().empty());
    EXPECT_EQ(ToParts(no_tubing.FindInnerComponentsFromTop()), Parts({{"casing", {0, 1000}}}));

    // A tubing with a screen hung off it is accessible down to the screen's top only.
    PipeStringData const screen =
        Data({Single("tubing", 0, 800, 4.5F, 4, true), Single("screen", 750, 900, 3.5F, 3)});
    EXPECT_EQ(ToParts(screen.FindAccessibleTubingAssembly()), Parts({{"tubing", {0, 750}}}));
    EXPECT_EQ(ToParts(screen.FindCompleteTubingAssembly()), Parts({{"tubing", {0, 800}}}));
}

TEST(PipeStringData, SortsUnknownDiametersWithoutHarm)
{
    std::vector<PipeString> strings;
    for (int i = 0; i < 300; ++i) {
        float const id = i % 3 == 0   ? -5.0F
                         : i % 5 == 0 ? std::numeric_limits<float>::quiet_NaN()
                                      : 1.0F + i % 17;
        strings.push_back(
            Single(QString::number(i), 0, i, i % 2 == 0 ? PipeComponent::NULL_DIAMETER : id + 1, id));
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

    double const inf = std::numeric_limits<double>::infinity();
    PipeStringData const infinite =
        Data({Single("x", -inf, inf, 9, 8), Single("y", 0, inf, 10, 9), Single("z", 0, std::nan(""), 11, 10),
              Single("t", 0, inf, 5, 4, true)});
    for (double depth : {-inf, 0.0, 1e300, inf, std::nan("")}) {
        EXPECT_LE(infinite.TraceOuterPipeDownwards({depth, inf}).size(), 4U);
        EXPECT_LE(infinite.TraceDownwards(*infinite.FindTubing(), depth).size(), 4U);
    }
}

TEST(PipeStringData, VolumeOfAnInterval)
{
    PipeStringData::ComponentList const list = {Part(0, 100, 4), Part(100, 200, 5), Part(200, 300, 6)};
    auto const volume = [](PipeStringData::ComponentList const& parts, double from, double to) {
        return PipeStringData::CalculateVolume(parts, {from, to}, nullptr).volume;
    };
    EXPECT_FLOAT_EQ(volume(list, 0, 300), static_cast<float>(100 * (BORE_4 + BORE_5 + BORE_6)));
    EXPECT_FLOAT_EQ(volume(list, 50, 250), static_cast<float>(50 * BORE_4 + 100 * BORE_5 + 50 * BORE_6));
    EXPECT_EQ(volume(list, 300, 400), 0);
    // Inside one component: its whole rest counts, and the next one takes off the excess with its own bore.
    EXPECT_FLOAT_EQ(volume(list, 20, 60), static_cast<float>(80 * BORE_4 - 40 * BORE_5));
    EXPECT_FLOAT_EQ(volume({Part(0, 100, 4)}, 20, 60), static_cast<float>(80 * BORE_4));
    EXPECT_FLOAT_EQ(PipeStringData::CalculateDisplacement({Part(0, 100, 4)}, {0, 50}, nullptr).volume,
                    static_cast<float>(50 * BORE_5));

    auto const below = [](PipeStringData::ComponentList const& parts, double depth) {
        return PipeStringData::CalculateVolumeBelowDepth(parts, depth, nullptr).volume;
    };
    EXPECT_FLOAT_EQ(below(list, 150), static_cast<float>(50 * BORE_5 + 100 * BORE_6));
    EXPECT_EQ(below(list, 300), 0);
    // An overlap of 40 m counts once, with the lower component's bore.
    EXPECT_FLOAT_EQ(below({Part(0, 200, 5), Part(160, 300, 4)}, 100),
                    static_cast<float>(60 * BORE_5 + 140 * BORE_4));
    EXPECT_FLOAT_EQ(PipeStringData::CalculateTotalVolume(list),
                    static_cast<float>(100 * (BORE_4 + BORE_5 + BORE_6)));
}

TEST(PipeStringData, VolumeLogAndWarnings)
{
    SettingsSingleton& settings = SettingsSingleton::Instance();
    settings.SetSeparatorSelection(US);
    settings.SetMetricDepth(true);
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
    settings.SetMetricDepth(false);
    EXPECT_EQ(PipeStringData::GenerateDebugString(Part(0, 1, 4), 100, 1000, 1234.56, -0.26),
              "Pipe: p. From: 328.08 ft MD,  To: 3,280.84 ft MD,  Volume: 1,234.6 bbls,  "
              "Accumulated Vol: -0.3 bbls \n");
}
