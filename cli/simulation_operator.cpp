#include "simulation_operator.h"

namespace cli {

using controller::Runner;
using orba::Node;

namespace {

Node payloadOf(std::initializer_list<std::pair<QString, QVariant>> values)
{
    Node payload;
    payload.reset(Node::Kind::Map);
    for (const auto &[key, value] : values)
        payload.ensure(key)->setValue(value);
    return payload;
}

/// After these the product that was under way is gone, so that the program has to begin with it again.
bool losesProduct(const QString &fault)
{
    return fault == QLatin1String("no-vacuum") || fault == QLatin1String("lost-box") ||
           fault == QLatin1String("power-cut");
}

} // namespace

SimulationOperator::SimulationOperator(controller::Station *station, QVector<StackedSide> sides,
                                       QVector<PlannedFault> faults)
    : station_(station), sides_(std::move(sides)), faults_(std::move(faults))
{
    std::stable_sort(faults_.begin(), faults_.end(),
                     [](const PlannedFault &a, const PlannedFault &b) { return a.time < b.time; });
}

QString SimulationOperator::ask(const char *request, const Node &payload)
{
    Node copy = payload;
    return station_->request(QString::fromLatin1(request), copy).refusal;
}

void SimulationOperator::bring(const PlannedFault &fault)
{
    active_ = fault.name;
    ask("cell.fault", payloadOf({{QStringLiteral("name"), fault.name}, {QStringLiteral("on"), true}}));
}

/// Layer and piece to go on with, by what lies on the pallets.
void SimulationOperator::countWhatLies()
{
    for (const StackedSide &side : std::as_const(sides_)) {
        int layer = 0;
        int piece = 0;
        const auto &pallet = runner().cell().world().pallet(side.side);
        if (pallet.isFull() || !pallet.plan())
            continue;
        pallet.nextPiece(&layer, &piece);
        const QString suffix = side.side == 0 ? QStringLiteral("L") : QStringLiteral("R");
        ask("monitor.pers.modify", payloadOf({{QStringLiteral("currentLayer") + suffix, layer},
                                              {QStringLiteral("layerCount") + suffix, piece}}));
    }
}

QString SimulationOperator::startAgain()
{
    if (runner().state() == Runner::State::Paused && !losesProduct(active_))
        return ask("program.run");
    ask("program.stop");
    station_->simulate(1); // until the robot stands
    countWhatLies();
    return ask("program.run");
}

void SimulationOperator::repair()
{
    repairAt_ = -1;
    if (!active_.isEmpty())
        ask("cell.fault", payloadOf({{QStringLiteral("name"), active_}, {QStringLiteral("on"), false}}));
    ask("program.reset");
}

bool SimulationOperator::look(QString *why)
{
    const double now = runner().cell().now();
    if (!faults_.isEmpty() && now >= faults_.first().time)
        bring(faults_.takeFirst());
    const bool stands = runner().state() != Runner::State::Running;
    if (stands && active_.isEmpty() && runner().isFault()) {
        *why = runner().why();
        return false;
    }
    const bool needsRepair = stands || active_ == QLatin1String("conveyor-jam");
    if (needsRepair && repairAt_ < 0)
        repairAt_ = now + kReaction;
    if (repairAt_ < 0 || now < repairAt_)
        return true;
    repair();
    *why = stands ? startAgain() : QString();
    active_.clear();
    return why->isEmpty();
}

} // namespace cli
