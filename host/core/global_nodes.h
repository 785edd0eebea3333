#pragma once

#include "orba/module_object.h"

namespace host {

/// Builds the trees that every module may expect ("nexo", "quill", "ix") from the host's own template and
/// keeps the children of "nexo.setting" equal to the settings. What is there already keeps its values. False
/// with a reason when the template does not hold.
PALX_API bool buildGlobalNodes(QString *error = nullptr);
/// Ends those trees.
PALX_API void removeGlobalNodes();

/// A log record of this moment and this robot: {"level", "title", "date_time", "rcid"}.
PALX_API orba::Node makeRecord(const QString &level, const QString &title);
/// Publishes a log record of this moment and this robot to "quill.log.current"; `level` is "error", "warning"
/// or "info".
PALX_API void publishRecord(const QString &level, const QString &title);

} // namespace host
