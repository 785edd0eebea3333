#include "ix/clear_button.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

TEST(ClearButton, StandsInTheFieldWhileThereIsTextAndEmptiesIt)
{
    QLineEdit field;
    field.resize(300, 56);
    field.setTextMargins(12, 0, 12, 0);
    auto *button = new ix::ClearButton(&field);
    field.show();
    EXPECT_FALSE(button->isVisible());
    EXPECT_EQ(field.textMargins(), QMargins(12, 0, 12, 0));

    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral("box"));
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->geometry(), QRect(244, 0, 56, 56)) << "as large as a finger needs";
    EXPECT_EQ(field.textMargins(), QMargins(12, 0, 56, 0)) << "text must not run below it";

    const QSignalSpy told(&field, &QLineEdit::textChanged);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(told.count(), 1);
    EXPECT_FALSE(button->isVisible());
    EXPECT_EQ(field.textMargins(), QMargins(12, 0, 12, 0));

    field.setText(QStringLiteral("again"));
    field.resize(200, 60);
    EXPECT_EQ(button->geometry(), QRect(140, 0, 60, 60));
    EXPECT_EQ(button->focusPolicy(), Qt::NoFocus) << "typing goes on in the field";
}
