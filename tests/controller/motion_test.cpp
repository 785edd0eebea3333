#include "controller/motion_plan.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <random>

using namespace controller;

namespace {

constexpr double kTick = 0.002; // [s]

Pose poseAt(double x, double y, double z, double c = 0)
{
    return poseOf({x, y, z}, {kPi, 0, c});
}

Joints postureAt(const Pose &pose)
{
    Joints joints = arm::kHome;
    QString why;
    EXPECT_TRUE(arm::inverse(pose, arm::kHome, &joints, &why)) << why;
    return joints;
}

/// Runs a plan and checks every limit on the way.
void expectWithinLimits(const MotionPlan &plan, double speed)
{
    const Trapezoid &profile = plan.profile();
    std::vector<Joints> way;
    for (double t = 0; t <= profile.duration() + kTick; t += kTick)
        way.push_back(plan.jointsAt(profile.position(t)));
    const auto toolAt = [&](std::size_t n) -> Vector {
        return (arm::forward(way[n]) * plan.wish().tool).translation();
    };
    for (std::size_t n = 1; n < way.size(); ++n) {
        EXPECT_LE((toolAt(n) - toolAt(n - 1)).norm() / kTick, speed * 1.001) << "at " << n * kTick << " s";
        for (std::size_t i = 0; i < 6; ++i) {
            const double step = way[n][i] - way[n - 1][i];
            EXPECT_LE(std::abs(step) / kTick, arm::kAxes[i].maxSpeed) << "joint " << i + 1;
            if (n > 1) {
                const double change = step - (way[n - 1][i] - way[n - 2][i]);
                EXPECT_LE(std::abs(change) / (kTick * kTick), arm::kAxes[i].maxAcceleration)
                    << "joint " << i + 1;
            }
        }
    }
}

} // namespace

TEST(Motion, RunsStraightAndAsFastAsAsked)
{
    const Joints from = postureAt(poseAt(1.2, -0.8, 0.6));
    MotionWish wish{true, poseAt(1.5, 0.9, 1.0, radians(60)), poseAt(0.1, 0, 0.25), 0.8};
    wish.tool = poseOf({0.1, 0, 0.25}, {0, 0, radians(30)});
    MotionPlan plan;
    QString why;
    ASSERT_TRUE(MotionPlan::make(wish, from, &plan, &why)) << why;
    expectWithinLimits(plan, 0.8);
    const Vector a = (arm::forward(from) * wish.tool).translation();
    const Vector b = wish.target.translation();
    EXPECT_NEAR(0.8, plan.profile().topSpeed() * (b - a).norm(), 1e-9) << "nothing hinders it";
    for (double share = 0; share <= 1; share += 0.01) {
        const Vector tool = (arm::forward(plan.jointsAt(share)) * wish.tool).translation();
        EXPECT_LT((tool - (a + share * (b - a))).norm(), 1e-6) << "off the line at " << share;
    }
    const Trapezoid &profile = plan.profile();
    EXPECT_EQ(1, profile.position(profile.duration())) << "it ends exactly";
    EXPECT_EQ(0, profile.speed(profile.duration()));
    const Pose end = arm::forward(plan.jointsAt(1)) * wish.tool;
    EXPECT_LT((end.translation() - b).norm(), 1e-9);
    EXPECT_LT(angleBetween(end.linear(), wish.target.linear()), 1e-6);
}

TEST(Motion, KeepsTheLimitsOfTheJointsOnAnyWay)
{
    std::mt19937 random(11);
    const auto between = [&random](double a, double b) {
        return std::uniform_real_distribution<>(a, b)(random);
    };
    int runs = 0;
    for (int i = 0; i < 12; ++i) {
        const Joints from = postureAt(poseAt(between(0.9, 1.6), between(-1, 1), between(0.3, 1.3)));
        const MotionWish wish{i % 2 == 0,
                              poseAt(between(0.9, 1.6), between(-1, 1), between(0.3, 1.3), between(-3, 3)),
                              Pose::Identity(), between(0.5, 5)};
        MotionPlan plan;
        QString why;
        if (!MotionPlan::make(wish, from, &plan, &why))
            continue; // past the axis, or the wrist over its head
        expectWithinLimits(plan, std::min(wish.speed, MotionPlan::kMaxSpeed));
        ++runs;
    }
    EXPECT_GT(runs, 7);
}

TEST(Motion, RefusesWaysThatTheArmCannotRun)
{
    const Joints from = postureAt(poseAt(1.2, 0.8, 0.6));
    const Pose behind = poseAt(-1.2, -0.8, 0.6);
    const struct
    {
        MotionWish wish;
        const char *why;
    } cases[] = {
        {{true, poseAt(4, 0, 1), Pose::Identity(), 1}, "out of reach"},
        {{false, poseAt(4, 0, 1), Pose::Identity(), 1}, "out of reach"},
        {{true, behind, Pose::Identity(), 1}, "of the straight way"},                // through the column
        {{false, poseOf({1.9, 0, 0.05}, {0, 0, 0}), Pose::Identity(), 1}, "joint "}, // looking up from below
    };
    MotionPlan plan;
    QString why;
    for (const auto &c : cases) {
        EXPECT_FALSE(MotionPlan::make(c.wish, from, &plan, &why)) << c.why;
        EXPECT_TRUE(why.contains(QLatin1String(c.why))) << why << " instead of " << c.why;
    }
    EXPECT_TRUE(MotionPlan::make({false, behind, Pose::Identity(), 1}, from, &plan, &why))
        << "by joints it can go round: " << why;
}
