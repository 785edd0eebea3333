#include "stack/point_frame.h"

#include "stack/recipe_points.h"
#include "stack/tool_record.h"

#include <QCoreApplication>

namespace palx {

using ix::calc::Pose;
using ix::calc::Vector;
using orba::Node;

namespace {

constexpr double kMmPerM = 1000.0;
constexpr int kOnePoint = 1; ///< "calibration_method"

struct FrameText
{
    Q_DECLARE_TR_FUNCTIONS(FrameText)
};

Vector place(const Node &parent, const char16_t *key)
{
    const Node *point = parent.child(key);
    return point ? ix::calc::toPose(*point).translation() : Vector(Vector::Zero());
}

ix::calc::Calibration byCalibrationPoints(const Node &points)
{
    const Vector origin = place(points, u"p1");
    ix::calc::Calibration found;
    if (points.getInt(u"calibration_method") == kOnePoint) {
        found.frame = ix::calc::calibrateOXYParallel(origin, Pose::Identity());
    } else if (!isTaught(points.child(u"p2")) || !isTaught(points.child(u"p3"))) {
        found.error = FrameText::tr("The pallet's place needs three calibration points.");
        return found;
    } else {
        found = ix::calc::calibrateOXY(origin, place(points, u"p2"), place(points, u"p3"));
    }
    const Vector shift(points.getDouble(u"wobj_x"), points.getDouble(u"wobj_y"), 0);
    found.frame.translation() += found.frame.linear() * shift / kMmPerM;
    return found;
}

/// Where a node stands: the node right below each of these, from the top.
struct Location
{
    const Node *plugin = nullptr; ///< holds "stacks"
    const Node *stack = nullptr;  ///< below "stacks"; null elsewhere
    const Node *part = nullptr;   ///< right below the stack, or below the plugin node
};

Location locate(const Node &node)
{
    QVector<const Node *> way; // from the node upward
    for (const Node *at = &node; at; at = at->parent())
        way.append(at);
    for (int i = 0; i + 1 < way.size(); ++i) {
        const Node *above = way[i + 1];
        if (!above->child(u"stacks"))
            continue;
        const bool isInStacks = way[i] == above->child(u"stacks");
        return {above, isInStacks && i >= 1 ? way[i - 1] : nullptr,
                isInStacks ? (i >= 2 ? way[i - 2] : nullptr) : way[i]};
    }
    return {};
}

void takeTool(PointFrame *frame, const Node *tool, ToolKeeper keeper)
{
    frame->isOfTool = tool && isMeasured(*tool, keeper);
    if (frame->isOfTool)
        frame->tool = toolPose(*tool, keeper);
}

/// Whether points in it are to tell the tool: those of the flange.
bool isForMeasuring(const Node &holder)
{
    return holder.name().toString() == QLatin1String("tool");
}

PointFrame frameAt(const Location &at, QStringView part)
{
    PointFrame frame;
    const bool isShared =
        !at.stack && (part == QLatin1String("global_tool") || part == QLatin1String("global_wobj"));
    if (isShared ||
        (at.stack && (at.stack->getBool(u"use_global_tool") || part == QLatin1String("incoming_settings"))))
        takeTool(&frame, at.plugin->find(u"global_tool.#0"), ToolKeeper::Shared);
    else if (at.stack)
        takeTool(&frame, at.stack->child(u"toolset"), ToolKeeper::Recipe);
    if (at.stack && (part == QLatin1String("put") || part == QLatin1String("points"))) {
        const ix::calc::Calibration found = palletFrame(*at.stack);
        frame.reference = found.frame;
        frame.problem = found.error;
        frame.isOnPallet = hasPalletFrame(*at.stack);
    }
    return frame;
}

} // namespace

Pose PointFrame::flange(const Pose &point) const
{
    return reference * point * ix::calc::inverseFrame(tool);
}

Pose PointFrame::point(const Pose &flange) const
{
    return ix::calc::inverseFrame(reference) * flange * tool;
}

bool hasPalletFrame(const Node &stack)
{
    return !stack.getBool(u"use_global_wobj") &&
           (isTaught(stack.find(u"calibrate.p1")) || isTaught(stack.find(u"toolset.ref")));
}

ix::calc::Calibration palletFrame(const Node &stack)
{
    ix::calc::Calibration base;
    if (stack.getBool(u"use_global_wobj"))
        return base;
    const Node *points = stack.child(u"calibrate");
    if (points && isTaught(points->child(u"p1")))
        return byCalibrationPoints(*points);
    if (const Node *reference = stack.find(u"toolset.ref"))
        base.frame = ix::calc::toPose(*reference);
    return base;
}

PointFrame pointFrame(const Node &point)
{
    return point.parent() ? pointFrame(*point.parent(), point.name().toString()) : PointFrame();
}

PointFrame pointFrame(const Node &holder, QStringView key)
{
    if (isForMeasuring(holder))
        return PointFrame();
    const Location at = locate(holder);
    const bool isPart = at.stack == &holder; // the record is a part of the recipe itself
    return frameAt(at, isPart ? key.toString() : at.part ? at.part->name().toString() : QString());
}

} // namespace palx
