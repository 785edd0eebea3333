#pragma once

namespace controller {

/// A way from 0 to `length`, run with a speed that rises evenly, stays, and falls evenly: never over `speed` and
/// `acceleration`, and standing exactly at the length when `duration` is over. A short way is a triangle. Any unit.
class Trapezoid
{
public:
    Trapezoid() = default;
    /// All three at least 0, the last two above 0 when there is a way.
    Trapezoid(double length, double speed, double acceleration);

    double length() const { return length_; }
    double acceleration() const { return acceleration_; }
    /// The speed it really reaches.
    double topSpeed() const { return top_; }
    double duration() const { return duration_; }
    /// Where it is after `seconds`, counted from the start; before the start 0, after the end the length.
    double position(double seconds) const;
    double speed(double seconds) const;

    /// Standing at once after `seconds`: the way that is left when braking with the same acceleration.
    double brakingWay(double seconds) const;

private:
    double length_ = 0;
    double top_ = 0;
    double acceleration_ = 1;
    double ramp_ = 0; ///< seconds of speeding up, and of braking
    double duration_ = 0;
};

} // namespace controller
