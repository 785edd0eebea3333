#pragma once

#include "controller/cell/bodies.h"

#include <optional>

namespace controller::cell {

/// A vacuum gripper: holds a product some time after suction came on, lets go some time after it went off.
class Gripper
{
public:
    static constexpr double kBuildTime = 0.20;   ///< until the vacuum holds [s]
    static constexpr double kReleaseTime = 0.10; ///< until the product is free [s]
    /// A product is gripped when the middle of its top is so near to the tool's point [m].
    static constexpr double kReachAcross = 0.030;
    static constexpr double kReachAlong = 0.010;

    /// What happened in a step of time.
    enum class Event { None, Grip, LetGo };
    /// `isSuctionOn` as the output says; `canHold`: there is vacuum at all. Grip: something may be gripped now;
    /// again and again as long as suction holds nothing.
    Event advance(double seconds, bool isSuctionOn, bool canHold);

    /// Takes a product along, seen from the tool's point.
    void grip(const Body &body, const Pose &tool);
    /// Nothing is held any more; the product as it was held.
    Body letGo();
    bool carries() const { return carried_.has_value(); }
    /// With the block where it is while the tool's point is there.
    Body carriedAt(const Pose &tool) const;
    /// The feedback of the pressure switch.
    bool hasVacuum() const { return carries(); }
    /// Whether a product's top is under the gripper.
    static bool reaches(const Pose &tool, const Block &block);
    bool isChanging() const { return isChanging_; }

private:
    double seconds_ = 0; ///< since suction changed
    bool wasOn_ = false;
    bool isChanging_ = false;     ///< it has not taken effect yet
    std::optional<Body> carried_; ///< its pose seen from the tool's point
};

} // namespace controller::cell
