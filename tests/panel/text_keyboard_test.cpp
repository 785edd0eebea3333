#include "nexo/setting_manager.h"
#include "panel/text_keyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// A form with fields of every kind, served like those of the panel.
class TextKeyboardTest : public ::testing::Test
{
protected:
    TextKeyboardTest() : opener_(&form), name(new QLineEdit(&form)), number(new QDoubleSpinBox(&form))
    {
        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(name);
        layout->addWidget(number);
        name->setAccessibleName(QStringLiteral("Name"));
        nexo::SettingManager::instance()->setOverride("touch", "true");
        form.show();
    }
    ~TextKeyboardTest() override { nexo::SettingManager::instance()->setOverride("touch", QString()); }

    /// Null when none comes up.
    panel::TextKeyboard *touch(QLineEdit *field)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the one that was closed
        QTest::mouseClick(field, Qt::LeftButton);
        return form.findChild<panel::TextKeyboard *>();
    }
    /// Names of buttons, or what stands on keys.
    static void press(panel::TextKeyboard *keyboard, const QStringList &keys)
    {
        for (const QString &key : keys) {
            QAbstractButton *found = nullptr;
            for (auto *button : keyboard->findChildren<QAbstractButton *>())
                if (button->objectName() == key || (button->text() == key && button->isVisible()))
                    found = button;
            ASSERT_NE(found, nullptr) << key.toStdString();
            found->click();
        }
    }

    QWidget form;

private:
    panel::TextKeyboardOpener opener_;

protected:
    QLineEdit *name;
    QDoubleSpinBox *number;
};

} // namespace

TEST_F(TextKeyboardTest, TakesTheTextOverAsIfTyped)
{
    name->setText(QStringLiteral("Line "));
    panel::TextKeyboard *keyboard = touch(name);
    ASSERT_NE(keyboard, nullptr);
    EXPECT_EQ(keyboard->windowTitle(), "Name");
    QSignalSpy edited(name, &QLineEdit::textEdited);
    QSignalSpy finished(name, &QLineEdit::editingFinished);
    press(keyboard,
          {"7", "btnShift", "A", "b", "btnSpace", "btnShift", "btnShift", "X", "Y", "btnShift", "z"});
    press(keyboard,
          {"layerSigns", "&&", "layerMarked", "é", "layerCyrillic", "btnShift", "Ж", "btnBack", "ж"});
    press(keyboard, {"btnLeft", "btnLeft", "btnBack", "btnRight", "layerLatin", "-"});
    EXPECT_EQ(keyboard->text(), QStringLiteral("Line 7Ab XYzé-ж"));
    EXPECT_EQ(name->text(), "Line ");
    press(keyboard, {"btnOk"});
    EXPECT_EQ(name->text(), QStringLiteral("Line 7Ab XYzé-ж"));
    EXPECT_EQ(edited.size(), 1);
    EXPECT_EQ(finished.size(), 1);

    keyboard = touch(name);
    press(keyboard, {"btnClear", "q", "btnCancel"});
    EXPECT_EQ(name->text(), QStringLiteral("Line 7Ab XYzé-ж"));
}

TEST_F(TextKeyboardTest, KeepsToTheFieldAndBeginsWithItsLetters)
{
    name->setText(QStringLiteral("12 Паллета"));
    name->setMaxLength(11);
    panel::TextKeyboard *keyboard = touch(name);
    ASSERT_NE(keyboard, nullptr);
    press(keyboard, {"ы", "ы", "btnOk"});
    EXPECT_EQ(name->text(), QStringLiteral("12 Паллетаы"));
}

TEST_F(TextKeyboardTest, ComesUpForTextThatCanBeEditedOnly)
{
    EXPECT_EQ(touch(number->findChild<QLineEdit *>()), nullptr);
    name->setProperty("ownKeys", true);
    EXPECT_EQ(touch(name), nullptr);
    name->setProperty("ownKeys", QVariant());
    name->setReadOnly(true);
    EXPECT_EQ(touch(name), nullptr);
    name->setReadOnly(false);
    nexo::SettingManager::instance()->setOverride("touch", "false");
    EXPECT_EQ(touch(name), nullptr);
    nexo::SettingManager::instance()->setOverride("touch", "true");
    EXPECT_NE(touch(name), nullptr);
}
