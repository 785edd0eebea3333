#include "simulation_run.h"

#include "simulation_operator.h"

#include <QElapsedTimer>
#include <QFile>

namespace cli {

using controller::Runner;
using controller::cell::PalletPlace;
using controller::cell::Violation;

namespace {

constexpr double kHold = 0.1;          ///< between two signs of the held button [s]
constexpr double kLongestPerBox = 120; ///< a cell that is slower than this will not get ready [s]
constexpr double kLongestApart = 600;  ///< column, faults, start [s]

class TraceFile : public controller::cell::TraceSink
{
public:
    bool open(const QString &name)
    {
        file_.setFileName(name);
        return name.isEmpty() || file_.open(QIODevice::WriteOnly | QIODevice::Truncate);
    }
    bool isWanted() const { return file_.isOpen(); }
    void line(const std::string &text) override
    {
        file_.write(text.data(), static_cast<qint64>(text.size()));
        file_.write("\n");
    }
    /// False when not everything could be written.
    bool finish() { return !isWanted() || (file_.flush() && file_.error() == QFile::NoError); }
    QString error() const { return file_.fileName() + QStringLiteral(": ") + file_.errorString(); }

private:
    QFile file_;
};

/// Products that lie elsewhere than their turn has it.
void findDisorder(const PalletPlace &pallet, QVector<Violation> *violations)
{
    int layer = 1;
    int piece = 0;
    for (const auto &box : pallet.boxes()) {
        for (++piece; layer <= pallet.plan()->layers() && piece > pallet.plan()->pieces(layer); piece = 1)
            ++layer;
        if (box.body.layer == layer && box.body.piece == piece)
            continue;
        Violation violation;
        violation.layer = layer;
        violation.piece = piece;
        violation.what = "out of order: instead comes " + nameOf(box.body);
        violations->append(violation);
        return;
    }
}

void judgePallet(const PalletPlace &pallet, SimulationResult *result)
{
    if (!pallet.plan())
        return;
    result->pallets += pallet.isFull() ? 1 : 0;
    result->boxes += static_cast<int>(pallet.boxes().size());
    result->expected += pallet.plan()->productCount();
    for (const auto &box : pallet.boxes()) {
        result->maxErrorMm = std::max(result->maxErrorMm, box.errorMm);
        result->maxErrorDeg = std::max(result->maxErrorDeg, box.errorDeg);
    }
    findDisorder(pallet, &result->violations);
}

orba::Node countersOf(const orba::Node &variables)
{
    orba::Node counters;
    counters.reset(orba::Node::Kind::Map);
    for (int i = 0; i < variables.size(); ++i) {
        const orba::Node &variable = *variables.at(i);
        const QString type = variable.getString(u"type");
        const orba::Node *value = variable.child(QStringView(u"value"));
        value = value && value->size() > 0 ? value->at(0) : nullptr;
        orba::Node *counter = value ? counters.ensureChild(orba::Name(variable.getString(u"name"))) : nullptr;
        if (type == QLatin1String("int") && counter)
            counter->setInt(value->toInt());
        else if (type == QLatin1String("double") && counter)
            counter->setDouble(value->toDouble());
        else if (counter)
            counters.removeAt(counters.size() - 1);
    }
    return counters;
}

bool areFull(const controller::cell::World &world, const QVector<StackedSide> &sides)
{
    return std::all_of(sides.begin(), sides.end(),
                       [&world](const StackedSide &side) { return world.pallet(side.side).isFull(); });
}

/// Whether a program stacks a side, or counts its last product.
bool isAnySideServed(Runner &runner)
{
    const int id = runner.variables() ? runner.variables()->idOf("palletStatus") : -1;
    return id >= 0 && std::get<std::int64_t>(runner.variables()->value(id)) != 0;
}

int expectedBoxes(controller::Station *station, const QVector<StackedSide> &sides)
{
    int count = 0;
    for (const StackedSide &side : sides)
        if (const auto plan = station->desk().runner().cell().plan(side.recipe))
            count += plan->productCount();
    return count;
}

/// The operator drives the robot to where it waits, as one does before the first start. Why not; empty when it stands
/// there.
QString driveHome(controller::Station *station, const QString &recipe)
{
    const auto plan = station->desk().runner().cell().plan(recipe);
    const orba::Node *home = plan ? plan->recipe()->find(u"get.enter_p") : nullptr;
    if (!home)
        return QStringLiteral("the recipe \"%1\" has no point where the robot waits").arg(recipe);
    orba::Node move;
    move.ensure(u"type")->setString(QStringLiteral("j"));
    move.ensure(u"motion.toolset")->setString(station->tree().getString(u"quill.body.toolset"));
    move.ensure(u"motion.speed")->setInt(1000);
    move.ensure(u"point")->assign(*home);
    const QString why = station->request(QStringLiteral("motion.start"), move).refusal;
    orba::Node nothing;
    while (station->isBusy()) {
        station->advance(kHold);
        station->request(QStringLiteral("motion.hold"), nothing);
    }
    return why;
}

/// Until the pallets are full and the robot is home again. False when the programs stopped for good; why.
bool runUntilFull(controller::Station *station, const SimulationProject &project,
                  const SimulateRequest &request, QString *why)
{
    SimulationOperator person(station, project.sides(), request.faults);
    const controller::cell::World &world = station->desk().runner().cell().world();
    const int expected = expectedBoxes(station, project.sides());
    const double longest = kLongestApart * (1 + request.faults.size()) + kLongestPerBox * expected;
    Progress progress;
    orba::Node nothing;
    *why = driveHome(station, project.sides().first().recipe);
    if (why->isEmpty())
        *why = station->request(QStringLiteral("program.run"), nothing).refusal;
    bool goesOn = why->isEmpty();
    const auto isDone = [&] {
        return areFull(world, project.sides()) && !world.way().isMoving() &&
               !isAnySideServed(station->desk().runner());
    };
    while (goesOn && world.now() < longest && !isDone()) {
        station->simulate(SimulationOperator::kLook);
        goesOn = person.look(why);
        const auto count = world.pallet(0).boxes().size() + world.pallet(1).boxes().size();
        progress.show(QStringLiteral("boxes"), static_cast<int>(count), expected);
    }
    if (goesOn && world.now() >= longest)
        *why = QStringLiteral("gave up after %1 s of simulated time").arg(world.now());
    return why->isEmpty();
}

} // namespace

bool runSimulation(const SimulationProject &project, const SimulateRequest &request, SimulationResult *result)
{
    TraceFile trace;
    if (!trace.open(request.traceFile)) {
        say(trace.error());
        return false;
    }
    controller::Station station(project.options());
    controller::cell::Cell &cell = station.desk().runner().cell();
    cell.setTrace(trace.isWanted() ? &trace : nullptr);
    QElapsedTimer clock;
    clock.start();
    QString why;
    if (!runUntilFull(&station, project, request, &why))
        say(why);
    result->wallSeconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    result->seconds = cell.now();
    station.publishAll();
    for (const Violation &violation : cell.world().violations())
        result->violations.append(violation);
    for (const StackedSide &side : project.sides())
        judgePallet(cell.world().pallet(side.side), result);
    result->expected = expectedBoxes(&station, project.sides());
    result->counters = countersOf(*station.tree().find(u"quill.project.var._list"));
    if (!trace.finish())
        say(trace.error());
    return why.isEmpty() && trace.finish();
}

} // namespace cli
