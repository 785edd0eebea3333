#pragma once

#include <QtGlobal>

/// Marks what a library of this tree shows to others; everything else is hidden.
#define PALX_API Q_DECL_EXPORT
