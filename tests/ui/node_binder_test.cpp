#include "ui/node_binder.h"

#include "support/test_support.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QSpinBox>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <memory>

using orba::ModuleObject;

namespace {

std::unique_ptr<ModuleObject> tree(const char *json)
{
    auto root = std::make_unique<ModuleObject>("root");
    root->node().assign(nodeFromJson(json));
    return root;
}

/// One field of each kind, tied to "int", "double", "combo", "flag", "text".
struct Form
{
    Form()
    {
        spin.setRange(0, 1000);
        number.setRange(-1000, 1000);
        number.setDecimals(1);
        for (const char *name : {"Top", "Left", "Middle"})
            combo.addItem(QStringLiteral("shown ") + QLatin1String(name), QLatin1String(name));
        binder.bind(&spin, "int");
        binder.bind(&number, "double");
        binder.bind(&combo, "combo");
        binder.bind(&flag, "flag");
        binder.bind(&text, "text");
    }
    QSpinBox spin;
    QDoubleSpinBox number;
    QComboBox combo;
    QCheckBox flag;
    QLineEdit text;
    NodeBinder binder; // after the fields: ends first
};

const char *const kValues = R"({"int": 7, "double": 1.5, "combo": "Left", "flag": true, "text": "abc"})";

QString shown(const Form &form)
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(form.spin.value())
        .arg(form.number.value())
        .arg(form.combo.currentData().toString())
        .arg(form.flag.isChecked())
        .arg(form.text.text());
}

} // namespace

TEST(NodeBinder, LoadsFollowsAndReloadsFromAnotherRoot)
{
    Form form;
    const auto first = tree(kValues);
    const auto second = tree(R"({"int": 8, "double": -2.5, "combo": "middle", "flag": 0, "text": ""})");
    form.binder.setRoot(first.get());
    EXPECT_EQ(shown(form), "7 1.5 Left 1 abc");
    first->set(nullptr, "double", 9.5);
    first->set(nullptr, "flag", false);
    EXPECT_EQ(shown(form), "7 9.5 Left 0 abc");
    form.binder.setRoot(second.get());
    EXPECT_EQ(shown(form), "8 -2.5 Middle 0 "); // either spelling of a word
    first->set(nullptr, "int", 99);
    EXPECT_EQ(form.spin.value(), 8);
}

TEST(NodeBinder, WritesOnlyWhenEditingIsFinished)
{
    Form form;
    const auto root = tree(kValues);
    form.binder.setRoot(root.get());
    form.spin.setValue(12);
    form.number.setValue(3.5);
    form.text.setText("new");
    EXPECT_EQ(root->node(), nodeFromJson(kValues));
    Q_EMIT form.spin.editingFinished();
    Q_EMIT form.number.editingFinished();
    Q_EMIT form.text.editingFinished();
    form.combo.setCurrentIndex(0);
    Q_EMIT form.combo.activated(0);
    form.flag.click();
    EXPECT_EQ(root->node(),
              nodeFromJson(R"({"int": 12, "double": 3.5, "combo": "Top", "flag": false, "text": "new"})"));
    const auto whole = tree(R"({"double": 20, "flag": 0})"); // whole numbers stay of their kind
    form.binder.setRoot(whole.get());
    form.number.setValue(25);
    Q_EMIT form.number.editingFinished();
    form.flag.click();
    EXPECT_EQ(whole->node(), nodeFromJson(R"({"double": 25, "flag": 1})"));
}

TEST(NodeBinder, AVisitWritesNothing)
{
    // More digits than the field shows, a value beyond its range, an unknown word.
    const char *const values =
        R"({"int": 5000, "double": 1.23456, "combo": "Elsewhere", "flag": 2, "text": null})";
    Form form;
    const auto root = tree(values);
    form.binder.setRoot(root.get());
    EXPECT_EQ(form.spin.value(), 5000);
    EXPECT_EQ(form.combo.currentIndex(), -1);
    Q_EMIT form.spin.editingFinished();
    Q_EMIT form.number.editingFinished();
    Q_EMIT form.text.editingFinished();
    Q_EMIT form.combo.activated(-1);
    EXPECT_EQ(root->node(), nodeFromJson(values));
    root->set(nullptr, "int", 10);
    EXPECT_EQ(form.spin.maximum(), 1000); // the range is the field's own again
}

TEST(NodeBinder, RefusesWithAReasonAndShowsTheNodeAgain)
{
    Form form;
    const auto root = tree(kValues);
    form.binder.setRoot(root.get());
    form.binder.setCheck([](const QString &path, const QVariant &value) {
        return path == QLatin1String("double") && value.toDouble() > 100 ? QStringLiteral("too much")
                                                                         : QString();
    });
    const QSignalSpy refusals(&form.binder, &NodeBinder::refused);
    form.number.setValue(101);
    Q_EMIT form.number.editingFinished();
    ASSERT_EQ(refusals.size(), 1);
    EXPECT_EQ(refusals.first().at(1).toString(), "too much");
    EXPECT_EQ(form.number.value(), 1.5);
    EXPECT_EQ(root->node(), nodeFromJson(kValues));
}

TEST(NodeBinder, TellsOfANumberThatAFieldDrops)
{
    Form form;
    form.number.setRange(1, 100);
    form.binder.bind(&form.number, "double");
    const auto root = tree(kValues);
    form.binder.setRoot(root.get());
    const QSignalSpy refusals(&form.binder, &NodeBinder::refused);
    form.number.selectAll();
    QTest::keyClicks(&form.number, "0");
    QTest::keyClick(&form.number, Qt::Key_Return);
    ASSERT_EQ(refusals.size(), 1);
    EXPECT_EQ(refusals.first().at(1).toString(), "1 to 100 can be entered. The value stays as it was.");
    EXPECT_EQ(form.number.value(), 1.5);
    form.number.selectAll();
    QTest::keyClicks(&form.number, "7");
    QTest::keyClick(&form.number, Qt::Key_Return);
    EXPECT_EQ(refusals.size(), 1);
    EXPECT_EQ(root->getDouble("double"), 7);
}

TEST(NodeBinder, FollowsANodeThatGoesComesBackOrIsReplaced)
{
    Form form;
    const auto root = tree(kValues);
    form.binder.setRoot(root.get());
    root->r("double")->remove();
    EXPECT_FALSE(form.number.isEnabled());
    EXPECT_EQ(form.number.value(), 0);
    EXPECT_TRUE(form.spin.isEnabled());
    QCoreApplication::processEvents();
    EXPECT_FALSE(form.number.isEnabled());
    root->ensure("double");
    root->set(nullptr, "double", 2.5);
    EXPECT_TRUE(form.number.isEnabled());
    EXPECT_EQ(form.number.value(), 2.5);
    form.binder.bind(&form.spin, "sub.value");
    root->ensure("sub")->copyFrom(nodeFromJson(R"({"value": 3})"));
    QCoreApplication::processEvents();
    root->r("sub")->copyFrom(nodeFromJson(R"({"other": 1, "value": 5})"));
    QCoreApplication::processEvents();
    EXPECT_EQ(form.spin.value(), 5);
    root->set(nullptr, "sub.value", 6);
    EXPECT_EQ(form.spin.value(), 6);
}

TEST(NodeBinder, ARootThatEndsClearsTheForm)
{
    Form form;
    auto root = tree(kValues);
    form.binder.setRoot(root.get());
    root.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(form.binder.root(), nullptr);
    EXPECT_FALSE(form.spin.isEnabled());
    form.spin.setValue(3);
    Q_EMIT form.spin.editingFinished(); // nowhere to write
}
