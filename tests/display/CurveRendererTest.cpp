// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CurveRenderer.h"

#include "ViewBench.h"
#include "display/DepthCurve.h"
#include "model/ModelFixtures.h"

#include <random>

namespace {
using Points = std::vector<QPointF>;
using RenderFunction = int (*)(DepthCurve const&, Interval const&, int, int, Interval const&, Points&);

Points Render(RenderFunction render, DepthCurve const& curve, Interval const& scale, int width, int height,
              Interval const& view)
{
    Points points;
    int const count = render(curve, scale, width, height, view, points);
    EXPECT_GE(count, 0);
    EXPECT_LE(static_cast<std::size_t>(count), points.size());
    points.resize(static_cast<std::size_t>(count));
    return points;
}

/// Value extent on each row, as the points show it on a scale of 1 per pixel.
std::map<int, Interval> RowEnvelopes(Points const& points)
{
    std::map<int, Interval> rows;
    for (QPointF const& point : points) {
        Interval& row = rows[static_cast<int>(point.y())];
        row.lower = std::min(row.lower, point.x());
        row.upper = std::max(row.upper, point.x());
    }
    return rows;
}

using CurveRendererTest = view_bench::BenchTest;

DepthCurve Processed(std::shared_ptr<StorageDataChannel> const& channel)
{
    DepthCurve curve(channel);
    curve.ProcessCurve();
    return curve;
}
} // namespace

TEST_F(CurveRendererTest, ChoosesByTheNumberOfSamplesPerRow)
{
    // A sample each metre, a first-level bin each 3000 / 1001 = 2.997 m.
    auto const channel = MakeRegularChannel(3001, 0, 1, [](std::size_t) { return 1.0F; });
    DepthCurve curve = Processed(channel);
    using enum CurveRenderer::Method;
    for (auto const& [metres_per_pixel, method] :
         {std::pair(0.1, RawCurve), std::pair(0.999, RawCurve), std::pair(1.0, RawCurveAsBins),
          std::pair(2.99, RawCurveAsBins), std::pair(3.0, BinCurve), std::pair(1000.0, BinCurve)}) {
        EXPECT_EQ(CurveRenderer::ChooseMethod(curve, 100, {0, 100 * metres_per_pixel}), method)
            << metres_per_pixel;
    }
    curve.ClearProcessedCurve();
    EXPECT_EQ(CurveRenderer::ChooseMethod(curve, 100, {0, 1e5}), RawCurveAsBins);
}

TEST_F(CurveRendererTest, RawCurveHoldsEachSampleInViewAndOneBeyond)
{
    auto const channel = MakeChannel({10, 11, 12, 13, 14, 15}, {0, 50, 100, 150, 50, 50});
    DepthCurve const curve(channel);
    // 100 rows per metre; the samples at 11 (-50), 12, 13 and 14 m.
    Points const expected{{100, -50}, {200, 50}, {300, 150}, {100, 250}};
    EXPECT_EQ(Render(CurveRenderer::RenderCurve, curve, {0, 100}, 200, 201, {11.5, 13.5}), expected);
    Points const mirrored{{100, -50}, {0, 50}, {-100, 150}, {100, 250}};
    EXPECT_EQ(Render(CurveRenderer::RenderRawCurve, curve, {100, 0}, 200, 201, {11.5, 13.5}), mirrored);

    // 1000 m is 3280.8399 ft in single precision (3280.83984375), and that is 999.99999 m: 1000 after
    // rounding to float.
    SettingsSingleton::Instance().SetMetricDepth(false);
    auto const deep = MakeChannel({1000, 1001}, {0, 100});
    Points const points =
        Render(CurveRenderer::RenderRawCurve, DepthCurve(deep), {0, 100}, 100, 1001, {999.5, 1001.5});
    EXPECT_EQ(points, (Points{{0, 250}, {100, 750}}));
}

TEST_F(CurveRendererTest, FewSamplesPerRowShowTheEnvelopeOfEachRow)
{
    std::mt19937 random(11);
    std::uniform_int_distribution<int> value(0, 999);
    for (double const rows_of_samples : {1.0, 1.3, 2.0, 2.7}) {
        constexpr int height = 200;
        auto const channel =
            MakeRegularChannel(2000, 0, 1, [&](std::size_t) { return static_cast<float>(value(random)); });
        DepthCurve const curve = Processed(channel);
        Interval const view(300, 300 + height * rows_of_samples);
        ASSERT_EQ(CurveRenderer::ChooseMethod(curve, height, view), CurveRenderer::Method::RawCurveAsBins);
        Points const points = Render(CurveRenderer::RenderCurve, curve, {0, 1000}, 1000, height, view);

        Points samples;
        for (std::size_t i = 0; i < channel->size(); ++i) {
            if (auto const depth = static_cast<double>(i); view.Contains(depth)) {
                samples.emplace_back(channel->at(i),
                                     std::round((height - 1) * (depth - view.lower) / view.Delta()));
            }
        }
        auto const rows = RowEnvelopes(points);
        // The last row and the one behind it take the sample beyond the view.
        for (auto const& [row, envelope] : RowEnvelopes(samples)) {
            ASSERT_TRUE(rows.contains(row)) << row;
            if (row < height - 1) {
                EXPECT_EQ(rows.at(row), envelope) << row;
            }
        }
        EXPECT_TRUE(std::is_sorted(points.begin(), points.end(),
                                   [](QPointF const& a, QPointF const& b) { return a.y() < b.y(); }));
    }
}

TEST_F(CurveRendererTest, FewSamplesPerRowDropPointsOfTheSameColumn)
{
    // Two samples per row: 10.2 and 10.4 share a column, 10.4 and 10.6 do not.
    auto const channel =
        MakeChannel({0, 0.4, 1, 1.4, 2, 2.4, 3, 3.4}, {10.2F, 10.4F, 10.4F, 10.6F, 7, 7, 7, 9});
    Points points =
        Render(CurveRenderer::RenderRawCurveAsBins, DepthCurve(channel), {0, 100}, 100, 4, {0, 3});
    for (QPointF& point : points) {
        point.setX(std::round(point.x()));
    }
    EXPECT_EQ(points, (Points{{10, 0}, {10, 1}, {11, 1}, {7, 2}, {7, 3}, {9, 3}}));
}

TEST_F(CurveRendererTest, BinsFallOnTheRowsBeneathTheirStart)
{
    // Four bins: (0,2) (3,5) (6,8) (9,11).
    auto const channel = MakeRegularChannel(12, 0, 1, [](std::size_t i) { return static_cast<float>(i); });
    DepthCurve const curve = Processed(channel);
    // Three rows, two of them from top to bottom: half a row per bin.
    Points const three_rows{{0, 0}, {2, 0}, {3, 1}, {8, 1}, {9, 2}, {11, 2}};
    EXPECT_EQ(Render(CurveRenderer::RenderBinCurve, curve, {0, 12}, 12, 3, {0, 11}), three_rows);

    // Eleven rows, 2.5 rows per bin: bins start at 0, 2.5, 5, 7.5; the rows between them hold no number.
    std::vector<double> columns;
    for (QPointF const& point : Render(CurveRenderer::RenderBinCurve, curve, {0, 12}, 12, 11, {0, 11})) {
        EXPECT_EQ(point.y(), columns.size() / 2);
        columns.push_back(point.x());
    }
    ASSERT_GE(columns.size(), 8U);
    columns.resize(8);
    double const inf = INFINITY;
    EXPECT_EQ(columns, (std::vector<double>{0, 2, inf, -inf, inf, -inf, 3, 5}));
}

TEST_F(CurveRendererTest, ManySamplesPerRowKeepTheEnvelope)
{
    std::mt19937 random(5);
    std::uniform_int_distribution<int> value(400, 600);
    constexpr std::size_t size = 200'000;
    constexpr int height = 500;
    std::vector<std::size_t> const spikes{777, 33'333, 100'000, 150'001, size - 1};
    auto const channel = MakeRegularChannel(size, 1000, 0.01, [&](std::size_t i) {
        bool const is_spike = std::find(spikes.begin(), spikes.end(), i) != spikes.end();
        return is_spike ? 950.0F : static_cast<float>(value(random));
    });
    DepthCurve const curve = Processed(channel);

    for (Interval const& view :
         {Interval(1000, 3000), Interval(900, 3100), Interval(1300, 1700), Interval(990, 1100)}) {
        ASSERT_EQ(CurveRenderer::ChooseMethod(curve, height, view), CurveRenderer::Method::BinCurve);
        Points const points = Render(CurveRenderer::RenderCurve, curve, {0, 1000}, 1000, height, view);
        EXPECT_LE(points.size(), 2U * height);
        auto const rows = RowEnvelopes(points);
        auto const row_of = [&](std::size_t sample) {
            return (height - 1) * (1000 + 0.01 * static_cast<double>(sample) - view.lower) / view.Delta();
        };
        EXPECT_NEAR(rows.begin()->first, std::max(0.0, row_of(0)), 1);
        EXPECT_NEAR(rows.rbegin()->first, std::min(height - 1.0, row_of(size - 1)), 1.5);

        // A row shows nothing that is not within two rows of it, and all that surely lies on it.
        std::size_t row_start = 0;
        for (auto const& [row, envelope] : rows) {
            Interval near_extent;
            while (row_start < size && row_of(row_start) < row - 2) {
                ++row_start;
            }
            for (std::size_t i = row_start; i < size && row_of(i) <= row + 2; ++i) {
                near_extent.lower = std::min(near_extent.lower, static_cast<double>(channel->at(i)));
                near_extent.upper = std::max(near_extent.upper, static_cast<double>(channel->at(i)));
            }
            EXPECT_TRUE(envelope.IsInside(near_extent)) << row;
        }
        for (std::size_t const spike : spikes) {
            double const row = row_of(spike);
            bool is_shown = row < 2 || row > height - 3;
            for (int offset = -2; offset <= 2; ++offset) {
                auto const found = rows.find(static_cast<int>(row) + offset);
                is_shown = is_shown || (found != rows.end() && found->second.upper == 950);
            }
            EXPECT_TRUE(is_shown) << "spike at sample " << spike;
        }
    }
}

TEST_F(CurveRendererTest, AConstantCurveThatBeginsBelowTheTopHasOnePointPerRow)
{
    // 500 m of 0 to 1000 m on 201 rows: row 100; its 300 m end on row 160.
    auto const channel = MakeRegularChannel(30'000, 500, 0.01, [](std::size_t) { return 5.0F; });
    Points const points =
        Render(CurveRenderer::RenderCurve, Processed(channel), {0, 10}, 100, 201, {0, 1000});
    ASSERT_NEAR(points.size(), 60.5, 1);
    for (std::size_t i = 0; i < points.size(); ++i) {
        ASSERT_EQ(points[i], QPointF(50, 100 + static_cast<double>(i)));
    }
}

TEST_F(CurveRendererTest, NothingToDraw)
{
    auto channel = MakeRegularChannel(10'000, 0, 0.1, [](std::size_t i) { return static_cast<float>(i); });
    DepthCurve const curve = Processed(channel);
    auto const count = [&](Interval const& view, Interval const& scale = {0, 1}, int width = 100,
                           int height = 100) {
        return Render(CurveRenderer::RenderCurve, curve, scale, width, height, view).size();
    };
    double const nan = NAN;
    double const inf = INFINITY;
    Interval const all(0, 1000);
    EXPECT_GT(count(all), 0U);
    for (Interval const& scale : {Interval(3, 3), Interval(nan, 3), Interval(-inf, inf)}) {
        EXPECT_EQ(count(all, scale), 0U) << scale.lower;
    }
    EXPECT_EQ(count(all, {0, 1}, 0) + count(all, {0, 1}, 100, 0) + count(all, {0, 1}, 100, -5), 0U);
    for (Interval const& view : {Interval(5, 5), Interval(5, 4), Interval(), Interval(nan, 5),
                                 Interval(-inf, inf), Interval(2000, 3000), Interval(-3000, -2000)}) {
        EXPECT_EQ(count(view), 0U) << view.lower;
    }
    channel.reset();
    EXPECT_EQ(count(all) + count({0, 1}), 0U);
}

TEST_F(CurveRendererTest, ShortOddAndUglyCurvesStayInBounds)
{
    std::mt19937 random(23);
    auto const pick = [&](auto... choices) {
        double const values[] = {static_cast<double>(choices)...};
        return values[random() % (sizeof...(choices))];
    };
    for (int round = 0; round < 3000; ++round) {
        auto const size = static_cast<std::size_t>(pick(0, 1, 2, 3, 10, 500, 9001));
        double const first = pick(0, -100, 5000, 1e30);
        double const step = pick(0.001, 0.1, 1, 0, -0.1, 1e30);
        auto const channel = MakeRegularChannel(size, first, step, [&](std::size_t) {
            return static_cast<float>(pick(0, 1, 50, 1e30, -1e30, INFINITY, std::nan("")));
        });
        DepthCurve curve(channel);
        if (random() % 4 != 0) {
            curve.ProcessCurve();
        }
        auto const height = static_cast<int>(pick(1, 2, 3, 50, 1000));
        double const top = first + pick(0, -1, 1, 3, 900, -1e20);
        Interval const view(top, top + pick(1e-9, 0.01, 1, 100, 1e5, 1e25));
        for (auto const render : {CurveRenderer::RenderCurve, CurveRenderer::RenderRawCurve,
                                  CurveRenderer::RenderRawCurveAsBins, CurveRenderer::RenderBinCurve}) {
            Render(render, curve, {0, 100}, 80, height, view);
        }
    }
}

TEST_F(CurveRendererTest, MoreDepthsThanSamplesAreNotRead)
{
    auto const source = MakeRegularChannel(100, 0, 1, [](std::size_t) { return 1.0F; });
    auto const channel = std::make_shared<StorageDataChannel>(source.get(), 0);
    for (int i = 0; i < 50; ++i) {
        channel->push_back(2.0F); // samples without a depth
    }
    DepthCurve const curve = Processed(channel);
    EXPECT_LE(Render(CurveRenderer::RenderRawCurve, curve, {0, 10}, 100, 5000, {0, 200}).size(), 100U);
    EXPECT_LE(Render(CurveRenderer::RenderRawCurveAsBins, curve, {0, 10}, 100, 50, {0, 200}).size(), 100U);
}
