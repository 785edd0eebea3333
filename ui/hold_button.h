#pragma once

#include "orba/export.h"

#include <QPushButton>

/// A button that means something only while it is held, by a finger, the mouse or the space bar: what it allows must end
/// with the hold. The hold ends when the button is released or left, when it loses the focus or its window does, when it is
/// hidden or disabled; only a new press begins another. It is never "clicked".
class PALX_API HoldButton : public QPushButton
{
    Q_OBJECT

public:
    explicit HoldButton(QWidget *parent = nullptr);

    bool isHeld() const { return hold_ != Hold::None; }
    /// Ends the hold, whatever the finger does.
    void letGo();

Q_SIGNALS:
    void holdBegan();
    void holdEnded();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    enum class Hold { None, Mouse, Key };
    void begin(Hold hold);

    Hold hold_ = Hold::None;
};
