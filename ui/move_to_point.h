#pragma once

#include "orba/module_object.h"

#include <QWidget>

namespace palx {

/// Opens the dialog that drives the robot to `point`, in the frame and with the tool of its place in the tree, straight, at
/// 1000 mm/s unless the operator chooses otherwise. It does not block, belongs to the window of `widget`, and is the only one of its kind: one
/// that is open already ends.
PALX_API void moveToPoint(orba::ModuleObject *point, QWidget *widget);

} // namespace palx
