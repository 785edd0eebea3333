#include "controller/trapezoid.h"

#include <algorithm>
#include <cmath>

namespace controller {

Trapezoid::Trapezoid(double length, double speed, double acceleration)
    : length_(length), acceleration_(acceleration)
{
    if (length <= 0)
        return;
    top_ = std::min(speed, std::sqrt(length * acceleration));
    ramp_ = top_ / acceleration;
    duration_ = length / top_ + ramp_;
}

double Trapezoid::position(double seconds) const
{
    if (seconds <= 0)
        return 0;
    if (seconds >= duration_)
        return length_;
    const double left = duration_ - seconds;
    if (left < ramp_)
        return length_ - acceleration_ * left * left / 2;
    if (seconds < ramp_)
        return acceleration_ * seconds * seconds / 2;
    return top_ * (seconds - ramp_ / 2);
}

double Trapezoid::speed(double seconds) const
{
    const double fromEnd = std::min(seconds, duration_ - seconds);
    return std::clamp(acceleration_ * fromEnd, 0.0, top_);
}

double Trapezoid::brakingWay(double seconds) const
{
    const double v = speed(seconds);
    return v * v / (2 * acceleration_);
}

} // namespace controller
