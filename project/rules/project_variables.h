#pragma once

#include "orba/export.h"

#include <QString>

/// The controller's variables of the current project ("quill.project.var._list") that the robot programs rely on.
namespace palx {

/// Whether a variable of that name is there.
PALX_API bool checkVarExists(const QString &name);

/// Appends a variable, unless there is one of that name. `type` is "bool", "int", "double", "clock" or "robtarget"; the
/// value is kept as a text. For controller software 2.3 it gets its index as "id".
PALX_API void createVar(const QString &name, const QString &description, const QString &type,
                        const QString &value);

/// The same for a persistent variable. For controller software 2.3 it is also monitored: it is appended to
/// "quill.project.var_monitor._list", which is then written to "var_monitor.json" in the project's folder.
PALX_API void createPERSVar(const QString &name, const QString &description, const QString &type,
                            const QString &value);

/// Creates what the robot programs use and is missing in the current project. Does nothing when there is no record of it.
PALX_API void createProjectVariables();

/// A description in the operator's language. Those of createProjectVariables are kept in English, because projects travel;
/// others are shown as they are.
PALX_API QString shownDescription(const QString &description);

/// Writes all variables to "var.json" in the current project's folder; false, after the message, when it cannot be written.
/// Only for controller software 2.3, otherwise nothing is done.
PALX_API bool writeVariables();

} // namespace palx
