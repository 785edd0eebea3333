#include "controller/cell/conveyor.h"

#include <algorithm>

namespace controller::cell {

namespace {

/// The next number of an even sequence; the state goes on with it.
std::uint64_t nextRandom(std::uint64_t *state)
{
    *state += 0x9e3779b97f4a7c15u;
    std::uint64_t mixed = *state;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebu;
    return mixed ^ (mixed >> 31);
}

constexpr double kFarthest = 5; ///< the belt's length [m]

} // namespace

double Conveyor::nextGap()
{
    const double share = static_cast<double>(nextRandom(&random_) >> 11) * 0x1p-53;
    return kGap + kGapSpread * share;
}

void Conveyor::advance(double seconds, int direction)
{
    if (!isJammed_ && direction != 0)
        ahead_ = std::clamp(ahead_ - direction * kSpeed * seconds, 0.0, kFarthest);
}

void Conveyor::take(double length)
{
    ahead_ = length + nextGap();
}

void Conveyor::restore(std::uint64_t seed, double ahead)
{
    random_ = seed;
    ahead_ = std::clamp(ahead, 0.0, kFarthest);
}

} // namespace controller::cell
