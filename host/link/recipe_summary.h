#pragma once

#include "orba/node.h"

#include <cstdint>

namespace host {

/// What tells on one line whether two sides hold the same recipe. Reckoned alike by the panel from its tree and by the
/// controller from what it received.
struct PALX_API RecipeSummary
{
    QString name;
    QString desc;
    int layers = 0;   ///< of "points.put"
    int products = 0; ///< in all these layers
    std::uint32_t checksum =
        0; ///< of "get" and "points": every number, name and the order; 1 and 1.0 count as the same

    /// {"name", "desc", "layers", "products", "checksum"}
    orba::Node toNode() const;
};

PALX_API RecipeSummary summaryOf(const orba::Node &recipe);

} // namespace host
