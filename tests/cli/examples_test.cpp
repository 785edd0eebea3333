#include "palx_run.h"

#include <QProcess>
#include <QRectF>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using orba::Node;

/// What an item covers: width across, length along, exchanged when it is turned by 90 degrees.
QRectF footprint(const Node &item)
{
    const int turn = int(item.getInt(u"r"));
    EXPECT_EQ(turn % 90, 0);
    const double w = item.getDouble(u"w");
    const double h = item.getDouble(u"h");
    const QSizeF size = turn % 180 == 0 ? QSizeF(w, h) : QSizeF(h, w);
    return QRectF(item.getDouble(u"x") - size.width() / 2, item.getDouble(u"y") - size.height() / 2,
                  size.width(), size.height());
}

void expectFeasible(const Node &pattern, const QRectF &pallet, const QSizeF &product)
{
    QVector<QRectF> placed;
    for (int i = 0; i < pattern.size(); ++i) {
        const Node &item = *pattern.at(i);
        EXPECT_EQ(item.getInt(u"index"), i + 1);
        EXPECT_EQ(QSizeF(item.getDouble(u"w"), item.getDouble(u"h")), product);
        const QRectF box = footprint(item);
        EXPECT_TRUE(pallet.contains(box)) << "item " << i + 1;
        for (int j = 0; j < placed.size(); ++j)
            EXPECT_FALSE(placed.at(j).intersects(box)) << "items " << j + 1 << " and " << i + 1;
        placed.append(box);
    }
}

} // namespace

TEST(Examples, EveryPatternFitsThePalletWithoutOverlap)
{
    for (const QString &file : exampleFiles()) {
        SCOPED_TRACE(qPrintable(file));
        const Node recipes = exampleContent(file);
        ASSERT_GE(recipes.size(), 1);
        for (int i = 0; i < recipes.size(); ++i) {
            const Node &recipe = *recipes.at(i);
            const QRectF pallet(0, 0, recipe.getDouble(u"product_cfg.pallet.width"),
                                recipe.getDouble(u"product_cfg.pallet.length"));
            const QSizeF product(recipe.getDouble(u"product_cfg.product.width"),
                                 recipe.getDouble(u"product_cfg.product.length"));
            const Node &patterns = *recipe.child(u"patterns");
            ASSERT_GE(patterns.size(), 1);
            for (int p = 0; p < patterns.size(); ++p)
                expectFeasible(*patterns.at(p), pallet, product);
        }
    }
}

TEST(Examples, TheInterlockedLayersBridgeTheJointsBelow)
{
    const Node recipes = exampleContent("interlocked-1200x800.xml");
    const Node &patterns = *recipes.find(u"#0.patterns");
    const Node &lower = *patterns.child(u"A");
    const Node &upper = *patterns.child(u"B");
    int bridging = 0;
    for (int i = 0; i < upper.size(); ++i) {
        int below = 0;
        for (int j = 0; j < lower.size(); ++j)
            below += footprint(*upper.at(i)).intersects(footprint(*lower.at(j))) ? 1 : 0;
        bridging += below > 1 ? 1 : 0;
    }
    EXPECT_GE(bridging, 6) << "of " << upper.size();
}

TEST(Examples, TheLargeOneHasTwentyLayersOfAHundred)
{
    const Node recipes = exampleContent("large-20x100.xml");
    EXPECT_EQ(recipes.find(u"#0.layers")->size(), 20);
    EXPECT_EQ(recipes.find(u"#0.patterns.A")->size(), 100);
    EXPECT_TRUE(recipes.find(u"#0.points.put")->isNull());
}

TEST(Examples, TheyAreWhatTheirProgramWrites)
{
    QTemporaryDir folder;
    QProcess process;
    process.start(
        QStringLiteral(PALX_BIN_DIR "/make_examples"),
        {QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json"), folder.path()});
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    for (const QString &file : exampleFiles())
        EXPECT_EQ(fileContent(folder.filePath(file)), fileContent(examplePath(file))) << qPrintable(file);
}
