#include "ui/directions_frame.h"

#include "pattern/pattern_editing.h"
#include "support/test_support.h"
#include "ui/page_fixture.h"
#include "ui/pattern_view.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

constexpr const char *kPad[] = {"btnTopLeft", "btnTop",        "btnTopRight", "btnLeft",       "btnAbove",
                                "btnRight",   "btnBottomLeft", "btnBottom",   "btnBottomRight"};

/// The frame over a pattern of three products in a row across the pallet, touching each other, placed from the
/// left, and a pattern with one.
struct Directions
{
    Directions() : stack(tree.addRecipe("Box"))
    {
        orba::Node third = *stack->node().find(u"patterns.A.#1");
        third.find(u"x")->setInt(375);
        third.find(u"index")->setInt(3);
        stack->r("patterns.A")->addUnnamed()->copyFrom(third);
        frame.resize(1000, 640);
        frame.setStack(stack);
        frame.show();
    }
    template <typename T> T *at(const char *name) const
    {
        T *found = frame.findChild<T *>(QLatin1String(name));
        if (!found)
            ADD_FAILURE() << "no control " << name;
        return found;
    }
    void click(const char *name) const { at<QPushButton>(name)->click(); }
    palx::PatternEditing *editing() const { return at<PatternView>("view")->editing(); }
    QString directions() const
    {
        QStringList words;
        for (int i = 0; i < stack->r("patterns.A")->cmobjCount(); ++i)
            words << stack->getString(QStringLiteral("patterns.A.#%1.direction").arg(i));
        return words.join(' ');
    }
    QStringList problems() const
    {
        QStringList texts;
        auto *list = at<QListWidget>("lstProblems");
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts;
    }
    QStringList pressed() const
    {
        QStringList names;
        for (const char *name : kPad) {
            if (at<QPushButton>(name)->isChecked())
                names << QLatin1String(name);
        }
        return names;
    }

    PluginTree tree;
    orba::ModuleObject *stack;
    DirectionsFrame frame;
};

} // namespace

TEST(DirectionsFrame, SetsASideForOneForSeveralAndForAll)
{
    Directions d;
    QSignalSpy edits(&d.frame, &RecipeFrame::edited);
    EXPECT_EQ(d.pressed(), QStringList{"btnAbove"});
    EXPECT_EQ(d.at<QLabel>("lblChoice")->text(), QString("All products"));
    d.click("btnRight");
    const QString toRight = d.stack->getString("patterns.A.#0.direction");
    EXPECT_EQ(d.directions(), QStringList({toRight, toRight, toRight}).join(' '));
    EXPECT_NE(toRight, QString("Middle"));
    EXPECT_EQ(d.pressed(), QStringList{"btnRight"});
    d.editing()->select({1});
    d.click("btnAbove");
    EXPECT_EQ(d.directions(), QStringList({toRight, "Middle", toRight}).join(' '));
    d.editing()->select({0, 1});
    EXPECT_EQ(d.pressed(), QStringList()) << "they come from different sides";
    d.click("btnTop");
    const QString toTop = d.stack->getString("patterns.A.#0.direction");
    EXPECT_EQ(d.directions(), QStringList({toTop, toTop, toRight}).join(' '));
    EXPECT_EQ(edits.count(), 3) << "one step each";
    for (const char *name : kPad) {
        d.click(name);
        EXPECT_EQ(d.pressed(), QStringList{QLatin1String(name)});
        const int before = edits.count();
        d.click(name);
        EXPECT_EQ(d.pressed(), QStringList{QLatin1String(name)}) << "pressed again it stays down";
        EXPECT_EQ(edits.count(), before);
    }
}

TEST(DirectionsFrame, SaysWhichProductHitsWhichUntilSidesAreProposed)
{
    Directions d;
    enter(d.at<QDoubleSpinBox>("spnDx"), 50.0);
    enter(d.at<QDoubleSpinBox>("spnDy"), 50.0);
    d.click("btnLeft"); // over those that lie there already
    EXPECT_TRUE(d.problems().join('\n').contains(QStringLiteral("Product 2 hits product 1")))
        << d.problems().join('\n');
    d.editing()->select({});
    d.click("btnPropose");
    EXPECT_FALSE(d.problems().join('\n').contains(QStringLiteral("hits"))) << d.problems().join('\n');
}

TEST(DirectionsFrame, ProductsKeepTheirPlaces)
{
    Directions d;
    auto *view = d.at<PatternView>("view");
    const orba::Node before = d.stack->node();
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, view->mapFromScene(75, 100));
    QMouseEvent move(QEvent::MouseMove, view->mapFromScene(300, 500), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view->viewport(), &move);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, view->mapFromScene(300, 500));
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(d.stack->node(), before);
    EXPECT_EQ(d.editing()->selection(), palx::Selection{0}) << "but they can be chosen";
}
