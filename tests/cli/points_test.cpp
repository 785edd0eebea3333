#include "palx_run.h"

#include "orba/module_manager.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using orba::Node;

constexpr double kPi = 3.141592653589793;
constexpr double kTolerance = 1e-12; // a handful of sums of numbers around 1

const QStringList kGetPoints{"enter_p", "ready_p", "approach_p", "get_p", "retract_p"};
const QStringList kPutPoints{"enter_p", "ready_p", "approach_p", "put_p", "retract_p", "exit_p"};

Node pointsOf(const QStringList &arguments)
{
    const PalxRun run = runPalx(QStringList{"points", "--format", "json"} + arguments);
    EXPECT_EQ(run.code, 0) << run.err.constData();
    return parsed(run.out);
}

void expectPoint(const Node &root, const QString &path, double x, double y, double z, double turn)
{
    const Node *point = root.find(path);
    ASSERT_TRUE(point) << qPrintable(path);
    const double expected[] = {x, y, z};
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(point->child(u"trans")->number(i), expected[i], kTolerance)
            << qPrintable(path) << " axis " << i;
    EXPECT_NEAR(point->find(u"rot")->number(0), kPi, kTolerance) << qPrintable(path);
    EXPECT_NEAR(point->find(u"rot")->number(2), turn, kTolerance) << qPrintable(path);
}

void expectRecords(const Node &holder, const QStringList &names)
{
    EXPECT_EQ(childNames(holder), names);
    for (int i = 0; i < holder.size(); ++i) {
        const Node &point = *holder.at(i);
        EXPECT_EQ(childNames(point), (QStringList{"trans", "rot", "near", "conf"}));
        EXPECT_EQ(point.child(u"trans")->size(), 3);
        EXPECT_EQ(point.child(u"rot")->size(), 3);
        EXPECT_EQ(point.child(u"near")->size(), 6);
    }
}

/// How many products the recipe's layer has: one for a sheet, else the items of its pattern.
int productsOfLayer(const Node &recipe, const QString &pattern)
{
    return pattern == QLatin1String("clapboard")
               ? 1
               : recipe.child(u"patterns")->child(QStringView(pattern))->size();
}

void expectStack(const Node &stack, const Node &recipe)
{
    EXPECT_EQ(childNames(stack), (QStringList{"name", "layers", "get", "put", "put_heights"}));
    EXPECT_EQ(stack.getString(u"name"), recipe.getString(u"name"));
    expectRecords(*stack.child(u"get"), kGetPoints);
    EXPECT_EQ(childNames(*stack.child(u"put_heights")),
              (QStringList{"ready_h", "approach_h", "retract_h", "exit_h"}));
    EXPECT_EQ(*stack.child(u"layers"), *recipe.child(u"layers")); // the examples have no empty layers
    const Node &put = *stack.child(u"put");
    ASSERT_EQ(put.size(), recipe.child(u"layers")->size());
    for (int i = 0; i < put.size(); ++i) {
        const QString pattern = recipe.getString(QStringLiteral("layers.#%1.pattern").arg(i));
        ASSERT_EQ(put.at(i)->size(), productsOfLayer(recipe, pattern)) << i;
        for (int j = 0; j < put.at(i)->size(); ++j)
            expectRecords(*put.at(i)->at(j), kPutPoints);
    }
}

} // namespace

TEST(Points, JsonHasTheDocumentedShapeForEveryExample)
{
    ASSERT_EQ(exampleFiles().size(), 6);
    for (const QString &file : exampleFiles()) {
        SCOPED_TRACE(qPrintable(file));
        const Node result = pointsOf({examplePath(file)});
        const Node recipes = exampleContent(file);
        EXPECT_EQ(childNames(result), (QStringList{"stacks", "log"}));
        ASSERT_EQ(result.child(u"stacks")->size(), recipes.size());
        for (int i = 0; i < recipes.size(); ++i)
            expectStack(*result.child(u"stacks")->at(i), *recipes.at(i));
    }
}

// Nine boxes of 390x260x200 a layer; the hand-made figures follow from the taught points in the example.
TEST(Points, OwnFrameGivesTheHandComputedPositions)
{
    const Node result = pointsOf({examplePath("interlocked-1200x800.xml")});
    const Node &stack = *result.find(u"stacks.#0");
    // Layer 0, first box: centre 665 across, 202.5 along; closes up from 40 mm beside.
    expectPoint(stack, "put.#0.#0.put_p", 0.2025, 0.665, 0.2, 0);
    expectPoint(stack, "put.#0.#0.ready_p", 0.2425, 0.625, 0.35, 0);
    expectPoint(stack, "put.#0.#0.approach_p", 0.2025, 0.665, 0.26, 0);
    expectPoint(stack, "put.#0.#0.retract_p", 0.2025, 0.665, 0.38, 0);
    expectPoint(stack, "put.#0.#0.exit_p", 0.2025, 0.665, 0.52, 0);
    expectPoint(stack, "put.#0.#0.enter_p", 1.15, -0.25, 0.6, 0);
    // Layer 1, first box: turned by 90 degrees, centre 597.5 across, 137.5 along.
    expectPoint(stack, "put.#1.#0.put_p", 0.1375, 0.5975, 0.4, -kPi / 2);
    // Layer 2 is a sheet in the middle of the pallet, 3 mm thick.
    expectPoint(stack, "put.#2.#0.put_p", 0.6, 0.4, 0.6, 0);
    expectPoint(stack, "put.#3.#0.put_p", 0.2025, 0.665, 0.603, 0);
    // The last layer: seven layers and three sheets below; 20 mm replace all heights.
    expectPoint(stack, "put.#10.#0.put_p", 0.1375, 0.5975, 1.609, -kPi / 2);
    for (const char *name : {"approach_p", "retract_p", "exit_p"})
        expectPoint(stack, QStringLiteral("put.#10.#0.") + name, 0.1375, 0.5975, 1.629, -kPi / 2);
    expectPoint(stack, "put.#10.#0.ready_p", 0.1775, 0.5575, 1.629, -kPi / 2);
    // Pick side: the heights of the recipe above the taught point.
    expectPoint(stack, "get.ready_p", 1.35, 0, 0.45, 0);
    expectPoint(stack, "get.approach_p", 1.35, 0, 0.23, 0);
    expectPoint(stack, "get.retract_p", 1.35, 0, 0.5, 0);
}

// Boxes of 380x260x180, origin taught at 0.95 / 0.75 and 0.95 / -0.75 on the floor (-0.6) with such a box.
TEST(Points, OnePointFrameGivesTheHandComputedPositions)
{
    const Node result = pointsOf({examplePath("global-cell.json")});
    const Node &left = *result.find(u"stacks.#0");
    const Node &right = *result.find(u"stacks.#1");
    expectPoint(left, "put.#0.#0.put_p", 0.1425, 1.285, -0.27, 0);
    expectPoint(left, "put.#0.#0.ready_p", 0.2425, 1.185, 0.03, 0);
    expectPoint(right, "put.#0.#0.put_p", 0.1425, -1.285, -0.27, 0);
    expectPoint(right, "put.#0.#0.ready_p", 0.2425, -1.185, 0.03, 0);
    // The layer before the last leaves the product's height out of "ready_h".
    EXPECT_NEAR(left.find(u"put.#3.#0.ready_p.trans")->number(2) -
                    left.find(u"put.#3.#0.put_p.trans")->number(2),
                0.12, kTolerance);
    const Node heights = parsed(R"({"ready_h": 300, "approach_h": 60, "retract_h": 180, "exit_h": 320})");
    for (int i = 0; i < heights.size(); ++i)
        EXPECT_DOUBLE_EQ(left.child(u"put_heights")->at(i)->toDouble(), heights.at(i)->toDouble()) << i;
    // Pick side from the taught corner 1.3 / -0.16 / -0.05.
    expectPoint(left, "get.get_p", 1.49, -0.03, 0.13, 0);
    expectPoint(left, "get.enter_p", 1.34, -0.03, 0.58, 0);
    expectPoint(left, "get.approach_p", 1.49, -0.03, 0.39, 0);
}

TEST(Points, OneRecipeIsChosenByName)
{
    const Node result = pointsOf({examplePath("global-cell.json"), "--stack", "Cell right"});
    ASSERT_EQ(result.child(u"stacks")->size(), 1);
    EXPECT_EQ(result.getString(u"stacks.#0.name"), QStringLiteral("Cell right"));

    const PalxRun unknown = runPalx({"points", examplePath("global-cell.json"), "--stack", "Cell"});
    EXPECT_EQ(unknown.code, 1);
    EXPECT_TRUE(unknown.out.isEmpty());
    EXPECT_TRUE(
        unknown.err.contains("no recipe is called \"Cell\"; there are: \"Cell left\", \"Cell right\""))
        << unknown.err.constData();
}

TEST(Points, EmptyLayersAreGoneAndABlankOneEndsTheStack)
{
    QTemporaryDir folder;
    orba::Node stacks = exampleContent("line-left.xml");
    Node &layers = *stacks.find(u"#0.layers");
    layers.find(u"#1.pattern")->setString(QStringLiteral("empty"));
    layers.find(u"#3.pattern")->setString(QString());
    const QString file = folder.filePath("edited.xml");
    ASSERT_TRUE(orba::ModuleManager::writeToXmlFile(stacks, file));
    const Node result = pointsOf({file});
    EXPECT_EQ(result.find(u"stacks.#0.put")->size(), 2);
    EXPECT_EQ(result.find(u"stacks.#0.layers")->size(), 5);
}

TEST(Points, TableShowsMillimetresAndDegreesWithOneLinePerPoint)
{
    const PalxRun run = runPalx({"points", examplePath("interlocked-1200x800.xml"), "--format", "table"});
    ASSERT_EQ(run.code, 0) << run.err.constData();
    const QList<QByteArray> lines = run.out.trimmed().split('\n');
    EXPECT_EQ(lines.size(), 2 + 5 + 6 * (8 * 9 + 3));
    EXPECT_EQ(lines.first(), "Recipe \"Interlocked 1200x800\": 11 layers");
    EXPECT_TRUE(run.out.contains(
        "1 A, 1                put_p          202.50    665.00    200.00   180.000     0.000     "
        "0.000\n"))
        << run.out.left(2000).constData();
}

TEST(Points, OlderRecipesAreFilledFromTheTemplate)
{
    QTemporaryDir folder;
    orba::Node stacks = exampleContent("line-right.xml");
    const Node complete = stacks;
    for (const char16_t *key :
         {u"bollard", u"use_global_tool", u"use_global_wobj", u"automatic_stacker", u"wobj_margin"})
        ASSERT_TRUE(stacks.at(0)->remove(key));
    const QString older = folder.filePath("older.xml");
    ASSERT_TRUE(orba::ModuleManager::writeToXmlFile(stacks, older));
    const PalxRun run = runPalx({"points", older});
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.err.contains("recipe 1 \"Line right\": taken from the template: wobj_margin, bollard, "
                                 "automatic_stacker, use_global_tool, use_global_wobj"))
        << run.err.constData();
    EXPECT_EQ(run.out, runPalx({"points", examplePath("line-right.xml")}).out);
}

TEST(Points, NothingIsWrittenAnywhere)
{
    QTemporaryDir folder;
    for (const QString &command : {QStringLiteral("points"), QStringLiteral("check")}) {
        for (const QString &name : exampleFiles()) {
            const QString file = folder.filePath(name);
            writeFile(file, fileContent(examplePath(name)));
            EXPECT_EQ(runPalx({command, file}, folder.path()).code, 0);
            EXPECT_EQ(fileContent(file), fileContent(examplePath(name)));
        }
    }
    EXPECT_EQ(
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
        exampleFiles());
}
