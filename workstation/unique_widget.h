#pragma once

#include "orba/export.h"

#include <QString>
#include <QWidget>

namespace palx {

/// Keeps at most one live widget per key: one that lives under the key already ends first. The widget is deleted when it
/// is closed, and carries the property "unique".
PALX_API void makeUniqueWidget(const QString &key, QWidget *widget);
/// The plug-in's dialogs: one at a time.
PALX_API void makeUniqueDialog(QWidget *widget);
/// The dialog that drives the robot: one at a time.
PALX_API void makeUniqueMoveDialog(QWidget *widget);

} // namespace palx
