#pragma once

#include "workstation/progress.h"

#include <functional>

namespace palx {

/// What is told of work that runs beside, and what stops it.
struct BesideTold
{
    QString text;
    std::function<void()>
        prevent; ///< called once when the work is cancelled, so that it fails soon; none: it is waited for
};

/// Runs a call that cannot tell how far it has come on a thread of its own, and tells it meanwhile; where nobody has to be
/// answered, it needs no thread. Returns when it has ended. `work` touches files only, no node.
void runBeside(Progress *progress, const BesideTold &told, const std::function<void()> &work);

} // namespace palx
