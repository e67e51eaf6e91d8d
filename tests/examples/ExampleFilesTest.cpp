// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// The example logs are read with the program's own reader and put to the questions a log analyst would ask.

#include "formats/las/LASFile.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <numbers>

namespace {
QString const FOLDER = QUORREL_EXAMPLES "/las";

LASFile Load(char const* name)
{
    return LASFile((FOLDER + "/" + name).toStdString());
}

std::vector<float> const& Column(LASFile const& file, QString const& mnemonic)
{
    for (std::size_t c = 0; c < file.GetLASCurveInfo().size(); ++c) {
        if (file.GetLASCurveInfo().at(c).mnemonic == mnemonic)
            return *file.GetDataMatrix().at(c);
    }
    throw std::runtime_error("No column " + mnemonic.toStdString());
}

/// Mean over a depth interval of the samples that `use` lets through; nulls never count.
template <typename Use>
double Mean(LASFile const& file, QString const& mnemonic, double top, double bottom, Use use)
{
    std::vector<float> const& values = Column(file, mnemonic);
    double sum = 0;
    int count = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        double const depth = file.GetDepthVector()[i];
        if (depth >= top && depth <= bottom && values[i] != -999.25f && use(i)) {
            sum += values[i];
            ++count;
        }
    }
    EXPECT_GT(count, 0) << mnemonic.toStdString();
    return sum / count;
}

double Mean(LASFile const& file, QString const& mnemonic, double top, double bottom)
{
    return Mean(file, mnemonic, top, bottom, [](std::size_t) { return true; });
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

struct Line
{
    double slope;
    double zero; ///< x where the line meets y = 0
};

Line Fit(std::vector<std::pair<double, double>> const& points)
{
    double mx = 0, my = 0, sxy = 0, sxx = 0;
    for (auto const& [x, y] : points) {
        mx += x / static_cast<double>(points.size());
        my += y / static_cast<double>(points.size());
    }
    for (auto const& [x, y] : points) {
        sxy += (x - mx) * (y - my);
        sxx += (x - mx) * (x - mx);
    }
    return {sxy / sxx, mx - my / (sxy / sxx)};
}

/// Velocity by the spinner, ft/min: halfway between the zeros of the two branches.
double SpinnerVelocity(std::vector<LASFile> const& passes, double top, double bottom)
{
    std::vector<std::pair<double, double>> positive, negative;
    for (LASFile const& pass : passes) {
        double const turn = Mean(pass, "SPIN", top, bottom);
        (turn > 0 ? positive : negative).emplace_back(Mean(pass, "CVEL", top, bottom), turn);
    }
    EXPECT_GE(positive.size(), 2u);
    EXPECT_GE(negative.size(), 2u);
    return (Fit(positive).zero + Fit(negative).zero) / 2;
}
} // namespace

TEST(ExampleFilesTest, EveryFileLoadsAndAgreesWithItsHeader)
{
    QStringList const names = QDir(FOLDER).entryList({"*.las"}, QDir::Files);
    EXPECT_EQ(names.size(), 11);
    for (QString const& name : names) {
        SCOPED_TRACE(name.toStdString());
        LASFile const file(FOLDER.toStdString() + "/" + name.toStdString());
        ASSERT_FALSE(file.GetDepthVector().empty());
        EXPECT_NEAR(file.GetDepthVector().front(), std::min(file.GetStartDepth(), file.GetStopDepth()), 1e-3);
        EXPECT_NEAR(file.GetDepthVector().back(), std::max(file.GetStartDepth(), file.GetStopDepth()), 1e-3);
        for (auto const& column : file.GetDataMatrix())
            EXPECT_TRUE(std::ranges::all_of(*column, [](float v) { return std::isfinite(v); }));
    }
}

TEST(ExampleFilesTest, OpenHoleLogsShowGasOilAndWater)
{
    LASFile const file = Load("demo-e1-openhole-main.las");
    std::vector<float> const& gamma_ray = Column(file, "GR");
    auto const clean = [&](std::size_t i) { return gamma_ray[i] < 40; };
    auto const crossover = [&](double top, double bottom) {
        double const density_porosity = (2.71 - Mean(file, "RHOB", top, bottom, clean)) / (2.71 - 1.0);
        return density_porosity - Mean(file, "NPHI", top, bottom, clean);
    };
    double const gas = crossover(1525, 1545);
    double const water = crossover(1593, 1614);
    EXPECT_GT(gas, water + 0.06); // gas lowers the neutron and the density reading
    double const oil_resistivity = Mean(file, "RDEP", 1565, 1578, clean);
    double const water_resistivity = Mean(file, "RDEP", 1593, 1614, clean);
    EXPECT_GT(oil_resistivity, 5 * water_resistivity);
    // Fresh filtrate in a salt water sand: the shallow curve reads highest.
    EXPECT_GT(Mean(file, "RMIC", 1593, 1614, clean), Mean(file, "RMED", 1593, 1614, clean));
    EXPECT_GT(Mean(file, "RMED", 1593, 1614, clean), water_resistivity);

    // Archie in the clean water sand (density porosity of quartz, m = 2) gives back the formation water:
    // 0.08 ohm m at 20 degC is 0.0396 at the 62.7 degC of 1603 m, by Arps' law.
    std::vector<double> rw;
    std::vector<float> const& rdep = Column(file, "RDEP");
    std::vector<float> const& rhob = Column(file, "RHOB");
    for (std::size_t i = 0; i < rdep.size(); ++i) {
        double const depth = file.GetDepthVector()[i];
        if (depth > 1593 && depth < 1614 && gamma_ray[i] < 35) {
            double const porosity = (2.65 - rhob[i]) / (2.65 - 1.03);
            rw.push_back(rdep[i] * porosity * porosity);
        }
    }
    EXPECT_NEAR(Median(rw), 0.0396, 0.012);
}

TEST(ExampleFilesTest, RepeatPassIsOffDepthByAboutHalfAMetre)
{
    LASFile const main = Load("demo-e1-openhole-main.las");
    LASFile const repeat = Load("demo-e1-openhole-repeat.las");
    auto const start = std::ranges::min_element(
        main.GetDepthVector(), {}, [&](double d) { return std::abs(d - repeat.GetDepthVector().front()); });
    long const offset = start - main.GetDepthVector().begin();
    std::vector<float> const& a = Column(main, "GR");
    std::vector<float> const& b = Column(repeat, "GR");
    auto const misfit = [&](long lag) {
        double sum = 0;
        for (std::size_t i = 20; i + 20 < b.size(); ++i) {
            double const difference = b[i] - a[static_cast<std::size_t>(offset + lag) + i];
            sum += difference * difference;
        }
        return sum;
    };
    long best = -15;
    for (long lag = -15; lag <= 15; ++lag) {
        if (misfit(lag) < misfit(best))
            best = lag;
    }
    EXPECT_EQ(best, 3); // 0.457 m; shift 0.42 m plus half of 150 m times 0.0006
}

TEST(ExampleFilesTest, SpinnerPassesGiveTheInflowOfEachPerforation)
{
    std::vector<LASFile> passes;
    for (char const* name : {"down-1", "down-2", "down-3", "up-1", "up-2", "up-3"})
        passes.push_back(Load(("demo-a7-plt-" + std::string(name) + ".las").c_str()));

    // Velocity times area times profile factor, as barrels per day. 1 cubic foot is 0.1781076 barrels.
    double const area = std::numbers::pi / 4 * 6.184 * 6.184 / 144;
    auto const rate = [&](double top, double bottom) {
        return SpinnerVelocity(passes, top, bottom) * 0.83 * area * 0.1781076 * 1440;
    };
    EXPECT_NEAR(rate(3040, 3062), 0, 60);
    EXPECT_NEAR(rate(2955, 3005), 640, 60);
    EXPECT_NEAR(rate(2920, 2928), 2130, 90);
    EXPECT_NEAR(rate(2885, 2902), 2890, 120);

    LASFile const& pass = passes.front();
    // Oil over water: the pressure gradient along the hole, which is 29.5 degrees off the vertical.
    double const oil = (Mean(pass, "WPRE", 3004, 3006) - Mean(pass, "WPRE", 2954, 2956)) / 50;
    EXPECT_NEAR(oil, 0.82 * 1.4223 * std::cos(29.5 * std::numbers::pi / 180), 0.03);
    // Gas cools the stream where it comes in.
    EXPECT_LT(Mean(pass, "WTEP", 2898, 2902), Mean(pass, "WTEP", 2919, 2923) - 0.2);
}

TEST(ExampleFilesTest, CaliperShowsTheCompletionAndItsDamage)
{
    LASFile const file = Load("demo-a7-caliper-40.las");
    auto const mean_radius = [&](double top, double bottom) {
        double sum = 0;
        for (int f = 1; f <= 40; ++f)
            sum += Mean(file, QString("FING%1").arg(f, 2, 10, QChar('0')), top, bottom);
        return sum / 40;
    };
    EXPECT_NEAR(mean_radius(2192.5, 2192.8), 3.688 / 2, 0.006); // landing nipple
    EXPECT_NEAR(mean_radius(2179.0, 2180.0), 3.880 / 2, 0.012); // packer bore
    EXPECT_NEAR(mean_radius(2184.0, 2188.0), 3.958 / 2, 0.015); // tubing
    EXPECT_NEAR(2 * mean_radius(2184.0, 2188.0), Mean(file, "CALA", 2184.0, 2188.0), 2e-3);
    float deepest = 0;
    for (int f = 1; f <= 40; ++f) {
        std::vector<float> const& finger = Column(file, QString("FING%1").arg(f, 2, 10, QChar('0')));
        deepest = std::max(deepest, *std::ranges::max_element(finger));
    }
    EXPECT_GT(deepest, 4.5 / 2); // beyond the outer wall: a hole
}

TEST(ExampleFilesTest, StationIsATimeLogOfAPressureBuildUp)
{
    LASFile const file = Load("demo-a7-station-shut-in.las");
    EXPECT_TRUE(file.IsTimeLog());
    double const flowing = Mean(file, "WPRE", 0, 290);
    double const middle = Mean(file, "WPRE", 1500, 1800);
    double const late = Mean(file, "WPRE", 3300, 3600);
    EXPECT_GT(middle, flowing + 100);
    // Horner: 42 psi per log cycle, between the mean ages 1350 s and 3150 s after a day of flow.
    double const expected = 42 * (std::log10((86400 + 1350.0) / 1350) - std::log10((86400 + 3150.0) / 3150));
    EXPECT_NEAR(late - middle, expected, 0.5);
    EXPECT_EQ(Mean(file, "SPIN", 3300, 3600), 0);
}

// The files in the tree are what the generator writes. Mathematical functions differ in their last bits
// between systems, so a printed digit may.
TEST(ExampleFilesTest, GeneratorWritesTheseFiles)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    ASSERT_EQ(QProcess::execute(QUORREL_EXAMPLE_GENERATOR, {folder.path()}), 0);
    QStringList const names = QDir(FOLDER).entryList({"*.las"}, QDir::Files);
    ASSERT_EQ(names, QDir(folder.path()).entryList({"*.las"}, QDir::Files));
    for (QString const& name : names) {
        SCOPED_TRACE(name.toStdString());
        LASFile const kept(FOLDER.toStdString() + "/" + name.toStdString());
        LASFile const made(folder.filePath(name).toStdString());
        ASSERT_EQ(kept.GetDepthVector(), made.GetDepthVector());
        ASSERT_EQ(kept.GetDataMatrix().size(), made.GetDataMatrix().size());
        for (std::size_t c = 0; c < kept.GetDataMatrix().size(); ++c) {
            auto const& a = *kept.GetDataMatrix()[c];
            auto const& b = *made.GetDataMatrix()[c];
            for (std::size_t i = 0; i < a.size(); ++i)
                ASSERT_NEAR(a[i], b[i], 0.0011 + 0.001 * std::abs(a[i])) << "column " << c << ", row " << i;
        }
    }
}
