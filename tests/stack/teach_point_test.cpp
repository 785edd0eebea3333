#include "stack/recipe_points.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

TEST(TeachPoint, TakesThePlaceOfTheRobot)
{
    orba::Node point = nodeFromJson(R"({"trans": [9.0, 9.0, 9.0], "conf": [7]})");
    EXPECT_TRUE(
        palx::teachPoint(point, nodeFromJson(R"({"moving": false, "joints": [1.0, 2.0, 3.0, 4.0, 5.0, 6.0],
        "pose": {"trans": [0.5, -0.25, 0.125], "rot": [3.0, 0.0, -1.5]}})")));
    EXPECT_EQ(point, nodeFromJson(R"({"trans": [0.5, -0.25, 0.125], "rot": [3.0, 0.0, -1.5],
        "near": [1.0, 2.0, 3.0, 4.0, 5.0, 6.0], "conf": [0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0]})"));
    const orba::Node before = point;
    for (const char *robot : {"null", R"({"pose": null})", R"({"pose": {"trans": [1, 2, 3]}})",
                              R"({"pose": {"trans": [1, 2], "rot": [1, 2, 3]}})"}) {
        EXPECT_FALSE(palx::teachPoint(point, nodeFromJson(robot))) << robot;
        EXPECT_EQ(point, before);
    }
}
