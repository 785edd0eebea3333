#include "pattern/rules/approach.h"

#include "stack/put_pass.h"
#include "workstation/plugin_node.h"

namespace palx {

namespace {

/// The ready point's shift for some offsets, in millimetres on the plan: the frame's x runs along the
/// pallet's length.
QPointF planShift(const QString &direction, double dx, double dy, const ApproachFrame &frame)
{
    double along = 0;
    double across = 0;
    readyShift(direction, dx, dy, frame.side, &along, &across);
    const bool against = frame.onePoint && frame.side.bothTowards(0);
    return QPointF(across, along) * (against ? -1000 : 1000);
}

} // namespace

ApproachFrame readApproachFrame(const orba::Node &stack)
{
    const orba::Node &plugin = pluginNodeOf(stack);
    return {isOnePointCalibrated(stack, plugin), palletSideOf(stack, plugin)};
}

Approach approachOf(const PatternItem &item, const ApproachFrame &frame)
{
    Approach approach;
    approach.shift = planShift(item.directionText, item.dx, item.dy, frame);
    if (item.direction != Direction::Middle)
        approach.side = planShift(item.directionText, 1, 1, frame);
    return approach;
}

} // namespace palx
