#pragma once

#include "orba/module_object.h"

#include <QDialog>
#include <QDoubleSpinBox>
#include <QLocale>
#include <QWidget>

/// Point records in groups of spin boxes. A group is a widget whose direct children include double spin boxes
/// named after `trans_list` (mm) and `rot_list` (degrees). Here, and only here, millimetres become metres and
/// degrees radians.
namespace palx {

/// First double spin box among the direct children of `group` whose object name contains `name`; null if
/// none.
PALX_API QDoubleSpinBox *findDouleSpin(const QString &name, QWidget *group);

/// Shows a point. With `convert` metres as millimetres and radians as degrees, else the numbers as they are.
PALX_API void pointToGroupSpin(orba::ModuleObject *point, QWidget *group, bool convert);
PALX_API void pointTransToGroupSpin(orba::ModuleObject *point, QWidget *group, bool convert);
/// Writes a point from millimetres and degrees; always converts.
PALX_API void groupSpinToPoint(orba::ModuleObject *point, QWidget *group);
PALX_API void groupSpinToPointTrans(orba::ModuleObject *point, QWidget *group);

/// Writes the point whenever editing of a spin box directly in `group` is finished, as long as `context`
/// lives.
PALX_API void connectSpinChangeToPoint(QWidget *group, orba::ModuleObject *point, QObject *context);
PALX_API void connectSpinChangeToPointTrans(QWidget *group, orba::ModuleObject *point, QObject *context);

/// The dialog is rejected when the node it edits ends.
PALX_API void bindDialogToNode(QDialog *dialog, orba::ModuleObject *node);

/// Gives every descendant of type T that text size and letter spacing in pixels.
template <typename T> void setWidgetFont(QWidget *root, int px, double spacing)
{
    const QString style = QStringLiteral("font-size: %1px; letter-spacing: %2px;")
                              .arg(px)
                              .arg(QString::number(spacing, 'g', QLocale::FloatingPointShortest));
    for (T *widget : root->findChildren<T *>())
        widget->setStyleSheet(style);
}

} // namespace palx
