#pragma once

#include "orba/export.h"

#include <QString>

namespace palx {

/// Publishes an operator's log record to "quill.log.current": level "error" or "warning", title, date_time, rcid.
/// The host shows and keeps it.
PALX_API void recordCfgLog(const QString &text, bool isError);

} // namespace palx
