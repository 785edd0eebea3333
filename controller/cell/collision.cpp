#include "controller/cell/collision.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace controller::cell {

namespace {

/// Edges closer to parallel than this [sine] give no axis of their own.
constexpr double kParallel = 1e-6;

/// Directions in one of which two blocks that do not meet are apart: the faces of both, and across each pair of edges.
struct Axes
{
    std::array<Vector, 15> directions;
    int count = 0;
    void add(const Vector &direction)
    {
        const double length = direction.norm();
        if (length > kParallel)
            directions[static_cast<std::size_t>(count++)] = direction / length;
    }
};

Axes partingAxes(const Block &a, const Block &b)
{
    Axes axes;
    for (int i = 0; i < 3; ++i) {
        axes.add(a.pose.linear().col(i));
        axes.add(b.pose.linear().col(i));
    }
    for (int i = 0; i < 3; ++i)
        for (int k = 0; k < 3; ++k)
            axes.add(a.pose.linear().col(i).cross(b.pose.linear().col(k)));
    return axes;
}

/// Times from 0 to 1 as an interval.
struct Span
{
    double from = 0;
    double to = 1;
    bool isEmpty() const { return from >= to; }
};

/// When |start + t * way| < limit.
void narrow(Span *span, double start, double way, double limit)
{
    if (way == 0) {
        if (std::abs(start) >= limit)
            span->to = span->from;
        return;
    }
    const double a = (-limit - start) / way;
    const double b = (limit - start) / way;
    span->from = std::max(span->from, std::min(a, b));
    span->to = std::min(span->to, std::max(a, b));
}

bool areFarApart(const Block &moving, const Vector &way, const Block &fixed)
{
    const Vector start = moving.pose.translation() - fixed.pose.translation();
    const double square = way.squaredNorm();
    const double nearest = square > 0 ? std::clamp(-start.dot(way) / square, 0.0, 1.0) : 0;
    const double reach = moving.reach() + fixed.reach();
    return (start + nearest * way).squaredNorm() > reach * reach;
}

} // namespace

double penetration(const Block &a, const Block &b)
{
    const Vector offset = b.pose.translation() - a.pose.translation();
    const Axes axes = partingAxes(a, b);
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < axes.count; ++i) {
        const Vector &axis = axes.directions[static_cast<std::size_t>(i)];
        least = std::min(least, a.extent(axis) + b.extent(axis) - std::abs(offset.dot(axis)));
    }
    return least;
}

bool hitsOnWay(const Block &moving, const Vector &way, const Block &fixed, double tolerance)
{
    if (areFarApart(moving, way, fixed))
        return false;
    const Vector offset = moving.pose.translation() - fixed.pose.translation();
    const Axes axes = partingAxes(moving, fixed);
    Span span;
    for (int i = 0; i < axes.count; ++i) {
        const Vector &axis = axes.directions[static_cast<std::size_t>(i)];
        const double limit = moving.extent(axis) + fixed.extent(axis) - tolerance;
        const double start = offset.dot(axis);
        const double along = way.dot(axis);
        if (limit <= 0)
            return false;
        if (std::abs(start) < limit && std::abs(start + along) < limit)
            continue; // all the way
        narrow(&span, start, along, limit);
        if (span.isEmpty())
            return false;
    }
    return true;
}

bool hitsOnWay(const Block &from, const Pose &to, const Block &fixed, double tolerance)
{
    const Vector way = to.translation() - from.pose.translation();
    if (areFarApart(from, way, fixed))
        return false;
    const double turn = angleBetween(from.pose.linear(), to.linear());
    const int steps = std::max(1, static_cast<int>(std::ceil(turn / kTurnStep)));
    if (steps == 1)
        return hitsOnWay(from, way, fixed, tolerance);
    const Eigen::Quaterniond first(from.pose.linear());
    const Eigen::Quaterniond last(to.linear());
    Block step = from;
    for (int i = 0; i < steps; ++i) {
        step.pose.linear() = first.slerp((i + 0.5) / steps, last).toRotationMatrix();
        step.pose.translation() = from.pose.translation() + way * i / steps;
        if (hitsOnWay(step, way / steps, fixed, tolerance))
            return true;
    }
    return false;
}

} // namespace controller::cell
