#include "ui/hold_button.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

HoldButton::HoldButton(QWidget *parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false); // the return key of a dialog must not press it
}

void HoldButton::begin(Hold hold)
{
    if (isHeld() || !isEnabled())
        return;
    hold_ = hold;
    setDown(true);
    Q_EMIT holdBegan();
}

void HoldButton::letGo()
{
    if (std::exchange(hold_, Hold::None) == Hold::None)
        return;
    setDown(false);
    Q_EMIT holdEnded();
}

bool HoldButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::TouchCancel:
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        letGo();
        break;
    case QEvent::EnabledChange:
        if (!isEnabled())
            letGo();
        break;
    default:
        break;
    }
    return QPushButton::event(event);
}

void HoldButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && hitButton(event->pos()))
        begin(Hold::Mouse);
}

/// Coming back onto the button does not begin again.
void HoldButton::mouseMoveEvent(QMouseEvent *event)
{
    if (hold_ == Hold::Mouse && (!hitButton(event->pos()) || !(event->buttons() & Qt::LeftButton)))
        letGo();
}

void HoldButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && hold_ == Hold::Mouse)
        letGo();
}

/// Any other key ends the hold: who holds one key has no reason to press another.
void HoldButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat())
            begin(Hold::Key);
        return;
    }
    if (isHeld())
        letGo();
    else
        event->ignore();
}

void HoldButton::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space)
        event->ignore();
    else if (!event->isAutoRepeat() && hold_ == Hold::Key)
        letGo();
}
