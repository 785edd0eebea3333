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
/// A button beside a plan: shows its tool tip while it is pressed, because a finger cannot hover, and leaves the
/// keyboard to the plan unless it is reached with the Tab key.
void setupTool(QAbstractButton *button);
