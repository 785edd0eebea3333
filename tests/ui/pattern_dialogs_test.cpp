// The dialogs that make patterns and put products into them.

#include "ui/automatic_stacker_dialog.h"
#include "ui/dialog_fixture.h"
#include "ui/layout_preview.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

/// Over the patterns "A" and "C".
struct NamingTest
{
    explicit NamingTest(const char *current = "A")
    {
        tree.node() = nodeFromJson(R"({"patterns": {"A": [{"x": 1}, {"x": 2}], "C": []}})");
        dialog = std::make_unique<NewPatternDialog>(patterns(), QLatin1String(current), nullptr);
    }
    orba::ModuleObject *patterns() const { return tree.r("patterns"); }
    void confirm(const QString &name) const
    {
        partOf<QLineEdit>(*dialog, "edtName")->setText(name);
        partOf<QPushButton>(*dialog, "btnOk")->click();
    }

    orba::ModuleObject tree;
    std::unique_ptr<NewPatternDialog> dialog;
};

} // namespace

TEST(PatternNameDialog, RefusesAndStaysOpen)
{
    const ScriptedPresenter presenter;
    const NamingTest test;
    const orba::Node before = test.patterns()->node();
    QSignalSpy finished(test.dialog.get(), &QDialog::finished);
    test.confirm("clapboard");
    ASSERT_EQ(presenter.asked.size(), 1);
    EXPECT_EQ(messageText(presenter.asked.first()), plainWarning("Name is repeated!"));
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(test.dialog->getPatternName(), QString());
    EXPECT_EQ(test.patterns()->node(), before);
}

TEST(PatternNameDialog, MakesAnEmptyPatternOrAClone)
{
    for (const bool isClone : {false, true}) {
        const NamingTest test;
        QSignalSpy added(test.dialog.get(), &PatternNameDialog::patternAdded);
        partOf<QCheckBox>(*test.dialog, "chbClone")->setChecked(isClone);
        test.confirm("New");
        EXPECT_EQ(test.dialog->result(), QDialog::Accepted);
        EXPECT_EQ(test.dialog->getPatternName(), "New");
        EXPECT_EQ(test.dialog->isClone(), isClone);
        ASSERT_EQ(added.count(), 1);
        EXPECT_EQ(added.first().first().toString(), "New");
        EXPECT_EQ(test.patterns()->cmobjCount(), 3);
        EXPECT_EQ(test.patterns()->c("New")->node(),
                  nodeFromJson(isClone ? R"([{"x": 1}, {"x": 2}])" : "[]"));
        EXPECT_EQ(test.patterns()->c("A")->cmobjCount(), 2);
    }
    const NamingTest nothing("");
    EXPECT_FALSE(partOf<QCheckBox>(*nothing.dialog, "chbClone")->isEnabled());
}

namespace {

struct TemplateTest : OpenPattern
{
    explicit TemplateTest(const char *changes = "{}") : OpenPattern(changes), dialog(stack, &scene, &window)
    {
    }
    void type(const char *spin, int value) { enter(partOf<QSpinBox>(dialog, spin), value); }

    PatternTemplateDialog dialog;
};

} // namespace

TEST(PatternTemplateDialog, AppendsTheItems)
{
    TemplateTest test;
    test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, "Top");
    test.type("spnNumX", 1);
    test.type("spnNumY", 2);
    partOf<QPushButton>(test.dialog, "btnConfirm")->click();
    EXPECT_EQ(test.dialog.result(), QDialog::Accepted);
    EXPECT_EQ(test.items(), QStringList({"1: 500 700 0 Top", "2: 75 100 0 middle", "3: 226 100 0 middle"}));
    EXPECT_EQ(
        test.stack->r("patterns.A.#2")->node(),
        nodeFromJson(R"({"x": 226.0, "y": 100.0, "w": 150.0, "h": 200.0, "r": 0, "index": 3, "orient": 0,
                               "direction": "middle", "dx": 0.0, "dy": 0.0, "dz": 0.0})"));
}

TEST(PatternTemplateDialog, ARefusalAddsNothingAndStaysOpen)
{
    ScriptedPresenter presenter;
    TemplateTest test;
    QSignalSpy finished(&test.dialog, &QDialog::finished);
    auto *confirm = partOf<QPushButton>(test.dialog, "btnConfirm");
    confirm->click();
    test.type("spnNumX", 6);
    test.type("spnNumY", 1);
    confirm->click();
    EXPECT_EQ(presenter.asked.size(), 2);
    EXPECT_EQ(messageText(presenter.asked.value(0)), plainWarning("Invalid X number"));
    EXPECT_EQ(messageText(presenter.asked.value(1)), plainWarning("Wobj is beyond the pallet's x edge"));
    EXPECT_EQ(test.items(), QStringList());
    EXPECT_EQ(finished.count(), 0);
}

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

    AutomaticStackerDialog dialog;
};

} // namespace

TEST(AutomaticStackerDialog, AsksBeforeItOverwrites)
{
    for (const bool answer : {false, true}) {
        ScriptedPresenter presenter({answer});
        StackerTest test;
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, "Top");
        QSignalSpy finished(&test.dialog, &QDialog::finished);
        EXPECT_EQ(test.preview(0)->facts(), "Boxes: 20, area: 75 %");
        test.touch(0);
        test.confirm();
        ASSERT_EQ(presenter.asked.size(), 1);
        EXPECT_EQ(messageText(presenter.asked.first()),
                  "warning / Confirm whether to overwrite the current stack type? / Cancel");
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
    } cases[] = {
        {"{}", -1},
        {"{}", 4},                                   // empty
        {R"({"product_cfg.product.width": 801})", 0} // wider than the pallet
    };
    for (const auto &c : cases) {
        ScriptedPresenter presenter;
        StackerTest test(c.changes);
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, "Top");
        QSignalSpy finished(&test.dialog, &QDialog::finished);
        test.dialog.onGraphViewSelected(c.index);
        test.confirm();
        EXPECT_EQ(presenter.notices, QStringList{"warning: Please select an effective stack type!"})
            << c.index;
        EXPECT_EQ(finished.count(), 0);
        EXPECT_EQ(test.items().size(), 1);
    }
}

TEST(AutomaticStackerDialog, ALayoutOverThePalletOrTheLimitIsMarked)
{
    const StackerTest over(R"({"product_cfg.product": {"length": 600, "width": 100},
        "product_cfg.pallet": {"length": 1000, "width": 700}, "automatic_stacker.min_product_spacing": 50})");
    EXPECT_EQ(over.preview(2)->warning(), "75.0 mm over the pallet's edge");
    EXPECT_TRUE(over.preview(2)->isEnabled()); // the operator may want it all the same

    ScriptedPresenter presenter;
    StackerTest many(R"({"product_cfg.product": {"length": 50, "width": 40}})");
    many.touch(0);
    many.confirm();
    ASSERT_EQ(presenter.asked.size(), 1);
    EXPECT_EQ(messageText(presenter.asked.first()), plainWarning("Wobj number is greater than 200"));
    EXPECT_EQ(many.items(), QStringList());
}
