// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "Earth.h"

#include "Signal.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double GAS_OIL_CONTACT = 1547;
constexpr double OIL_WATER_CONTACT = 1589;
constexpr double RESERVOIR_TOP = 1520;
constexpr double RESERVOIR_BOTTOM = 1618;

double Porosity(Random& random, double mean, double spread)
{
    return std::clamp(mean + spread * random.Normal(), 0.01, 0.36);
}

/// Shale with some silt; what is left of the bulk beside the clay is quartz.
Bed Shale(Random& random, double shale)
{
    Bed bed;
    bed.shale = std::clamp(shale + 0.06 * random.Normal(), 0.5, 0.97);
    bed.porosity = 0.02;
    bed.quartz = 1 - bed.shale - bed.porosity;
    return bed;
}

Bed Sand(Random& random, double porosity, double shale)
{
    Bed bed;
    bed.shale = std::clamp(shale + 0.04 * random.Normal(), 0.02, 0.4);
    bed.porosity = Porosity(random, porosity, 0.02) * (1 - 0.8 * bed.shale);
    bed.quartz = 1 - bed.shale - bed.porosity;
    bed.permeable = bed.porosity > 0.1 && bed.shale < 0.3;
    return bed;
}

Bed Limestone(Random& random, double porosity, double shale)
{
    Bed bed;
    bed.shale = std::clamp(shale + 0.03 * random.Normal(), 0.0, 0.4);
    bed.porosity = Porosity(random, porosity, 0.025) * (1 - bed.shale);
    bed.calcite = 1 - bed.shale - bed.porosity;
    bed.permeable = bed.porosity > 0.12;
    return bed;
}

Bed Dolomite(Random& random, double porosity)
{
    Bed bed;
    bed.shale = std::clamp(0.03 + 0.02 * random.Normal(), 0.0, 0.1);
    bed.porosity = Porosity(random, porosity, 0.02);
    bed.calcite = 0.15 * (1 - bed.shale - bed.porosity);
    bed.dolomite = 0.85 * (1 - bed.shale - bed.porosity);
    bed.permeable = bed.porosity > 0.1;
    return bed;
}

Bed Anhydrite()
{
    Bed bed;
    bed.porosity = 0.005;
    bed.anhydrite = 0.995;
    return bed;
}

Bed Coal()
{
    Bed bed;
    bed.shale = 0.1;
    bed.porosity = 0.02;
    bed.coal = 0.88;
    return bed;
}

/// Hydrocarbons of the reservoir: gas over oil over a transition zone, by the height above free water.
void FillReservoir(Bed& bed)
{
    double const middle = (bed.top + bed.bottom) / 2;
    if (middle < RESERVOIR_TOP || middle > OIL_WATER_CONTACT || !bed.permeable)
        return;
    double const height = OIL_WATER_CONTACT + 2 - middle;
    double const entry = 0.35 * std::sqrt(0.2 / bed.porosity);
    bed.water_saturation =
        std::clamp(0.09 + entry * std::pow(height, -0.55) * 1.4 + 0.4 * bed.shale, 0.1, 1.0);
    bed.hydrocarbon_density = middle < GAS_OIL_CONTACT ? 0.19 : 0.74;
}

class EarthBuilder
{
public:
    explicit EarthBuilder(std::uint64_t seed) : random_(seed) {}

    /// Lays beds of about `thickness` metres down to `bottom`; `make` tells each bed's rock.
    template <typename Make>
    void LayTo(double bottom, double thickness, Make make)
    {
        while (depth_ < bottom) {
            double const h = std::clamp(-thickness * std::log(1 - random_.Uniform()), 0.35, 4 * thickness);
            Bed bed = make(random_);
            bed.top = depth_;
            bed.bottom = depth_ + h > bottom - 0.35 ? bottom : depth_ + h;
            FillReservoir(bed);
            depth_ = bed.bottom;
            beds_.push_back(bed);
        }
    }

    /// A sand body of `height` metres that gets cleaner upwards (a mouth bar) or downwards (a channel).
    void LayCycle(double height, bool upward_coarsening, double porosity)
    {
        double const top = depth_;
        while (depth_ < top + height) {
            double const part = (depth_ - top) / height;
            double const clay = upward_coarsening ? part : 1 - part;
            LayTo(std::min(depth_ + 0.7, top + height), 0.7, [&](Random& random) {
                return clay > 0.75 ? Shale(random, 0.75) : Sand(random, porosity, 0.05 + 0.35 * clay);
            });
        }
    }

    double Depth() const { return depth_; }
    Random& Dice() { return random_; }
    std::vector<Bed> Take() { return std::move(beds_); }

private:
    Random random_;
    double depth_ = 850;
    std::vector<Bed> beds_;
};
} // namespace

std::vector<Bed> LayEarth(std::uint64_t seed)
{
    EarthBuilder earth(seed);
    // Marine claystones with a few limestone stringers.
    earth.LayTo(1150, 3.5, [](Random& random) {
        return random.Uniform() < 0.06 ? Limestone(random, 0.05, 0.1) : Shale(random, 0.86);
    });
    // Deltaic series: mouth bars, channels, coals; water bearing.
    while (earth.Depth() < 1330) {
        bool const channel = earth.Dice().Uniform() < 0.45;
        earth.LayCycle(earth.Dice().Uniform(5, 14), !channel, channel ? 0.29 : 0.26);
        if (channel && earth.Dice().Uniform() < 0.5)
            earth.LayTo(earth.Depth() + 0.9, 1.0, [](Random&) { return Coal(); });
        earth.LayTo(earth.Depth() + earth.Dice().Uniform(3, 11), 2.0,
                    [](Random& random) { return Shale(random, 0.8); });
    }
    earth.LayTo(RESERVOIR_TOP, 3.0, [](Random& random) {
        return random.Uniform() < 0.12 ? Sand(random, 0.16, 0.3) : Shale(random, 0.88);
    });
    // The reservoir: thick clean sands with thin shale breaks and one cemented streak.
    earth.LayTo(1561, 2.4, [](Random& random) {
        return random.Uniform() < 0.14 ? Shale(random, 0.75) : Sand(random, 0.245, 0.07);
    });
    earth.LayTo(1562.2, 1.2, [](Random& random) { return Limestone(random, 0.03, 0.02); });
    earth.LayTo(RESERVOIR_BOTTOM, 2.8, [](Random& random) {
        return random.Uniform() < 0.12 ? Shale(random, 0.7) : Sand(random, 0.225, 0.09);
    });
    earth.LayTo(1800, 4.0, [](Random& random) { return Shale(random, 0.9); });
    // Carbonate platform: limestone and marl above, vuggy dolomite below, sealed by anhydrite at its base.
    earth.LayTo(1965, 2.2, [](Random& random) {
        double const dice = random.Uniform();
        return dice < 0.2 ? Shale(random, 0.6) : Limestone(random, dice < 0.55 ? 0.04 : 0.14, 0.08);
    });
    earth.LayTo(2050, 2.6,
                [](Random& random) { return Dolomite(random, random.Uniform() < 0.4 ? 0.16 : 0.06); });
    earth.LayTo(2066, 6.0, [](Random&) { return Anhydrite(); });
    // Tight sands and shales, then dolomite to total depth.
    earth.LayTo(2300, 3.0, [](Random& random) {
        return random.Uniform() < 0.42 ? Sand(random, 0.11, 0.12) : Shale(random, 0.85);
    });
    earth.LayTo(2450, 5.0, [](Random& random) { return Dolomite(random, 0.04); });
    return earth.Take();
}
