// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Random numbers that are the same with every standard library (xoshiro256** seeded by splitmix64).
class Random
{
public:
    explicit Random(std::uint64_t seed);

    /// Uniform in [0, 1).
    double Uniform();
    double Uniform(double low, double high);
    /// Normal with mean 0 and standard deviation 1 (Box and Muller).
    double Normal();

private:
    std::uint64_t Next();

    std::uint64_t state_[4];
    double spare_ = 0;
    bool has_spare_ = false;
};

/// Noise of unit variance whose autocorrelation falls to 1/e over `correlation` samples.
std::vector<double> CorrelatedNoise(Random& random, std::size_t count, double correlation);

/// Independent normal noise of unit variance.
std::vector<double> WhiteNoise(Random& random, std::size_t count);

/// Convolution with a Gaussian of standard deviation `sigma` samples, the ends held constant.
std::vector<double> Smoothed(std::vector<double> const& values, double sigma);

/// The value at position `x` (in samples), linear between samples and held constant outside.
double ValueAt(std::vector<double> const& values, double x);
