#include "controller/cell/way.h"

#include <gtest/gtest.h>

using namespace controller;
using namespace controller::cell;

namespace {

const Pose kTool = poseOf(Vector(0, 0, 0.285), Vector::Zero());

LegWish leg(double x, double y, double z, double zone = 0, int line = 1)
{
    LegWish wish;
    wish.target = poseOf(Vector(x, y, z), Vector(kPi, 0, 0));
    wish.tool = kTool;
    wish.speed = 1;
    wish.zone = zone;
    wish.where.line = line;
    return wish;
}

class WayTest : public ::testing::Test
{
protected:
    WayTest()
    {
        QString why;
        EXPECT_TRUE(way.add(leg(1.0, 0, 0.8), &why)) << why.toStdString();
        run(5);
    }
    void add(const LegWish &wish)
    {
        QString why;
        EXPECT_TRUE(way.add(wish, &why)) << why.toStdString();
    }
    /// Keeps the nearest that the tool came to a place.
    void run(double seconds, const Vector &place = Vector::Zero())
    {
        for (double t = 0; t < seconds - 1e-9; t += 0.01) {
            const Vector before = at();
            way.advance(0.01);
            fastest = std::max(fastest, (at() - before).norm() / 0.01);
            nearest = std::min(nearest, (at() - place).norm());
        }
    }
    Vector at() const { return way.toolPose().translation(); }

    Way way;
    double nearest = 1e9;
    double fastest = 0;
};

} // namespace

TEST_F(WayTest, GoesThroughAFinePointAndRoundsAZone)
{
    const Vector corner(1.0, 0.5, 0.8);
    for (const double zone : {0.0, 0.1}) {
        nearest = 1e9;
        add(leg(1.0, 0.5, 0.8, zone));
        add(leg(1.4, 0.5, 0.8));
        run(4, corner);
        EXPECT_NEAR(0, (at() - Vector(1.4, 0.5, 0.8)).norm(), 1e-9);
        if (zone == 0)
            EXPECT_LT(nearest, 1e-3);
        else
            EXPECT_TRUE(nearest > 0.01 && nearest < zone) << nearest;
        add(leg(1.0, 0, 0.8));
        run(4);
    }
    EXPECT_LT(fastest, 1.05) << "asked for 1 m/s, and no more where two moves overlap";
}

TEST_F(WayTest, CutsZonesToHalfOfAMove)
{
    add(leg(1.0, 0, 0.86, 0.2));
    add(leg(1.0, 0.5, 0.86));
    while (at().y() < 1e-6)
        way.advance(0.01);
    EXPECT_GT(at().z(), 0.83 - 1e-9) << "half of 60 mm";
}

TEST_F(WayTest, GoesOnFromWhereItWasPutMeanwhile)
{
    add(leg(1.0, 0.5, 0.8));
    run(0.4);
    way.pause();
    run(1);
    Joints elsewhere;
    QString why;
    const Pose flange = poseOf(Vector(1.3, -0.3, 1.0), Vector(kPi, 0, 0)) * kTool.inverse();
    ASSERT_TRUE(arm::inverse(flange, way.joints(), &elsewhere, &why));
    way.standAt(elsewhere);
    EXPECT_NEAR(0, (at() - Vector(1.3, -0.3, 1.0)).norm(), 1e-9);
    EXPECT_TRUE(way.resume(&why)) << why.toStdString();
    run(0.2);
    EXPECT_LT((at() - Vector(1.3, -0.3, 1.0)).norm(), 0.1) << "no jump";
    run(4);
    EXPECT_NEAR(0, (at() - Vector(1.0, 0.5, 0.8)).norm(), 1e-9);
}

TEST_F(WayTest, RefusesWhatIsOutOfReachAndTakesThreeMoves)
{
    QString why;
    EXPECT_FALSE(way.add(leg(4, 0, 0.8), &why));
    EXPECT_TRUE(why.contains(QStringLiteral("out of reach"))) << why.toStdString();
    EXPECT_TRUE(way.isReached());
    add(leg(1.0, 0.5, 0.8));
    add(leg(1.4, 0.5, 0.8));
    EXPECT_TRUE(way.hasRoom());
    add(leg(1.4, 0.2, 0.8));
    EXPECT_FALSE(way.hasRoom());
}
