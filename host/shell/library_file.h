#pragma once

#include "orba/export.h"

#include <QString>

namespace host {

/// Why the file cannot be a whole shared library for this machine's loader; empty when nothing speaks against
/// loading.
///
/// The system's loader maps what the file's head promises; touching a part that a cut-off copy lacks would
/// then end the process with a bus error, so the head is held against the file's size first.
PALX_API QString libraryFault(const QString &file);

} // namespace host
