#include "stack/place_frame.h"

#include "stack/keys.h"
#include "workstation/plugin_node.h"

namespace palx {

namespace {

using orba::Name;
using orba::Node;

constexpr double kPi = 3.141592653589793;

/// The turn of an item for the robot [degrees]: the pattern turns the other way round than the frame.
qint64 robotTurn(qint64 patternDegrees)
{
    const qint64 rest = patternDegrees % 360; // keeps the sign
    if (rest == -270)
        return -90;
    if (rest == 180)
        return 180;
    if (rest == 270)
        return 90;
    return -rest;
}

/// A detached copy of a taught point; what the taught point lacks is zero.
Node recordFrom(const Node *taught, QStringView name)
{
    Node record{Name(name)};
    makePointRecord(record);
    if (taught)
        copyPointData(record, *taught);
    return record;
}

void moveTrans(Node &point, double x, double y)
{
    Node *trans = point.child(key::trans);
    trans->setNumber(0, x);
    trans->setNumber(1, y);
}

double childNumber(const Node &item, Name name)
{
    const Node *child = item.child(name);
    return child ? child->toDouble() : 0;
}

} // namespace

double transOf(const Node &point, int axis)
{
    const Node *trans = point.child(key::trans);
    return trans ? trans->number(axis) : 0;
}

double rotOf(const Node &point, int axis)
{
    const Node *rot = point.child(key::rot);
    return rot ? rot->number(axis) : 0;
}

PalletSide palletSideOf(const Node &stack, const Node &plugin)
{
    PalletSide side;
    side.position = static_cast<int>(stack.getInt(u"pallet_position"));
    side.towards[0] = static_cast<int>(plugin.getInt(u"global_wobj.#0.towards"));
    side.towards[1] = static_cast<int>(plugin.getInt(u"global_wobj.#1.towards"));
    return side;
}

bool isOnePointCalibrated(const Node &stack, const Node &plugin)
{
    return stack.getBool(u"use_global_wobj") && plugin.getInt(u"global_wobj.#0.calibration_method") == 1 &&
           plugin.getInt(u"global_wobj.#1.calibration_method") == 1;
}

const Node *taughtOriginPoint(const Node &stack, const Node &plugin)
{
    switch (stack.getInt(u"pallet_position")) {
    case 0:
        return plugin.find(u"global_wobj.#0.left_origin_point");
    case 1:
        return plugin.find(u"global_wobj.#1.right_origin_point");
    default:
        return nullptr;
    }
}

Node makeOriginPoint(const Node &stack, const Node &plugin, int mode)
{
    const PalletSide side = palletSideOf(stack, plugin);
    Node real = recordFrom(taughtOriginPoint(stack, plugin), u"real_origin_point");
    const bool placed = side.isSide() && !side.isMixed();
    // The frame's x points away from the taught corner when both "towards" are 0; the sides mirror y.
    const double sx = side.bothTowards(0) ? 1 : -1;
    const double sy = side.bothTowards(0) == (side.position == 1) ? 1 : -1;
    if (placed)
        moveTrans(real, transOf(real, 0) + sx * ((plugin.getDouble(u"global_tool.#0.load.length") * 0.5) / 1000),
                  transOf(real, 1) + sy * ((plugin.getDouble(u"global_tool.#0.load.width") * 0.5) / 1000));
    else
        moveTrans(real, 0, 0);
    if (mode == 1)
        return real;

    Node diagonal(real);
    diagonal.setName(Name(u"diagonal_origin_point"));
    if (placed)
        moveTrans(diagonal, transOf(real, 0) - sx * (stack.getDouble(u"product_cfg.pallet.length") / 1000),
                  transOf(real, 1) - sy * (stack.getDouble(u"product_cfg.pallet.width") / 1000));
    return diagonal;
}

PlaceFrame::PlaceFrame(const Node &stack, const Node &plugin)
    : onePoint(isOnePointCalibrated(stack, plugin)), side(palletSideOf(stack, plugin)),
      palletLength(stack.getDouble(u"product_cfg.pallet.length")),
      palletWidth(stack.getDouble(u"product_cfg.pallet.width")),
      palletHeight(stack.getDouble(u"product_cfg.pallet.height")),
      productHeight(stack.getDouble(u"product_cfg.product.height")),
      enterSpan(plugin.getInt(u"global_tool.#2.incoming_settings.incoming_product_direction") == 0
                    ? stack.getDouble(u"product_cfg.product.width")
                    : stack.getDouble(u"product_cfg.product.length")),
      putBase(onePoint ? makeOriginPoint(stack, plugin, 2) : recordFrom(stack.find(u"put.put_p"), u"put_p")),
      enterBase(onePoint ? makeOriginPoint(stack, plugin, 1) : recordFrom(stack.find(u"put.enter_p"), u"enter_p")),
      getApproachZ(stack.getDouble(u"get.approach_p.trans.#2")),
      heights{stack.getDouble(u"put.ready_h"), stack.getDouble(u"put.approach_h"),
              stack.getDouble(u"put.retract_h"), stack.getDouble(u"put.exit_h")}
{
    const Node *own = plugin.find(side.position == 1 ? u"global_tool.#3.waypoint_settings.put.right_offsets"
                                                     : u"global_tool.#3.waypoint_settings.put.left_offsets");
    const auto read = [own](QStringView name) { return own ? own->getDouble(name) : 0; };
    offsets.enterX = read(u"enter_x");
    offsets.enterY = read(u"enter_y");
    offsets.enterH = read(u"enter_h");
    offsets.heights = {read(u"ready_h"), read(u"approach_h"), read(u"retract_h"), read(u"exit_h")};
}

PlanarPose PlaceFrame::itemPose(const Node &item, PlanarPose start) const
{
    PlanarPose pose = start;
    const Node *turn = item.child(key::r);
    pose.rz = static_cast<double>(robotTurn(turn ? turn->toInt() : 0)) * kPi / 180;
    const double across = childNumber(item, key::x);
    const double along = childNumber(item, key::y);
    if (!onePoint) {
        pose.x = along / 1000;
        pose.y = across / 1000;
        return pose;
    }
    const double originX = transOf(putBase, 0);
    const double originY = transOf(putBase, 1);
    const bool left = side.position == 0;
    if (side.bothTowards(0)) {
        pose.x = (palletLength - along) / 1000 + originX;
        pose.y = left ? originY - across / 1000 : (palletWidth - across) / 1000 + originY;
    } else if (side.bothTowards(1)) {
        pose.x = originX - (palletLength - along) / 1000;
        pose.y = left ? across / 1000 + originY : originY - (palletWidth - across) / 1000;
    }
    return pose;
}

} // namespace palx
