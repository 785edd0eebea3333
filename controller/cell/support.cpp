// What carries a block: areas where its bottom meets tops, seen from above.

#include "controller/cell/collision.h"

#include <algorithm>
#include <cmath>

namespace controller::cell {

namespace {

using Point = Eigen::Vector2d;
using Outline = std::vector<Point>; ///< against the clock

/// Smaller overlaps do not carry [m^2].
constexpr double kNoArea = 1e-6;
/// The centre has to lie so far inside [m].
constexpr double kMargin = 1e-3;

double cross(const Point &a, const Point &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

Outline outlineOf(const Block &block)
{
    Outline outline;
    const Vector x = block.pose.linear().col(0) * block.half.x();
    const Vector y = block.pose.linear().col(1) * block.half.y();
    for (const auto &[sx, sy] : {std::pair{-1, -1}, std::pair{1, -1}, std::pair{1, 1}, std::pair{-1, 1}})
        outline.push_back((block.pose.translation() + sx * x + sy * y).head<2>());
    return outline;
}

/// The part of a convex outline on the left of a line.
Outline cut(const Outline &outline, const Point &from, const Point &to)
{
    Outline left;
    const Point along = to - from;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Point &a = outline[i];
        const Point &b = outline[(i + 1) % outline.size()];
        const double da = cross(along, a - from);
        const double db = cross(along, b - from);
        if (da >= 0)
            left.push_back(a);
        if ((da > 0 && db < 0) || (da < 0 && db > 0))
            left.push_back(a + (b - a) * (da / (da - db)));
    }
    return left;
}

double areaOf(const Outline &outline)
{
    double twice = 0;
    for (std::size_t i = 0; i < outline.size(); ++i)
        twice += cross(outline[i], outline[(i + 1) % outline.size()]);
    return twice / 2;
}

Outline common(const Outline &a, const Outline &b)
{
    Outline result = a;
    for (std::size_t i = 0; i < b.size() && !result.empty(); ++i)
        result = cut(result, b[i], b[(i + 1) % b.size()]);
    return result;
}

/// Whether a point lies inside the hull of points by at least a margin: no line through it has all points on one side.
bool isInsideHull(const std::vector<Point> &points, const Point &centre)
{
    std::vector<double> angles;
    for (const Point &point : points) {
        const Point away = point - centre;
        if (away.norm() > kMargin)
            angles.push_back(std::atan2(away.y(), away.x()));
    }
    std::sort(angles.begin(), angles.end());
    if (angles.empty())
        return false;
    double widest = angles.front() + 2 * kPi - angles.back();
    for (std::size_t i = 1; i < angles.size(); ++i)
        widest = std::max(widest, angles[i] - angles[i - 1]);
    return widest < kPi - 1e-9;
}

} // namespace

Support supportOf(const Block &block, const std::vector<const Block *> &others, double floor)
{
    const Outline bottom = outlineOf(block);
    struct Contact
    {
        double top;
        Outline area;
    };
    std::vector<Contact> below;
    double highest = floor;
    for (const Block *other : others) {
        Outline area = common(bottom, outlineOf(*other));
        if (areaOf(area) < kNoArea || other->pose.translation().z() > block.pose.translation().z())
            continue;
        highest = std::max(highest, other->top());
        below.push_back({other->top(), std::move(area)});
    }
    Support support;
    support.fall = block.bottom() - highest;
    if (highest == floor) {
        support.share = 1;
        support.holdsCentre = true;
        return support;
    }
    std::vector<Point> corners;
    for (const Contact &contact : below) {
        if (contact.top < highest - kLevel)
            continue;
        support.share += areaOf(contact.area);
        corners.insert(corners.end(), contact.area.begin(), contact.area.end());
    }
    support.share /= areaOf(bottom);
    support.holdsCentre = isInsideHull(corners, block.pose.translation().head<2>());
    return support;
}

} // namespace controller::cell
