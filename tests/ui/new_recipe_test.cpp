// A recipe made from nothing on the pages of the set-up, stacked in the simulated cell by another program.

#include "orba/module_manager.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "ui/page_fixture.h"
#include "ui/point_group.h"
#include "workstation/plugin_node.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class NewRecipe : public Pages
{
public:
    NewRecipe()
    {
        palx::addStack(QStringLiteral("New"), QString());
        open("New");
    }
    void type(int frame, const char *field, double value)
    {
        setup->showFrame(frame);
        enter(partOf<QDoubleSpinBox>(*setup->frames().at(frame), field), value);
    }
    /// The hand looks down.
    void typePoint(int frame, const char *group, double x, double y, double z)
    {
        setup->showFrame(frame);
        auto *point = partOf<PointGroup>(*setup->frames().at(frame), group);
        partOf<QPushButton>(*point, "btnMake")->click();
        const struct
        {
            const char *field;
            double value;
        } numbers[] = {{"dspnX", x}, {"dspnY", y}, {"dspnZ", z}, {"dspnA", 180}};
        for (const auto &number : numbers)
            enter(partOf<QDoubleSpinBox>(*point, number.field), number.value);
    }
    void click(int frame, const char *button)
    {
        setup->showFrame(frame);
        partOf<QPushButton>(*setup->frames().at(frame), button)->click();
    }
    /// Four boxes about the middle of the pallet, as the pages of patterns would lay them; those first that are far from where
    /// the robot comes from.
    void layPattern()
    {
        QByteArray items;
        int index = 0;
        for (const auto &[x, y] : {std::pair{521, 400}, {260, 400}, {521, 781}, {260, 781}}) {
            ++index;
            items +=
                QStringLiteral(R"(%1{"x": %2, "y": %3, "w": 260, "h": 380, "r": 0, "index": %4, "orient": 0,
                "direction": "Middle", "dx": 0, "dy": 0, "dz": 0})")
                    .arg(index == 1 ? QString() : QStringLiteral(","))
                    .arg(x)
                    .arg(y)
                    .arg(index)
                    .toUtf8();
        }
        applyPaths(setup->stack()->node(), (R"({"patterns": {"A": [)" + items + "]}}").constData());
        setup->pageDateRefresh();
    }
};

} // namespace

TEST(NewRecipe, IsStackedInTheSimulatedCell)
{
    using Page = OpenRecipe;
    NewRecipe recipe;
    recipe.type(Page::Product, "spnLength", 380);
    recipe.type(Page::Product, "spnWidth", 260);
    recipe.type(Page::Product, "spnHeight", 200);
    recipe.type(Page::Pallet, "spnLength", 1200);
    recipe.layPattern();
    recipe.click(Page::Layers, "btnAdd");
    recipe.click(Page::Layers, "btnAdd");

    recipe.type(Page::Calibration, "spnTool2", 285);
    recipe.type(Page::Calibration, "spnTool9", 14.5);
    recipe.typePoint(Page::Calibration, "grpOrigin", -200, 650, -450);
    recipe.typePoint(Page::Calibration, "grpOnX", 900, 650, -450);
    recipe.typePoint(Page::Calibration, "grpInPlane", -100, 1350, -450);
    recipe.typePoint(Page::Waypoints, "grpPutPoint", 200, 150, 200);
    recipe.typePoint(Page::Waypoints, "grpPutEnter", 1250, -250, 600);
    recipe.typePoint(Page::Waypoints, "grpGetPoint", 1350, 0, 150);
    recipe.typePoint(Page::Waypoints, "grpGetEnter", 1150, 0, 650);
    for (const auto &[field, height] : {std::pair{"spnPutReady", 250.0},
                                        {"spnPutApproach", 60.0},
                                        {"spnPutRetract", 180.0},
                                        {"spnPutExit", 320.0},
                                        {"spnGetReady", 300.0},
                                        {"spnGetApproach", 80.0},
                                        {"spnGetRetract", 350.0}})
        recipe.type(Page::Waypoints, field, height);
    recipe.click(Page::Points, "btnGenerate");
    EXPECT_EQ(partOf<QLabel>(*recipe.setup->frames().at(Page::Points), "lblState")->text(),
              "The points are up to date.");

    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("cell.json"));
    ASSERT_TRUE(orba::ModuleManager::writeToJson(palx::pluginNode(), file));
    QProcess palx;
    palx.start(QStringLiteral(PALX_BIN_DIR "/palx"), {QStringLiteral("simulate"), file});
    ASSERT_TRUE(palx.waitForFinished(300000));
    const QByteArray told = palx.readAllStandardOutput();
    const orba::Node result = nodeFromJson(told);
    EXPECT_EQ(palx.exitCode(), 0) << told.constData() << palx.readAllStandardError().constData();
    EXPECT_EQ(result.getInt(u"boxes"), 8);
    EXPECT_EQ(result.getInt(u"pallets"), 1);
    EXPECT_LT(result.getDouble(u"max_error_mm"), 0.1);
}
