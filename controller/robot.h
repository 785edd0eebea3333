#pragma once

#include "controller/motion_plan.h"
#include "controller/toolsets.h"

#include <optional>

namespace controller {

/// The robot that the operator drives by holding a button: takes moves, runs them in simulated time, and stops by itself
/// when the button is not held any more.
class Robot
{
public:
    /// Without a sign from the held button for so long it brakes [s].
    static constexpr double kHoldTime = 0.3;
    /// A move that ends within this of its target has arrived.
    static constexpr double kArrivedM = 1e-4;
    static constexpr double kArrivedRad = radians(0.01);

    explicit Robot(const Joints &joints = arm::kHome) : joints_(joints) {}

    /// {"type": "l" or "j", "motion": {"toolset": name, "speed": mm/s}, "point": point record}. Returns why the move is
    /// refused, empty when it starts; the start counts as a sign from the button. While the robot brakes, the move starts
    /// when it stands. Who asks for another move does not hold the button of the one that runs: it is refused, and the
    /// robot brakes.
    QString start(const orba::Node &request, const Toolsets &tools);
    /// Reckons the same move from where the robot stands, or will stand when it brakes, and moves nothing. Returns why it
    /// would be refused; else fills "joints" [rad] at the target and "seconds" that it takes.
    QString check(const orba::Node &request, const Toolsets &tools, orba::Node *result) const;
    /// A sign from the held button.
    void hold() { sinceHold_ = 0; }
    /// Brakes; `why` is kept as the fault to show, empty when the operator wanted it.
    void stop(const QString &why);
    /// `seconds` of real time for the button, `factor` times as many for the arm.
    void advance(double seconds, double factor);

    /// A program moved the arm meanwhile; not while a move of the operator runs.
    void standAt(const Joints &joints) { joints_ = joints; }

    bool isMoving() const { return run_.has_value(); }
    /// Number of the move that was taken last; 0: none yet.
    int lastMove() const { return lastMove_; }
    const Joints &joints() const { return joints_; }
    Pose pose() const { return arm::forward(joints_); }
    /// Writes "pose", "joints", "moving", "progress", "arrived", "fault", and "move", the number of the move that these
    /// speak of.
    void publish(orba::Node *node) const;

private:
    struct Run
    {
        MotionPlan plan;
        int move = 0;
        double seconds = 0;     ///< since the start, or since braking began
        double brakeFrom = 0;   ///< share of the way
        double brakeSpeed = -1; ///< shares a second; negative: it does not brake
        bool isBraking() const { return brakeSpeed >= 0; }
        double share() const;
        double brakingSeconds() const { return brakeSpeed / plan.profile().acceleration(); }
        double shareAtRest() const;
        bool isOver() const;
    };

    QString reckon(const orba::Node &request, const Toolsets &tools, MotionPlan *plan) const;
    void brake();
    void begin(Run run);
    void finish();
    bool isAtTarget(const MotionWish &wish) const;

    Joints joints_;
    std::optional<Run> run_;
    std::optional<Run> next_; ///< starts when the robot stands
    int lastMove_ = 0;
    int move_ = 0; ///< that ran last
    double progress_ = 0;
    double sinceHold_ = 0;
    bool arrived_ = false;
    QString fault_;
};

} // namespace controller
