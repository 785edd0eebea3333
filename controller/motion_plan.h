#pragma once

#include "controller/arm.h"
#include "controller/trapezoid.h"

#include <vector>

namespace controller {

/// What a move is asked for.
struct MotionWish
{
    bool straight = true;           ///< the tool's point runs on a straight line; else the joints run evenly
    Pose target = Pose::Identity(); ///< of the tool's point, in the robot's base
    Pose tool = Pose::Identity();   ///< the tool's point seen from the flange
    double speed = 0; ///< of the tool's point [m/s], above 0; the robot's own limit holds as well
};

/// How finely the way of a move is looked at. A joint that turns further than `maxJump` between two samples would turn at
/// one place.
struct MotionSampling
{
    double way = 0.005;        ///< [m]
    double angle = radians(1); ///< of the tool or of a joint
    double maxJump = radians(15);
    int least = 20; ///< samples; enough to see how the joints bend on a short way
};
/// For programs with hundreds of moves, whose ways repeat from product to product.
constexpr MotionSampling kCoarseSampling{0.025, radians(4), radians(40), 8};

/// A move reckoned out before it starts: the way, checked for reach and limits from end to end, and the trapezoid that
/// runs it as fast as the asked speed and the limits of every joint allow.
class MotionPlan
{
public:
    static constexpr double kLongTurn = radians(89);
    static constexpr double kMaxSpeed = 2.5;        ///< of the tool's point [m/s]
    static constexpr double kMaxAcceleration = 4.0; ///< of the tool's point on a straight line [m/s^2]

    /// False with a reason and its figure when there is no way; nothing is changed then. On a straight way the tool turns the
    /// shorter way round; the longer one where a joint stops a turn by kLongTurn or more.
    static bool make(const MotionWish &wish, const Joints &from, MotionPlan *plan, QString *why,
                     const MotionSampling &sampling = {});

    /// `share` of the way, 0 to 1.
    Joints jointsAt(double share) const;
    /// Share of the way over seconds.
    const Trapezoid &profile() const { return profile_; }
    const MotionWish &wish() const { return wish_; }
    /// Of the tool's point where the move begins.
    const Pose &start() const { return start_; }
    /// Of the tool's point on a straight way, 0 to 1.
    Pose toolAt(double share) const;
    const Joints &goal() const { return samples_.back(); }

private:
    Pose flangeAt(double share) const;
    Joints sampleAt(double share) const;
    bool sampleEitherWay(const Joints &from, const MotionSampling &sampling, QString *why);
    bool sampleStraight(const Joints &from, const MotionSampling &sampling, QString *why);
    bool sampleJoints(const Joints &from, const MotionSampling &sampling, QString *why);
    void limit();

    MotionWish wish_;
    Pose start_ = Pose::Identity();              ///< of the tool's point
    Eigen::AngleAxisd turn_{0, Vector::UnitX()}; ///< of a straight way, about an axis of the tool's point
    std::vector<Joints> samples_;                ///< evenly along the way, both ends included
    Trapezoid profile_;
};

} // namespace controller
