// Hand-computed cases: blocks in metres.

#include "controller/cell/collision.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace controller;
using namespace controller::cell;

namespace {

/// Edges along x, y, z; centre; turn about z and tilt about x [degrees].
Block block(Vector edges, Vector centre, double turn = 0, double tilt = 0)
{
    Block made;
    made.half = edges / 2;
    made.pose = poseOf(centre, Vector(radians(tilt), 0, radians(turn)));
    return made;
}

const Block kCube = block({1, 1, 1}, {0, 0, 0});

struct RestCase
{
    const char *name;
    Block other;
    double depth;
};

class Penetration : public ::testing::TestWithParam<RestCase>
{
};

TEST_P(Penetration, OfTheUnitCube)
{
    EXPECT_NEAR(GetParam().depth, penetration(kCube, GetParam().other), 1e-12);
    EXPECT_NEAR(GetParam().depth, penetration(GetParam().other, kCube), 1e-12);
}

const double kRoot2 = std::sqrt(2.0);

INSTANTIATE_TEST_SUITE_P(
    All, Penetration,
    ::testing::Values(
        RestCase{"Beside", block({1, 1, 1}, {1.2, 0, 0}), -0.2},
        RestCase{"Touching", block({1, 1, 1}, {1, 0, 0}), 0},
        RestCase{"Inside", block({1, 1, 1}, {0.9, 0.5, 0}), 0.1},
        RestCase{"OnTop", block({0.2, 0.2, 0.2}, {0, 0, 0.6}), 0},
        RestCase{"Within", block({0.2, 0.2, 0.2}, {0, 0, 0}), 0.6},
        // a corner turned towards the face: half a diagonal reaches 0.7071
        RestCase{"CornerBeside", block({1, 1, 1}, {1.3, 0, 0}, 45), 0.5 + kRoot2 / 2 - 1.3},
        RestCase{"CornerInside", block({1, 1, 1}, {1.1, 0, 0}, 45), 0.5 + kRoot2 / 2 - 1.1},
        // over the corner: along the diagonal 0.7071 + 0.5 = 1.2071 of sqrt(2) * 0.9
        RestCase{"AcrossTheCorner", block({1, 1, 1}, {0.9, 0.9, 0}, 45), kRoot2 / 2 + 0.5 - 0.9 * kRoot2},
        RestCase{"TiltedAbove", block({1, 1, 1}, {0, 0, 1.25}, 0, 45), 0.5 + kRoot2 / 2 - 1.25}),
    [](const auto &test) { return std::string(test.param.name); });

struct WayCase
{
    const char *name;
    Vector from;
    Vector way;
    double tolerance;
    bool hits;
};

class OnWay : public ::testing::TestWithParam<WayCase>
{
};

TEST_P(OnWay, OfASmallBlockPastTheUnitCube)
{
    const WayCase &c = GetParam();
    const Block moving = block({0.2, 0.2, 0.2}, c.from);
    EXPECT_EQ(c.hits, hitsOnWay(moving, c.way, kCube, c.tolerance));
    Pose to = moving.pose;
    to.translation() += c.way;
    EXPECT_EQ(c.hits, hitsOnWay(moving, to, kCube, c.tolerance));
}

INSTANTIATE_TEST_SUITE_P(
    All, OnWay,
    ::testing::Values(WayCase{"Through", {-2, 0, 0}, {4, 0, 0}, 1e-4, true},
                      WayCase{"ShortOfIt", {-2, 0, 0}, {1.3, 0, 0}, 1e-4, false},
                      WayCase{"JustIntoIt", {-2, 0, 0}, {1.41, 0, 0}, 1e-4, true},
                      WayCase{"AlongAFace", {-2, 0.6, 0}, {4, 0, 0}, 1e-4, false},
                      WayCase{"AlongAFaceTooDeep", {-2, 0.5998, 0}, {4, 0, 0}, 1e-4, true},
                      WayCase{"WithinTheTolerance", {-2, 0.5998, 0}, {4, 0, 0}, 1e-3, false},
                      // the corner (0.5, 0.5): the moving edge meets it where x + y = 1.2 is its centre line
                      WayCase{"PastTheCorner", {0, 1.21, 0}, {1.21, -1.21, 0}, 1e-4, false},
                      WayCase{"OverTheCorner", {0, 1.19, 0}, {1.19, -1.19, 0}, 1e-4, true},
                      WayCase{"DownOntoTheTop", {0, 0, 2}, {0, 0, -1.4}, 1e-4, false},
                      WayCase{"DownIntoTheTop", {0, 0, 2}, {0, 0, -1.41}, 1e-4, true},
                      WayCase{"Standing", {0, 0, 0}, {0, 0, 0}, 1e-4, true}),
    [](const auto &test) { return std::string(test.param.name); });

} // namespace

TEST(OnWay, TurningSweepsItsCorners)
{
    // A plank of 1.2 m beside the cube: its ends come by while it turns, though neither end of the turn touches.
    const Block plank = block({1.2, 0.1, 0.1}, {1.0, 0, 0}, 45);
    const Pose to = poseOf({1.0, 0, 0}, Vector(0, 0, radians(135)));
    EXPECT_TRUE(hitsOnWay(block({1.2, 0.1, 0.1}, {1.0, 0, 0}, 135),
                          poseOf({1.0, 0, 0}, Vector(0, 0, radians(225))), kCube, 1e-4))
        << "through the direction of the cube";
    EXPECT_FALSE(hitsOnWay(plank, to, kCube, 1e-4)) << "0.6 * cos 45 = 0.42 reaches 0.576 - 0.035";
}

namespace {

struct SupportCase
{
    const char *name;
    std::vector<Block> below;
    double fall;
    double share;
    bool holdsCentre;
};

class SupportTest : public ::testing::TestWithParam<SupportCase>
{
};

/// A box of 0.4 x 0.2 x 0.2 m whose bottom is at 1 m.
TEST_P(SupportTest, OfABox)
{
    const SupportCase &c = GetParam();
    std::vector<const Block *> below;
    for (const Block &one : c.below)
        below.push_back(&one);
    const Support support = supportOf(block({0.4, 0.2, 0.2}, {0, 0, 1.1}), below, 0);
    EXPECT_NEAR(c.fall, support.fall, 1e-12);
    EXPECT_NEAR(c.share, support.share, 1e-9);
    EXPECT_EQ(c.holdsCentre, support.holdsCentre);
}

INSTANTIATE_TEST_SUITE_P(
    All, SupportTest,
    ::testing::Values(
        SupportCase{"Floor", {}, 1, 1, true},
        SupportCase{"Slab", {block({2, 2, 0.5}, {0, 0, 0.75})}, 0, 1, true},
        SupportCase{"SlabBelow", {block({2, 2, 0.5}, {0, 0, 0.74})}, 0.01, 1, true},
        SupportCase{"HalfOfItBesideTheCentre", {block({2, 2, 0.5}, {-1.01, 0, 0.75})}, 0, 0.475, false},
        SupportCase{"Edge", {block({2, 2, 0.5}, {-0.9, 0, 0.75})}, 0, 0.75, true},
        // two beams across, 0.1 m wide each, at the ends
        SupportCase{"Bridge",
                    {block({0.1, 1, 0.5}, {-0.15, 0, 0.75}), block({0.1, 1, 0.5}, {0.15, 0, 0.75})},
                    0,
                    0.5,
                    true},
        SupportCase{"OnlyTheHigherBeam",
                    {block({0.1, 1, 0.5}, {-0.15, 0, 0.75}), block({0.1, 1, 0.5}, {0.15, 0, 0.70})},
                    0,
                    0.25,
                    false},
        SupportCase{"NothingUnderIt", {block({0.2, 0.2, 0.5}, {1, 1, 0.75})}, 1, 1, true},
        SupportCase{"WhatIsAboveDoesNotCarry", {block({2, 2, 0.5}, {0, 0, 2})}, 1, 1, true},
        // turned by 45 degrees: a diamond of half a diagonal 0.1 m inside the bottom, area 0.02 of 0.08
        SupportCase{"Diamond",
                    {block({0.1 * std::sqrt(2.0), 0.1 * std::sqrt(2.0), 0.5}, {0, 0, 0.75}, 45)},
                    0,
                    0.25,
                    true}),
    [](const auto &test) { return std::string(test.param.name); });

} // namespace
