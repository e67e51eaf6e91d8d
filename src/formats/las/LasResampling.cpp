// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasResampling.h"

#include <algorithm>

namespace {
/// The points of a uniform depth vector, one after the other.
class UniformDepths
{
public:
    UniformDepths(float start, float stop, std::size_t count)
        : next_(static_cast<double>(start)),
          step_(count > 1 ? (static_cast<double>(stop) - static_cast<double>(start)) /
                                static_cast<double>(count - 1)
                          : 0.0)
    {
    }

    float Next()
    {
        auto const point = static_cast<float>(next_);
        next_ += step_;
        return point;
    }

private:
    double next_;
    double step_;
};
} // namespace

namespace Quorrel {
void ReverseVectors(std::vector<DepthType>& index, LASDataFileMatrix const& matrix)
{
    std::reverse(index.begin(), index.end());
    for (auto const& column : matrix) {
        std::reverse(column->begin(), column->end());
    }
}

std::vector<float> GenerateUniformDepthVector(float start, float stop, std::size_t count)
{
    std::vector<float> points(count);
    UniformDepths depths(start, stop, count);
    std::generate(points.begin(), points.end(), [&depths] { return depths.Next(); });
    return points;
}

std::vector<DataValueType> ResampleColumn(std::vector<float> const& old_depths,
                                          std::vector<DataValueType> const& old_values,
                                          std::vector<float> const& new_depths)
{
    std::vector<DataValueType> values;
    values.reserve(new_depths.size());
    // The first old depth not below the new one. New depths ascend, so it never moves back.
    std::size_t right = 0;
    for (float const depth : new_depths) {
        while (right < old_depths.size() && old_depths[right] < depth) {
            ++right;
        }
        if (right == 0) {
            values.push_back(old_values.front());
        } else if (right == old_depths.size()) {
            values.push_back(old_values.back());
        } else {
            float const x0 = old_depths[right - 1];
            float const x1 = old_depths[right];
            float const y0 = old_values[right - 1];
            float const y1 = old_values[right];
            bool const is_missing = y0 == MISSING_VALUE || y1 == MISSING_VALUE;
            values.push_back(is_missing ? MISSING_VALUE : y0 + (depth - x0) / (x1 - x0) * (y1 - y0));
        }
    }
    return values;
}

void ResampleDataMatrix(std::vector<DepthType>& index, LASDataFileMatrix& matrix)
{
    if (index.empty()) {
        return;
    }
    auto const start = static_cast<float>(index.front());
    auto const stop = static_cast<float>(index.back());
    std::size_t const count = index.size();

    // With at most one column of each kind doubled at a time, a file close to the memory's end still loads.
    if (!matrix.empty()) {
        std::vector<float> const old_depths(index.begin(), index.end());
        std::vector<DepthType>().swap(index);
        std::vector<float> const new_depths = GenerateUniformDepthVector(start, stop, count);
        for (auto& column : matrix) {
            column =
                std::make_shared<std::vector<DataValueType>>(ResampleColumn(old_depths, *column, new_depths));
        }
    }
    index.resize(count);
    UniformDepths depths(start, stop, count);
    std::generate(index.begin(), index.end(), [&depths] { return static_cast<DepthType>(depths.Next()); });
}
} // namespace Quorrel
