#include "ui/stack_view.h"

#include "pattern/stackpatternscene.h"
#include "ui/page_fixture.h"
#include "ui/plan_view.h"
#include "ui/stack_frame.h"
#include "ui/stack_panel.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <cmath>

using palx::Piece;

namespace {

/// The stack page over a recipe with two products in its first layer and one in its second.
struct StackPage
{
    StackPage() : stack(tree.addRecipe("Box"))
    {
        frame.resize(1000, 600);
        frame.setStack(stack);
        frame.show();
        frame.grab(); // a touch finds what was painted
    }
    StackPanel *panel() const { return frame.findChild<StackPanel *>(); }
    StackView *view() const { return panel()->view(); }
    PlanView *plan() const { return frame.findChild<PlanView *>(); }
    int shownLayer() const { return frame.findChild<StackPatternScene *>()->layer(); }
    void click(const char *name) const { frame.findChild<QPushButton *>(QLatin1String(name))->click(); }
    void drag(const QPoint &by) const
    {
        const QPoint from = view()->rect().center();
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, from + by / 2);
        send(QEvent::MouseMove, from + by);
        send(QEvent::MouseButtonRelease, from + by);
    }
    void send(QEvent::Type type, const QPoint &at) const
    {
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, {});
        QCoreApplication::sendEvent(view(), &event);
    }
    void wheel(int notches) const
    {
        QWheelEvent event(view()->rect().center(), view()->mapToGlobal(view()->rect().center()), QPoint(),
                          QPoint(0, notches * 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view(), &event);
    }

    PluginTree tree;
    orba::ModuleObject *stack;
    StackFrame frame;
};

} // namespace

TEST(StackView, DraggingSidewaysTurnsTheNearSideAlong)
{
    StackPage page;
    page.drag(QPoint(60, 0));
    EXPECT_EQ(page.view()->drawing().turn(), -30);
    page.drag(QPoint(-60, 0));
    EXPECT_EQ(page.view()->drawing().turn(), 0);
}

TEST(StackView, WheelAndButtonsEnlargeWithinBounds)
{
    StackPage page;
    page.wheel(2);
    EXPECT_GT(page.view()->zoom(), 1.4);
    page.wheel(100);
    EXPECT_EQ(page.view()->zoom(), palx::IsoCamera::kMostZoom);
    page.click("btnSmaller");
    EXPECT_LT(page.view()->zoom(), palx::IsoCamera::kMostZoom);
    page.wheel(-100);
    EXPECT_EQ(page.view()->zoom(), 1) << "smaller than the view would be of no use";
}

TEST(StackView, StepsLayBoxesAndLayersAndMarkTheLastInBothPictures)
{
    StackPage page;
    const struct
    {
        const char *button;
        int pieces;
        Piece marked;
    } steps[] = {{"btnLayerDown", 2, {0, 1}}, {"btnBoxBack", 1, {0, 0}}, {"btnLayerDown", 0, {}},
                 {"btnBoxOn", 1, {0, 0}},     {"btnLayerUp", 2, {0, 1}}, {"btnLayerUp", 3, {1, 0}}};
    ASSERT_EQ(page.panel()->pieces(), 3);
    for (const auto &step : steps) {
        page.click(step.button);
        EXPECT_EQ(page.panel()->pieces(), step.pieces) << step.button;
        EXPECT_EQ(page.view()->drawing().pieces(), step.pieces);
        EXPECT_EQ(page.panel()->marked(), step.marked) << step.button;
        if (step.marked.isSet()) {
            EXPECT_EQ(page.shownLayer(), step.marked.layer);
        }
    }
    EXPECT_FALSE(page.frame.findChild<QPushButton *>(QStringLiteral("btnBoxOn"))->isEnabled());
    EXPECT_EQ(page.frame.findChild<QLabel *>(QStringLiteral("lblPlace"))->text(),
              QStringLiteral("3 of 3: layer 2, box 1"));
}

TEST(StackView, AnEditKeepsTurnStepsAndMark)
{
    StackPage page;
    page.click("btnTurnRight");
    page.panel()->setPieces(2);
    page.panel()->markPiece({1, 0});
    page.stack->set(nullptr, "product_cfg.product.height", 120);
    page.frame.refresh();
    EXPECT_EQ(page.view()->drawing().turn(), 15);
    EXPECT_EQ(page.panel()->pieces(), 2);
    EXPECT_EQ(page.panel()->marked(), (Piece{1, 0}));
    page.stack->remove(QStringLiteral("layers.#1"));
    page.frame.refresh();
    EXPECT_FALSE(page.panel()->marked().isSet()) << "its layer is gone";
}
