#include "pattern/rules/iso_scene.h"
#include "pattern/rules/iso_sorting.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace palx {

namespace {

constexpr double kEdgeOn =
    1e-9; // of a direction's length: an edge that looks this little to the viewer parts nothing

double dot(const QPointF &a, const QPointF &b)
{
    return QPointF::dotProduct(a, b);
}

/// What two outlines cover along a direction.
struct Span
{
    double low = 0, high = 0;
};

Span spanOf(const Corners &outline, const QPointF &axis)
{
    Span span{dot(outline[0], axis), dot(outline[0], axis)};
    for (const QPointF &corner : outline) {
        span.low = std::min(span.low, dot(corner, axis));
        span.high = std::max(span.high, dot(corner, axis));
    }
    return span;
}

/// How far `b` begins beyond the end of `a` along a direction.
double beyond(const Corners &a, const Corners &b, const QPointF &axis)
{
    return spanOf(b, axis).low - spanOf(a, axis).high;
}

/// 1 when `b` stands before `a`, -1 when behind, 0 when an edge of `a` does not part them.
int partedBy(const Corners &a, const Corners &b, const QPointF &viewer)
{
    for (int edge = 0; edge < 4; ++edge) {
        const QPointF outwards = outwardsOf(a, edge);
        const double length = std::hypot(outwards.x(), outwards.y());
        const double facing = dot(outwards, viewer);
        if (length <= 0 || std::abs(facing) < kEdgeOn * length)
            continue;
        if (beyond(a, b, outwards / length) > -kContactMm)
            return facing > 0 ? 1 : -1;
    }
    return 0;
}

/// What an outline covers across the line of sight.
Span acrossOf(const Corners &outline, const QPointF &viewer)
{
    return spanOf(outline, QPointF(-viewer.y(), viewer.x()));
}

bool areBeside(const Span &a, const Span &b)
{
    return a.low >= b.high - kContactMm || b.low >= a.high - kContactMm;
}

/// For every outline the ones that must be painted after it.
QVector<QVector<int>> coverings(const QVector<Corners> &outlines, const QPointF &viewer)
{
    QVector<Span> spans;
    for (const Corners &outline : outlines)
        spans.append(acrossOf(outline, viewer));
    QVector<QVector<int>> fronts(outlines.size());
    for (int a = 0; a < outlines.size(); ++a) {
        for (int b = a + 1; b < outlines.size(); ++b) {
            if (areBeside(spans[a], spans[b]))
                continue;
            const int order = nearer(outlines[a], outlines[b], viewer);
            if (order != 0)
                fronts[order > 0 ? a : b].append(order > 0 ? b : a);
        }
    }
    return fronts;
}

} // namespace

bool areBeside(const Corners &a, const Corners &b, const QPointF &viewer)
{
    return areBeside(acrossOf(a, viewer), acrossOf(b, viewer));
}

int nearer(const Corners &a, const Corners &b, const QPointF &viewer)
{
    const int byFirst = partedBy(a, b, viewer);
    return byFirst != 0 ? byFirst : -partedBy(b, a, viewer);
}

QVector<int> byDistance(const QVector<Corners> &outlines, const QPointF &viewer)
{
    QVector<double> nearness;
    for (const Corners &outline : outlines)
        nearness.append(dot((outline[0] + outline[2]) / 2, viewer));
    QVector<int> order(outlines.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return nearness[a] < nearness[b]; });
    return order;
}

QVector<int> coveredFirst(const QVector<QVector<int>> &coverings, QVector<int> preferred)
{
    QVector<int> waitsFor(preferred.size(), 0);
    for (const QVector<int> &front : coverings) {
        for (const int one : front)
            ++waitsFor[one];
    }
    QVector<int> order;
    while (!preferred.isEmpty()) {
        // Overlapping boxes can wait for each other in a ring; the farthest of them then goes first.
        auto next = std::find_if(preferred.begin(), preferred.end(), [&](int i) { return waitsFor[i] <= 0; });
        const int taken = next == preferred.end()
                              ? preferred.takeFirst()
                              : preferred.takeAt(static_cast<int>(next - preferred.begin()));
        order.append(taken);
        for (const int front : coverings[taken])
            --waitsFor[front];
    }
    return order;
}

QVector<int> backToFront(const QVector<Corners> &outlines, const IsoProjection &view)
{
    const QPointF viewer = view.towardsViewer();
    return coveredFirst(coverings(outlines, viewer), byDistance(outlines, viewer));
}

} // namespace palx
