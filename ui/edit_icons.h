#pragma once

#include <QIcon>

class QAbstractButton;

/// Symbols of the tools that edit a plan.
enum class EditIcon {
    All,
    Several,
    Pan,
    Snap,
    Add,
    Copy,
    Paste,
    Remove,
    TurnLeft,
    TurnRight,
    TurnBy,
    TurnPattern,
    Left,
    Right,
    Up,
    Down,
    MirrorAcross,
    MirrorAlong,
    AlignLeft,
    AlignCentreAcross,
    AlignRight,
    AlignTop,
    AlignCentreAlong,
    AlignBottom,
    SpaceAcross,
    SpaceAlong,
    ZoomIn,
    ZoomOut,
    ZoomFit
};

/// Dark, and light on a checked button.
QIcon editIcon(EditIcon icon);
/// Shows a button's tool tip while it is pressed: a finger cannot hover.
void showTipWhenPressed(QAbstractButton *button);
