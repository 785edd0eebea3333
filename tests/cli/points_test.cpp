#include "palx_run.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using orba::Node;

constexpr double kPi = 3.141592653589793;
constexpr double kTolerance = 1e-12; // a handful of sums of numbers around 1

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

} // namespace

TEST(Points, JsonHasTheDocumentedShape)
{
    const Node result = pointsOf({examplePath("interlocked-1200x800.xml")});
    EXPECT_EQ(childNames(result), (QStringList{"stacks", "log"}));
    const Node &stack = *result.find(u"stacks.#0");
    EXPECT_EQ(childNames(stack), (QStringList{"name", "layers", "get", "put", "put_heights"}));
    EXPECT_EQ(childNames(*stack.child(u"get")),
              (QStringList{"enter_p", "ready_p", "approach_p", "get_p", "retract_p"}));
    EXPECT_EQ(childNames(*stack.child(u"put_heights")),
              (QStringList{"ready_h", "approach_h", "retract_h", "exit_h"}));
    ASSERT_EQ(stack.child(u"put")->size(), 11);
    EXPECT_EQ(stack.find(u"put.#0")->size(), 9);
    EXPECT_EQ(stack.find(u"put.#2")->size(), 1); // a sheet
    const Node &product = *stack.find(u"put.#10.#8");
    EXPECT_EQ(childNames(product),
              (QStringList{"enter_p", "ready_p", "approach_p", "put_p", "retract_p", "exit_p"}));
    EXPECT_EQ(childNames(*product.at(0)), (QStringList{"trans", "rot", "near", "conf"}));
    EXPECT_EQ(product.at(0)->child(u"near")->size(), 6);
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
    // Pick side: the heights of the recipe above the taught point.
    expectPoint(stack, "get.ready_p", 1.35, 0, 0.45, 0);
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
    // The layer before the last leaves the product's height out of "ready_h".
    EXPECT_NEAR(left.find(u"put.#3.#0.ready_p.trans")->number(2) -
                    left.find(u"put.#3.#0.put_p.trans")->number(2),
                0.12, kTolerance);
    // Pick side from the taught corner 1.3 / -0.16 / -0.05.
    expectPoint(left, "get.get_p", 1.49, -0.03, 0.13, 0);
    expectPoint(left, "get.enter_p", 1.34, -0.03, 0.58, 0);
}

TEST(Points, TableShowsMillimetresAndDegreesWithOneLinePerPoint)
{
    const PalxRun run = runPalx({"points", examplePath("interlocked-1200x800.xml"), "--format", "table"});
    ASSERT_EQ(run.code, 0) << run.err.constData();
    const QList<QByteArray> lines = run.out.trimmed().split('\n');
    EXPECT_EQ(lines.size(), 2 + 5 + 6 * (8 * 9 + 3));
    EXPECT_TRUE(run.out.contains(
        "1 A, 1                put_p          202.50    665.00    200.00   180.000     0.000     "
        "0.000\n"))
        << run.out.left(2000).constData();
}

TEST(Points, OlderRecipesAreFilledFromTheTemplate)
{
    QTemporaryDir folder;
    Node stacks = exampleContent("line-right.xml");
    for (const char16_t *key :
         {u"bollard", u"use_global_tool", u"use_global_wobj", u"automatic_stacker", u"wobj_margin"})
        ASSERT_TRUE(stacks.at(0)->remove(key));
    const QString older = folder.filePath("older.xml");
    writeRecipes(older, stacks);
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
    const QString name = QStringLiteral("line-left.xml");
    writeFile(folder.filePath(name), fileContent(examplePath(name)));
    for (const char *command : {"points", "check"})
        EXPECT_EQ(runPalx({command, name}, folder.path()).code, 0);
    EXPECT_EQ(fileContent(folder.filePath(name)), fileContent(examplePath(name)));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList(name));
}
