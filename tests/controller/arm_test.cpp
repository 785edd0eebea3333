#include "controller/arm.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <random>

using namespace controller;

namespace {

Joints randomJoints(std::mt19937 &random)
{
    Joints joints;
    for (std::size_t i = 0; i < joints.size(); ++i)
        joints[i] = std::uniform_real_distribution<>(arm::kAxes[i].min, arm::kAxes[i].max)(random);
    return joints;
}

/// Position in metres, orientation in radians.
void expectSamePose(const Pose &a, const Pose &b)
{
    EXPECT_LT((a.translation() - b.translation()).norm(), 1e-9);
    EXPECT_LT(angleBetween(a.linear(), b.linear()), 1e-7); // half the digits: its cosine is near 1
}

double distance(const Joints &a, const Joints &b)
{
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        sum += std::abs(a[i] - b[i]);
    return sum;
}

} // namespace

TEST(Arm, StandsWhereItsLengthsSay)
{
    EXPECT_NEAR(0, (arm::forward({}).translation() - Vector(0.30 + 1.05 + 0.20, 0, 0.70 + 1.05)).norm(),
                1e-12);
    const Pose home = arm::forward(arm::kHome);
    EXPECT_NEAR(0, (home.translation() - Vector(1.35, 0, 1.55)).norm(), 1e-12);
    EXPECT_NEAR(0, (home.linear() * Vector::UnitZ() - Vector(0, 0, -1)).norm(), 1e-12)
        << "the flange looks down";
}

TEST(Arm, InverseLeadsBackToThePoseAndStaysNearWhereItComesFrom)
{
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        const Joints joints = randomJoints(random);
        const Pose pose = arm::forward(joints);
        Joints found;
        QString why;
        ASSERT_TRUE(arm::inverse(pose, randomJoints(random), &found, &why)) << why << " in round " << i;
        expectSamePose(pose, arm::forward(found));
        EXPECT_EQ(QString(), arm::limitFault(found));
        ASSERT_TRUE(arm::inverse(pose, joints, &found, &why)) << why;
        // Where the wrist is all but straight, the fourth and sixth joint are known only together.
        EXPECT_LT(distance(joints, found), 1e-6 / std::max(1e-3, std::abs(std::sin(joints[4]))))
            << "round " << i;
    }
}

TEST(Pose, AnglesComeBackAlsoWhereTheyAreNotUnique)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<> angle(-kPi, kPi);
    for (int i = 0; i < 1000; ++i) {
        const double b = i % 3 == 0 ? std::copysign(kPi / 2, angle(random)) : angle(random) / 2;
        const Eigen::Matrix3d rotation = rotationOf({angle(random), b, angle(random)});
        EXPECT_LT(angleBetween(rotation, rotationOf(anglesOf(rotation))), 1e-6);
    }
}
