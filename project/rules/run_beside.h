#pragma once

#include "workstation/progress.h"

#include <functional>

namespace palx {

/// How far work that runs beside has come, and what stops it.
struct BesideTold
{
    QString text;
    std::function<int()> done; ///< asked on the calling thread; none: unknown
    int total = 0;             ///< 0: unknown
    std::function<void()>
        prevent; ///< called once when the work is cancelled, so that it fails soon; none: it is waited for
};

/// Runs a call that cannot tell how far it has come on a thread of its own, and tells it meanwhile; returns when it has
/// ended. `work` touches files only, no node.
void runBeside(Progress *progress, const BesideTold &told, const std::function<void()> &work);

} // namespace palx
