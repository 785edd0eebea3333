#pragma once

#include "orba/node.h"

namespace controller {

/// Why a record from outside is no recipe: what, where ("points.put.#0.#3.put_p") and why; empty when it is one. Looked at
/// is what robot programs rely on: a name, and put points that are whole. The rest is kept as it comes.
QString recipeFault(const orba::Node &record);

} // namespace controller
