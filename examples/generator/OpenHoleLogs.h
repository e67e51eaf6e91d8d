// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LasDocument.h"

/// The three logs of the example exploration well: the same rocks, logged three times.
class OpenHoleLogs
{
public:
    OpenHoleLogs();

    /// Wireline suite from below the casing shoe to total depth, 0.1524 m sampling.
    LasDocument MainPass() const;
    /// The same tools over the reservoir. Its depths are off by about half a metre and stretched by 0.06 %.
    LasDocument RepeatPass() const;
    /// What was measured while drilling the reservoir: gamma ray and two resistivities, in feet.
    LasDocument WhileDrilling() const;

private:
    LasDocument Document(double first, std::size_t count, double stretch, double shift,
                         std::uint64_t seed) const;
    std::vector<double> AtDepths(std::vector<double> const& log, std::vector<double> const& depths) const;

    // One value per 0.1524 m from the top of the known rocks, as an ideal tool of that kind would read it.
    std::vector<double> gamma_ray_;
    std::vector<double> caliper_;
    std::vector<double> potential_;
    std::vector<double> deep_;
    std::vector<double> medium_;
    std::vector<double> micro_;
    std::vector<double> true_resistivity_;
    std::vector<double> density_;
    std::vector<double> neutron_;
    std::vector<double> sonic_;
    std::vector<double> photoelectric_;
};
