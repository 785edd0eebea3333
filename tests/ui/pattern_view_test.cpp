#include "ui/pattern_view.h"

#include "pattern/patternscene.h"
#include "support/test_support.h"

#include <QApplication>
#include <QTouchDevice>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const char *const kRecipe =
    R"({"product_cfg":{"pallet":{"length":1200,"width":800},"product":{"length":200,"width":100}},
    "automatic_stacker":{"min_product_spacing":2},
    "patterns":{"A":[{"x":150,"y":300,"w":100,"h":200,"r":0,"index":1},{"x":400,"y":300,"w":100,"h":200,"r":0,"index":2},
                     {"x":650,"y":300,"w":100,"h":200,"r":0,"index":3}]}})";

/// A view of a pattern of three products, shown without a page around it.
struct Plan
{
    Plan() : stack("stack")
    {
        stack.copyFrom(nodeFromJson(kRecipe));
        scene.setStack(&stack);
        scene.setPattern(stack.r("patterns.A"));
        view.showPlan(&scene);
        view.resize(500, 600);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        view.activateWindow();
        view.setFocus();
    }
    ~Plan() { view.setScene(nullptr); }

    QPoint at(double x, double y) const { return view.mapFromScene(x, y); }
    void press(double x, double y) { QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at(x, y)); }
    void release(double x, double y) { QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at(x, y)); }
    /// A move with the button down, which a virtual pointer does not send.
    void drag(double x, double y)
    {
        QMouseEvent event(QEvent::MouseMove, at(x, y), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }
    /// "x,y" of the stored products.
    std::string places() const
    {
        QStringList texts;
        for (int i = 0; i < stack.r("patterns.A")->cmobjCount(); ++i)
            texts << QStringLiteral("%1,%2")
                         .arg(stack.getDouble(QStringLiteral("patterns.A.#%1.x").arg(i)))
                         .arg(stack.getDouble(QStringLiteral("patterns.A.#%1.y").arg(i)));
        return texts.join(' ').toStdString();
    }

    orba::ModuleObject stack;
    PatternScene scene;
    PatternView view;
    QTouchDevice *screen = QTest::createTouchDevice();
};

const char *const kPlaces = "150,300 400,300 650,300";

} // namespace

TEST(PatternView, TheMouseDrags)
{
    Plan plan;
    plan.view.dragTool()->setSnapping(false);
    plan.press(400, 300);
    plan.drag(400, 500);
    plan.drag(400, 800);
    EXPECT_EQ(plan.places(), kPlaces); // not yet
    plan.release(400, 800);
    const double y = plan.stack.getDouble("patterns.A.#1.y");
    EXPECT_NEAR(y, 800, 2 / plan.view.zoom().pixelsPerMm()); // a pixel at either end
    EXPECT_EQ(y, std::round(y));
    EXPECT_EQ(plan.stack.getDouble("patterns.A.#1.x"), 400);
}

TEST(PatternView, AFingerDragsAndTwoEnlarge)
{
    Plan plan;
    plan.view.dragTool()->setSnapping(false);
    QWidget *port = plan.view.viewport();
    QTest::touchEvent(port, plan.screen).press(0, plan.at(400, 300), port);
    QTest::touchEvent(port, plan.screen).move(0, plan.at(400, 600), port);
    QTest::touchEvent(port, plan.screen).release(0, plan.at(400, 600), port);
    EXPECT_NEAR(plan.stack.getDouble("patterns.A.#1.y"), 600, 2 / plan.view.zoom().pixelsPerMm());
    const std::string places = plan.places();

    const double scale = plan.view.zoom().pixelsPerMm();
    QTest::touchEvent(port, plan.screen).press(0, QPoint(200, 300), port);
    QTest::touchEvent(port, plan.screen).move(0, QPoint(200, 300), port).press(1, QPoint(300, 300), port);
    const QPointF between = plan.view.zoom().toPlan(QPointF(250, 300));
    QTest::touchEvent(port, plan.screen).move(0, QPoint(170, 320), port).move(1, QPoint(370, 320), port);
    EXPECT_NEAR(plan.view.zoom().pixelsPerMm(), scale * 2, 1e-6);
    EXPECT_NEAR(plan.view.zoom().toPlan(QPointF(270, 320)).x(), between.x(), 1e-6);
    QTest::touchEvent(port, plan.screen).release(0, QPoint(170, 320), port).move(1, QPoint(370, 320), port);
    QTest::touchEvent(port, plan.screen).move(1, QPoint(100, 100), port); // the rest of a pinch is no drag
    QTest::touchEvent(port, plan.screen).release(1, QPoint(100, 100), port);
    EXPECT_EQ(plan.places(), places);
}

TEST(PatternView, ASecondFingerTakesADragBack)
{
    Plan plan;
    QWidget *port = plan.view.viewport();
    QTest::touchEvent(port, plan.screen).press(0, plan.at(400, 300), port);
    QTest::touchEvent(port, plan.screen).move(0, plan.at(400, 600), port);
    EXPECT_TRUE(plan.scene.hasPreview());
    QTest::touchEvent(port, plan.screen).move(0, plan.at(400, 600), port).press(1, QPoint(30, 30), port);
    EXPECT_EQ(plan.scene.shownItems()[1].y, 300);
    QTest::touchEvent(port, plan.screen).release(0, plan.at(400, 600), port).release(1, QPoint(30, 30), port);
    EXPECT_EQ(plan.places(), kPlaces);
}
