#include "simulation_operator.h"

#include <algorithm>

namespace cli {

using controller::Runner;
using orba::Node;

namespace {

QVector<int> numbersOf(const QVector<StackedSide> &sides)
{
    QVector<int> numbers;
    for (const StackedSide &side : sides)
        numbers.append(side.side);
    return numbers;
}

} // namespace

SimulationOperator::SimulationOperator(controller::Station *station, const QVector<StackedSide> &sides,
                                       QVector<PlannedFault> faults)
    : station_(station), person_(station, numbersOf(sides)), faults_(std::move(faults))
{
    std::stable_sort(faults_.begin(), faults_.end(),
                     [](const PlannedFault &a, const PlannedFault &b) { return a.time < b.time; });
}

void SimulationOperator::bring(const PlannedFault &fault)
{
    hasFault_ = hadFault_ = true;
    Node payload;
    payload.ensure(u"name")->setString(fault.name);
    payload.ensure(u"on")->setBool(true);
    person_.ask("cell.fault", payload);
}

bool SimulationOperator::look(QString *why)
{
    const Runner &runner = station_->desk().runner();
    const double now = runner.cell().now();
    while (!faults_.isEmpty() && now >= faults_.first().time)
        bring(faults_.takeFirst());
    const bool stands = runner.state() != Runner::State::Running;
    if (stands && !hasFault_ && runner.isFault()) {
        *why = runner.why();
        return false;
    }
    if ((stands || hasFault_) && looksLeft_ < 0)
        looksLeft_ = kReaction;
    if (hadFault_ && runner.state() == Runner::State::Running && person_.seesMiscount())
        looksLeft_ = 0;
    if (looksLeft_ < 0 || looksLeft_-- > 0)
        return true;
    hasFault_ = false;
    *why = person_.recover();
    return why->isEmpty();
}

} // namespace cli
