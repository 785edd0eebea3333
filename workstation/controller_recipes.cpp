#include "workstation/controller_recipes.h"

#include "nexo/controller_manager.h"
#include "workstation/config_log.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "xservice.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace palx {

using orba::ModuleObject;

namespace {

const QString kList = QStringLiteral("pallet.get.list");

} // namespace

ControllerRecipes::ControllerRecipes(QObject *parent) : QObject(parent)
{
    timer_.setSingleShot(true);
    timer_.setInterval(kDelayMs);
    connect(&timer_, &QTimer::timeout, this, &ControllerRecipes::work);
    connect(&turn_, &QTimer::timeout, this, &ControllerRecipes::sumUp);
    auto *manager = nexo::ControllerManager::instance();
    connect(manager, &nexo::ControllerManager::rcConnectedChanged, this,
            &ControllerRecipes::followConnection);
    connect(xservice(), &XService::requestEnded, this, [this](const QString &name) {
        if (name.startsWith(QLatin1String("pallet.")) && name != kList)
            ask();
    });
    connect(stacksNode(), &ModuleObject::structureChanged, this, &ControllerRecipes::compareSoon);
    for (const char *trigger : {"refresh_table", "refresh_data", "refresh_cmb"})
        connect(triggerNode()->c(trigger), &ModuleObject::changed, this, &ControllerRecipes::compareSoon);
    followConnection(manager->rcConnected());
}

void ControllerRecipes::ask()
{
    mustAsk_ = true;
    compareSoon();
}

void ControllerRecipes::tellName(const QString &old, const QString &name, const QString &desc)
{
    const auto held = std::find_if(told_.begin(), told_.end(),
                                   [&old](const host::RecipeSummary &recipe) { return recipe.name == old; });
    if (hasList_ && held != told_.end())
        saveNameToRC(static_cast<int>(held - told_.begin()), name, desc);
}

void ControllerRecipes::followConnection(bool connected)
{
    isAsking_ = false; // what was asked before is not answered any more
    forget();
    enter(connected ? State::Asking : State::NoConnection);
    if (connected)
        ask();
}

/// Not later for every further edit: who edits all the time sees the state as well.
void ControllerRecipes::compareSoon()
{
    if (state_ != State::NoConnection && !timer_.isActive())
        timer_.start();
}

void ControllerRecipes::work()
{
    if (state_ == State::NoConnection || isAsking_)
        return; // the answer brings the comparison
    if (!mustAsk_) {
        if (hasList_)
            compare();
        return;
    }
    mustAsk_ = false;
    isAsking_ = xservice()->command(this, kList, nullptr, [this](const XReply &reply) { take(reply); });
    if (!isAsking_)
        mustAsk_ = true; // the way is gone, which will be told
}

void ControllerRecipes::take(const XReply &reply)
{
    isAsking_ = false;
    if (reply.status == XReply::Status::NotConnected)
        return;
    if (!reply.isOk())
        fail(reply.error);
    else if (!readSummaries(reply.value, &told_))
        fail(tr("Its answer is no list of recipes."));
    else {
        isRecorded_ = false;
        hasList_ = true;
        compare();
    }
    if (mustAsk_)
        compareSoon();
}

void ControllerRecipes::fail(const QString &why)
{
    error_ = why;
    forget();
    if (!std::exchange(isRecorded_, true))
        recordCfgLog(tr("The controller does not tell which recipes it holds: %1").arg(why), false);
    enter(State::Unknown);
}

void ControllerRecipes::forget()
{
    turn_.stop();
    hasList_ = false;
    told_.clear();
    matches_.clear();
}

void ControllerRecipes::compare()
{
    summed_.clear();
    turn_.start(0);
}

/// An edit meanwhile starts another comparison, so nothing is missed.
void ControllerRecipes::sumUp()
{
    const orba::Node &stacks = stacksNode()->node();
    QElapsedTimer turn;
    turn.start();
    while (static_cast<int>(summed_.size()) < stacks.size()) {
        const orba::Node *stack = stacks.at(static_cast<int>(summed_.size()));
        summed_.push_back(stack ? host::summaryOf(*stack) : host::RecipeSummary());
        if (turn.elapsed() >= kTurnMs)
            return;
    }
    turn_.stop();
    error_.clear();
    state_ = State::Known;
    matches_ = matchRecipes(summed_, told_);
    Q_EMIT changed();
}

void ControllerRecipes::enter(State state)
{
    state_ = state;
    if (state != State::Unknown)
        error_.clear();
    Q_EMIT changed();
}

} // namespace palx
