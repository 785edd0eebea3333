#pragma once

#include "controller/motion_plan.h"
#include "controller/script/machine.h"

#include <deque>

namespace controller::cell {

/// A straight move that a program asked for.
struct LegWish
{
    Pose target = Pose::Identity(); ///< of the tool's point, in the robot's base
    Pose tool = Pose::Identity();
    double speed = 0; ///< [m/s]
    double zone = 0;  ///< [m]; 0: the robot stands at the target before it goes on
    script::Location where;
};

/// The robot's way through the moves of a program: one after the other, corners rounded inside the zones, with a pause
/// anywhere on the way. Times are simulated.
///
/// A move begins while the one before is still braking inside its zone; both are added up. A zone reaches at most over
/// half of either move, so that no more than two ever overlap and every corner stays near its point.
class Way
{
public:
    static constexpr double kStopTime = 0.3; ///< from full speed to rest when paused, and back [s]

    explicit Way(const Joints &joints = arm::kHome) : joints_(joints) {}

    /// Whether another move may be handed over.
    bool hasRoom() const { return legs_.size() - begun_ < kAhead; }
    /// False with a reason when there is no such way; nothing is changed then.
    bool add(const LegWish &wish, QString *why);
    /// Stands still, then again: moves that are left begin from where the robot stands.
    void pause() { isPaused_ = true; }
    /// False with a reason when the robot was moved meanwhile and a move that is left has no way from there.
    bool resume(QString *why);
    /// Brakes and forgets what is left.
    void drop();
    /// The robot was put elsewhere while it stood; `resume` reckons the rest from there.
    void standAt(const Joints &joints);

    void advance(double seconds);
    /// Every move is reached, or there is none.
    bool isReached() const;
    bool isMoving() const;
    bool isEmpty() const { return legs_.empty(); }
    /// The tool may be exchanged for another while nothing is to be done.
    void setTool(const Pose &tool) { tool_ = tool; }

    Pose toolPose() const;
    /// The tool that the present move is for; that of the last one when there is none.
    const Pose &tool() const { return tool_; }
    /// Of what the robot does now; of the last move when it stands.
    const script::Location &where() const;
    /// The posture now. Reckoned on demand.
    Joints joints() const;
    /// Highest share of the joints' way for the display, 0 to 1.
    double progress() const;

private:
    static constexpr std::size_t kAhead = 2; ///< moves that have not begun

    struct Leg
    {
        LegWish wish;
        MotionPlan plan;
        double length = 0; ///< of the way [m]
        double zone = 0;   ///< [m], after it was cut
        double added = 0;  ///< time of the way
        double begun = -1; ///< time of the way; negative: not yet
        double share(double time) const;
        double end() const { return begun + plan.profile().duration(); }
        double reachedAt() const;
    };
    bool makeLeg(const LegWish &wish, const Joints &from, Leg *leg, QString *why) const;
    double beginOf(const Leg &before, const Leg &next) const;
    void beginWhatMay();
    void retire();
    double rateStep(double seconds);

    Joints joints_; ///< where the last leg ends, or where the robot stands
    Pose tool_ = Pose::Identity();
    std::deque<Leg> legs_;
    std::size_t begun_ = 0; ///< of the legs, from the front
    script::Location last_;
    double time_ = 0; ///< of the way: stands still while paused
    double rate_ = 1; ///< seconds of the way for a second
    bool isPaused_ = false;
    bool isDropping_ = false;
    bool wasMoved_ = false; ///< by hand, while paused
};

} // namespace controller::cell
