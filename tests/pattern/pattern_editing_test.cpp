#include "pattern/pattern_editing.h"

#include "pattern/plan_editor.h"
#include "pattern/plan_recipe.h"
#include "pattern/rules/edit_paste.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_patterns.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using orba::Node;
using palx::Alignment;
using palx::PatternEditing;
using palx::PatternItem;
using palx::PlanAxis;
using palx::Selection;

namespace {

/// Three products side by side, 102 mm from each other.
QVector<PatternItem> row()
{
    QVector<PatternItem> items{planItem(50, 100, 100, 200), planItem(152, 100, 100, 200),
                               planItem(254, 100, 100, 200)};
    palx::numberItems(&items);
    return items;
}

using Edit = void (*)(PatternEditing &);

struct EditCase
{
    const char *what;
    Selection selection;
    Edit edit;
    const char *places;
    Selection after;
};

const EditCase kEdits[] = {
    {"move", {1}, [](PatternEditing &e) { e.move(QPointF(0, 10)); }, "50,100/0 152,110/0 254,100/0", {1}},
    {"turn two", {0, 1}, [](PatternEditing &e) { e.turn(-90); }, "101,151/270 101,49/270 254,100/0", {0, 1}},
    {"align", {2}, [](PatternEditing &e) { e.align(Alignment::Right); }, "50,100/0 152,100/0 750,100/0", {2}},
    {"turn the pattern",
     {},
     [](PatternEditing &e) { e.turnPattern(); },
     "750,1100/180 648,1100/180 546,1100/180",
     {}},
    {"remove", {0, 2}, [](PatternEditing &e) { e.remove(); }, "152,100/0", {}},
    {"reorder",
     {0},
     [](PatternEditing &e) {
         e.reorder({2, 0, 1});
     },
     "254,100/0 50,100/0 152,100/0",
     {1}},
    {"copy and paste",
     {1},
     [](PatternEditing &e) {
         e.copy();
         e.paste();
     },
     "50,100/0 152,100/0 254,100/0 152,302/0",
     {3}},
};

} // namespace

TEST(PatternEditing, EditsAreWrittenAsOneStepEach)
{
    for (const EditCase &one : kEdits) {
        PlanEditor editor(row());
        editor.editing.select(one.selection);
        one.edit(editor.editing);
        EXPECT_EQ(editor.places(), one.places) << one.what;
        EXPECT_EQ(editor.editing.selection(), one.after) << one.what;
        EXPECT_EQ(editor.told(), "edited") << one.what;
        const QVector<PatternItem> stored = editor.stored();
        for (int i = 0; i < stored.size(); ++i)
            EXPECT_EQ(stored[i].index, i + 1) << one.what;
        EXPECT_EQ(editor.editing.items(), stored) << one.what;
    }
}

TEST(PatternEditing, SpacingEvenlyNeedsThree)
{
    PlanEditor editor(row());
    editor.editing.select({0, 1});
    editor.editing.distribute(PlanAxis::Across);
    EXPECT_EQ(editor.told(), "refused: Choose at least three products to space them evenly.");
}

TEST(PatternEditing, APatternTakesNoMoreThanTheControllerDoes)
{
    PlanEditor editor(planGrid(10, palx::kMaxItems / 10, 10, 10));
    editor.editing.select({0, 1});
    editor.editing.copy();
    editor.editing.paste();
    EXPECT_EQ(editor.told(), "refused: A pattern holds at most 200 products; there would be 202.");
    EXPECT_EQ(editor.stored().size(), palx::kMaxItems);
}

TEST(PatternEditing, ProposesSidesForTheChosenOrForAll)
{
    PlanEditor editor(row());
    editor.editing.select({0, 1});
    editor.editing.proposeSides();
    // Without work objects that look elsewhere "Left" comes from the right.
    EXPECT_EQ(approachesOf(editor.stored()), "Middle 0,0; Left 100,100; Middle 0,0");
    editor.editing.select({0});
    editor.editing.proposeSides();
    EXPECT_EQ(approachesOf(editor.stored()), "Middle 0,0; Left 100,100; Left 100,100");
}

TEST(PatternEditing, APreviewIsShownAndWrittenOnce)
{
    PlanEditor editor(row());
    QVector<PatternItem> shown = editor.editing.items();
    shown[1].x = 160;
    editor.editing.preview(shown);
    EXPECT_EQ(editor.scene.shownItems(), shown);
    EXPECT_EQ(editor.scene.checks().layout.overlaps.size(), 1);
    EXPECT_EQ(editor.places(), placesOf(row()));
    shown[1].y = 110;
    editor.editing.preview(shown);
    editor.editing.commitPreview();
    EXPECT_EQ(editor.places(), "50,100/0 160,110/0 254,100/0");
    EXPECT_EQ(editor.told(), "edited");
    editor.editing.preview(shown);
    editor.editing.cancelPreview();
    EXPECT_EQ(placesOf(editor.scene.shownItems()), "50,100/0 160,110/0 254,100/0");
    editor.editing.commitPreview();
    EXPECT_EQ(editor.told(), "");
}

TEST(PatternEditing, AChangeFromElsewhereDropsThePreview)
{
    PlanEditor editor(row());
    int dropped = 0;
    QObject::connect(&editor.editing, &PatternEditing::previewDropped, [&] { ++dropped; });
    QVector<PatternItem> shown = editor.editing.items();
    shown[0].x = 500;
    editor.editing.preview(shown);
    editor.pattern()->set(nullptr, "#2.x", 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(dropped, 1);
    EXPECT_EQ(placesOf(editor.scene.shownItems()), "50,100/0 152,100/0 300,100/0");
    editor.editing.commitPreview();
    EXPECT_EQ(editor.places(), "50,100/0 152,100/0 300,100/0");
}

TEST(PatternEditing, TheSelectionFollowsThePattern)
{
    PlanEditor editor(row());
    editor.editing.select({2, 1, 1, 7, -1});
    EXPECT_EQ(editor.editing.selection(), (Selection{1, 2}));
    editor.pattern()->cmobj(2)->remove();
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.editing.selection(), (Selection{1}));
    editor.stack->r("patterns")->add(QStringLiteral("B"))->copyFrom(patternOf(row()));
    editor.scene.setPattern(editor.stack->r("patterns.B"));
    QCoreApplication::processEvents();
    EXPECT_EQ(editor.editing.selection(), Selection());
}

TEST(EditPaste, FindsTheFirstFreeSide)
{
    palx::EditRules rules;
    rules.pallet = QSizeF(800, 1200);
    rules.inside = QRectF(0, 0, 800, 1200);
    rules.spacingMm = 2;
    const PatternItem item = planItem(300, 400, 100, 200);
    const PatternItem right = planItem(402, 400, 100, 200);
    const PatternItem below = planItem(300, 602, 100, 200);
    const PatternItem left = planItem(198, 400, 100, 200);
    const PatternItem above = planItem(300, 198, 100, 200);
    struct
    {
        const char *what;
        QVector<PatternItem> items;
        const char *pasted;
    } const cases[] = {
        {"right", {item}, "402,400/0"},
        {"below", {item, right}, "300,602/0"},
        {"left", {item, right, below}, "198,400/0"},
        {"above", {item, right, below, left}, "300,198/0"},
        {"aside", {item, right, below, left, above}, "320,420/0"},
        {"elsewhere, from another pattern", {}, "402,400/0"},
    };
    for (const auto &one : cases) {
        const auto pasted = palx::pastedItems(one.items, {item}, rules);
        EXPECT_EQ(placesOf(pasted), one.pasted) << one.what;
        EXPECT_EQ(pasted[0].index, one.items.size() + 1) << one.what;
    }
    rules.inside = QRectF(0, 0, 440, 590);
    EXPECT_EQ(placesOf(palx::pastedItems({item}, {item}, rules)), "198,400/0");
}
