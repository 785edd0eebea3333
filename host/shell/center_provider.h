#pragma once

#include "orba/export.h"

namespace bwaf {
class CenterWidget;
}

namespace host {

/// The centre widget that modules get. Without one set, one is made and ends with the application.
PALX_API bwaf::CenterWidget *centerWidget();
/// Null takes it away. Not owned.
PALX_API void setCenterWidget(bwaf::CenterWidget *center);

} // namespace host
