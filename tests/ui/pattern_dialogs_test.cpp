// The dialogs that make patterns and put products into them.

#include "nexo/setting_manager.h"
#include "ui/automatic_stacker_dialog.h"
#include "ui/dialog_fixture.h"
#include "ui/layout_preview.h"
#include "ui/pattern_name_dialog.h"
#include "ui/pattern_template_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

/// Both dialogs do the same.
template <typename Dialog> class PatternNameDialogs : public testing::Test
{
public:
    explicit PatternNameDialogs(const char *patterns = R"({"A": [{"x": 1}, {"x": 2}], "C": []})")
    {
        tree.node().ensure(u"patterns")->assign(nodeFromJson(patterns));
    }
    orba::ModuleObject *patterns() { return tree.r("patterns"); }
    std::unique_ptr<Dialog> open(const char *current = "A")
    {
        return std::make_unique<Dialog>(patterns(), QLatin1String(current), nullptr);
    }
    static void enterName(const Dialog &dialog, const QString &name)
    {
        partOf<QLineEdit>(dialog, "edtName")->setText(name);
    }
    static void confirm(const Dialog &dialog) { partOf<QPushButton>(dialog, "btnOk")->click(); }

    orba::ModuleObject tree;
};
using Dialogs = testing::Types<AddPatternDialog, NewPatternDialog>;
TYPED_TEST_SUITE(PatternNameDialogs, Dialogs);

} // namespace

TYPED_TEST(PatternNameDialogs, ProposeTheFirstFreeLetter)
{
    EXPECT_EQ(partOf<QLineEdit>(*this->open(), "edtName")->text(), "B");
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        this->patterns()->ensure(QString(QLatin1Char(letter)));
    EXPECT_EQ(partOf<QLineEdit>(*this->open(), "edtName")->text(), "[");
}

TYPED_TEST(PatternNameDialogs, TakeOnlyLettersDigitsAndDashes)
{
    const auto dialog = this->open();
    auto *field = partOf<QLineEdit>(*dialog, "edtName");
    field->clear();
    QTest::keyClicks(field, "a b.c/d#1[_-Z9");
    EXPECT_EQ(field->text(), "abcd1_-Z9");
    const orba::Node before = this->patterns()->node();
    partOf<QPushButton>(*dialog, "btnCancel")->click();
    EXPECT_EQ(this->patterns()->node(), before);
}

TYPED_TEST(PatternNameDialogs, RefuseAndStayOpen)
{
    const struct
    {
        QString name;
        const char *reason;
    } cases[] = {{QString(), "Name is empty!"},
                 {QString(33, QLatin1Char('x')), "Pattern name length is greater than 32!"},
                 {QStringLiteral("clapboard"), "Name is repeated!"}};
    const orba::Node before = this->patterns()->node();
    for (const auto &c : cases) {
        ScriptedPresenter presenter;
        const auto dialog = this->open();
        QSignalSpy finished(dialog.get(), &QDialog::finished);
        QSignalSpy added(dialog.get(), &PatternNameDialog::patternAdded);
        this->enterName(*dialog, c.name);
        this->confirm(*dialog);
        ASSERT_EQ(presenter.asked.size(), 1) << c.name;
        EXPECT_EQ(messageText(presenter.asked.first()), plainWarning(c.reason)) << c.name;
        EXPECT_EQ(finished.count() + added.count(), 0);
        EXPECT_EQ(dialog->getPatternName(), QString());
    }
    EXPECT_EQ(this->patterns()->node(), before);
}

TYPED_TEST(PatternNameDialogs, MakeAnEmptyPattern)
{
    const QString name(32, QLatin1Char('y'));
    const auto dialog = this->open();
    QSignalSpy added(dialog.get(), &PatternNameDialog::patternAdded);
    this->enterName(*dialog, name);
    this->confirm(*dialog);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->getPatternName(), name);
    EXPECT_FALSE(dialog->isClone());
    ASSERT_EQ(added.count(), 1);
    EXPECT_EQ(added.first().first().toString(), name);
    EXPECT_EQ(this->patterns()->cmobjCount(), 3);
    EXPECT_EQ(this->patterns()->c(name)->node(), nodeFromJson("[]"));
}

TYPED_TEST(PatternNameDialogs, CloneThePresentPattern)
{
    const auto dialog = this->open();
    partOf<QCheckBox>(*dialog, "chbClone")->click();
    this->confirm(*dialog);
    EXPECT_TRUE(dialog->isClone());
    EXPECT_EQ(this->patterns()->c("B")->node(), nodeFromJson(R"([{"x": 1}, {"x": 2}])"));
    EXPECT_EQ(this->patterns()->c("A")->node(), nodeFromJson(R"([{"x": 1}, {"x": 2}])"));
    EXPECT_FALSE(partOf<QCheckBox>(*this->open(""), "chbClone")->isEnabled()); // nothing to clone
}

namespace {

const char *const kSpins[] = {"spnNumX",    "spnNumY",    "spnNumY1",  "spnNumY2",
                              "spnOffsetX", "spnOffsetY", "spnSpaceX", "spnSpaceY"};

struct TemplateTest : OpenPattern
{
    explicit TemplateTest(const char *changes = "{}") : OpenPattern(changes), dialog(stack, &scene, &window)
    {
    }
    void choose(const char *kind) { partOf<QComboBox>(dialog, "cmbTemplate")->setCurrentText(kind); }
    void type(const char *spin, int value) { enter(partOf<QSpinBox>(dialog, spin), value); }

    PatternTemplateDialog dialog;
};

QImage imageOf(const QLabel *label)
{
    return label->pixmap(Qt::ReturnByValue).toImage();
}

QImage resourceImage(const QString &name)
{
    const QPixmap image(QStringLiteral(":/palx_workstation/images/stack/%1.png").arg(name));
    EXPECT_FALSE(image.isNull()) << name;
    return image.toImage();
}

} // namespace

TEST(PatternTemplateDialog, ShowsTheFieldsAndThePictureOfItsKind)
{
    const struct
    {
        const char *kind;
        const char *shown;
        const char *image;
    } cases[] = {{"Overlap", "lblX spnNumX lblY spnNumY", "overlap"},
                 {"Cross", "lblX spnNumX lblY1 spnNumY1 lblY2 spnNumY2", "cross"},
                 {"Clip", "", "clip"}};
    TemplateTest test;
    for (const auto &c : cases) {
        test.choose(c.kind);
        QStringList shown;
        for (const char *name :
             {"lblX", "spnNumX", "lblY", "spnNumY", "lblY1", "spnNumY1", "lblY2", "spnNumY2"})
            if (!partOf<QWidget>(test.dialog, name)->isHidden())
                shown << QLatin1String(name);
        EXPECT_EQ(shown.join(' '), QLatin1String(c.shown)) << c.kind;
        for (const char *name : {"spnOffsetX", "spnOffsetY", "spnSpaceX", "spnSpaceY"})
            EXPECT_FALSE(partOf<QWidget>(test.dialog, name)->isHidden());
        EXPECT_TRUE(imageOf(partOf<QLabel>(test.dialog, "wgtImage")) ==
                    resourceImage(QLatin1String(c.image) + QStringLiteral("_en")))
            << c.kind;
        EXPECT_EQ(test.stack->getString("pattern_cfg.template.type"), QLatin1String(c.image));
    }
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride("language", "cn"); // has pictures of its own
    const TemplateTest chinese;
    const QImage shown = imageOf(partOf<QLabel>(chinese.dialog, "wgtImage"));
    settings->setOverride("language", QString());
    EXPECT_TRUE(shown == resourceImage("overlap"));
    EXPECT_FALSE(shown == resourceImage("overlap_en"));
}

TEST(PatternTemplateDialog, KeepsWhatWasTypedAlsoWhenItIsCancelled)
{
    TemplateTest test;
    test.choose("Cross");
    for (int i = 0; i < 8; ++i)
        test.type(kSpins[i], 10 + i);
    partOf<QPushButton>(test.dialog, "btnCancel")->click();
    EXPECT_EQ(test.dialog.result(), QDialog::Rejected);
    EXPECT_EQ(test.stack->r("pattern_cfg.template")->node(),
              nodeFromJson(R"({"num_x": 10, "num_y": 11, "num_y1": 12, "num_y2": 13, "offset_x": 14,
                               "offset_y": 15, "space_x": 16, "space_y": 17, "type": "cross"})"));
    EXPECT_EQ(test.items(), QStringList());
    const PatternTemplateDialog again(test.stack, &test.scene, &test.window);
    EXPECT_EQ(partOf<QSpinBox>(again, "spnNumY2")->value(), 13);
}

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
    EXPECT_EQ(test.items().last(), "18: 601 877.5 90 Middle");
}

TEST(AutomaticStackerDialog, AsksBeforeItOverwrites)
{
    for (const bool answer : {false, true}) {
        ScriptedPresenter presenter({answer});
        StackerTest test;
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, "Top");
        QSignalSpy finished(&test.dialog, &QDialog::finished);
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
        test.scene.addWobjItem(1, 0, {500, 700}, {150, 200}, 0, {}, "Top");
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
