#include "pattern/patternscene.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using orba::ModuleObject;
using palx::PatternItem;

namespace {

std::unique_ptr<ModuleObject> stackObject()
{
    auto stack = std::make_unique<ModuleObject>(QStringLiteral("stack"));
    stack->copyFrom(planRecipe());
    return stack;
}

QImage draw(PatternScene &scene, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    scene.paintPlan(&painter, image.rect());
    return image;
}

/// Where a point of the plan lies on a picture of that size.
QPointF onPicture(PatternScene &scene, const QSize &size, const QPointF &plan)
{
    return (plan - scene.viewRect(size).topLeft()) * scene.planScale(size);
}

} // namespace

TEST(PatternScene, AddedItemIsWrittenAndShown)
{
    const auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.B"));
    ASSERT_EQ(scene.getWobjCount(), 1);
    scene.addWobjItem(2, 3, QPointF(98, 198.5), QSize(150, 200), 90.0, {100, 50, 0},
                      QStringLiteral("TopRight"));

    EXPECT_EQ(scene.getWobjCount(), 2);
    EXPECT_EQ(*stack->node().find(u"patterns.B.#1"),
              nodeFromJson(R"({"x":98.0,"y":198.5,"w":150.0,"h":200.0,"r":90,"index":2,"orient":3,
                               "direction":"TopRight","dx":100.0,"dy":50.0,"dz":0.0})"));
    EXPECT_EQ(scene.shownItems().last().x, 98);

    scene.clearItems();
    EXPECT_EQ(scene.getWobjCount(), 0);
    EXPECT_EQ(stack->r("patterns.B")->cmobjCount(), 0);
    EXPECT_TRUE(scene.shownItems().isEmpty());
}

TEST(PatternScene, FollowsValuesItemsAndThePallet)
{
    const auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.A"));
    ASSERT_TRUE(scene.findings().overlaps.isEmpty());

    stack->set(nullptr, "patterns.A.#1.x", 440);
    EXPECT_EQ(scene.findings().overlaps.value(0).depthMm, 10);
    stack->set(nullptr, "patterns.A.#1.x", 450);
    stack->set(nullptr, "product_cfg.pallet.width", 590);
    EXPECT_EQ(scene.findings().worst.right, 10);
    stack->remove("patterns.A.#0");
    EXPECT_EQ(scene.shownItems().size(), 1);
    stack->set(nullptr, "patterns.A.#0.r", 90); // an item that was another's successor is followed, too
    EXPECT_EQ(scene.shownItems().value(0).r, 90);
    QSignalSpy shown(&scene, &PatternScene::planChanged);
    for (int i = 0; i < 100; ++i)
        stack->set(nullptr, "patterns.A.#0.x", 150 + i);
    EXPECT_TRUE(waitUntil([&] { return shown.size() > 0; }));
    EXPECT_EQ(shown.size(), 1) << "many changes make one picture";
    EXPECT_EQ(scene.shownItems().value(0).x, 249);
}

TEST(PatternScene, OutlivesThePatternAndTheRecipe)
{
    auto stack = stackObject();
    PatternScene scene;
    scene.setStack(stack.get());
    scene.setPattern(stack->r("patterns.A"));
    ASSERT_EQ(scene.shownItems().size(), 2);
    stack->remove("patterns.A");
    EXPECT_TRUE(scene.shownItems().isEmpty());
    EXPECT_EQ(scene.getWobjCount(), 0);
    stack.reset();
    EXPECT_EQ(scene.plan().pallet.length, 1000);
    scene.setStack(nullptr);
    scene.setPattern(orba::emptyMobj());
    EXPECT_TRUE(scene.shownItems().isEmpty());
}

TEST(PatternScene, DrawsToScale)
{
    for (const QSize &size : {QSize(1280, 800), QSize(60, 80)}) {
        PatternScene scene;
        scene.setTextPixels(9);
        scene.setStack(planRecipe());
        // A product of 300 across and 400 along, turned by 90 it covers 400 x 300.
        scene.setPattern(patternOf({planItem(350, 550, 300, 400, 90)}));
        const QImage image = draw(scene, size);
        const double scale = scene.planScale(size);
        const QRectF item(onPicture(scene, size, QPointF(150, 400)), QSizeF(400, 300) * scale);
        const QRectF pallet(onPicture(scene, size, QPointF()), QSizeF(800, 1200) * scale);
        EXPECT_TRUE(QRectF(image.rect()).contains(pallet));
        // Just inside of each edge lies the product, just outside the deck.
        for (const QPointF &edge : {QPointF(item.left(), item.top() + item.height() * 0.1),
                                    QPointF(item.left() + item.width() * 0.1, item.top()),
                                    QPointF(item.right(), item.top() + item.height() * 0.1),
                                    QPointF(item.left() + item.width() * 0.1, item.bottom())}) {
            const QPointF inwards = item.center() - edge;
            const QPointF step = inwards / std::hypot(inwards.x(), inwards.y()) * 3;
            EXPECT_GT(qGray(image.pixel((edge + step).toPoint())), 220) << edge.x() << ' ' << edge.y();
            EXPECT_LT(qGray(image.pixel((edge - step).toPoint())), 220) << edge.x() << ' ' << edge.y();
        }
    }
}

TEST(PatternScene, TheApproachArrowPointsFromTheSideOfTheShift)
{
    PatternScene scene;
    const QSize size(800, 800);
    const auto arrowAt = [&](const char *direction, const QPointF &at) {
        scene.setStack(planRecipe());
        scene.setPattern(patternOf({coming(planItem(400, 600, 400, 400), direction, 60, 60)}));
        const QImage image = draw(scene, size);
        const QPointF middle = onPicture(scene, size, QPointF(400, 600) + at);
        int dark = 0;
        for (int dx = -3; dx <= 3; ++dx) {
            for (int dy = -3; dy <= 3; ++dy)
                dark += qGray(image.pixel((middle + QPointF(dx, dy)).toPoint())) < 140;
        }
        return dark > 0;
    };
    // The recipe's own frame runs with the plan: "Top" waits further along the length. The tip stays off the
    // number.
    EXPECT_TRUE(arrowAt("Top", QPointF(0, 150)));
    EXPECT_FALSE(arrowAt("Top", QPointF(0, -150)));
    EXPECT_TRUE(arrowAt("Left", QPointF(150, 0)));
    EXPECT_FALSE(arrowAt("Right", QPointF(150, 0)));
}

TEST(PatternScene, AbsurdItemsAreDrawnWithinTheSameFrame)
{
    PatternScene scene;
    scene.setStack(planRecipe());
    const QRectF usual = scene.viewRect(QSizeF(800, 600));
    scene.setPattern(nodeFromJson(R"([{"x":1e300,"y":"no","w":-4,"h":1e200,"r":9999999999},{},3,
        {"x":90000,"y":-90000,"w":20000,"h":20000,"r":33}])"));
    EXPECT_EQ(scene.shownItems().size(), 4);
    EXPECT_FALSE(draw(scene, QSize(800, 600)).isNull());
    // Far-out products may shrink the plan to half, not to a dot.
    EXPECT_GT(scene.viewRect(QSizeF(800, 600)).width() * 2.5, usual.width());
    EXPECT_LT(scene.viewRect(QSizeF(800, 600)).width(), usual.width() * 2.5);
}
