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

const double kRoot2 = std::sqrt(2.0);

} // namespace

TEST(Penetration, OfTheUnitCube)
{
    const struct
    {
        const char *name;
        Block other;
        double depth;
    } cases[] = {
        {"beside", block({1, 1, 1}, {1.2, 0, 0}), -0.2},
        {"inside", block({1, 1, 1}, {0.9, 0.5, 0}), 0.1},
        {"on top", block({0.2, 0.2, 0.2}, {0, 0, 0.6}), 0},
        {"within", block({0.2, 0.2, 0.2}, {0, 0, 0}), 0.6},
        // a corner turned towards the face: half a diagonal reaches 0.7071
        {"corner beside", block({1, 1, 1}, {1.3, 0, 0}, 45), 0.5 + kRoot2 / 2 - 1.3},
        // over the corner: along the diagonal 0.7071 + 0.5 = 1.2071 of sqrt(2) * 0.9
        {"across the corner", block({1, 1, 1}, {0.9, 0.9, 0}, 45), kRoot2 / 2 + 0.5 - 0.9 * kRoot2},
        {"tilted above", block({1, 1, 1}, {0, 0, 1.25}, 0, 45), 0.5 + kRoot2 / 2 - 1.25},
    };
    for (const auto &c : cases) {
        EXPECT_NEAR(c.depth, penetration(kCube, c.other), 1e-12) << c.name;
        EXPECT_NEAR(c.depth, penetration(c.other, kCube), 1e-12) << c.name;
    }
}

TEST(OnWay, OfASmallBlockPastTheUnitCube)
{
    const struct
    {
        const char *name;
        Vector from, way;
        double tolerance;
        bool hits;
    } cases[] = {
        {"through", {-2, 0, 0}, {4, 0, 0}, 1e-4, true},
        {"short of it", {-2, 0, 0}, {1.3, 0, 0}, 1e-4, false},
        {"just into it", {-2, 0, 0}, {1.41, 0, 0}, 1e-4, true},
        {"along a face", {-2, 0.6, 0}, {4, 0, 0}, 1e-4, false},
        {"along a face, too deep", {-2, 0.5998, 0}, {4, 0, 0}, 1e-4, true},
        {"within the tolerance", {-2, 0.5998, 0}, {4, 0, 0}, 1e-3, false},
        // the corner (0.5, 0.5): the moving edge meets it where x + y = 1.2 is its centre line
        {"past the corner", {0, 1.21, 0}, {1.21, -1.21, 0}, 1e-4, false},
        {"over the corner", {0, 1.19, 0}, {1.19, -1.19, 0}, 1e-4, true},
        {"standing", {0, 0, 0}, {0, 0, 0}, 1e-4, true},
    };
    for (const auto &c : cases) {
        const Block moving = block({0.2, 0.2, 0.2}, c.from);
        EXPECT_EQ(c.hits, hitsOnWay(moving, c.way, kCube, c.tolerance)) << c.name;
        Pose to = moving.pose;
        to.translation() += c.way;
        EXPECT_EQ(c.hits, hitsOnWay(moving, to, kCube, c.tolerance)) << c.name;
    }
}

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

/// A box of 0.4 x 0.2 x 0.2 m whose bottom is at 1 m.
TEST(Support, OfABox)
{
    const Block left = block({0.1, 1, 0.5}, {-0.15, 0, 0.75}); // beams across at its ends
    const Block right = block({0.1, 1, 0.5}, {0.15, 0, 0.75});
    const Block lowerRight = block({0.1, 1, 0.5}, {0.15, 0, 0.70});
    // turned by 45 degrees: half a diagonal 0.1 m inside the bottom, area 0.02 of 0.08
    const Block diamond = block({0.1 * kRoot2, 0.1 * kRoot2, 0.5}, {0, 0, 0.75}, 45);
    const struct
    {
        const char *name;
        std::vector<Block> below;
        double fall, share;
        bool holdsCentre;
    } cases[] = {
        {"floor", {}, 1, 1, true},
        {"slab below", {block({2, 2, 0.5}, {0, 0, 0.74})}, 0.01, 1, true},
        {"half of it beside the centre", {block({2, 2, 0.5}, {-1.01, 0, 0.75})}, 0, 0.475, false},
        {"edge", {block({2, 2, 0.5}, {-0.9, 0, 0.75})}, 0, 0.75, true},
        {"bridge", {left, right}, 0, 0.5, true},
        {"only the higher beam", {left, lowerRight}, 0, 0.25, false},
        {"what is above does not carry", {block({2, 2, 0.5}, {0, 0, 2})}, 1, 1, true},
        {"diamond", {diamond}, 0, 0.25, true},
    };
    for (const auto &c : cases) {
        std::vector<const Block *> below;
        for (const Block &one : c.below)
            below.push_back(&one);
        const Support support = supportOf(block({0.4, 0.2, 0.2}, {0, 0, 1.1}), below, 0);
        EXPECT_NEAR(c.fall, support.fall, 1e-12) << c.name;
        EXPECT_NEAR(c.share, support.share, 1e-9) << c.name;
        EXPECT_EQ(c.holdsCentre, support.holdsCentre) << c.name;
    }
}
