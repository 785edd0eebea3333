#include "ui/pattern_name_dialog.h"

#include "ui/dialog_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
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
    EXPECT_EQ(partOf<QLineEdit>(*this->open(), "edtName")->text(), QStringLiteral("B"));
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        this->patterns()->ensure(QString(QLatin1Char(letter)));
    EXPECT_EQ(partOf<QLineEdit>(*this->open(), "edtName")->text(), QStringLiteral("["));
}

TYPED_TEST(PatternNameDialogs, TakeOnlyLettersDigitsAndDashes)
{
    const auto dialog = this->open();
    auto *field = partOf<QLineEdit>(*dialog, "edtName");
    field->clear();
    QTest::keyClicks(field, QStringLiteral("a b.c/d#1[_-Z9"));
    EXPECT_EQ(field->text(), QStringLiteral("abcd1_-Z9"));
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

TYPED_TEST(PatternNameDialogs, EndWithTheirRecipe)
{
    const auto dialog = this->open();
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    this->patterns()->remove();
    EXPECT_EQ(finished.count(), 1);
    dialog->work();
    EXPECT_EQ(dialog->getPatternName(), QString());
}
