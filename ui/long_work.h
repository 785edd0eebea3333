#pragma once

#include "workstation/progress.h"

#include <functional>

class QWidget;

namespace palx {

enum class WorkEnd { Finished, Cancelled };

/// A lambda that keeps its result itself.
using Work = std::function<void(Progress &progress)>;

constexpr int kShowWorkAfterMs = 500; ///< shorter work shows nothing

/// Both run `work` and return when it has ended. Meanwhile the panel goes on drawing, following the controller and answering
/// timers, but takes no touch except on "Cancel" of the dialog that comes up after `showAfterMs`. `Cancelled` says that the
/// work was told so and has ended early; a touch on "Cancel" that came too late for it counts for nothing. That a cancelled
/// work leaves everything as it was is the work's own matter.
///
/// On the GUI thread; the panel answers inside of `step`. For work on nodes of the data tree. Nodes that others may change or
/// remove meanwhile are to be copied first.
PALX_API WorkEnd runInSlices(QWidget *parent, const QString &title, const Work &work,
                             int showAfterMs = kShowWorkAfterMs);

/// On a thread of its own. For work on files and on copies of storage nodes (`orba::Node`): the work touches no
/// `orba::ModuleObject`, no widget and sends no message. When the program is to end, the work is told to cancel.
PALX_API WorkEnd runInThread(QWidget *parent, const QString &title, const Work &work,
                             int showAfterMs = kShowWorkAfterMs);

} // namespace palx
