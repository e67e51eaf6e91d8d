// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "Signal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

Random::Random(std::uint64_t seed)
{
    for (std::uint64_t& word : state_) {
        seed += 0x9e3779b97f4a7c15u;
        std::uint64_t z = seed;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        word = z ^ (z >> 31);
    }
}

std::uint64_t Random::Next()
{
    std::uint64_t const result = std::rotl(state_[1] * 5, 7) * 9;
    std::uint64_t const t = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= t;
    state_[3] = std::rotl(state_[3], 45);
    return result;
}

double Random::Uniform()
{
    return static_cast<double>(Next() >> 11) * 0x1.0p-53;
}

double Random::Uniform(double low, double high)
{
    return low + (high - low) * Uniform();
}

double Random::Normal()
{
    if (has_spare_) {
        has_spare_ = false;
        return spare_;
    }
    double const radius = std::sqrt(-2 * std::log(1 - Uniform()));
    double const angle = 2 * std::numbers::pi * Uniform();
    spare_ = radius * std::sin(angle);
    has_spare_ = true;
    return radius * std::cos(angle);
}

std::vector<double> CorrelatedNoise(Random& random, std::size_t count, double correlation)
{
    double const keep = std::exp(-1 / correlation);
    double const renew = std::sqrt(1 - keep * keep);
    std::vector<double> noise(count);
    double value = random.Normal();
    for (double& sample : noise) {
        sample = value;
        value = keep * value + renew * random.Normal();
    }
    return noise;
}

std::vector<double> WhiteNoise(Random& random, std::size_t count)
{
    std::vector<double> noise(count);
    for (double& sample : noise)
        sample = random.Normal();
    return noise;
}

std::vector<double> Smoothed(std::vector<double> const& values, double sigma)
{
    int const reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<double> weights(static_cast<std::size_t>(2 * reach + 1));
    double sum = 0;
    for (int k = -reach; k <= reach; ++k) {
        double const weight = std::exp(-0.5 * (k / sigma) * (k / sigma));
        weights[static_cast<std::size_t>(k + reach)] = weight;
        sum += weight;
    }
    int const last = static_cast<int>(values.size()) - 1;
    std::vector<double> result(values.size());
    for (int i = 0; i <= last; ++i) {
        double total = 0;
        for (int k = -reach; k <= reach; ++k) {
            total += weights[static_cast<std::size_t>(k + reach)] *
                     values[static_cast<std::size_t>(std::clamp(i + k, 0, last))];
        }
        result[static_cast<std::size_t>(i)] = total / sum;
    }
    return result;
}

double ValueAt(std::vector<double> const& values, double x)
{
    double const last = static_cast<double>(values.size() - 1);
    double const position = std::clamp(x, 0.0, last);
    std::size_t const left = std::min(static_cast<std::size_t>(position), values.size() - 2);
    double const part = position - static_cast<double>(left);
    return values[left] * (1 - part) + values[left + 1] * part;
}
