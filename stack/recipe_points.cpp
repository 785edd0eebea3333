#include "stack/recipe_points.h"

#include "stack/place_frame.h"
#include "stack/recipe_patterns.h"
#include "stack/tool_record.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>

namespace palx {

namespace {

using orba::Node;

struct PointText
{
    Q_DECLARE_TR_FUNCTIONS(PointText)
};

/// Own points of the recipe when the work object is not calibrated by one point.
QStringList untaughtPlaceSide(const Node &stack)
{
    QStringList texts;
    if (!isTaught(stack.find(u"put.put_p")))
        texts << PointText::tr("The place point is not taught.");
    if (!isTaught(stack.find(u"put.enter_p")))
        texts << PointText::tr("The enter point of the place side is not taught.");
    return texts;
}

QStringList untaughtOrigin(const Node &stack, const Node &plugin)
{
    const PalletPlace place = palletPlace(stack);
    if (place == PalletPlace::Unknown)
        return {
            PointText::tr("The pallet place is neither left nor right, so all place positions will be 0.")};
    if (!isTaught(taughtOriginPoint(stack, plugin)))
        return {place == PalletPlace::Left
                    ? PointText::tr(
                          "The origin point of the shared work object for the left pallet is not taught.")
                    : PointText::tr(
                          "The origin point of the shared work object for the right pallet is not taught.")};
    return {};
}

QStringList untaughtPickSide(const Node &stack, const Node &plugin)
{
    QStringList texts;
    if (stack.getBool(u"use_global_tool")) {
        const Node *incoming = plugin.find(u"global_tool.#2.incoming_settings");
        const bool left = !incoming || incoming->getInt(u"origin_position") == 0;
        if (!incoming || !isTaught(incoming->find(left ? u"bottom_left_node" : u"bottom_right_node")))
            texts << PointText::tr("The corner of the product on the conveyor is not taught.");
        return texts;
    }
    if (!isTaught(stack.find(u"get.get_p")))
        texts << PointText::tr("The pick point is not taught.");
    if (!isTaught(stack.find(u"get.enter_p")))
        texts << PointText::tr("The enter point of the pick side is not taught.");
    return texts;
}

/// Points of a recipe whose pallet is calibrated in no way lie around the robot's foot.
QStringList untaughtFrame(const Node &stack)
{
    if (stack.getBool(u"use_global_wobj"))
        return {PointText::tr(
            "The shared work objects are not both calibrated by one point, so the place positions "
            "lie around the robot's foot.")};
    if (!hasPalletFrame(stack))
        return {PointText::tr(
            "The pallet's place is not calibrated, so the place positions lie around the robot's foot.")};
    const QString error = palletFrame(stack).error;
    return error.isEmpty() ? QStringList() : QStringList(error);
}

QStringList unmeasuredTool(const Node &stack, const Node &plugin)
{
    const bool isShared = stack.getBool(u"use_global_tool");
    const Node *tool = isShared ? plugin.find(u"global_tool.#0") : stack.find(u"toolset");
    if (tool && isMeasured(*tool, isShared ? ToolKeeper::Shared : ToolKeeper::Recipe))
        return {};
    return {isShared ? PointText::tr("The shared tool is not measured, so the flange is taken for it.")
                     : PointText::tr("The recipe's tool is not measured, so the flange is taken for it.")};
}

/// Whether a product comes straight from above in a layer with others. The last layer has a ready height of its own.
bool comesBetweenNeighbours(const Node &stack)
{
    const Node *layers = stack.find(u"layers");
    for (int i = 0; layers && i < layers->size() - 1; ++i) {
        const Node *pattern = findPattern(stack, layers->at(i)->getString(u"pattern"));
        for (int k = 0; pattern && pattern->size() > 1 && k < pattern->size(); ++k) {
            const Node &item = *pattern->at(k);
            const bool isMiddle = item.getString(u"direction").compare(u"Middle", Qt::CaseInsensitive) == 0;
            if (isMiddle || (item.getDouble(u"dx") == 0 && item.getDouble(u"dy") == 0))
                return true;
        }
    }
    return false;
}

} // namespace

bool isTaught(const Node *point)
{
    if (!point)
        return false;
    for (const char16_t *key : {u"trans", u"rot"}) {
        const Node *numbers = point->child(key);
        for (int i = 0; numbers && i < numbers->size(); ++i) {
            if (numbers->number(i) != 0)
                return true;
        }
    }
    return false;
}

bool teachPoint(Node &point, const Node &robot, const PointFrame &frame)
{
    constexpr int kNumbers = 3;
    const Node *pose = robot.child(u"pose");
    const Node *trans = pose ? pose->child(u"trans") : nullptr;
    const Node *rot = pose ? pose->child(u"rot") : nullptr;
    if (!trans || !rot || trans->size() != kNumbers || rot->size() != kNumbers)
        return false;
    makePointRecord(point);
    copyPointData(point, *pose);
    if (!frame.isPlain())
        ix::calc::writePose(frame.point(ix::calc::toPose(*pose)), point);
    const Node *joints = robot.child(u"joints");
    Node *near = point.child(u"near");
    for (int i = 0; joints && i < near->size(); ++i)
        near->setNumber(i, joints->number(i));
    return true;
}

QStringList lowWaypoints(const Node &stack, const Node &plugin)
{
    const double ready = stack.getDouble(u"put.ready_h");
    const double product = stack.getDouble(u"product_cfg.product.height");
    if (ready >= product || isOnePointCalibrated(stack, plugin) || !comesBetweenNeighbours(stack))
        return {};
    return {
        PointText::tr(
            "The ready height of the place side, %1 mm, is less than the product's height, %2 mm: what comes "
            "straight from above could hit the products beside its place.")
            .arg(ready)
            .arg(product)};
}

QStringList untaughtPoints(const Node &stack, const Node &plugin)
{
    const QStringList place = isOnePointCalibrated(stack, plugin)
                                  ? untaughtOrigin(stack, plugin)
                                  : untaughtFrame(stack) + untaughtPlaceSide(stack);
    return place + untaughtPickSide(stack, plugin) + unmeasuredTool(stack, plugin);
}

PalletPlace palletPlace(const Node &stack)
{
    switch (stack.getInt(u"pallet_position")) {
    case 0:
        return PalletPlace::Left;
    case 1:
        return PalletPlace::Right;
    default:
        return PalletPlace::Unknown;
    }
}

} // namespace palx
