// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LasDocument.h"

/// The production logs of the example production well, flowing at about 2900 barrels per day.
class ProductionLogs
{
public:
    ProductionLogs();

    static constexpr int PASSES = 6;

    /// Passes 0 to 2 are logged downwards, 3 to 5 upwards, each at its own cable speed.
    LasDocument Pass(int number) const;
    static const char* PassName(int number);

    /// The tool hanging at one depth while the well is shut in: an hour of pressure build-up.
    LasDocument ShutInStation() const;

private:
    double Grid(std::vector<double> const& log, double depth) const;

    // One value per 0.05 m over the logged interval and some metres on both sides.
    std::vector<double> rate_;        ///< barrels per day, upwards
    std::vector<double> density_;     ///< g/cc
    std::vector<double> temperature_; ///< degC
    std::vector<double> pressure_;    ///< psi
    std::vector<double> gamma_ray_;   ///< API
    std::vector<double> collars_;     ///< casing collar signal, mV
    std::vector<double> turbulence_;  ///< relative spinner noise
};
