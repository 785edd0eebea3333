#include "stack/shared_lists.h"

#include "stack/tool_record.h"

namespace palx {

using orba::ModuleObject;
using orba::Node;

namespace {

/// Adds to `target` what `wanted` has and it lacks. Returns whether something was added.
bool complete(ModuleObject *target, const Node &wanted)
{
    bool isAdded = false;
    for (int i = 0; i < wanted.size(); ++i) {
        const Node &part = *wanted.at(i);
        ModuleObject *own = target->c(part.name().toString());
        if (own->isEmptyMobj()) {
            target->ensure(part.name().toString())->copyFrom(part);
            isAdded = true;
        } else if (part.kind() == Node::Kind::Map) {
            isAdded = complete(own, part) || isAdded;
        }
    }
    return isAdded;
}

bool completeList(ModuleObject *list, const QVector<Node> &wanted)
{
    bool isAdded = false;
    for (int i = 0; i < wanted.size(); ++i) {
        if (i >= list->cmobjCount()) {
            list->add(QString())->copyFrom(wanted[i]);
            isAdded = true;
        } else {
            isAdded = complete(list->cmobj(i), wanted[i]) || isAdded;
        }
    }
    return isAdded;
}

void addNumbers(Node *node, const QString &path, std::initializer_list<const char16_t *> keys)
{
    for (const char16_t *key : keys)
        node->ensure(path + QLatin1Char('.') + QString::fromUtf16(key))->setInt(0);
}

Node named(const char *name)
{
    Node node;
    node.ensure(u"name")->setString(QString::fromLatin1(name));
    return node;
}

Node tool(const char *name)
{
    Node node = named(name);
    for (int i = 0; i < kToolNumbers; ++i)
        node.ensure(orba::Path(toolNumber(ToolKeeper::Shared, i).path))->setDouble(0);
    addNumbers(&node, QStringLiteral("load"), {u"length", u"width"});
    const double moment[] = {0, 0, 0};
    node.ensure(u"load.moment")->setDoubles(moment, 3);
    for (const char16_t *touch : {u"ref_p", u"rotate_p"})
        node.ensure(u"tool")->add(orba::Name(touch));
    return node;
}

Node incoming()
{
    Node node = named("IncomingData");
    addNumbers(&node, QStringLiteral("incoming_settings"),
               {u"incoming_product_direction", u"incoming_conveyor_line_direction",
                u"incoming_product_number", u"origin_position"});
    for (const char16_t *corner : {u"bottom_left_node", u"bottom_right_node"})
        node.ensure(u"incoming_settings")->add(orba::Name(corner));
    return node;
}

Node wayPoints()
{
    Node node = named("WayPointData");
    addNumbers(&node, QStringLiteral("waypoint_settings.get"),
               {u"enter_x", u"enter_y", u"enter_h", u"ready_h", u"approach_h", u"retract_h"});
    for (const char *side : {"waypoint_settings.put.left_offsets", "waypoint_settings.put.right_offsets"})
        addNumbers(&node, QLatin1String(side),
                   {u"enter_x", u"enter_y", u"enter_h", u"ready_h", u"approach_h", u"retract_h", u"exit_h"});
    return node;
}

Node workObject(const char *name)
{
    Node node = named(name);
    for (const char16_t *key : {u"calibration_method", u"towards", u"wobj_x", u"wobj_y"})
        node.ensure(key)->setInt(0);
    for (const char16_t *origin : {u"left_origin_point", u"right_origin_point"})
        node.add(orba::Name(origin));
    return node;
}

} // namespace

bool usesSharedLists(const Node &stack)
{
    return stack.getBool(u"use_global_tool") || stack.getBool(u"use_global_wobj");
}

QVector<Node> sharedToolEntries()
{
    return {tool("PalletTool1"), tool("PalletTool2"), incoming(), wayPoints()};
}

QVector<Node> sharedWobjEntries()
{
    return {workObject("PalletWobj1"), workObject("PalletWobj2")};
}

bool ensureSharedLists(ModuleObject *stack)
{
    if (!usesSharedLists(stack->node()))
        return false;
    ModuleObject *plugin = stack->p(1);
    const bool isAdded = completeList(plugin->ensure("global_tool"), sharedToolEntries());
    return completeList(plugin->ensure("global_wobj"), sharedWobjEntries()) || isAdded;
}

} // namespace palx
