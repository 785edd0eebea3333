#include "pattern/rules/approach.h"

#include "stack/recipe_patterns.h"
#include "stack/way_points.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <memory>

using orba::ModuleObject;
using orba::Node;

namespace {

struct FrameCase
{
    const char *what;
    bool onePoint;
    int towards, position;
};

const FrameCase kFrames[] = {{"own frame", false, 0, 0},      {"own frame, mirrored", false, 1, 0},
                             {"left, towards 0", true, 0, 0}, {"right, towards 0", true, 0, 1},
                             {"left, towards 1", true, 1, 0}, {"right, towards 1", true, 1, 1}};

/// A recipe of two layers (the last one has no shift of its own height) with one product, placed as the case
/// says.
ModuleObject *makeStack(ModuleObject *plugin, const FrameCase &frame)
{
    const QByteArray point = pointJson(0.5, 0.25, 0.75);
    for (const char *side : {"left_origin_point", "right_origin_point"}) {
        for (const int entry : {0, 1}) {
            const QString path = QStringLiteral("global_wobj.#%1.").arg(entry);
            plugin->node().ensure(path + QLatin1String(side))->assign(nodeFromJson(point.constData()));
            plugin->node().ensure(path + QLatin1String("towards"))->setInt(frame.towards);
            plugin->node().ensure(path + QLatin1String("calibration_method"))->setInt(1);
        }
    }
    ModuleObject *stack =
        addTestStack(plugin, R"({"product_cfg.product.height":100,"product_cfg.pallet.length":1200,
        "product_cfg.pallet.width":800,"layers":[{"pattern":"A"},{"pattern":"A"}],
        "patterns":{"A":[{"x":300,"y":500,"w":150,"h":200,"r":0,"index":1,"direction":"","dx":0,"dy":0,"dz":0}]}})");
    applyPaths(stack->node(), ("{\"put.put_p\":" + point + ",\"put.enter_p\":" + point + "}").constData());
    stack->node().ensure(u"use_global_wobj")->setBool(frame.onePoint);
    stack->node().ensure(u"pallet_position")->setInt(frame.position);
    return stack;
}

QPointF robotXy(ModuleObject *stack, const char *point)
{
    palx::genStackWayPoints(stack);
    const Node *trans =
        stack->node().find(QStringLiteral("points.put.#0.#0.%1.trans").arg(QLatin1String(point)));
    return trans ? QPointF(trans->number(0), trans->number(1)) : QPointF(-99, -99);
}

palx::Approach approachOf(ModuleObject *stack)
{
    const auto items = palx::readPatternItems(*stack->node().find(u"patterns.A"), 150, 200);
    return palx::approachOf(items.value(0), palx::readApproachFrame(stack->node()));
}

} // namespace

// The arrow on the plan is right when a product that lay at its tail would be put where the robot waits.
TEST(Approach, ShiftLeadsToWhereTheRobotWaits)
{
    for (const FrameCase &frame : kFrames) {
        for (const QString &direction : palx::directionNames()) {
            const auto plugin = makePluginTree();
            ModuleObject *stack = makeStack(plugin.get(), frame);
            Node &item = *stack->node().find(u"patterns.A.#0");
            item.set(u"direction", direction);
            item.set(u"dx", 70);
            item.set(u"dy", 40);
            const QPointF waits = robotXy(stack, "ready_p");
            const QPointF shift = approachOf(stack).shift;
            item.set(u"x", 300 + shift.x());
            item.set(u"y", 500 + shift.y());
            const QPointF put = robotXy(stack, "put_p");
            EXPECT_NEAR(waits.x(), put.x(), 1e-9) << frame.what << direction;
            EXPECT_NEAR(waits.y(), put.y(), 1e-9) << frame.what << direction;
        }
    }
}
