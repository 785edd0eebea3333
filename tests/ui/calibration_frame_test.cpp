// The page that ties a recipe to its cell: pallet frame, tool and incoming side.

#include "stack/point_frame.h"
#include "stack/recipe_points.h"
#include "stack/shared_lists.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "ui/cell_wizards.h"
#include "ui/page_fixture.h"
#include "ui/point_group.h"
#include "workstation/plugin_node.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QStackedWidget>

#include <gtest/gtest.h>

namespace {

struct CalibrationPage : OpenRecipe
{
    CalibrationPage() : OpenRecipe(Calibration) { field<QPushButton>("btnPlace")->click(); }
    template <typename T> T *field(const char *name) const { return at<T>(Calibration, name); }
    void typePoint(const char *group, double x, double y, double z)
    {
        auto *point = field<PointGroup>(group);
        partOf<QPushButton>(*point, "btnMake")->click();
        enter(partOf<QDoubleSpinBox>(*point, "dspnX"), x);
        enter(partOf<QDoubleSpinBox>(*point, "dspnY"), y);
        enter(partOf<QDoubleSpinBox>(*point, "dspnZ"), z);
    }
    QString text(const char *label) const { return field<QLabel>(label)->text(); }
    void choose(const char *combo, int value)
    {
        auto *box = field<QComboBox>(combo);
        box->setCurrentIndex(box->findData(value));
        Q_EMIT box->activated(box->currentIndex());
    }
    void share()
    {
        for (const char *key : {"use_global_tool", "use_global_wobj"})
            stack()->set(nullptr, key, true);
        setup->pageDateRefresh();
        setup->frames().at(Pallet)->edited(); // as its check boxes do
    }
};

} // namespace

TEST(CalibrationFrame, TellsTheFrameThatThePointsGive)
{
    CalibrationPage page;
    EXPECT_TRUE(page.text("lblResult").startsWith("Not calibrated")) << page.text("lblResult");
    page.typePoint("grpOrigin", 1000, 500, -400);
    EXPECT_TRUE(page.text("lblResult").contains("three calibration points")) << page.text("lblResult");
    page.typePoint("grpOnX", 1000, 1500, -400);
    page.typePoint("grpInPlane", 1000, 900, -400);
    EXPECT_TRUE(page.text("lblResult").contains("degrees")) << "all on one line: " << page.text("lblResult");
    enter(partOf<QDoubleSpinBox>(*page.field<PointGroup>("grpInPlane"), "dspnX"), 200.0);
    EXPECT_EQ(page.text("lblResult"), "Origin at X 1000.0, Y 500.0, Z -400.0 mm, turned by 90.00\u00b0.");
    enter(page.field<QDoubleSpinBox>("spnShiftX"), 100.0);
    EXPECT_EQ(page.text("lblResult"), "Origin at X 1000.0, Y 600.0, Z -400.0 mm, turned by 90.00\u00b0.");
    page.choose("cmbMethod", 1);
    EXPECT_EQ(page.text("lblResult"), "Origin at X 1100.0, Y 500.0, Z -400.0 mm, turned by 0.00\u00b0.");
    EXPECT_FALSE(page.field<PointGroup>("grpOnX")->isVisibleTo(page.setup->wgt()));
    page.setup->undo();
    EXPECT_EQ(page.stack()->getInt("calibrate.calibration_method"), 0);
    EXPECT_TRUE(page.text("lblResult").contains("90.00"));
}

TEST(CalibrationFrame, WritesTheRecipesOwnTool)
{
    CalibrationPage page;
    ASSERT_TRUE(page.stack()->c("toolset")->isNull());
    enter(page.field<QDoubleSpinBox>("spnTool2"), 285.0);
    enter(page.field<QDoubleSpinBox>("spnTool5"), 90.0);
    enter(page.field<QDoubleSpinBox>("spnTool9"), 14.5);
    EXPECT_DOUBLE_EQ(page.stack()->getDouble("toolset.end.trans.#2"), 0.285);
    EXPECT_NEAR(page.stack()->getDouble("toolset.end.rot.#2"), 1.5707963267948966, 1e-12);
    EXPECT_DOUBLE_EQ(page.stack()->getDouble("toolset.load.mass"), 14.5);
    EXPECT_TRUE(page.stack()->node().has(u"toolset.ref.trans.#2"))
        << "a whole record, or the controller refuses it";
    for (int i = 0; i < 3; ++i)
        page.setup->undo();
    EXPECT_TRUE(page.stack()->c("toolset")->isNull());
}

TEST(CalibrationFrame, MeasuresAToolByTwoTouches)
{
    CalibrationPage page;
    auto *measure = page.field<QPushButton>("btnMeasure");
    measure->click();
    EXPECT_EQ(page.message(), "Teach both touches first.");
    // The tip is at (1, 0, 0.2), the tool's point at (30, -20, 250) mm, the hand looks down.
    applyPaths(page.stack()->node(), R"({
        "tool.ref_p": {"trans": [0.97, -0.02, 0.45], "rot": [3.141592653589793, 0.0, 0.0]},
        "tool.rotate_p": {"trans": [0.98, 0.03, 0.45], "rot": [3.141592653589793, 0.0, -1.5707963267948966]}})");
    enter(page.field<QDoubleSpinBox>("spnTool2"), 250.0);
    measure->click();
    EXPECT_EQ(page.message(), QString());
    EXPECT_NEAR(page.field<QDoubleSpinBox>("spnTool0")->value(), 30, 1e-6);
    EXPECT_NEAR(page.field<QDoubleSpinBox>("spnTool1")->value(), -20, 1e-6);
    page.stack()->set(nullptr, "tool.rotate_p.rot.#2", 0.1);
    measure->click();
    EXPECT_TRUE(page.message().contains("at least 60 degrees")) << page.message();
    EXPECT_NEAR(page.stack()->getDouble("toolset.end.trans.#0"), 0.03, 1e-9) << "as it was";
}

TEST(CalibrationFrame, EditsWhatAllRecipesShareAndTakesItBack)
{
    CalibrationPage page;
    const orba::Node before = palx::pluginNode()->c("global_tool")->node();
    page.share();
    orba::ModuleObject *plugin = palx::pluginNode();
    ASSERT_EQ(plugin->getString("global_tool.#3.name"), "WayPointData");
    EXPECT_TRUE(page.field<QPushButton>("btnOnePoint")->isVisibleTo(page.setup->wgt()));
    page.field<QPushButton>("btnOnePoint")->click();
    EXPECT_FALSE(page.field<QPushButton>("btnOnePoint")->isVisibleTo(page.setup->wgt()));
    EXPECT_EQ(plugin->getInt("global_wobj.#1.calibration_method"), 1);
    page.choose("cmbTowards", 1);
    EXPECT_EQ(plugin->getInt("global_wobj.#0.towards") + plugin->getInt("global_wobj.#1.towards"), 2);
    page.typePoint("grpLeft", 950, 750, -600);
    EXPECT_DOUBLE_EQ(plugin->getDouble("global_wobj.#0.left_origin_point.trans.#0"), 0.95);
    enter(page.field<QDoubleSpinBox>("spnTool2"), 310.0);
    EXPECT_DOUBLE_EQ(plugin->getDouble("global_tool.#0.frame.pos.z"), 0.31);
    page.choose("cmbOrigin", 1);
    enter(page.field<QDoubleSpinBox>("spnEnterH"), 450.0);
    EXPECT_EQ(plugin->getDouble("global_tool.#3.waypoint_settings.get.enter_h"), 450);
    page.typePoint("grpPick", 1300, 160, -50);
    EXPECT_DOUBLE_EQ(plugin->getDouble("global_tool.#2.incoming_settings.bottom_right_node.trans.#1"), 0.16);
    EXPECT_EQ(palx::untaughtPoints(page.stack()->node(), plugin->node()), QStringList());
    while (page.hasUndo())
        page.setup->undo();
    EXPECT_EQ(plugin->c("global_tool")->node().size(), before.size()) << "they came with the edit";
}

TEST(CalibrationFrame, RecipesThatShareFollowAnEdit)
{
    CalibrationPage page;
    page.share();
    orba::ModuleObject *other = page.tree.addRecipe("Other");
    other->set(nullptr, "use_global_tool", true);
    enter(page.field<QDoubleSpinBox>("spnEnterX"), -150.0);
    page.setup->showFrame(OpenRecipe::Points); // saves
    EXPECT_DOUBLE_EQ(other->getDouble("get.enter_p.trans.#0") - other->getDouble("get.get_p.trans.#0"),
                     -0.15);
}

TEST(CellWizards, LeadThroughTheirFrames)
{
    PluginTree tree;
    orba::ModuleObject *stack = tree.addRecipe("Box");
    const struct
    {
        WizardKind kind;
        QStringList frames;
    } cases[] = {
        {WizardKind::Parameters, {"ProductFrame", "PalletFrame"}},
        {WizardKind::Patterns, {"PatternsFrame", "DirectionsFrame"}},
        {WizardKind::Directions, {"DirectionsFrame", "StackFrame"}},
        {WizardKind::Layers, {"LayersFrame", "StackFrame"}},
        {WizardKind::Waypoints, {"CalibrationFrame", "WaypointsFrame", "PointsFrame"}},
    };
    for (const auto &c : cases) {
        QWidget window;
        RecipeWizard *wizard = openRecipeWizard(c.kind, stack, &window);
        QStringList frames;
        for (const RecipeFrame *frame : wizard->pages())
            frames << QString::fromLatin1(frame->metaObject()->className());
        EXPECT_EQ(frames, c.frames);
        for (int page = 1; page < frames.size(); ++page)
            wizard->next();
        EXPECT_EQ(wizard->page(), frames.size() - 1);
        wizard->next();
        EXPECT_FALSE(wizard->isVisible());
    }
}

TEST(SharedLists, LackNothingAndKeepWhatIsThere)
{
    const std::unique_ptr<orba::ModuleObject> plugin = makePluginTree();
    orba::ModuleObject *stack = addTestStack(plugin.get(), "{}");
    applyPaths(plugin->node(),
               R"({"global_tool": [{"name": "Gripper", "load": {"mass": 3.0}}, {}, {"incoming_settings":
        {"origin_position": 1}}], "global_wobj": [{"towards": 1}]})");
    EXPECT_FALSE(palx::ensureSharedLists(stack)) << "it does not use them";
    stack->set(nullptr, "use_global_wobj", true);
    EXPECT_TRUE(palx::ensureSharedLists(stack));
    const struct
    {
        const char *path;
        QVariant value;
    } cases[] = {{"global_tool.#0.name", "Gripper"},
                 {"global_tool.#0.load.mass", 3.0},
                 {"global_tool.#0.load.length", 0},
                 {"global_tool.#1.name", "PalletTool2"},
                 {"global_tool.#2.incoming_settings.origin_position", 1},
                 {"global_tool.#3.waypoint_settings.put.right_offsets.exit_h", 0},
                 {"global_wobj.#0.towards", 1},
                 {"global_wobj.#1.name", "PalletWobj2"}};
    for (const auto &c : cases)
        EXPECT_EQ(plugin->node().value(orba::Path(c.path)), c.value) << c.path;
    EXPECT_FALSE(palx::ensureSharedLists(stack)) << "once is enough";
}
