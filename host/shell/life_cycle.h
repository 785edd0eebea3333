#pragma once

#include "orba/export.h"

#include <QList>

namespace bwaf {

class BModule;

/// The steps of a module's life, in their order.
enum class Step {
    Init,
    AfterInit,
    Setup,
    AfterSetup,
    Render,
    AfterRender,
    Idle,
    AfterIdle,
    BeforeDetach,
    Detach
};

/// Drives modules through their life as `BModule` describes it. A module takes every step at most once.
class PALX_API LifeCycle
{
public:
    /// Takes all modules through the steps that they have not passed yet, up to and including `last`: each
    /// step on all modules before the next. `last` is at most AfterIdle.
    static void advance(const QList<BModule *> &modules, Step last);
    /// Detaches all modules, the last one first, whatever steps they have passed.
    static void detach(const QList<BModule *> &modules);
    /// Ends a module, its sub-modules first, the last one before the others.
    static void end(BModule *module);
    /// Takes a module that was just added to `parent` through the steps that the parent has passed.
    static void catchUp(BModule *parent, BModule *module);

private:
    static void runStep(BModule *module, Step step);
    static void runDetachStep(BModule *module, Step step);
    static void call(BModule *module, Step step);
};

} // namespace bwaf
