#include "stack/point_frame.h"
#include "stack/recipe_points.h"
#include "stack/tool_record.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

using ix::calc::Pose;
using ix::calc::Vector;
using orba::ModuleObject;
using orba::Node;

namespace {

constexpr double kPi = 3.141592653589793;

/// The pallet's x runs along the base's y from (1, 0.5, -0.4), moved by 100 mm; the tool reaches 0.25 m.
constexpr const char *kCalibrated =
    R"({"calibrate.p1": {"trans": [1.0, 0.5, -0.4], "rot": [3.141592653589793, 0.0, 0.0]},
        "calibrate.p2": {"trans": [1.0, 1.5, -0.4], "rot": [3.141592653589793, 0.0, 0.0]},
        "calibrate.p3": {"trans": [0.2, 0.7, -0.4], "rot": [3.141592653589793, 0.0, 0.0]},
        "calibrate.wobj_x": 100, "toolset.end": {"trans": [0.0, 0.0, 0.25], "rot": [0.0, 0.0, 0.0]},
        "put.put_p": {"trans": [0.2, 0.3, 0.1], "rot": [3.141592653589793, 0.0, 0.0]},
        "get.get_p": {"trans": [1.2, 0.0, 0.3], "rot": [3.141592653589793, 0.0, 0.0]},
        "tool.ref_p": {"trans": [1.2, 0.0, 0.3], "rot": [3.141592653589793, 0.0, 0.0]}})";
constexpr const char *kSharedTool = R"({"global_tool": [{"frame": {"pos": {"x": 0.0, "y": 0.0, "z": 0.3}},
    "incoming_settings": {"bottom_left_node": {"trans": [1.0, 0.0, 0.2], "rot": [3.141592653589793, 0.0, 0.0]}}}]})";

void expectAt(const Vector &wished, const Pose &pose)
{
    EXPECT_NEAR(0, (pose.translation() - wished).norm(), 1e-9) << pose.translation().transpose();
}

} // namespace

TEST(PointFrame, FollowsFromThePlaceOfTheRecord)
{
    const struct
    {
        const char *point, *changes;
        Vector flange; ///< where the flange stands for it, tool pointing down
        bool isOnPallet, isOfTool;
    } cases[] = {
        {"put.put_p", "{}", {0.7, 0.8, -0.05}, true, true},
        {"put.put_p", R"({"calibrate.calibration_method": 1})", {1.3, 0.8, -0.05}, true, true},
        {"put.put_p", R"({"calibrate.p1": null})", {0.2, 0.3, 0.35}, false, true},
        {"put.put_p",
         R"({"calibrate.p1": null, "toolset.ref": {"trans": [0.0, 1.0, 0.0], "rot": [0, 0, 0]}})",
         {0.2, 1.3, 0.35},
         true,
         true},
        {"put.put_p", R"({"use_global_wobj": true})", {0.2, 0.3, 0.35}, false, true},
        {"put.put_p", R"({"use_global_tool": true})", {0.7, 0.8, 0.0}, true, true},
        {"put.put_p", R"({"toolset": null})", {0.7, 0.8, -0.3}, true, false},
        {"get.get_p", "{}", {1.2, 0.0, 0.55}, false, true},
        {"calibrate.p1", "{}", {1.0, 0.5, -0.15}, false, true},
        {"tool.ref_p", "{}", {1.2, 0.0, 0.3}, false, false},
    };
    for (const auto &c : cases) {
        const std::unique_ptr<ModuleObject> plugin = makePluginTree();
        applyPaths(plugin->node(), kSharedTool);
        Node &stack = addTestStack(plugin.get(), kCalibrated)->node();
        applyPaths(stack, c.changes);
        const Node &point = *stack.find(orba::Path(c.point));
        const palx::PointFrame frame = palx::pointFrame(point);
        EXPECT_EQ(frame.problem, QString());
        EXPECT_EQ(frame.isOnPallet, c.isOnPallet) << c.point << c.changes;
        EXPECT_EQ(frame.isOfTool, c.isOfTool) << c.point << c.changes;
        const Pose pose = ix::calc::toPose(point);
        SCOPED_TRACE(std::string(c.point) + c.changes);
        expectAt(c.flange, frame.flange(pose));
        EXPECT_TRUE(frame.point(frame.flange(pose)).isApprox(pose, 1e-12)) << "there and back";
    }
}

TEST(PointFrame, IsThatOfTheSharedToolInTheSharedLists)
{
    const std::unique_ptr<ModuleObject> plugin = makePluginTree();
    applyPaths(plugin->node(), kSharedTool);
    const Node &corner = *plugin->node().find(u"global_tool.#0.incoming_settings.bottom_left_node");
    expectAt({1.0, 0.0, 0.5}, palx::pointFrame(corner).flange(ix::calc::toPose(corner)));
    const Node &settings = *corner.parent();
    EXPECT_TRUE(palx::pointFrame(settings, u"not_there_yet").isOfTool);
    const Node detached = nodeFromJson(R"({"trans": [1.0, 0.0, 0.2], "rot": [0.0, 0.0, 0.0]})");
    EXPECT_TRUE(palx::pointFrame(detached).isPlain());
}

TEST(PointFrame, SaysWhyThePalletsFrameIsNotKnown)
{
    const std::unique_ptr<ModuleObject> plugin = makePluginTree();
    Node &stack = addTestStack(plugin.get(), kCalibrated)->node();
    applyPaths(stack, R"({"calibrate.p3": null})");
    EXPECT_EQ(palx::pointFrame(*stack.find(u"put"), u"enter_p").problem,
              "The pallet's place needs three calibration points.");
    EXPECT_EQ(palx::pointFrame(*stack.find(u"get"), u"enter_p").problem, QString()) << "the pick side stays";
    applyPaths(stack, R"({"calibrate.p3": {"trans": [1.0, 1.0, -0.4], "rot": [1.0, 0.0, 0.0]}})");
    EXPECT_TRUE(palx::pointFrame(*stack.find(u"put.put_p")).problem.contains("degrees")) << "all on one line";
}

TEST(PointFrame, IsWhatATaughtPointIsConvertedTo)
{
    const std::unique_ptr<ModuleObject> plugin = makePluginTree();
    Node &stack = addTestStack(plugin.get(), kCalibrated)->node();
    const Node robot = nodeFromJson(R"({"joints": [1.0, 2.0, 3.0, 4.0, 5.0, 6.0],
        "pose": {"trans": [0.7, 0.8, -0.05], "rot": [3.141592653589793, 0.0, 1.5707963267948966]}})");
    Node taught;
    ASSERT_TRUE(palx::teachPoint(taught, robot, palx::pointFrame(*stack.find(u"put"), u"put_p")));
    expectAt({0.2, 0.3, 0.1}, ix::calc::toPose(taught));
    EXPECT_NEAR(std::cos(taught.find(u"rot")->number(0)), -1, 1e-12);
    EXPECT_NEAR(taught.find(u"rot")->number(2), 0, 1e-9) << "as the pallet lies";
    EXPECT_EQ(taught.find(u"near")->number(5), 6);
}

TEST(ToolRecord, IsReadFromBothKindsOfRecords)
{
    const Node own = nodeFromJson(R"({"end": {"trans": [0.01, 0.02, 0.3], "rot": [0.0, 0.0, 1.0]}})");
    const Node shared = nodeFromJson(R"({"frame": {"pos": {"x": 0.01, "y": 0.02, "z": 0.3}},
        "load": {"pose": {"ori": {"euler": {"a": 0.0, "b": 0.0, "c": 1.0}}}}})");
    EXPECT_TRUE(palx::toolPose(own, palx::ToolKeeper::Recipe)
                    .isApprox(palx::toolPose(shared, palx::ToolKeeper::Shared), 1e-15));
    EXPECT_TRUE(palx::isMeasured(own, palx::ToolKeeper::Recipe));
    EXPECT_FALSE(palx::isMeasured(own, palx::ToolKeeper::Shared));
    EXPECT_FALSE(palx::isMeasured(nodeFromJson(R"({"load": {"mass": 3.0}})"), palx::ToolKeeper::Recipe));
}

TEST(ToolRecord, IsMeasuredByTouchingATipTwice)
{
    const Vector tip(1.1, -0.2, 0.15), tool(0.03, -0.02, 0.25);
    const auto touch = [&](double turn, const Vector &point) {
        Pose flange = ix::calc::toPose(Vector::Zero(), Vector(kPi, 0.1, turn));
        flange.translation() = point - flange.linear() * tool;
        return flange;
    };
    const struct
    {
        double turnDeg;
        double slipM;
        double z;
        const char *error;
    } cases[] = {
        {90, 0, 0.25, ""},           {-180, 0, 0.25, ""},
        {61, 0, 0.25, ""},           {59, 0, 0.25, "at least 60"},
        {0, 0, 0.25, "at least 60"}, {90, 0.02, 0.25, "20.0 mm apart"},
    };
    for (const auto &c : cases) {
        const Pose first = touch(0, tip);
        // The hand turns about its own axis, which stands askew.
        Pose turned = first;
        turned.linear() = first.linear() * Eigen::AngleAxisd(c.turnDeg * kPi / 180, Vector::UnitZ());
        turned.translation() = tip - turned.linear() * tool + first.linear().col(2) * c.slipM;
        const palx::ToolMeasure found = palx::measureTool(first, turned, c.z);
        EXPECT_EQ(found.error.isEmpty(), c.error[0] == '\0') << c.turnDeg << qPrintable(found.error);
        EXPECT_TRUE(found.error.contains(QLatin1String(c.error))) << qPrintable(found.error);
        if (found.error.isEmpty()) {
            EXPECT_NEAR(found.x, tool.x(), 1e-9);
            EXPECT_NEAR(found.y, tool.y(), 1e-9);
        }
    }
}
