// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "OpenHoleLogs.h"

#include "Earth.h"
#include "Signal.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double STEP = 0.1524; // metres
constexpr double TOP = 5600 * STEP;
constexpr std::size_t COUNT = 10400;
constexpr double CASING_SHOE = 918.2; // metres
constexpr double CASING_ID = 8.681;   // inches, 9 5/8 in 47 lb/ft
constexpr double BIT_SIZE = 8.5;      // inches
constexpr double RW_20 = 0.08;        // ohm m at 20 degC, formation water
constexpr double RMF_20 = 0.28;       // ohm m at 20 degC, mud filtrate
constexpr double TOTAL_DEPTH = 2408;  // metres
double const NONE = std::numeric_limits<double>::quiet_NaN();

double Temperature(double depth)
{
    return 9 + 0.0335 * depth; // degC
}

/// Arps' law for the resistivity of a brine, temperatures in degC.
double BrineResistivity(double at_20, double temperature)
{
    return at_20 * (20 + 21.5) / (temperature + 21.5);
}

/// Shale gets denser and faster with depth; 0 at 850 m, 1 at 2450 m.
double Compaction(double depth)
{
    return std::clamp((depth - 850) / 1600, 0.0, 1.0);
}

/// Resistivity by the Indonesian equation (Poupon and Leveaux), a = 1, m = n = 2.
double Resistivity(Bed const& bed, double saturation, double water, double shale_resistivity)
{
    double const porosity = std::max(bed.porosity, 0.005);
    double const shale = std::pow(bed.shale, 1 - bed.shale / 2) / std::sqrt(shale_resistivity);
    double const root = (shale + porosity / std::sqrt(water)) * saturation;
    return std::min(1 / (root * root), 2000.0);
}

struct Response
{
    double gamma_ray, density, neutron, sonic, photoelectric, deep, flushed, potential, hole;
};

Response Measure(Bed const& bed, double depth)
{
    double const c = Compaction(depth);
    double const t = Temperature(depth);
    double const flushed_saturation =
        bed.permeable ? std::pow(bed.water_saturation, 0.2) : bed.water_saturation;
    double const hydrocarbon = 1 - flushed_saturation;
    bool const gas = bed.hydrocarbon_density < 0.4;

    Response r{};
    r.gamma_ray = 12 + 118 * bed.shale + 14 * bed.quartz + 4 * bed.calcite + 7 * bed.dolomite + 8 * bed.coal;
    double const fluid = 1.03 * flushed_saturation + bed.hydrocarbon_density * hydrocarbon;
    double const shale_density = 2.34 + 0.24 * c;
    r.density = bed.shale * shale_density + 2.65 * bed.quartz + 2.71 * bed.calcite + 2.86 * bed.dolomite +
                2.98 * bed.anhydrite + 1.28 * bed.coal + bed.porosity * fluid;
    double const hydrogen = flushed_saturation + hydrocarbon * (gas ? 0.35 : 0.95);
    double const excavation = gas ? 0.25 * bed.porosity * hydrocarbon : 0;
    r.neutron = bed.porosity * hydrogen - excavation + bed.shale * (0.42 - 0.12 * c) - 0.045 * bed.quartz +
                0.025 * bed.dolomite - 0.01 * bed.anhydrite + 0.62 * bed.coal;
    r.sonic = bed.shale * (128 - 42 * c) + 55.5 * bed.quartz + 47.5 * bed.calcite + 43.5 * bed.dolomite +
              50 * bed.anhydrite + 120 * bed.coal + bed.porosity * (gas ? 215 : 190);
    // Photoelectric factor through the volumetric cross section U, with the electron density of the bulk.
    double const cross_section = 9.2 * bed.shale + 4.78 * bed.quartz + 13.8 * bed.calcite +
                                 9.0 * bed.dolomite + 14.9 * bed.anhydrite + 0.26 * bed.coal +
                                 0.4 * bed.porosity;
    r.photoelectric = cross_section / ((r.density + 0.1883) / 1.0704);

    double const shale_resistivity = 1.3 + 2.4 * c;
    double const rw = BrineResistivity(RW_20, t);
    double const rmf = BrineResistivity(RMF_20, t);
    r.deep = bed.coal > 0.5 ? 120 : Resistivity(bed, bed.water_saturation, rw, shale_resistivity);
    r.flushed = bed.permeable ? Resistivity(bed, flushed_saturation, rmf, shale_resistivity) : r.deep;
    double const fahrenheit = 32 + 1.8 * t;
    r.potential = bed.permeable ? -(60 + 0.133 * fahrenheit) * std::log10(rmf / rw) * (1 - bed.shale) *
                                      (1 - 0.15 * hydrocarbon)
                                : 0;
    if (bed.permeable)
        r.hole = BIT_SIZE - 0.32; // mud cake
    else if (bed.coal > 0.5)
        r.hole = BIT_SIZE + 2.2;
    else
        r.hole = BIT_SIZE + 0.05 + (bed.shale > 0.5 ? 1.5 * (1 - 0.6 * c) * bed.shale : 0);
    return r;
}

std::vector<double> Exponential(std::vector<double> values)
{
    for (double& value : values)
        value = std::exp(value);
    return values;
}

void AddNoise(std::vector<double>& values, std::vector<double> const& noise, double scale)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] += scale * noise[i];
}
} // namespace

OpenHoleLogs::OpenHoleLogs()
{
    std::vector<Bed> const beds = LayEarth(20240307);
    Random random(88172645463325252u);
    std::vector<double> const texture = CorrelatedNoise(random, COUNT, 4);
    std::vector<double> const roughness = CorrelatedNoise(random, COUNT, 9);
    std::vector<double> deep(COUNT), flushed(COUNT), invasion(COUNT);
    for (auto* log : {&gamma_ray_, &caliper_, &potential_, &density_, &neutron_, &sonic_, &photoelectric_})
        log->resize(COUNT);

    std::size_t b = 0;
    for (std::size_t i = 0; i < COUNT; ++i) {
        double const depth = TOP + STEP * static_cast<double>(i);
        while (b + 1 < beds.size() && beds[b].bottom <= depth)
            ++b;
        // Rock is never uniform inside a bed: porosity and shale wander together.
        Bed bed = beds[b];
        double const change =
            std::clamp(0.012 * texture[i], -0.4 * bed.porosity, 0.04) * (bed.coal > 0 ? 0 : 1);
        bed.porosity += change;
        (bed.calcite > bed.quartz    ? bed.calcite
         : bed.dolomite > bed.quartz ? bed.dolomite
                                     : bed.quartz) -= change;
        Response const r = Measure(bed, depth);
        gamma_ray_[i] = r.gamma_ray;
        density_[i] = r.density;
        neutron_[i] = r.neutron;
        sonic_[i] = r.sonic;
        photoelectric_[i] = r.photoelectric;
        potential_[i] = r.potential;
        deep[i] = std::log(r.deep);
        flushed[i] = std::log(r.flushed);
        invasion[i] = bed.permeable ? std::clamp(0.35 + 2.2 * (0.25 - bed.porosity), 0.1, 0.9) : 0;
        double const enlarged = std::max(r.hole - BIT_SIZE, 0.0);
        caliper_[i] = r.hole + enlarged * 0.55 * std::abs(roughness[i]) + 0.03 * texture[i];
    }

    // Vertical resolution of each tool, as the standard deviation of its response in samples.
    gamma_ray_ = Smoothed(gamma_ray_, 1.4);
    density_ = Smoothed(density_, 1.1);
    neutron_ = Smoothed(neutron_, 1.6);
    sonic_ = Smoothed(sonic_, 1.7);
    photoelectric_ = Smoothed(photoelectric_, 1.1);
    caliper_ = Smoothed(caliper_, 1.2);
    potential_ = Smoothed(potential_, 6);
    std::vector<double> const drift = CorrelatedNoise(random, COUNT, 1500);
    std::vector<double> deep_reading(COUNT), medium_reading(COUNT);
    for (std::size_t i = 0; i < COUNT; ++i) {
        double const rt = std::exp(deep[i]);
        double const rxo = std::exp(flushed[i]);
        deep_reading[i] = std::log(rt + (rxo - rt) * 0.12 * invasion[i]);
        medium_reading[i] = std::log(rt + (rxo - rt) * 0.75 * invasion[i]);
        potential_[i] += -12 + 0.008 * static_cast<double>(i) + 4 * drift[i];
        // A rough hole wall lets mud between pad and rock.
        double const rugosity = std::max(caliper_[i] - BIT_SIZE - 1.2, 0.0);
        density_[i] -= 0.10 * rugosity;
        photoelectric_[i] -= 0.12 * rugosity;
        flushed[i] -= 0.25 * rugosity;
    }
    true_resistivity_ = Exponential(Smoothed(deep, 0.8));
    deep_ = Exponential(Smoothed(deep_reading, 3.2));
    medium_ = Exponential(Smoothed(medium_reading, 2.2));
    micro_ = Exponential(Smoothed(flushed, 0.6));
}

std::vector<double> OpenHoleLogs::AtDepths(std::vector<double> const& log,
                                           std::vector<double> const& depths) const
{
    std::vector<double> values;
    values.reserve(depths.size());
    for (double const depth : depths)
        values.push_back(ValueAt(log, (depth - TOP) / STEP));
    return values;
}

LasDocument OpenHoleLogs::Document(double first, std::size_t count, double stretch, double shift,
                                   std::uint64_t seed) const
{
    Random random(seed);
    std::vector<double> index(count), depths(count);
    for (std::size_t i = 0; i < count; ++i) {
        index[i] = first + STEP * static_cast<double>(i);
        depths[i] = index[i] + shift + stretch * (index[i] - first);
    }
    auto const noise = [&](double correlation) { return CorrelatedNoise(random, count, correlation); };

    std::vector<double> gamma_ray = AtDepths(gamma_ray_, depths);
    std::vector<double> const counts = noise(1.2);
    for (std::size_t i = 0; i < count; ++i)
        gamma_ray[i] += 0.32 * std::sqrt(gamma_ray[i]) * counts[i]; // counting statistics
    std::vector<double> caliper = AtDepths(caliper_, depths);
    AddNoise(caliper, noise(2), 0.02);
    std::vector<double> potential = AtDepths(potential_, depths);
    AddNoise(potential, noise(8), 0.35);
    std::vector<double> density = AtDepths(density_, depths);
    AddNoise(density, noise(1.2), 0.011);
    std::vector<double> neutron = AtDepths(neutron_, depths);
    AddNoise(neutron, noise(1.5), 0.007);
    std::vector<double> photoelectric = AtDepths(photoelectric_, depths);
    AddNoise(photoelectric, noise(1.2), 0.09);
    std::vector<double> sonic = AtDepths(sonic_, depths);
    AddNoise(sonic, noise(1), 0.5);
    std::vector<double> resistivities[] = {AtDepths(deep_, depths), AtDepths(medium_, depths),
                                           AtDepths(micro_, depths)};
    for (std::vector<double>& log : resistivities) {
        std::vector<double> const n = noise(1.5);
        for (std::size_t i = 0; i < count; ++i)
            log[i] *= std::exp(0.012 * n[i]);
    }

    // Inside the casing only gamma ray, caliper and sonic say anything; near the bottom each tool stops
    // with its distance from the tool string's end.
    for (std::size_t i = 0; i < count; ++i) {
        double const depth = depths[i];
        if (depth < CASING_SHOE) {
            gamma_ray[i] *= 0.62;
            caliper[i] = CASING_ID + 0.015 * counts[i];
            sonic[i] = 57 + 0.3 * counts[i];
            density[i] = photoelectric[i] = neutron[i] = potential[i] = NONE;
        }
        if (depth < CASING_SHOE + 1.5)
            resistivities[0][i] = resistivities[1][i] = resistivities[2][i] = NONE;
        double const above_bottom = TOTAL_DEPTH - depth;
        if (above_bottom < 26)
            gamma_ray[i] = NONE;
        if (above_bottom < 17)
            neutron[i] = NONE;
        if (above_bottom < 13)
            density[i] = photoelectric[i] = caliper[i] = resistivities[2][i] = NONE;
        if (above_bottom < 21)
            sonic[i] = NONE;
        if (resistivities[2][i] < 0.2)
            resistivities[2][i] = 0.2;
    }

    LasDocument document;
    document.step = STEP;
    document.well = {{"COMP", "", "Quorrel Example Oil", "Company"},
                     {"WELL", "", "Demo E-1", "Well"},
                     {"FLD", "", "Demo", "Field"},
                     {"LOC", "", "Block 7", "Location"},
                     {"CTRY", "", "None (made-up well)", "Country"},
                     {"SRVC", "", "Quorrel example generator", "Service company"},
                     {"DATE", "", "07-Mar-2024", "Log date"},
                     {"UWI", "", "QE-0001", "Unique well identifier"}};
    document.parameters = {{"EKB", "M", "25.0", "Elevation of kelly bushing"},
                           {"TDD", "M", "2410.0", "Total depth, driller"},
                           {"TDL", "M", "2408.0", "Total depth, logger"},
                           {"CSGS", "IN", "9.625", "Casing size"},
                           {"CSGL", "M", "918.2", "Casing shoe, logger"},
                           {"BS", "IN", "8.5", "Bit size"},
                           {"MDEN", "G/C3", "1.22", "Mud density"},
                           {"RMF", "OHMM", "0.28", "Mud filtrate resistivity at 20 degC"},
                           {"RW", "OHMM", "0.08", "Formation water resistivity at 20 degC"},
                           {"BHT", "DEGC", "89.7", "Bottom hole temperature"}};
    document.remarks = {"Computed from a made-up earth model; no well of this name exists.",
                        "Gas-oil contact 1547 m, oil-water contact 1589 m."};
    document.columns = {{"DEPT", "M", "Depth", 4, index},
                        {"GR", "GAPI", "Gamma ray", 3, gamma_ray},
                        {"CALI", "IN", "Caliper", 3, caliper},
                        {"SP", "MV", "Spontaneous potential", 3, potential},
                        {"RDEP", "OHMM", "Deep resistivity", 4, resistivities[0]},
                        {"RMED", "OHMM", "Medium resistivity", 4, resistivities[1]},
                        {"RMIC", "OHMM", "Micro resistivity", 4, resistivities[2]},
                        {"RHOB", "G/C3", "Bulk density", 4, density},
                        {"NPHI", "V/V", "Neutron porosity, limestone matrix", 4, neutron},
                        {"DT", "US/F", "Compressional slowness", 3, sonic},
                        {"PEF", "B/E", "Photoelectric factor", 3, photoelectric}};
    return document;
}

LasDocument OpenHoleLogs::MainPass() const
{
    return Document(5906 * STEP, 9843, 0, 0, 1);
}

LasDocument OpenHoleLogs::RepeatPass() const
{
    LasDocument document = Document(9810 * STEP, 985, 0.0006, 0.42, 2);
    document.parameters.push_back({"PASS", "", "REPEAT", "Repeat section over the reservoir"});
    return document;
}

LasDocument OpenHoleLogs::WhileDrilling() const
{
    constexpr double FOOT = 0.3048;
    constexpr std::size_t count = 801;
    Random random(3);
    std::vector<double> index(count), depths(count);
    for (std::size_t i = 0; i < count; ++i) {
        index[i] = 4940 + 0.5 * static_cast<double>(i);
        depths[i] = index[i] * FOOT;
    }
    std::vector<double> gamma_ray = AtDepths(Smoothed(gamma_ray_, 1.8), depths);
    AddNoise(gamma_ray, CorrelatedNoise(random, count, 1.5), 4.5);
    // Drilled minutes ago, nothing has invaded yet: both resistivities read close to the truth.
    std::vector<double> phase = AtDepths(Smoothed(true_resistivity_, 1.5), depths);
    std::vector<double> attenuation = AtDepths(Smoothed(true_resistivity_, 4), depths);
    std::vector<double> penetration(count);
    std::vector<double> const n = CorrelatedNoise(random, count, 3);
    for (std::size_t i = 0; i < count; ++i) {
        phase[i] = std::min(phase[i], 500.0) * std::exp(0.015 * n[i]);
        attenuation[i] = std::min(attenuation[i], 120.0) * std::exp(0.02 * random.Normal());
        // Sand drills faster than shale; each new stand begins slowly.
        double const sand = std::clamp((110 - gamma_ray[i]) / 80, 0.0, 1.0);
        double const stand = std::fmod(depths[i], 28.5) < 0.6 ? 0.35 : 1;
        penetration[i] = (14 + 32 * sand) * stand * std::exp(0.12 * n[i]);
    }
    LasDocument document = Document(9810 * STEP, 1, 0, 0, 4); // for its header
    document.step = 0.5;
    document.columns = {{"DEPT", "FT", "Depth", 4, index},
                        {"GRMA", "GAPI", "Gamma ray while drilling", 3, gamma_ray},
                        {"RPHA", "OHMM", "Phase resistivity", 4, phase},
                        {"RATT", "OHMM", "Attenuation resistivity", 4, attenuation},
                        {"ROP", "M/HR", "Rate of penetration", 3, penetration}};
    return document;
}
