#include "stack/way_points.h"

#include "orba/notice.h"
#include "stack/keys.h"
#include "stack/place_frame.h"
#include "stack/put_pass.h"
#include "workstation/plugin_node.h"

#include <algorithm>

namespace palx {

namespace {

using orba::Name;
using orba::Node;

constexpr double kHalfPi = 3.141592653589793 / 2;

void setTrans(Node &point, double x, double y, double z)
{
    Node *trans = point.child(key::trans);
    trans->setNumber(0, x);
    trans->setNumber(1, y);
    trans->setNumber(2, z);
}

/// Pick and enter point from the taught corner of the conveyor's end and the product that lies in it.
class GlobalPick
{
public:
    GlobalPick(const Node &stack, const Node &plugin)
        : stack_(stack), plugin_(plugin), incoming_(plugin.find(u"global_tool.#2.incoming_settings")),
          settings_(plugin.find(u"global_tool.#3.waypoint_settings"))
    {
    }

    void fill(Node &get) const
    {
        Node &getPoint = *get.child(key::getP);
        fillGetPoint(getPoint);
        Node &enter = *get.child(key::enterP);
        copyPointData(enter, getPoint);
        const double palletZ = transOf(makeOriginPoint(stack_, plugin_, 1), 2);
        const double highest = std::max(transOf(getPoint, 2), palletZ);
        setTrans(enter, transOf(getPoint, 0) + setting(u"get.enter_x") / 1000,
                 transOf(getPoint, 1) + setting(u"get.enter_y") / 1000, highest + setting(u"get.enter_h") / 1000);
        get.ensure(u"approach_h")->setDouble(setting(u"get.approach_h") + size(u"height"));
    }

private:
    double setting(QStringView path) const { return settings_ ? settings_->getDouble(path) : 0; }
    qint64 choice(QStringView path) const { return incoming_ ? incoming_->getInt(path) : 0; }
    /// An edge of the product [mm].
    double size(QStringView edge) const
    {
        const Node *product = stack_.find(u"product_cfg.product");
        return product ? product->getDouble(edge) : 0;
    }

    void fillGetPoint(Node &point) const
    {
        const bool bottomLeft = choice(u"origin_position") == 0;
        const bool lengthAlong = choice(u"incoming_product_direction") == 0;
        const bool alongX = choice(u"incoming_conveyor_line_direction") == 0;
        makePointRecord(point);
        const Node *corner = incoming_ ? incoming_->find(bottomLeft ? u"bottom_left_node" : u"bottom_right_node")
                                       : nullptr;
        if (corner)
            copyPointData(point, *corner);
        const double sign = palletSideOf(stack_, plugin_).bothTowards(1) ? -1 : 1;
        const double side = bottomLeft ? 1 : -1;
        const double along = sign * size(lengthAlong ? u"length" : u"width") / 2 / 1000;
        const double across = side * size(lengthAlong ? u"width" : u"length") / 2 / 1000;
        setTrans(point, transOf(point, 0) + (alongX ? along : across),
                 transOf(point, 1) + (alongX ? across : along), transOf(point, 2) + size(u"height") / 1000);
        if (!lengthAlong)
            point.child(key::rot)->setNumber(2, rotOf(point, 2) + kHalfPi);
    }

    const Node &stack_;
    const Node &plugin_;
    const Node *incoming_;
    const Node *settings_;
};

/// Above the pick point by the heights of the "get" node.
void fillPickWaypoints(Node &get)
{
    const struct {
        Name name;
        const char16_t *height;
    } above[] = {{key::readyP, u"ready_h"}, {key::approachP, u"approach_h"}, {key::retractP, u"retract_h"}};
    const Node &pick = *get.child(key::getP);
    for (const auto &way : above) {
        Node &point = *get.child(way.name);
        copyPointData(point, pick);
        setTrans(point, transOf(pick, 0), transOf(pick, 1), transOf(pick, 2) + get.getDouble(way.height) / 1000);
    }
}

void genPickPoints(Node &stack, const Node &plugin)
{
    Node *get = stack.ensure(u"get");
    if (!get || !(get->isNull() || get->kind() == Node::Kind::Map))
        return;
    for (const Name name : {key::enterP, key::readyP, key::approachP, key::getP, key::retractP})
        ensurePointRecord(*get, name);
    if (stack.getBool(u"use_global_tool"))
        GlobalPick(stack, plugin).fill(*get);
    fillPickWaypoints(*get);
}

bool sameBelow(const orba::Node &a, const orba::Node &b, QStringView path)
{
    const orba::Node *x = a.find(path);
    const orba::Node *y = b.find(path);
    return x && y ? *x == *y : !x && !y;
}

} // namespace

void genStackWayPoints(Node &stack, const Node &plugin)
{
    genPickPoints(stack, plugin);
    genStackPutPoints(stack, plugin);
}

void genStackWayPoints(orba::ModuleObject *stack)
{
    if (stack->isEmptyMobj())
        return;
    Node &node = stack->node();
    {
        const orba::NoticeOfChanges notice(node);
        genStackWayPoints(node, pluginNodeOf(node));
    }
    // The refilled list may look as before to the notice, because memory is used again.
    const Node *points = node.find(u"points.put");
    if (points && points->handle())
        points->handle()->announceStructure();
}

PointsState pointsState(const orba::Node &stack)
{
    const orba::Node *put = stack.find(u"points.put");
    if (!put || put->size() == 0)
        return PointsState::None;
    orba::Node copy = stack;
    genStackWayPoints(copy, pluginNodeOf(stack));
    const bool same = sameBelow(copy, stack, u"points.put") && sameBelow(copy, stack, u"get");
    return same ? PointsState::Current : PointsState::Outdated;
}

} // namespace palx
