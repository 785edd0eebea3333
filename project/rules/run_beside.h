#pragma once

#include "workstation/progress.h"

#include <functional>

namespace palx {

/// Runs a call that cannot tell how far it has come on a thread of its own, and tells `text` meanwhile; returns when it has
/// ended, because nothing can stop it. `work` touches files only, no node.
void runBeside(Progress *progress, const QString &text, const std::function<void()> &work);

} // namespace palx
