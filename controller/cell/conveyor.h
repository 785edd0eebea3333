#pragma once

#include <cstdint>

namespace controller::cell {

/// A belt that brings products one by one to a stop with a sensor, at distances that vary a little. The same seed brings
/// them at the same distances. Without products behind the belt's begin nothing ever ends: there is always another one.
class Conveyor
{
public:
    static constexpr double kSpeed = 0.35;      ///< [m/s]
    static constexpr double kGap = 0.15;        ///< between two products, at least [m]
    static constexpr double kGapSpread = 0.10;  ///< and up to so much more [m]
    static constexpr double kFirstAhead = 0.60; ///< of the first product, from the stop [m]

    explicit Conveyor(std::uint64_t seed) : random_(seed) {}

    /// `direction` 1 forward, -1 reverse, 0 stands.
    void advance(double seconds, int direction);
    /// A jammed belt does not move.
    void setJammed(bool jammed) { isJammed_ = jammed; }
    bool isJammed() const { return isJammed_; }
    /// A product stands at the stop.
    bool hasProduct() const { return ahead_ <= 0; }
    /// How far the next product is from the stop [m].
    double ahead() const { return ahead_; }
    /// The product at the stop was lifted off; `length` is its extent along the belt [m].
    void take(double length);

    /// To go on after a restart.
    std::uint64_t seed() const { return random_; }
    void restore(std::uint64_t seed, double ahead);

private:
    double nextGap();

    std::uint64_t random_;
    double ahead_ = kFirstAhead;
    bool isJammed_ = false;
};

} // namespace controller::cell
