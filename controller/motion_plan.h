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

/// A move reckoned out before it starts: the way, checked for reach and limits from end to end, and the trapezoid that
/// runs it as fast as the asked speed and the limits of every joint allow.
class MotionPlan
{
public:
    static constexpr double kMaxSpeed = 2.5;        ///< of the tool's point [m/s]
    static constexpr double kMaxAcceleration = 4.0; ///< of the tool's point on a straight line [m/s^2]

    /// False with a reason and its figure when there is no way; nothing is changed then.
    static bool make(const MotionWish &wish, const Joints &from, MotionPlan *plan, QString *why);

    /// `share` of the way, 0 to 1.
    Joints jointsAt(double share) const;
    /// Share of the way over seconds.
    const Trapezoid &profile() const { return profile_; }
    const MotionWish &wish() const { return wish_; }

private:
    Pose flangeAt(double share) const;
    Joints sampleAt(double share) const;
    bool sampleStraight(const Joints &from, QString *why);
    bool sampleJoints(const Joints &from, QString *why);
    void limit();

    MotionWish wish_;
    Pose start_ = Pose::Identity(); ///< of the tool's point
    std::vector<Joints> samples_;   ///< evenly along the way, both ends included
    Trapezoid profile_;
};

} // namespace controller
