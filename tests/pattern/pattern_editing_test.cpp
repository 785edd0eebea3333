#include "pattern/pattern_editing.h"

#include "pattern/plan_editor.h"
#include "pattern/plan_recipe.h"
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

TEST(PatternEditing, APatternTakesNoMoreThanTheControllerDoes)
{
    PlanEditor editor(planGrid(10, palx::kMaxItems / 10, 10, 10));
    editor.editing.select({0, 1});
    editor.editing.copy();
    editor.editing.paste();
    EXPECT_EQ(editor.told(), "refused: A pattern holds at most 200 products; there would be 202.");
    EXPECT_EQ(editor.stored().size(), palx::kMaxItems);
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
