#include "shell/life_cycle.h"

#include "bwaf/bmodule.h"

namespace bwaf {

namespace {

using StepFunction = void (BModule::*)();

// In the order of Step.
constexpr StepFunction kStepFunctions[] = {&BModule::init,       &BModule::afterInit, &BModule::setup,
                                           &BModule::afterSetup, &BModule::render,    &BModule::afterRender,
                                           &BModule::idle,       &BModule::afterIdle, &BModule::beforeDetach,
                                           &BModule::detach};

int number(Step step)
{
    return static_cast<int>(step);
}

QList<QPointer<BModule>> guarded(const QList<BModule *> &modules)
{
    QList<QPointer<BModule>> list;
    for (BModule *module : modules)
        list.append(module);
    return list;
}

} // namespace

void LifeCycle::call(BModule *module, Step step)
{
    const QPointer<BModule> guard(module);
    module->passed_ = number(step) + 1; // before the call: a step that asks for itself again must not recurse
    module->inStep_ = true;
    (module->*kStepFunctions[number(step)])();
    if (guard)
        module->inStep_ = false;
}

void LifeCycle::runStep(BModule *module, Step step)
{
    const QPointer<BModule> guard(module);
    for (int next = module->passed_; guard && next <= number(step); ++next) {
        call(module, static_cast<Step>(next));
        // By index: a page may add further pages while it takes the step.
        for (int i = 0; guard && i < module->submodules_.size(); ++i)
            runStep(module->submodules_.at(i), static_cast<Step>(next));
    }
}

void LifeCycle::runDetachStep(BModule *module, Step step)
{
    const QPointer<BModule> guard(module);
    const QList<QPointer<BModule>> submodules = guarded(module->submodules_);
    for (int i = submodules.size() - 1; i >= 0; --i)
        if (submodules.at(i))
            runDetachStep(submodules.at(i), step);
    if (guard && module->passed_ <= number(step))
        call(module, step);
}

void LifeCycle::advance(const QList<BModule *> &modules, Step last)
{
    const QList<QPointer<BModule>> list = guarded(modules);
    for (int step = 0; step <= number(last); ++step)
        for (const QPointer<BModule> &module : list)
            if (module)
                runStep(module, static_cast<Step>(step));
}

void LifeCycle::detach(const QList<BModule *> &modules)
{
    const QList<QPointer<BModule>> list = guarded(modules);
    for (const Step step : {Step::BeforeDetach, Step::Detach})
        for (int i = list.size() - 1; i >= 0; --i)
            if (list.at(i))
                runDetachStep(list.at(i), step);
}

void LifeCycle::end(BModule *module)
{
    while (!module->submodules_.isEmpty())
        end(module->submodules_.constLast()); // takes itself out of the list
    delete module;
}

void LifeCycle::catchUp(BModule *parent, BModule *module)
{
    if (parent->inStep_ || parent->passed_ == 0 || parent->passed_ > number(Step::AfterIdle) + 1)
        return; // the running step takes the new module along; a parent on its way out starts nothing new
    runStep(module, static_cast<Step>(parent->passed_ - 1));
}

} // namespace bwaf
