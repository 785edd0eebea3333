// Frames of the set-up page and the wizards over a recipe, without a page around them.

#include "pattern/pattern_editing.h"
#include "stack/recipe_layers.h"
#include "ui/directions_frame.h"
#include "ui/layers_frame.h"
#include "ui/page_fixture.h"
#include "ui/pattern_view.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

using palx::LayerSet;

namespace {

/// A frame over a recipe with the patterns A and B and a layer of each.
template <typename Frame> struct ShownFrame
{
    ShownFrame() : stack(tree.addRecipe("Box"))
    {
        frame.resize(1000, 640);
        frame.setStack(stack);
        frame.show();
    }
    template <typename T> T *at(const char *name) const { return partOf<T>(frame, name); }
    void click(const char *name) const { at<QPushButton>(name)->click(); }

    PluginTree tree;
    orba::ModuleObject *stack;
    Frame frame;
};

constexpr const char *kPad[] = {"btnTopLeft", "btnTop",        "btnTopRight", "btnLeft",       "btnAbove",
                                "btnRight",   "btnBottomLeft", "btnBottom",   "btnBottomRight"};

/// The first pattern with three products in a row across the pallet, touching each other, placed from the left.
struct Directions : ShownFrame<DirectionsFrame>
{
    Directions()
    {
        orba::Node third = *stack->node().find(u"patterns.A.#1");
        third.find(u"x")->setInt(375);
        third.find(u"index")->setInt(3);
        stack->r("patterns.A")->addUnnamed()->copyFrom(third);
        frame.setStack(stack);
    }
    palx::PatternEditing *editing() const { return at<PatternView>("view")->editing(); }
    QString directions() const
    {
        QStringList words;
        for (int i = 0; i < stack->r("patterns.A")->cmobjCount(); ++i)
            words << stack->getString(QStringLiteral("patterns.A.#%1.direction").arg(i));
        return words.join(' ');
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
};

/// With the layers A, B, A, B.
struct Layers : ShownFrame<LayersFrame>
{
    Layers()
    {
        palx::repeatLayers(stack, {0, 1});
        frame.setStack(stack);
    }
    void several(const LayerSet &layers)
    {
        at<QPushButton>("btnSeveral")->setChecked(true);
        frame.chooseLayers(layers);
    }
    QStringList patterns() const
    {
        QStringList names;
        for (const palx::LayerFacts &layer : palx::layerFacts(stack->node()))
            names << layer.pattern;
        return names;
    }
};

} // namespace

TEST(DirectionsFrame, SetsASideForOneForSeveralAndForAll)
{
    Directions d;
    QSignalSpy edits(&d.frame, &RecipeFrame::edited);
    EXPECT_EQ(d.pressed(), QStringList{"btnAbove"});
    EXPECT_EQ(d.at<QLabel>("lblChoice")->text(), "All products");
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

TEST(LayersFrame, SeveralLayersAreEditedAlikeInOneStep)
{
    Layers l;
    l.several({0, 2, 3});
    QSignalSpy edits(&l.frame, &RecipeFrame::edited);
    enter(l.at<QDoubleSpinBox>("spnOffset"), 7.0);
    EXPECT_EQ(edits.count(), 1);
    for (const int layer : {0, 1, 2, 3})
        EXPECT_EQ(l.stack->getInt(QStringLiteral("layers.#%1.h_offset").arg(layer)), layer == 1 ? 0 : 7);
    auto *pattern = l.at<QComboBox>("cmbPattern");
    pattern->setCurrentIndex(pattern->findData("B"));
    Q_EMIT pattern->activated(pattern->currentIndex());
    EXPECT_EQ(l.patterns(), (QStringList{"B", "B", "B", "B"}));
    EXPECT_EQ(edits.count(), 2);
    EXPECT_EQ(l.frame.layers(), (LayerSet{0, 2, 3}));
}
