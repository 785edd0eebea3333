#include "ui/keypad.h"

#include "nexo/setting_manager.h"
#include "support/test_support.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

KeypadRequest request(double minimum, double maximum, int decimals, double value = 0)
{
    return {QStringLiteral("Length"), "mm", minimum, maximum, decimals, value};
}

/// Presses keys by the names of their buttons, "1", "Point", "Ok".
void press(Keypad *keypad, const char *keys)
{
    for (const QString &key : QString(QLatin1String(keys)).split(QLatin1Char(' '))) {
        auto *button = keypad->findChild<QPushButton *>(QStringLiteral("btn") + key);
        ASSERT_NE(button, nullptr) << qPrintable(key);
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

QString limits(const Keypad &keypad)
{
    return keypad.findChild<QLabel *>("lblLimits")->text();
}

/// The setting "touch" for the time of a test.
struct Touch
{
    explicit Touch(bool on)
    {
        nexo::SettingManager::instance()->setOverride("touch",
                                                      on ? QStringLiteral("true") : QStringLiteral("false"));
    }
    ~Touch() { nexo::SettingManager::instance()->setOverride("touch", "false"); }
};

} // namespace

TEST(Keypad, KeysGiveANumber)
{
    const struct
    {
        const char *keys;
        double value;
    } cases[] = {{"1 2 3 Ok", 123},     {"4 Sign Ok", -4},        {"1 2 Back 7 Ok", 17},
                 {"9 9 Clear 8 Ok", 8}, {"0 Point 0 5 Ok", 0.05}, {"1 Point Point 2 5 6 Ok", 1.25},
                 {"Ok", 7.25}};
    for (const auto &c : cases) {
        Keypad keypad(request(-1000, 1000, 2, 7.25));
        press(&keypad, c.keys);
        EXPECT_EQ(keypad.result(), QDialog::Accepted) << c.keys;
        EXPECT_DOUBLE_EQ(keypad.value(), c.value) << c.keys;
    }
}

TEST(Keypad, RefusesWhatIsOutsideOfTheLimitsAndShowsThem)
{
    const struct
    {
        const char *keys;
        bool accepted;
    } cases[] = {{"5 0 0 Ok", true},
                 {"5 0 0 Point 1 Ok", false},
                 {"9 Point 9 Ok", false},
                 {"Clear Point Ok", false},
                 {"9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 Ok", false}};
    for (const auto &c : cases) {
        Keypad keypad(request(10, 500, 1, 20));
        keypad.show();
        press(&keypad, c.keys);
        EXPECT_EQ(keypad.result() == QDialog::Accepted, c.accepted) << c.keys;
        EXPECT_EQ(keypad.isVisible(), !c.accepted) << c.keys;
        EXPECT_TRUE(limits(keypad).contains("10 to 500 mm")) << limits(keypad);
        if (!c.accepted) {
            press(&keypad, "4 2 Ok"); // the next key replaces a refused number
            EXPECT_EQ(keypad.value(), 42);
        }
    }
}

namespace {

/// A form with a number and a whole number.
struct TouchForm
{
    TouchForm() : number(new QDoubleSpinBox(&form)), whole(new QSpinBox(&form))
    {
        number->setRange(-10, 200);
        number->setSuffix(" mm");
        number->setAccessibleName("Width");
        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(number);
        layout->addWidget(whole);
        new KeypadOpener(&form);
        form.show();
    }
    void touch(QAbstractSpinBox *field)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the keypad that was closed
        QTest::mouseClick(field->findChild<QLineEdit *>(), Qt::LeftButton);
    }
    Keypad *keypad() const { return form.findChild<Keypad *>(); }
    QWidget form;
    QDoubleSpinBox *number;
    QSpinBox *whole;
};

} // namespace

TEST(KeypadOpener, TakesTheNumberOverAsIfTyped)
{
    const Touch on(true);
    TouchForm form;
    QSignalSpy finished(form.number, &QDoubleSpinBox::editingFinished);
    form.touch(form.number);
    press(form.keypad(), "9 Cancel");
    EXPECT_EQ(form.number->value(), 0);
    EXPECT_EQ(finished.size(), 0);
    form.touch(form.number);
    finished.clear();
    ASSERT_NE(form.keypad(), nullptr);
    EXPECT_EQ(form.keypad()->windowTitle(), "Width");
    EXPECT_TRUE(limits(*form.keypad()).contains("-10 to 200 mm"));
    press(form.keypad(), "1 5 Point 5 Ok");
    EXPECT_EQ(form.number->value(), 15.5);
    EXPECT_EQ(finished.size(), 1);
    form.touch(form.whole);
    press(form.keypad(), "8 Ok");
    EXPECT_EQ(form.whole->value(), 8);
}

TEST(KeypadOpener, StaysAwayWithoutTouchAndFromReadOnlyFields)
{
    TouchForm form;
    {
        const Touch off(false);
        form.touch(form.number);
        EXPECT_EQ(form.keypad(), nullptr);
    }
    const Touch on(true);
    form.number->setReadOnly(true);
    form.touch(form.number);
    form.whole->setEnabled(false);
    form.touch(form.whole);
    EXPECT_EQ(form.keypad(), nullptr);
}
