#include "ui/hold_button.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// A shown window with the button and a field, and what the button said.
class HoldButtonTest : public ::testing::Test
{
protected:
    HoldButtonTest() : button(new HoldButton), field(new QLineEdit)
    {
        auto *column = new QVBoxLayout(&window);
        column->addWidget(button);
        column->addWidget(field);
        QObject::connect(button, &HoldButton::holdBegan, &window, [this] { ++began; });
        QObject::connect(button, &HoldButton::holdEnded, &window, [this] { ++ended; });
        QObject::connect(button, &QPushButton::clicked, &window, [this] { ++clicked; });
        window.resize(300, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        button->setFocus();
        QCoreApplication::processEvents();
    }
    void key(QEvent::Type type, int key, bool isRepeated = false)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeated);
        QApplication::sendEvent(button, &event);
    }
    void slide(const QPoint &to)
    {
        QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(button, &event);
    }
    QPoint inside() const { return button->rect().center(); }
    QPoint outside() const { return QPoint(-20, -20); }

    QWidget window;
    HoldButton *button;
    QLineEdit *field;
    int began = 0;
    int ended = 0;
    int clicked = 0;
};

} // namespace

TEST_F(HoldButtonTest, EndsHoweverTheHoldEnds)
{
    QDialog other(&window);
    struct Way
    {
        const char *name;
        std::function<void()> end;
    };
    const Way ways[] = {
        {"released", [this] { QTest::mouseRelease(button, Qt::LeftButton); }},
        {"released beside it", [this] { QTest::mouseRelease(button, Qt::LeftButton, {}, outside()); }},
        {"left", [this] { slide(outside()); }},
        {"focus", [this] { field->setFocus(); }},
        {"key", [this] { key(QEvent::KeyPress, Qt::Key_Escape); }},
        {"another window", [] { QApplication::setActiveWindow(nullptr); }},
        {"a dialog over it", [&other] { other.open(); }},
        {"disabled", [this] { button->setEnabled(false); }},
        {"hidden", [this] { button->hide(); }},
        {"window hidden", [this] { window.hide(); }},
        {"told", [this] { button->letGo(); }},
    };
    for (const Way &way : ways) {
        other.hide();
        window.show();
        button->show();
        button->setEnabled(true);
        QApplication::setActiveWindow(&window);
        button->setFocus();
        QCoreApplication::processEvents();
        began = ended = 0;
        QTest::mousePress(button, Qt::LeftButton);
        EXPECT_EQ(began, 1) << way.name;
        EXPECT_TRUE(button->isDown()) << way.name;
        way.end();
        QCoreApplication::processEvents();
        slide(inside()); // coming back does not begin again
        EXPECT_EQ(ended, 1) << way.name;
        EXPECT_FALSE(button->isHeld()) << way.name;
        EXPECT_FALSE(button->isDown()) << way.name;
        QTest::mouseRelease(button, Qt::LeftButton);
        EXPECT_EQ(began, 1) << way.name;
        EXPECT_EQ(ended, 1) << way.name;
    }
    EXPECT_EQ(clicked, 0);
}

TEST_F(HoldButtonTest, TheSpaceBarHoldsAndItsRepetitionsDoNothing)
{
    key(QEvent::KeyPress, Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        key(QEvent::KeyRelease, Qt::Key_Space, true);
        key(QEvent::KeyPress, Qt::Key_Space, true);
    }
    EXPECT_TRUE(button->isHeld());
    EXPECT_EQ(began, 1);
    key(QEvent::KeyRelease, Qt::Key_Space);
    EXPECT_EQ(ended, 1);

    key(QEvent::KeyPress, Qt::Key_Space);
    button->letGo();
    key(QEvent::KeyPress, Qt::Key_Space, true); // the key is still down
    EXPECT_FALSE(button->isHeld());
    key(QEvent::KeyRelease, Qt::Key_Space);
    EXPECT_EQ(began, 2);
    EXPECT_EQ(ended, 2);
}

TEST_F(HoldButtonTest, NothingElseBeginsAHold)
{
    QTest::mousePress(button, Qt::RightButton);
    QTest::mouseRelease(button, Qt::RightButton);
    for (const int other : {Qt::Key_Return, Qt::Key_Select}) {
        key(QEvent::KeyPress, other);
        key(QEvent::KeyRelease, other);
    }
    button->setEnabled(false);
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_EQ(began, 0);
    EXPECT_EQ(clicked, 0);
}
