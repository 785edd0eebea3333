#include "stack/put_points.h"
#include "stack/way_points.h"

#include "stack/put_pass.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <vector>

using orba::ModuleObject;
using orba::Node;

namespace {

constexpr double kPi = 3.141592653589793;
using Vec = std::array<double, 3>;
using Points = std::vector<std::pair<const char *, Vec>>;

Vec transOf(const Node &point)
{
    const Node *trans = point.child(u"trans");
    return trans ? Vec{trans->number(0), trans->number(1), trans->number(2)} : Vec{-99, -99, -99};
}

Vec trans(ModuleObject *stack, const char *path)
{
    const Node *point = stack->node().find(orba::Path(path));
    return point ? transOf(*point) : Vec{-99, -99, -99};
}

::testing::AssertionResult near(const Vec &a, const Vec &b)
{
    for (std::size_t i = 0; i < 3; ++i)
        if (std::abs(a[i] - b[i]) > 1e-12) // some ulps of metres
            return ::testing::AssertionFailure()
                   << ::testing::PrintToString(a) << " against " << ::testing::PrintToString(b);
    return ::testing::AssertionSuccess();
}

void setPoint(ModuleObject *root, const char *path, const QByteArray &json)
{
    root->node().ensure(orba::Path(path))->assign(nodeFromJson(json));
}

void expectPoints(ModuleObject *stack, const Points &expected)
{
    for (const auto &[path, at] : expected)
        EXPECT_TRUE(near(trans(stack, path), at)) << path;
}

/// An own-calibrated stack: product 300 x 200 x 100 on 1200 x 800, pattern "A" with two items.
const char *const kOwnStack = R"({
    "product_cfg.product.length": 300, "product_cfg.product.width": 200, "product_cfg.product.height": 100,
    "product_cfg.pallet.length": 1200, "product_cfg.pallet.width": 800,
    "put.ready_h": 50, "put.approach_h": 30, "put.retract_h": 40, "put.exit_h": 60,
    "get.ready_h": 100, "get.approach_h": 20, "get.retract_h": 10,
    "patterns": {
        "A": [{"x": 100, "y": 150, "r": 0, "direction": "Middle"},
              {"x": 250.5, "y": 350, "r": 90, "direction": "TopRight", "dx": 10, "dy": 20, "dz": 5}],
        "B": [{"x": 400, "y": 600, "r": 180, "direction": "Left", "dx": 7, "dy": 8}]},
    "layers": [{"pattern": "A", "h_offset": 0}, {"pattern": "B", "h_offset": 2}, {"pattern": "A", "h_offset": 0}]
})";

ModuleObject *ownStack(ModuleObject *plugin, const QByteArray &more = "{}")
{
    ModuleObject *stack = addTestStack(plugin, kOwnStack);
    setPoint(stack, "put.put_p", pointJson(0.1, 0.2, 0.3, 0.4));
    setPoint(stack, "put.enter_p", pointJson(1, 2, 1.5, 0.7));
    setPoint(stack, "get.get_p", pointJson(0.6, -0.5, 0.5, 0.2));
    setPoint(stack, "get.enter_p", pointJson(0.6, -0.5, 1.2));
    applyPaths(stack->node(), more.constData());
    return stack;
}

} // namespace

TEST(Directions, ShiftReadyPointAndMirrorAllButTheMiddle)
{
    const struct
    {
        const char *direction;
        double ox, oy, mirroredOx, mirroredOy;
    } cases[] = {{"Top", 0.01, 0, -0.01, 0},
                 {"Bottom", -0.01, 0, 0.01, 0},
                 {"Left", 0, 0.02, 0, -0.02},
                 {"Right", 0, -0.02, 0, 0.02},
                 {"TopLeft", 0.01, 0.02, -0.01, -0.02},
                 {"TopRight", 0.01, -0.02, -0.01, 0.02},
                 {"BottomLeft", -0.01, 0.02, 0.01, -0.02},
                 {"BottomRight", -0.01, -0.02, 0.01, 0.02},
                 {"Middle", 0.01, 0.02, 0.01, 0.02},
                 {"top", 0.01, 0.02, 0.01, 0.02}};
    const int towards[][2] = {{0, 0}, {1, 1}, {0, 1}, {1, 0}};
    for (const auto &one : cases) {
        for (const auto &t : towards) {
            palx::PalletSide side;
            side.towards[0] = t[0];
            side.towards[1] = t[1];
            double ox = -1, oy = -1;
            palx::readyShift(QString::fromLatin1(one.direction), 10, 20, side, &ox, &oy);
            const bool plain = t[0] == 0 && t[1] == 0;
            EXPECT_EQ(ox, plain ? one.ox : one.mirroredOx) << one.direction << t[0] << t[1];
            EXPECT_EQ(oy, plain ? one.oy : one.mirroredOy) << one.direction << t[0] << t[1];
        }
    }
}

TEST(ItemPose, TurnsAndExchangesAxes)
{
    const auto plugin = makePluginTree();
    ModuleObject *stack = ownStack(plugin.get());
    const struct
    {
        const char *turn;
        double degrees;
    } cases[] = {{"0", 0},    {"90", -90},  {"-90", 90}, {"180", 180},  {"-180", 180},
                 {"270", 90}, {"450", -90}, {"720", 0},  {"45.9", -45}, {"-450", 90}};
    for (const auto &one : cases) {
        ModuleObject item("item");
        item.copyFrom(nodeFromJson(R"({"x":100,"y":150,"r":)" + QByteArray(one.turn) + "}"));
        double x = 7, y = 7, rz = 7;
        palx::calCoordiate(stack, &item, x, y, rz);
        EXPECT_EQ(x, 0.15);
        EXPECT_EQ(y, 0.1);
        EXPECT_DOUBLE_EQ(rz, one.degrees * kPi / 180) << one.turn;
    }
}

TEST(OwnFrame, PutPointsOfEveryLayer)
{
    const auto plugin = makePluginTree();
    ModuleObject *stack = ownStack(plugin.get());
    palx::genStackWayPoints(stack);
    const Points expected = {
        // heights of the put node above 0.3
        {"points.put.#0.#0.put_p", {0.15, 0.1, 0.3}},
        {"points.put.#0.#0.enter_p", {1, 2, 1.5}},
        {"points.put.#0.#0.ready_p", {0.15, 0.1, 0.35}},
        {"points.put.#0.#0.approach_p", {0.15, 0.1, 0.33}},
        {"points.put.#0.#0.retract_p", {0.15, 0.1, 0.34}},
        {"points.put.#0.#0.exit_p", {0.15, 0.1, 0.36}},
        // comes in from top right with dz 5
        {"points.put.#0.#1.ready_p", {0.36, 0.2305, 0.355}},
        // stands on 100 mm and its own offset of 2
        {"points.put.#1.#0.put_p", {0.6, 0.4, 0.402}},
        {"points.put.#1.#0.ready_p", {0.6, 0.408, 0.452}},
        // the last layer: 20 mm above, whatever the heights and dz
        {"points.put.#2.#1.put_p", {0.35, 0.2505, 0.502}},
        {"points.put.#2.#1.ready_p", {0.36, 0.2305, 0.522}},
        {"points.put.#2.#1.exit_p", {0.35, 0.2505, 0.522}},
        // pick side
        {"get.get_p", {0.6, -0.5, 0.5}},
        {"get.enter_p", {0.6, -0.5, 1.2}},
        {"get.ready_p", {0.6, -0.5, 0.6}},
        {"get.approach_p", {0.6, -0.5, 0.52}},
        {"get.retract_p", {0.6, -0.5, 0.51}},
    };
    expectPoints(stack, expected);
    EXPECT_DOUBLE_EQ(stack->getDouble("points.put.#0.#1.put_p.rot.#2"), 0.4 - kPi / 2);
    EXPECT_DOUBLE_EQ(stack->getDouble("points.put.#0.#1.enter_p.rot.#2"), 0.7);
    EXPECT_EQ(stack->getDouble("points.put.#0.#1.put_p.rot.#0"), 3);
    EXPECT_EQ(stack->getInt("put.ready_h"), 50); // heights are the operator's own here

    const Node first(stack->node());
    const Node &product = *first.find(u"points.put.#0.#0");
    QStringList names;
    for (int i = 0; i < product.size(); ++i)
        names << product.at(i)->name().toString();
    EXPECT_EQ(names.join(' '), "enter_p ready_p approach_p put_p retract_p exit_p");
    EXPECT_EQ(*product.find(u"put_p.near"), nodeFromJson("[1.0,2.0,3.0,4.0,5.0,6.0]"));
    EXPECT_EQ(*product.find(u"put_p.conf"), nodeFromJson("[8.0,7.0,6.0,5.0,4.0,3.0,2.0,1.0]"));
    palx::genStackWayPoints(stack);
    EXPECT_EQ(stack->node(), first) << "again gives the same";
}

TEST(OwnFrame, LayersEndAtBlankSkipEmptyAndCarrySheets)
{
    const struct
    {
        const char *layers;
        QByteArray products; // per layer
        int layersLeft;
        double lastZ; // of the last layer's first put point above the taught 0.3
    } cases[] = {
        {R"([{"pattern":"A"},{"pattern":"empty"},{"pattern":"B"}])", "2 1", 2, 0.1},
        {R"([{"pattern":"A"},{"pattern":""},{"pattern":"B"}])", "2", 3, 0},
        {R"([{"pattern":"A"},{"pattern":"clapboard","h_offset":4},{"pattern":"B"}])", "2 1 1", 3, 0.107},
        {R"([{"pattern":"?"},{"pattern":"B"}])", "0 1", 2, 0.1}, // no such pattern, but it has its height
        {R"([{"pattern":"B","h_offset":1},{"pattern":"B","h_offset":-2.5}])", "1 1", 2, 0.0985},
        {R"([{"pattern":"empty"},{"pattern":"empty"}])", "", 0, -0.3},
    };
    for (const auto &one : cases) {
        const auto plugin = makePluginTree();
        ModuleObject *stack = ownStack(plugin.get(), R"({"product_cfg.clapboard.height":3,"layers":)" +
                                                         QByteArray(one.layers) + "}");
        palx::genStackWayPoints(stack);
        QByteArray products;
        double lastZ = -0.3;
        for (ModuleObject *layer : stack->r("points.put")->cmobjs()) {
            products += (products.isEmpty() ? "" : " ") + QByteArray::number(layer->cmobjCount());
            lastZ = layer->getDouble("#0.put_p.trans.#2") - 0.3;
        }
        EXPECT_EQ(products, one.products) << one.layers;
        EXPECT_EQ(stack->r("layers")->cmobjCount(), one.layersLeft) << one.layers;
        EXPECT_NEAR(lastZ, one.lastZ, 1e-12) << one.layers;
    }
}

TEST(OwnFrame, SheetLiesInTheMiddleWithOperatorsHeightsEvenOnTop)
{
    const auto plugin = makePluginTree();
    ModuleObject *stack =
        ownStack(plugin.get(),
                 R"({"layers":[{"pattern":"A"},{"pattern":"clapboard"}],"product_cfg.clapboard.height":3})");
    palx::genStackWayPoints(stack);
    expectPoints(stack, {{"points.put.#1.#0.put_p", {0.6, 0.4, 0.4}},
                         {"points.put.#1.#0.ready_p", {0.6, 0.4, 0.45}},
                         {"points.put.#1.#0.exit_p", {0.6, 0.4, 0.46}},
                         {"points.put.#0.#0.exit_p", {0.15, 0.1, 0.36}}}); // not the last layer
    EXPECT_DOUBLE_EQ(stack->getDouble("points.put.#1.#0.put_p.rot.#2"), 0.4);
}

TEST(OwnFrame, UntaughtAndShortRecordsReadZero)
{
    const auto plugin = makePluginTree();
    ModuleObject *stack = ownStack(plugin.get(), R"({
        "put.put_p": null, "put.enter_p": {"trans": [1]}, "get.get_p": {"trans": [0.5]}, "get.ready_p": "text",
        "layers": [{"pattern": "B"}, {"pattern": "B"}]})");
    palx::genStackWayPoints(stack);
    expectPoints(stack, {{"points.put.#0.#0.put_p", {0.6, 0.4, 0}},
                         {"points.put.#1.#0.enter_p", {1, 0, 0.1}},
                         {"get.ready_p", {0.5, 0, 0.1}}});
    EXPECT_EQ(stack->r("points.put.#0.#0.put_p.conf")->cmobjCount(), 8);
}

namespace {

struct Side
{
    int towards0, towards1, position;
};

const char *const kGlobals = R"({
    "global_tool": [{"load": {"length": 400, "width": 300}}, {},
        {"incoming_settings": {"origin_position": 0, "incoming_product_direction": 0,
                               "incoming_conveyor_line_direction": 0}},
        {"waypoint_settings": {
            "get": {"approach_h": 15, "enter_x": 100, "enter_y": -200, "enter_h": 300},
            "put": {"left_offsets": {"enter_x": 11, "enter_y": 12, "enter_h": 200, "ready_h": 60,
                                     "approach_h": 61, "retract_h": 62, "exit_h": 63},
                    "right_offsets": {"enter_x": 21, "enter_y": 22, "enter_h": 300, "ready_h": 70,
                                      "approach_h": 71, "retract_h": 72, "exit_h": 73}}}}],
    "global_wobj": [{"calibration_method": 1}, {"calibration_method": 1}]
})";

/// A plugin node with one-point calibrated work objects and waypoint settings.
std::unique_ptr<ModuleObject> globalPlugin(const Side &side)
{
    auto plugin = makePluginTree();
    applyPaths(plugin->node(), kGlobals);
    setPoint(plugin.get(), "global_tool.#2.incoming_settings.bottom_left_node", pointJson(2, 3, 0.4, 0.1));
    setPoint(plugin.get(), "global_tool.#2.incoming_settings.bottom_right_node", pointJson(4, 5, 0.45, 0.2));
    setPoint(plugin.get(), "global_wobj.#0.left_origin_point", pointJson(1, 0.5, 0.2, 0.3));
    setPoint(plugin.get(), "global_wobj.#1.right_origin_point", pointJson(1.1, -0.5, 0.25, 0.6));
    plugin->node().ensure(u"global_wobj.#0.towards")->setInt(side.towards0);
    plugin->node().ensure(u"global_wobj.#1.towards")->setInt(side.towards1);
    return plugin;
}

ModuleObject *globalStack(ModuleObject *plugin, const Side &side, const QByteArray &more = "{}")
{
    ModuleObject *stack = ownStack(plugin, R"({"use_global_wobj":true,"product_cfg.pallet.height":150})");
    stack->node().ensure(u"pallet_position")->setInt(side.position);
    applyPaths(stack->node(), more.constData());
    return stack;
}

} // namespace

TEST(OnePoint, OriginPutAndEnterPointsOfEverySide)
{
    const Vec left{1, 0.5, 0.2};
    const Vec right{1.1, -0.5, 0.25};
    const struct
    {
        Side side;
        Vec taught, real, diagonal;
        Vec put;   // first layer: origin z + 0.15 + 0.1
        Vec enter; // height: enter_h + product + put height, or the pick side's approach
    } cases[] = {
        {{0, 0, 0}, left, {1.2, 0.35, 0.2}, {0, 1.15, 0.2}, {1.05, 1.05, 0.45}, {1.391, 0.762, 0.75}},
        {{0, 0, 1}, right, {1.3, -0.35, 0.25}, {0.1, -1.15, 0.25}, {1.15, -0.45, 0.5}, {1.501, -0.35, 0.9}},
        {{1, 1, 0}, left, {0.8, 0.65, 0.2}, {2, -0.15, 0.2}, {0.95, -0.05, 0.45}, {0.609, 0.238, 0.75}},
        {{1, 1, 1}, right, {0.9, -0.65, 0.25}, {2.1, 0.15, 0.25}, {1.05, -0.55, 0.5}, {0.699, -0.65, 0.9}},
        {{0, 1, 0}, left, {0, 0, 0.2}, {0, 0, 0.2}, {0, 0, 0.45}, {0, 0, 0.2}},
        {{0, 0, 2}, {-99, -99, -99}, {0, 0, 0}, {0, 0, 0}, {1.05, 0.7, 0.25}, {0, 0, 0}},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2").arg(one.side.towards0).arg(one.side.position).toStdString());
        const auto plugin = globalPlugin(one.side);
        ModuleObject *stack = globalStack(plugin.get(), one.side);
        EXPECT_EQ(transOf(palx::getOriginPoint(stack, 0)->node()), one.taught);
        const std::unique_ptr<ModuleObject> real(palx::getOriginPoint(stack, 1));
        const std::unique_ptr<ModuleObject> diagonal(palx::getOriginPoint(stack, 2));
        EXPECT_TRUE(near(transOf(real->node()), one.real));
        EXPECT_TRUE(near(transOf(diagonal->node()), one.diagonal));
        palx::genStackWayPoints(stack);
        EXPECT_TRUE(near(trans(stack, "points.put.#0.#0.put_p"), one.put));
        EXPECT_TRUE(near(trans(stack, "points.put.#0.#0.enter_p"), one.enter));
    }
    const auto plugin = globalPlugin({0, 0, 0});
    ModuleObject *high = globalStack(plugin.get(), {0, 0, 0}, R"({"get.approach_h":1000})"); // at 1.5
    palx::genStackWayPoints(high);
    EXPECT_DOUBLE_EQ(trans(high, "points.put.#0.#0.enter_p")[2], 1.5) << "above the pick side";
    plugin->node().set(u"global_wobj.#1.calibration_method", 3);
    EXPECT_FALSE(palx::isGlobalWObjCalibrationMethodOne(high));
}

TEST(OnePoint, HeightsOfTheSidePersistAndTheSecondToLastLayerDiffers)
{
    const auto plugin = globalPlugin({0, 0, 1});
    ModuleObject *stack = globalStack(plugin.get(), {0, 0, 1});
    palx::genStackWayPoints(stack);
    const auto above = [&](const QByteArray &layer) { // over its own put point, in whole millimetres
        const double z = trans(stack, (layer + ".put_p").constData())[2];
        std::array<long, 4> heights{};
        const char *const points[] = {".ready_p", ".approach_p", ".retract_p", ".exit_p"};
        for (std::size_t i = 0; i < 4; ++i)
            heights[i] = std::lround((trans(stack, (layer + points[i]).constData())[2] - z) * 1000);
        return heights;
    };
    EXPECT_EQ(above("points.put.#0.#0"), (std::array<long, 4>{170, 71, 72, 73}));
    EXPECT_EQ(above("points.put.#1.#0"), (std::array<long, 4>{70, 71, 72, 73})); // second to last
    EXPECT_EQ(above("points.put.#2.#0"), (std::array<long, 4>{20, 20, 20, 20}));
    EXPECT_EQ(stack->getDouble("put.ready_h"), 170); // written again by the last layer
    EXPECT_EQ(stack->getDouble("put.exit_h"), 73);
    EXPECT_DOUBLE_EQ(stack->getDouble("points.put.#0.#1.enter_p.rot.#2"), 0.6 - kPi / 2);
}

TEST(GlobalPick, FollowsConveyorCornerAndProduct)
{
    const struct
    {
        int origin, product, conveyor, towards;
        Vec get;
        double c;
    } cases[] = {
        // corner left (2,3,0.4), right (4,5,0.45); product 300 x 200 x 100
        {0, 0, 0, 0, {2.15, 3.1, 0.5}, 0.1},  {0, 0, 0, 1, {1.85, 3.1, 0.5}, 0.1},
        {1, 0, 0, 0, {4.15, 4.9, 0.55}, 0.2}, {0, 1, 0, 0, {2.1, 3.15, 0.5}, 0.1 + kPi / 2},
        {0, 0, 1, 0, {2.1, 3.15, 0.5}, 0.1},  {1, 1, 1, 1, {3.85, 4.9, 0.55}, 0.2 + kPi / 2},
    };
    for (const auto &one : cases) {
        const Side side{one.towards, one.towards, 0};
        const auto plugin = globalPlugin(side);
        Node &incoming = *plugin->node().find(u"global_tool.#2.incoming_settings");
        incoming.set(u"origin_position", one.origin);
        incoming.set(u"incoming_product_direction", one.product);
        incoming.set(u"incoming_conveyor_line_direction", one.conveyor);
        ModuleObject *stack = globalStack(plugin.get(), side, R"({"use_global_tool":true})");
        palx::genStackWayPoints(stack);
        EXPECT_TRUE(near(trans(stack, "get.get_p"), one.get)) << one.origin << one.product << one.conveyor;
        EXPECT_DOUBLE_EQ(stack->getDouble("get.get_p.rot.#2"), one.c);
        const auto &[x, y, z] = one.get;
        expectPoints(stack,
                     {{"get.enter_p", {x + 0.1, y - 0.2, z + 0.3}}, {"get.approach_p", {x, y, z + 0.115}}});
        EXPECT_EQ(stack->getDouble("get.approach_h"), 115);
    }
}

TEST(GlobalPick, EnterRisesAboveAHighPalletOrigin)
{
    const auto plugin = globalPlugin({0, 0, 0});
    plugin->set(nullptr, "global_wobj.#0.left_origin_point.trans.#2", 0.9);
    ModuleObject *stack = globalStack(plugin.get(), {0, 0, 0}, R"({"use_global_tool":true})");
    palx::genStackWayPoints(stack);
    EXPECT_NEAR(trans(stack, "get.enter_p")[2], 1.2, 1e-12);
}

TEST(GlobalPick, EnterRisesAboveAHighPalletOriginAndSurvivesMissingSettings)
{
    const Side side{0, 0, 0};
    auto plugin = globalPlugin(side);
    plugin->set(nullptr, "global_wobj.#0.left_origin_point.trans.#2", 0.9);
    ModuleObject *stack = globalStack(plugin.get(), side, R"({"use_global_tool":true})");
    palx::genStackWayPoints(stack);
    EXPECT_NEAR(trans(stack, "get.enter_p")[2], 1.2, 1e-12);

    plugin = makePluginTree(); // both global lists empty
    stack = ownStack(plugin.get(), R"({"use_global_tool":true})");
    palx::genStackWayPoints(stack);
    EXPECT_TRUE(near(trans(stack, "get.get_p"), {0.15, 0.1, 0.1}));
    EXPECT_EQ(stack->getDouble("get.approach_h"), 100);
}
