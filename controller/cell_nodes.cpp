#include "controller/cell_nodes.h"

#include "controller/texts.h"

namespace controller {

using cell::Body;
using cell::Drive;
using cell::Fault;
using cell::World;
using orba::Node;
using script::Activity;

namespace {

constexpr double kMmPerM = 1000;

void setText(Node *node, QStringView key, const std::string &text)
{
    node->ensure(key)->setString(QString::fromStdString(text));
}

/// A list of that many records.
Node *listOf(Node *node, QStringView key, int count)
{
    Node *list = node->ensure(key);
    if (list->kind() != Node::Kind::List)
        list->reset(Node::Kind::List);
    while (list->size() > count)
        list->removeAt(list->size() - 1);
    while (list->size() < count)
        list->add();
    return list;
}

/// [x, y, z of the centre, turn about z, length, width, height]
void setBlock(Node *node, const cell::Block &block)
{
    const Vector at = block.pose.translation() * kMmPerM;
    const Vector size = 2 * block.half * kMmPerM;
    const double turn = degrees(anglesOf(block.pose.linear()).z());
    const double numbers[] = {at.x(), at.y(), at.z(), turn, size.x(), size.y(), size.z()};
    node->setDoubles(numbers, 7);
}

const char *activityName(Activity activity)
{
    switch (activity) {
    case Activity::Ready:
        return "running";
    case Activity::Idle:
    case Activity::Asleep:
        return "waiting";
    case Activity::Moving:
        return "moving";
    case Activity::Ended:
        return "ended";
    case Activity::Failed:
        break;
    }
    return "failed";
}

const char *kindName(script::TaskKind kind)
{
    switch (kind) {
    case script::TaskKind::Motion:
        return "motion";
    case script::TaskKind::SemiStatic:
        return "semi_static";
    case script::TaskKind::Normal:
        break;
    }
    return "normal";
}

void publishProgram(const Runner &runner, Node *node)
{
    node->ensure(u"state")->setString(QLatin1String(Runner::stateName(runner.state())));
    node->ensure(u"why")->setString(runner.why());
    node->ensure(u"fault")->setBool(runner.isFault());
}

void publishTasks(const Runner &runner, Node *node)
{
    const Scheduler *scheduler = runner.scheduler();
    const int count = scheduler ? static_cast<int>(scheduler->count()) : 0;
    Node *list = listOf(node, u"tasks", count);
    for (int i = 0; i < count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        const LoadedTask &task = scheduler->task(place);
        const script::Location where = scheduler->executor(place).location();
        const bool stands = scheduler->isMotion(place) && runner.state() == Runner::State::Paused;
        Node *record = list->at(i);
        setText(record, u"name", task.info.name);
        record->ensure(u"description")->setString(task.description);
        setText(record, u"type", kindName(task.info.kind));
        setText(record, u"state", stands ? "paused" : activityName(scheduler->executor(place).activity()));
        setText(record, u"file", where.file);
        record->ensure(u"line")->setInt(where.line);
        setText(record, u"procedure", where.procedure);
    }
}

void publishSignals(const World &world, Node *node)
{
    const auto &table = cell::signalTable();
    Node *list = listOf(node, u"signals", static_cast<int>(table.size()));
    for (std::size_t i = 0; i < table.size(); ++i) {
        const cell::SignalInfo &info = table[i];
        Node *record = list->at(static_cast<int>(i));
        setText(record, u"name", script::signalName(info.isOutput, info.index));
        record->ensure(u"text")->setString(Texts::tr(info.text));
        record->ensure(u"output")->setBool(info.isOutput);
        record->ensure(u"on")->setBool(info.isOutput ? world.signals().output(info.index)
                                                     : world.signals().input(info.index));
    }
}

void publishMachines(const World &world, Node *node)
{
    const Drive &drive = world.drive();
    Node *column = node->ensure(u"column");
    column->ensure(u"height")->setDouble(drive.heightMm());
    setText(column, u"state", Drive::stateName(drive.state()));
    column->ensure(u"mode")->setInt(drive.mode());
    column->ensure(u"moving")->setBool(drive.isMoving());
    column->ensure(u"reached")->setBool(drive.isTargetReached());
    Node *belt = node->ensure(u"conveyor");
    belt->ensure(u"product")->setBool(world.conveyor().hasProduct());
    belt->ensure(u"ahead")->setDouble(world.conveyor().ahead() * kMmPerM);
    belt->ensure(u"jammed")->setBool(world.conveyor().isJammed());
    Node *gripper = node->ensure(u"gripper");
    gripper->ensure(u"vacuum")->setBool(world.gripper().hasVacuum());
    gripper->ensure(u"carries")->setBool(world.gripper().carries());
}

/// Where products are that lie on no pallet; empty when there is none.
void publishLooseBoxes(const World &world, Node *node)
{
    Body box;
    Node *waiting = node->ensure(u"conveyor.box");
    if (world.waitingBox(&box))
        setBlock(waiting, box.block);
    else
        waiting->reset(Node::Kind::List);
    Node *carried = node->ensure(u"gripper.box");
    if (world.carriedBox(&box))
        setBlock(carried, box.block);
    else
        carried->reset(Node::Kind::List);
}

void publishLying(const cell::PalletPlace &place, Node *node)
{
    std::vector<const Body *> sheets;
    place.visit([&](const Body &body) {
        if (body.kind == Body::Kind::Pallet)
            setBlock(node->ensure(u"pallet"), body.block);
        else if (body.kind == Body::Kind::Sheet)
            sheets.push_back(&body);
    });
    Node *list = listOf(node, u"sheets", static_cast<int>(sheets.size()));
    for (std::size_t i = 0; i < sheets.size(); ++i)
        setBlock(list->at(static_cast<int>(i)), sheets[i]->block);
    list = listOf(node, u"boxes", static_cast<int>(place.boxes().size()));
    for (std::size_t i = 0; i < place.boxes().size(); ++i)
        setBlock(list->at(static_cast<int>(i)), place.boxes()[i].body.block);
}

void publishPallets(const World &world, Node *node)
{
    Node *list = listOf(node, u"pallets", 2);
    for (int side = 0; side < 2; ++side) {
        const cell::PalletPlace &place = world.pallet(side);
        Node *record = list->at(side);
        int layer = 0;
        int piece = 0;
        place.nextPiece(&layer, &piece);
        record->ensure(u"in_place")->setBool(place.isInPlace());
        record->ensure(u"recipe")->setString(place.plan() ? place.plan()->name() : QString());
        record->ensure(u"count")->setInt(static_cast<qint64>(place.boxes().size()));
        record->ensure(u"expected")->setInt(place.plan() ? place.plan()->productCount() : 0);
        record->ensure(u"full")->setBool(place.isFull());
        record->ensure(u"layer")->setInt(layer);
        record->ensure(u"piece")->setInt(piece);
        publishLying(place, record);
    }
}

void publishTrouble(const World &world, Node *node)
{
    Node *faults = listOf(node, u"faults", cell::kFaults);
    for (int i = 0; i < cell::kFaults; ++i) {
        const auto fault = static_cast<Fault>(i);
        faults->at(i)->ensure(u"name")->setString(cell::faultName(fault));
        faults->at(i)->ensure(u"on")->setBool(world.hasFault(fault));
    }
    const auto &all = world.violations();
    node->ensure(u"violation_count")->setInt(static_cast<qint64>(all.size()));
    node->ensure(u"lost_boxes")->setInt(world.lostBoxes());
    const int shown = std::min(kShownViolations, static_cast<int>(all.size()));
    Node *list = listOf(node, u"violations", shown);
    for (int i = 0; i < shown; ++i) {
        const cell::Violation &violation = all[all.size() - static_cast<std::size_t>(shown - i)];
        Node *record = list->at(i);
        record->ensure(u"time")->setDouble(violation.time);
        setText(record, u"task", violation.where.task);
        setText(record, u"file", violation.where.file);
        record->ensure(u"line")->setInt(violation.where.line);
        record->ensure(u"layer")->setInt(violation.layer);
        record->ensure(u"piece")->setInt(violation.piece);
        setText(record, u"what", violation.what);
        setText(record, u"first", violation.bodies[0]);
        setText(record, u"second", violation.bodies[1]);
    }
}

} // namespace

void publishCell(const Runner &runner, Node *node)
{
    const World &world = runner.cell().world();
    node->ensure(u"time")->setDouble(world.now());
    publishProgram(runner, node->ensure(u"program"));
    publishTasks(runner, node);
    publishSignals(world, node);
    publishMachines(world, node);
    publishLooseBoxes(world, node);
    publishPallets(world, node);
    publishTrouble(world, node);
}

} // namespace controller
