#include "ix/xtheme.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using ix::xtheme::State;

// A frame may have been shown, and its text been given its colour, long before it gets a state.
TEST(StateText, FollowsTheStateOfItsFrame)
{
    const QString before = qApp->styleSheet();
    ix::xtheme::apply(qApp);
    {
        QFrame frame;
        auto *text = new QLabel(QStringLiteral("text"), &frame);
        (new QVBoxLayout(&frame))->addWidget(text);
        frame.show();
        for (const State state : {State::Fault, State::Attention, State::Manual, State::Attention}) {
            ix::xtheme::setState(&frame, state);
            EXPECT_EQ(text->palette().color(QPalette::WindowText), ix::xtheme::textColor(state)) << int(state);
        }
    }
    qApp->setStyleSheet(before);
}
