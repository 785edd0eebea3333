#pragma once

#include "core/controller_link.h"

class QWidget;

namespace cli {

/// A controller for pictures, and the panel's link to it while this lives: recipes of which one has other points, one is
/// missing and one is only there, an active tool, and records of all levels in the log.
class ExampleCell
{
public:
    ExampleCell();

    /// Connects and waits, with a bound, until the page knows what the controller holds. False when it does not come to
    /// that.
    bool show(const QWidget *window);

private:
    host::ControllerLink link_;
};

} // namespace cli
