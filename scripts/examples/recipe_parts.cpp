#include "recipe_parts.h"

#include "workstation/plugin_node.h"

namespace examples {
namespace {

constexpr double kPi = 3.141592653589793;

struct Axis
{
    double start, pitch, extent;
    bool fromFar;
    double total;
    /// Centre of the n-th box along this axis.
    double centre(int n) const
    {
        const double low = start + n * pitch + extent / 2;
        return fromFar ? total - low : low;
    }
};

/// As many boxes of that extent as fit across, the block centred.
int fitting(double total, double extent, double gap)
{
    return int((total + gap) / (extent + gap));
}

Axis across(double total, double extent, double gap, bool fromFar)
{
    const int n = fitting(total, extent, gap);
    return {(total - n * (extent + gap) + gap) / 2, extent + gap, extent, fromFar, total};
}

double rowThickness(const Box &box, bool turned)
{
    return turned ? box.width : box.length;
}

double rowsLength(const Recipe &recipe, const RowPattern &pattern)
{
    double length = -recipe.gap;
    for (bool turned : pattern.turnedRows)
        length += rowThickness(recipe.product, turned) + recipe.gap;
    return length;
}

void addItem(orba::Node &pattern, const Recipe &recipe, double x, double y, bool turned)
{
    const int index = pattern.size() + 1;
    const bool shifted = recipe.laying.offset > 0;
    fill(*pattern.add(), {{"x", x},
                          {"y", y},
                          {"w", recipe.product.width},
                          {"h", recipe.product.length},
                          {"r", turned ? 90 : 0},
                          {"index", index},
                          {"orient", 0},
                          {"direction", shifted ? recipe.laying.direction : QStringLiteral("Middle")},
                          {"dx", recipe.laying.offset},
                          {"dy", recipe.laying.offset},
                          {"dz", 0}});
}

void addPattern(orba::Node &patterns, const Recipe &recipe, const RowPattern &rows, const orba::Node &pallet)
{
    const double length = pallet.getDouble(u"length");
    const double width = pallet.getDouble(u"width");
    orba::Node &pattern = *patterns.ensureChild(orba::Name(rows.name));
    double low = (length - rowsLength(recipe, rows)) / 2;
    for (bool turned : rows.turnedRows) {
        const double extent = turned ? recipe.product.length : recipe.product.width;
        const double thickness = rowThickness(recipe.product, turned);
        const Axis row = across(width, extent, recipe.gap, recipe.laying.fromFarWidth);
        const double y = low + thickness / 2;
        for (int n = 0; n < fitting(width, extent, recipe.gap); ++n)
            addItem(pattern, recipe, row.centre(n), recipe.laying.fromFarLength ? length - y : y, turned);
        low += thickness + recipe.gap;
    }
}

void addProduct(orba::Node &stack, const Recipe &recipe)
{
    const Box &box = recipe.product;
    fill(stack, {{"product_cfg.product.length", box.length},
                 {"product_cfg.product.width", box.width},
                 {"product_cfg.product.height", box.height},
                 {"product_cfg.product.weight", box.weightKg},
                 {"automatic_stacker.min_product_spacing", recipe.gap},
                 {"pallet_position", recipe.palletPosition}});
}

void addPallet(orba::Node &stack, const Recipe &recipe, const orba::Node &preset)
{
    const int length = int(preset.getInt(u"length"));
    const int width = int(preset.getInt(u"width"));
    fill(stack, {{"product_cfg.pallet.length", length},
                 {"product_cfg.pallet.width", width},
                 {"product_cfg.pallet.height", int(preset.getInt(u"height"))},
                 {"product_cfg.pallet.specification", recipe.palletPreset + 1},
                 {"product_cfg.pallet.weight", 25}});
    if (recipe.sheetHeight > 0) {
        fill(stack, {{"product_cfg.clapboard.enabled", 1},
                     {"product_cfg.clapboard.height", recipe.sheetHeight},
                     {"product_cfg.clapboard.length", length},
                     {"product_cfg.clapboard.width", width},
                     {"product_cfg.clapboard.weight", 1.2}});
    }
}

/// The pallet frame lies on the pallet's top: x along its length, y along its width. The right pallet's frame
/// is the left one's turned by half a turn about the robot's foot.
void teachFrame(orba::Node &stack, bool right)
{
    const double side = right ? -1 : 1;
    const double originX = right ? 1.0 : -0.2;
    const double originY = side * 0.65;
    const std::array<double, 6> joints{side * 1.2862, -0.4215, 1.6128, 0, 0.3795, 0};
    teach(stack, "calibrate.p1", {originX, originY, -0.45, 0, joints});
    teach(stack, "calibrate.p2", {originX + side * 1.1, originY, -0.45, 0, joints});
    teach(stack, "calibrate.p3", {originX + side * 0.1, originY + side * 0.7, -0.45, 0, joints});
    fill(stack, {{"calibrate.calibration_method", 0}});
}

void teachSide(orba::Node &wobj, const char *name, bool right)
{
    const double side = right ? -1 : 1;
    const std::array<double, 6> joints{side * 0.6435, -0.1745, 1.309, 0, 0.4363, 0};
    fill(wobj, {{"name", QString::fromLatin1(name)},
                {"calibration_method", 1},
                {"towards", 0},
                {"wobj_x", 0},
                {"wobj_y", 0}});
    // The floor beside the robot's pedestal; the pallet height is added by the generation.
    teach(wobj, "left_origin_point", right ? Taught{0, 0, 0} : Taught{0.95, 0.75, -0.6, 0, joints});
    teach(wobj, "right_origin_point", right ? Taught{0.95, -0.75, -0.6, 0, joints} : Taught{0, 0, 0});
}

void addIncoming(orba::Node &entry)
{
    orba::Node &incoming = *entry.ensure(u"incoming_settings");
    fill(entry, {{"name", QStringLiteral("IncomingData")}});
    fill(incoming, {{"incoming_product_direction", 0},
                    {"incoming_conveyor_line_direction", 0},
                    {"incoming_product_number", 1},
                    {"origin_position", 0}});
    teach(incoming, "bottom_left_node",
          {1.3, -0.16, -0.05, 0, {-0.1221, -0.2618, 1.4312, 0, 0.4014, -0.1221}});
    teach(incoming, "bottom_right_node", {1.3, 0.16, -0.05, 0, {0.1221, -0.2618, 1.4312, 0, 0.4014, 0.1221}});
}

void addWayPoints(orba::Node &entry)
{
    orba::Node &settings = *entry.ensure(u"waypoint_settings");
    fill(entry, {{"name", QStringLiteral("WayPointData")}});
    fill(settings, {{"get.enter_x", -150},
                    {"get.enter_y", 0},
                    {"get.enter_h", 450},
                    {"get.ready_h", 300},
                    {"get.approach_h", 80},
                    {"get.retract_h", 350}});
    for (const char *side : {"put.left_offsets", "put.right_offsets"}) {
        fill(*settings.ensure(QString::fromLatin1(side)), {{"enter_x", 60},
                                                           {"enter_y", 40},
                                                           {"enter_h", 350},
                                                           {"ready_h", 120},
                                                           {"approach_h", 60},
                                                           {"retract_h", 180},
                                                           {"exit_h", 320}});
    }
}

} // namespace

void fill(orba::Node &node, const QVector<Value> &values)
{
    for (const Value &value : values)
        node.ensure(orba::Path(value.path))->setValue(value.value);
}

void teach(orba::Node &node, const char *path, const Taught &point)
{
    orba::Node &record = *node.ensure(orba::Path(path));
    palx::makePointRecord(record);
    const double trans[] = {point.x, point.y, point.z};
    const double rot[] = {kPi, 0, point.turn};
    record.find(u"trans")->setDoubles(trans, 3);
    record.find(u"rot")->setDoubles(rot, 3);
    record.find(u"near")->setDoubles(point.joints.data(), int(point.joints.size()));
}

void addGripper(orba::Node &toolset, double reachM, double massKg)
{
    palx::ensureToolsetRecord(toolset);
    const double end[] = {0, 0, reachM};
    const double cog[] = {0, 0, reachM / 2};
    const double inertia[] = {0.32, 0.32, 0.18};
    toolset.find(u"end.trans")->setDoubles(end, 3);
    toolset.find(u"load.cog")->setDoubles(cog, 3);
    toolset.find(u"load.inertia")->setDoubles(inertia, 3);
    fill(toolset, {{"load.mass", massKg}});
}

orba::Node makeStack(const orba::Node &pluginTemplate, const Recipe &recipe)
{
    orba::Node stack;
    stack.assign(*pluginTemplate.child(u"default"));
    fill(stack, {{"name", recipe.name}, {"desc", recipe.desc}});
    addProduct(stack, recipe);
    const orba::Node *presets = pluginTemplate.child(u"pallet_cfg");
    addPallet(stack, recipe, *presets->at(recipe.palletPreset));
    orba::Node &patterns = *stack.ensure(u"patterns");
    for (const RowPattern &rows : recipe.patterns)
        addPattern(patterns, recipe, rows, *stack.find(u"product_cfg.pallet"));
    orba::Node &layers = *stack.ensure(u"layers");
    for (const QString &layer : recipe.layers)
        fill(*layers.add(), {{"pattern", layer}, {"h_offset", 0}});
    fill(stack, {{"put.approach_h", 60}, {"put.exit_h", 320}, {"put.ready_h", 150}, {"put.retract_h", 180}});
    fill(stack, {{"get.approach_h", 80}, {"get.ready_h", 300}, {"get.retract_h", 350}});
    return stack;
}

void teachOwnCell(orba::Node &stack, const Recipe &recipe)
{
    const bool right = recipe.palletPosition == 1;
    const double side = right ? -1 : 1;
    const double boxTop = recipe.product.height / 1000.0;
    teachFrame(stack, right);
    addGripper(*stack.ensure(u"toolset"), 0.285, 14.5);
    teach(stack, "tool.ref_p", {0.92, 0.31, 0.12, 0, {0.3249, -0.3142, 1.4661, 0, 0.4189, 0.3249}});
    teach(stack, "tool.rotate_p", {0.92, 0.31, 0.12, kPi / 2, {0.3249, -0.3142, 1.4661, 0, 0.4189, -1.2459}});
    // In the pallet frame: the gripper stands on a box that stands on the pallet. The way in leads over the corner that
    // lies towards the conveyor, so that a box comes over places that are still free.
    const double corner = right ? -0.05 : recipe.palletPreset == 4 ? 1.15 : 1.25;
    teach(stack, "put.put_p", {0.2, 0.15, boxTop, 0, {side * 1.1345, -0.3491, 1.5359, 0, 0.384, 0}});
    teach(stack, "put.enter_p",
          {corner, -0.25, boxTop + 0.4, 0, {side * 0.7854, -0.5236, 1.2217, 0, 0.8727, 0}});
    // In the robot's base frame: the gripper on the box at the end of the conveyor.
    teach(stack, "get.get_p", {1.35, 0, boxTop - 0.05, 0, {0, -0.192, 1.3788, 0, 0.384, 0}});
    teach(stack, "get.enter_p", {1.15, 0, boxTop + 0.45, 0, {0, -0.4887, 1.0996, 0, 0.9599, 0}});
}

void teachGlobalCell(orba::Node &plugin)
{
    orba::Node &tools = *plugin.child(u"global_tool");
    for (const char *name : {"PalletTool1", "PalletTool2"}) {
        orba::Node &tool = *tools.add();
        fill(tool, {{"name", QString::fromLatin1(name)}});
        addGripper(tool, 0.31, 16);
        fill(tool, {{"frame.pos.x", 0.0}, {"frame.pos.y", 0.0}, {"frame.pos.z", 0.31}});
        // The box in the gripper while the pallets' origin points were taught.
        fill(tool, {{"load.length", 380}, {"load.width", 260}});
    }
    addIncoming(*tools.add());
    addWayPoints(*tools.add());
    orba::Node &wobjs = *plugin.child(u"global_wobj");
    teachSide(*wobjs.add(), "PalletWobj1", false);
    teachSide(*wobjs.add(), "PalletWobj2", true);
}

} // namespace examples
