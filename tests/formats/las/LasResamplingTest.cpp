// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasResampling.h"

using Floats = std::vector<float>;

constexpr float NONE = -999.25F;

TEST(LasResampling, UniformDepthsSumUpInDoubleAndAreStoredInSingle)
{
    EXPECT_EQ(Quorrel::GenerateUniformDepthVector(10.0F, 11.0F, 5),
              (Floats{10.0F, 10.25F, 10.5F, 10.75F, 11.0F}));
    EXPECT_EQ(Quorrel::GenerateUniformDepthVector(5.0F, 1.0F, 3), (Floats{5.0F, 3.0F, 1.0F}));
    EXPECT_EQ(Quorrel::GenerateUniformDepthVector(1.0F, 2.0F, 0), Floats());
    EXPECT_EQ(Quorrel::GenerateUniformDepthVector(1.0F, 2.0F, 1), Floats{1.0F});

    // In single precision a sum of a hundred thousand steps of 0.1 would be off by metres.
    Floats const many = Quorrel::GenerateUniformDepthVector(0.0F, 10'000.0F, 100'001);
    EXPECT_FLOAT_EQ(many[12'345], 1234.5F);
    EXPECT_FLOAT_EQ(many.back(), 10'000.0F);
}

TEST(LasResampling, IsLinearBetweenOldDepthsAndConstantOutside)
{
    Floats const old_depths = {10.0F, 12.0F, 13.0F};
    Floats const values = {100.0F, 200.0F, 400.0F};
    EXPECT_EQ(Quorrel::ResampleColumn(old_depths, values, {9.0F, 10.0F, 10.5F, 12.0F, 12.75F, 13.0F, 14.0F}),
              (Floats{100.0F, 100.0F, 125.0F, 200.0F, 350.0F, 400.0F, 400.0F}));
    EXPECT_EQ(Quorrel::ResampleColumn({}, {}, {}), Floats());
}

TEST(LasResampling, AMissingNeighbourMakesThePointMissing)
{
    Floats const old_depths = {0.0F, 1.0F, 2.0F, 3.0F, 4.0F};
    // At 2 the good sample is met exactly, but its left neighbour is missing.
    EXPECT_EQ(Quorrel::ResampleColumn(old_depths, {5.0F, NONE, 7.0F, 8.0F, NONE}, old_depths),
              (Floats{5.0F, NONE, NONE, 8.0F, NONE}));
    // The very first point takes the first value, missing or not.
    EXPECT_EQ(Quorrel::ResampleColumn(old_depths, {NONE, 1.0F, 2.0F, 3.0F, 4.0F}, old_depths),
              (Floats{NONE, NONE, 2.0F, 3.0F, 4.0F}));
    // Another null value is a number like any other.
    EXPECT_EQ(Quorrel::ResampleColumn({0.0F, 2.0F}, {-9999.0F, 1.0F}, {1.0F}), Floats{-4999.0F});
}

TEST(LasResampling, TheFirstOldDepthNotBelowCountsWhereTheIndexTurnsBack)
{
    // 1, 5, 3, 7: for 2 and 4 that is 5, and for 6 it is 7 with 3 to its left.
    EXPECT_EQ(
        Quorrel::ResampleColumn({1.0F, 5.0F, 3.0F, 7.0F}, {10.0F, 50.0F, 30.0F, 70.0F}, {2.0F, 4.0F, 6.0F}),
        (Floats{20.0F, 40.0F, 60.0F}));
}

TEST(LasResampling, MatrixAndIndexAreReplacedAndOldCopiesKept)
{
    std::vector<double> index = {0.0, 1.0, 4.0};
    LASDataFileMatrix matrix = {std::make_shared<Floats>(Floats{0.0F, 10.0F, 40.0F})};
    LASDataFileMatrix const copy = matrix;
    Quorrel::ResampleDataMatrix(index, matrix);
    EXPECT_EQ(index, (std::vector<double>{0.0, 2.0, 4.0}));
    EXPECT_EQ(*matrix[0], (Floats{0.0F, 20.0F, 40.0F}));
    EXPECT_EQ(*copy[0], (Floats{0.0F, 10.0F, 40.0F}));

    // The index goes through single precision.
    index = {0.1, 0.3};
    matrix = {};
    Quorrel::ResampleDataMatrix(index, matrix);
    EXPECT_EQ(index, (std::vector<double>{static_cast<double>(0.1F), static_cast<double>(0.3F)}));

    index = {};
    Quorrel::ResampleDataMatrix(index, matrix);
    EXPECT_TRUE(index.empty());
}
