#include "ui/automatic_stacker_dialog.h"

#include "ui/dialog_fixture.h"
#include "ui/layout_preview.h"
#include "ui/page_fixture.h"

#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

struct StackerTest : OpenPattern
{
    explicit StackerTest(const char *changes = "{}") : OpenPattern(changes), dialog(stack, &scene, &window) {}
    LayoutPreview *preview(int index) const
    {
        return partOf<LayoutPreview>(dialog, qPrintable(QStringLiteral("btnLayout%1").arg(index)));
    }
    void touch(int index) const
    {
        QTest::mouseClick(preview(index), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    }
    void confirm() const { partOf<QPushButton>(dialog, "btnConfirm")->click(); }
    QList<int> chosen() const
    {
        QList<int> indices;
        for (int i = 0; i < AutomaticStackerDialog::kPreviews; ++i)
            if (preview(i)->isChecked())
                indices << i;
        return indices;
    }

    AutomaticStackerDialog dialog;
};

} // namespace

TEST(AutomaticStackerDialog, ShowsWhatEachKindHolds)
{
    const StackerTest test;
    const struct
    {
        const char *name;
        const char *facts;
        int items;
    } cases[] = {{"Matrix (vertical)", "Boxes: 20, area: 75 %", 20},
                 {"Matrix (horizontal)", "Boxes: 18, area: 68 %", 18},
                 {"Crisscross", "Boxes: 23, area: 86 %", 23},
                 {"Back letterform", "Boxes: 23, area: 86 %", 23}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(test.preview(i)->text(), QLatin1String(cases[i].name));
        EXPECT_EQ(test.preview(i)->facts(), QLatin1String(cases[i].facts)) << i;
        EXPECT_EQ(test.preview(i)->scene()->getWobjCount(), cases[i].items) << i;
        EXPECT_TRUE(test.preview(i)->isEnabled());
    }
    for (const int spare : {4, 5})
        EXPECT_TRUE(test.preview(spare)->isHidden());
    EXPECT_EQ(test.items(), QStringList()); // nothing before it is confirmed
}

TEST(AutomaticStackerDialog, FieldsLayAnewAndGiveUpAChoiceThatVanishes)
{
    StackerTest test;
    test.touch(0);
    for (const char *field : {"TopBottomMargin", "LeftRightMargin", "MinProductSpacing"}) {
        const int items = test.preview(0)->scene()->getWobjCount();
        enter(partOf<QDoubleSpinBox>(test.dialog, qPrintable(QStringLiteral("spn") + field)), 120.5);
        EXPECT_LT(test.preview(0)->scene()->getWobjCount(), items) << field;
    }
    EXPECT_EQ(test.stack->r("automatic_stacker")->node(),
              nodeFromJson(R"({"top_bottom_margin": 120.5, "left_right_margin": 120.5,
                               "min_product_spacing": 120.5})"));
    EXPECT_EQ(test.chosen(), QList<int>{0}); // still there, though smaller
    enter(partOf<QDoubleSpinBox>(test.dialog, "spnLeftRightMargin"), 390.0);
    EXPECT_EQ(test.chosen(), QList<int>());
}

TEST(AutomaticStackerDialog, FillsAnEmptyPatternWithoutAsking)
{
    ScriptedPresenter presenter;
    StackerTest test;
    test.touch(3);
    test.touch(1);
    EXPECT_EQ(test.chosen(), QList<int>{1});
    test.confirm();
    EXPECT_EQ(test.dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(presenter.asked.isEmpty());
    ASSERT_EQ(test.items().size(), 18);
    EXPECT_EQ(test.items().last(), QStringLiteral("18: 601 877.5 90 Middle"));
}

TEST(AutomaticStackerDialog, AsksBeforeItOverwrites)
{
    for (const bool answer : {false, true}) {
        ScriptedPresenter presenter({answer});
        StackerTest test;
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, QStringLiteral("Top"));
        QSignalSpy finished(&test.dialog, &QDialog::finished);
        test.touch(0);
        test.confirm();
        ASSERT_EQ(presenter.asked.size(), 1);
        EXPECT_EQ(messageText(presenter.asked.first()),
                  QStringLiteral("warning / Confirm whether to overwrite the current stack type? / Cancel"));
        EXPECT_EQ(finished.count(), answer ? 1 : 0);
        EXPECT_EQ(test.items().size(), answer ? 20 : 1);
        EXPECT_EQ(test.items().first(),
                  answer ? QStringLiteral("1: 98 198.5 0 Middle") : QStringLiteral("1: 500 700 0 Top"));
    }
}

TEST(AutomaticStackerDialog, WithoutAnEffectiveChoiceNothingHappens)
{
    const struct
    {
        const char *changes;
        int index;
        const char *facts;
    } cases[] = {
        {"{}", -1, ""},
        {"{}", 4, ""},                                                      // empty
        {R"({"product_cfg.product.width": 801})", 0, "Nothing fits"},       // wider than the pallet
        {R"({"product_cfg.product.width": 199})", 2, "No turned row fits"}, // it would be a matrix
    };
    for (const auto &c : cases) {
        ScriptedPresenter presenter;
        StackerTest test(c.changes);
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, QStringLiteral("Top"));
        QSignalSpy finished(&test.dialog, &QDialog::finished);
        if (*c.facts) {
            EXPECT_EQ(test.preview(c.index)->facts(), QLatin1String(c.facts));
            EXPECT_FALSE(test.preview(c.index)->isEnabled() || test.preview(c.index)->isHidden());
        }
        test.dialog.onGraphViewSelected(c.index);
        test.confirm();
        EXPECT_EQ(presenter.notices, QStringList{"warning: Please select an effective stack type!"})
            << c.index;
        EXPECT_TRUE(presenter.asked.isEmpty());
        EXPECT_EQ(finished.count(), 0);
        EXPECT_EQ(test.items().size(), 1);
    }
}

TEST(AutomaticStackerDialog, ALayoutOverThePalletOrTheLimitIsMarked)
{
    const StackerTest over(R"({"product_cfg.product": {"length": 600, "width": 100},
        "product_cfg.pallet": {"length": 1000, "width": 700}, "automatic_stacker.min_product_spacing": 50})");
    EXPECT_EQ(over.preview(2)->warning(), QStringLiteral("75.0 mm over the pallet's edge"));
    EXPECT_TRUE(over.preview(2)->isEnabled()); // the operator may want it all the same

    ScriptedPresenter presenter;
    StackerTest many(R"({"product_cfg.product": {"length": 50, "width": 40}})");
    many.touch(0);
    many.confirm();
    ASSERT_EQ(presenter.asked.size(), 1);
    EXPECT_EQ(messageText(presenter.asked.first()), plainWarning("Wobj number is greater than 200"));
    EXPECT_EQ(many.items(), QStringList());
}

TEST(AutomaticStackerDialog, EndsWithItsRecipe)
{
    StackerTest test;
    test.touch(0);
    QSignalSpy finished(&test.dialog, &QDialog::finished);
    test.stack->remove();
    EXPECT_EQ(finished.count(), 1);
    test.dialog.work();
    test.dialog.generate();
}
