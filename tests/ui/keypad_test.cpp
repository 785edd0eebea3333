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

} // namespace

TEST(Keypad, KeysGiveANumberWithinTheLimits)
{
    const struct
    {
        const char *keys;
        double value; // 42: refused, and the next number taken
    } cases[] = {{"4 Sign Ok", -4},
                 {"1 2 Back 7 Ok", 17},
                 {"9 9 Clear 8 Ok", 8},
                 {"1 Point Point 2 5 6 Ok", 1.25},
                 {"Ok", 7.25},
                 {"5 0 0 Ok", 500},
                 {"5 0 0 Point 1 Ok", 42},
                 {"Clear Point Ok", 42},
                 {"9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 Ok", 42}};
    for (const auto &c : cases) {
        Keypad keypad({QStringLiteral("Length"), "mm", -10, 500, 2, 7.25});
        press(&keypad, c.keys);
        EXPECT_EQ(keypad.result() == QDialog::Accepted, c.value != 42) << c.keys;
        EXPECT_TRUE(limits(keypad).contains("-10 to 500 mm")) << limits(keypad);
        if (c.value == 42)
            press(&keypad, "4 2 Ok"); // the next key replaces a refused number
        EXPECT_DOUBLE_EQ(keypad.value(), c.value) << c.keys;
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
    nexo::SettingManager::instance()->setOverride("touch", "true");
    TouchForm form;
    QSignalSpy finished(form.number, &QDoubleSpinBox::editingFinished);
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
    nexo::SettingManager::instance()->setOverride("touch", "false");
    form.touch(form.number);
    EXPECT_EQ(form.keypad(), nullptr);
}
