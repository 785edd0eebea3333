#include "ix/calc.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace ix::calc;

namespace {

constexpr double kDegree = M_PI / 180.0;
// Three rotations of unit length lose a few units in the last place each.
constexpr double kExact = 1e-14;
// At the gimbal threshold the lost angle is as large as the root of a double's precision.
constexpr double kNearGimbal = 3e-8;

Vector degrees(double a, double b, double c)
{
    return Vector(a, b, c) * kDegree;
}

double difference(const Eigen::Matrix3d &a, const Eigen::Matrix3d &b)
{
    return (a - b).cwiseAbs().maxCoeff();
}

/// The convention written out, against which the library's own composition is held.
Eigen::Matrix3d byHand(const Vector &abc)
{
    const double sa = std::sin(abc[0]), ca = std::cos(abc[0]);
    const double sb = std::sin(abc[1]), cb = std::cos(abc[1]);
    const double sc = std::sin(abc[2]), cc = std::cos(abc[2]);
    Eigen::Matrix3d m;
    m << cc * cb, cc * sb * sa - sc * ca, cc * sb * ca + sc * sa, //
        sc * cb, sc * sb * sa + cc * ca, sc * sb * ca - cc * sa,  //
        -sb, cb * sa, cb * ca;
    return m;
}

} // namespace

TEST(Calc, RotationFollowsTheConvention)
{
    const Vector cases[] = {degrees(0, 0, 0),  degrees(90, 0, 0),     degrees(0, 90, 0),
                            degrees(0, 0, 90), degrees(30, -40, 170), degrees(-179, 89, 12)};
    for (const Vector &abc : cases)
        EXPECT_LT(difference(rotation(abc), byHand(abc)), kExact) << abc.transpose();
}

TEST(Calc, AnglesGiveTheOrientationBackAlsoAtTheGimbal)
{
    const double tilts[] = {90, -90, 90 - 1e-7, 90 - 1e-5, -89.9, 45, 0};
    for (const double b : tilts)
        for (const double a : {0.0, 37.0, -120.0, 180.0})
            for (const double c : {0.0, -61.0, 135.0, -180.0}) {
                const Eigen::Matrix3d wanted = rotation(degrees(a, b, c));
                EXPECT_LT(difference(rotation(angles(wanted)), wanted), kNearGimbal)
                    << a << ' ' << b << ' ' << c;
            }
}

TEST(Calc, AtTheGimbalTheFirstAngleIsZero)
{
    for (const double b : {90.0, -90.0}) {
        const Vector abc = angles(rotation(degrees(25, b, 60)));
        EXPECT_EQ(abc[0], 0.0);
        EXPECT_NEAR(abc[1], b * kDegree, kNearGimbal);
    }
}

TEST(Calc, RandomRoundTrips)
{
    std::mt19937 random(20240601);
    std::uniform_real_distribution<double> angle(-180, 180), tilt(-89, 89), metre(-3, 3);
    for (int i = 0; i < 200; ++i) {
        const Vector abc = degrees(angle(random), tilt(random), angle(random));
        const Pose pose = toPose(Vector(metre(random), metre(random), metre(random)), abc);
        const Pose frame =
            toPose(Vector(metre(random), metre(random), metre(random)), degrees(angle(random), 20, 7));
        EXPECT_LT((angles(rotation(abc)) - abc).cwiseAbs().maxCoeff(), 1e-12) << abc.transpose();
        EXPECT_LT((quaternion2Rot(rot2Quaternion(abc)) - abc).cwiseAbs().maxCoeff(), 1e-12)
            << abc.transpose();
        EXPECT_GE(rot2Quaternion(abc).w(), 0.0);
        const Pose back = transformFrame(inverseFrame(frame), transformFrame(frame, pose));
        EXPECT_LT((back.matrix() - pose.matrix()).cwiseAbs().maxCoeff(), 1e-13);
    }
}

TEST(Calc, PointRecordsAreReadAndWrittenInPlace)
{
    orba::Node point =
        nodeFromJson(R"({"trans": [1.5, 0, -2], "rot": [0.1, -0.2, 3], "near": [7], "conf": [1, 2]})");
    const Pose pose = toPose(point);
    EXPECT_EQ(pose.translation(), Vector(1.5, 0, -2));
    EXPECT_LT(difference(pose.linear(), rotation(Vector(0.1, -0.2, 3))), kExact);

    const Pose moved = transformFrame(toPose(Vector(0, 0, 1), degrees(0, 0, 90)), pose);
    EXPECT_TRUE(writePose(moved, point));
    EXPECT_LT((toPose(point).matrix() - moved.matrix()).cwiseAbs().maxCoeff(), kExact);
    EXPECT_NEAR(point.child(u"trans")->number(1), 1.5, kExact);
    EXPECT_EQ(point.child(u"near")->number(0), 7);
}

TEST(Calc, MissingNumbersOfAPointCountAsZeroAndAreNotMade)
{
    orba::Node point = nodeFromJson(R"({"trans": [1], "near": []})");
    EXPECT_EQ(toPose(point).translation(), Vector(1, 0, 0));
    EXPECT_EQ(difference(toPose(point).linear(), Eigen::Matrix3d::Identity()), 0.0);
    writePose(toPose(Vector(5, 6, 7), Vector::Zero()), point);
    EXPECT_EQ(nodeText(point), nodeText(nodeFromJson(R"({"trans": [5.0], "near": []})")));
}

TEST(Calc, CalibratesAFrameFromThreePoints)
{
    // Origin (1,2,3), x along +y, the plane point towards -x: z must come out up.
    const Calibration found = calibrateOXY(Vector(1, 2, 3), Vector(1, 2.7, 3), Vector(0.4, 2.2, 3));
    ASSERT_TRUE(found.ok()) << found.error;
    EXPECT_LT((angles(found.frame.linear()) - degrees(0, 0, 90)).norm(), kExact);
    EXPECT_EQ(found.frame.translation(), Vector(1, 2, 3));
}

TEST(Calc, RefusesPointsThatGiveNoFrameWithTheMeasuredValue)
{
    const double nan = std::nan("");
    const struct
    {
        Vector onX, onXY;
        const char *told;
    } cases[] = {
        {Vector(0.004, 0, 0), Vector(0, 1, 0), "4.00 mm"},
        {Vector(1, 0, 0), Vector(0, 0.003, 0), "3.00 mm"},
        {Vector(1, 0, 0), Vector(1, 0.05, 0), "2.86 degrees"},
        {Vector(1, 0, 0), Vector(2, 0, 0), "0.00 degrees"},
        {Vector(nan, 0, 0), Vector(0, 1, 0), "no number"},
    };
    for (const auto &each : cases) {
        const Calibration found = calibrateOXY(Vector::Zero(), each.onX, each.onXY);
        EXPECT_FALSE(found.ok()) << each.told;
        EXPECT_TRUE(found.error.contains(QLatin1String(each.told))) << found.error;
    }
    const double justEnough = std::tan(5.01 * kDegree);
    EXPECT_TRUE(calibrateOXY(Vector::Zero(), Vector(0.0101, 0, 0), Vector(1, justEnough, 0)).ok());
}

TEST(Calc, ParallelFrameTakesOnlyTheAxes)
{
    const Pose given = toPose(Vector(9, 9, 9), degrees(10, 20, 30));
    const Pose found = calibrateOXYParallel(Vector(1, 2, 3), given);
    EXPECT_EQ(found.translation(), Vector(1, 2, 3));
    EXPECT_EQ(difference(found.linear(), given.linear()), 0.0);
}
