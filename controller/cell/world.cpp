#include "controller/cell/world.h"

#include <algorithm>

namespace controller::cell {

World::World(std::uint64_t seed, WorldListener *listener) : listener_(listener), conveyor_(seed)
{
    for (const int first : in::kScannerFirst)
        for (int i = 0; i < in::kScannerChannels; ++i)
            signals_.setInput(first + i, true); // nobody is there
    tool_ = raised(way_.toolPose());
    showSensors();
    signals_.setListener([this](bool isOutput, int index, bool on) { // who listens may not be complete before
        touch();
        listener_->signalChanged(isOutput, index, on);
    });
}

// ---------------------------------------------------------------- time

void World::tick()
{
    ++ticks_;
    signals_.advance(now());
    if (drive_.needsTime()) {
        drive_.advance(kTick);
        touch();
        keptVersion_ += drive_.needsTime() ? 0 : 1;
    }
    moveRobot();
    moveGripper();
    moveConveyor();
    showSensors();
}

bool World::needsTime() const
{
    const bool isBeltOn = signals_.output(out::kConveyorForward) || signals_.output(out::kConveyorReverse);
    return way_.isMoving() || drive_.needsTime() || gripper_.carries() || gripper_.isChanging() ||
           signals_.output(out::kSuction) || signals_.hasPulses() || isBeltOn;
}

void World::showSensors()
{
    for (int side = 0; side < 2; ++side)
        signals_.setInput(in::kPallet[side], pallet(side).isInPlace());
    signals_.setInput(in::kAirPressure, gripper_.hasVacuum());
    signals_.setInput(in::kProduct, conveyor_.hasProduct());
}

// ---------------------------------------------------------------- robot

/// From the robot's base into the cell: the lift column carries the base.
Pose World::raised(const Pose &inBase) const
{
    Pose pose = inBase;
    pose.translation().z() += drive_.heightMm() / 1000;
    return pose;
}

void World::moveRobot()
{
    way_.advance(kTick);
    const Pose now = raised(way_.toolPose());
    if (gripper_.carries()) {
        const Block from = gripper_.carriedAt(tool_).block;
        const Block to = gripper_.carriedAt(now).block;
        if (from.pose.matrix() != to.pose.matrix())
            watchWay(from, to.pose);
        carriedFor_ += kTick;
        if (!liftedOff_ && hasLeftStop(to)) {
            liftedOff_ = true;
            conveyor_.take(2 * to.half.x());
        }
    }
    tool_ = now;
    if (way_.isReached() != wasReached_ || way_.hasRoom() != hadRoom_ || way_.isMoving() != wasMoving_)
        touch();
    wasReached_ = way_.isReached();
    hadRoom_ = way_.hasRoom();
    wasMoving_ = way_.isMoving();
}

/// A product that is gripped blocks the stop and its sensor until the next one has room there, below it or beside it.
bool World::hasLeftStop(const Block &carried) const
{
    const Vector way = carried.pose.translation() - waiting_.pose.translation();
    return way.z() > 2 * carried.half.z() || way.head<2>().norm() > 2 * carried.reach();
}

Body World::column() const
{
    Body column{Body::Kind::Column, 0, 0, 0, {}};
    const double top = drive_.heightMm() / 1000 + kFootHeight;
    const double bottom = std::min(floor(), 0.0);
    column.block.half = Vector(kColumnHalf, kColumnHalf, (top - bottom) / 2);
    column.block.pose.translation().z() = (top + bottom) / 2;
    return column;
}

double World::floor() const
{
    double lowest = 0;
    for (const PalletPlace &pallet : pallets_)
        if (pallet.plan())
            lowest = std::min(lowest, pallet.plan()->floor());
    return lowest;
}

void World::watchWay(const Block &from, const Pose &to)
{
    const auto check = [&](const Body &body) {
        if (hitsOnWay(from, to, body.block, kTouch))
            hit(body);
    };
    const Block end{to, from.half};
    const double lowest = std::min(from.bottom(), end.bottom());
    for (const PalletPlace &pallet : pallets_)
        pallet.visitAbove(lowest, check);
    check(column());
    Body waiting;
    if (waitingBox(&waiting) && liftedOff_)
        check(waiting);
    if (lowest < floor() - kTouch)
        hit({Body::Kind::Floor, 0, 0, 0, {}});
}

/// Once for each product that is carried and each body.
void World::hit(const Body &body)
{
    const std::string name = nameOf(body);
    if (std::find(hitNow_.begin(), hitNow_.end(), name) != hitNow_.end())
        return;
    hitNow_.push_back(name);
    violate(way_.where(), "the carried box hits " + name, "carried box", name);
}

void World::violate(const script::Location &where, std::string what, std::string first, std::string second)
{
    Violation violation{now(), where, layer_, piece_, std::move(what), {std::move(first), std::move(second)}};
    if (gripper_.carries()) {
        const Body carried = gripper_.carriedAt(tool_);
        violation.layer = carried.layer;
        violation.piece = carried.piece;
    }
    violations_.push_back(violation);
    listener_->violated(violation);
}

// ---------------------------------------------------------------- conveyor, pallets

void World::moveConveyor()
{
    const int direction = signals_.output(out::kConveyorForward) - signals_.output(out::kConveyorReverse);
    if (liftedOff_) // while a product is being gripped it blocks the belt
        conveyor_.advance(kTick, direction);
}

/// The product at the stop: lying so that the pick point of the recipe in use fits it.
bool World::waitingBox(Body *box) const
{
    Pose point;
    QString why;
    if (!plan_ || !conveyor_.hasProduct() || !plan_->point(script::PalletPoint::GetWobj, 1, 1, &point, &why))
        return false;
    *box = {Body::Kind::WaitingBox, 0, 0, 0, plan_->productAt(point)};
    return true;
}

bool World::carriedBox(Body *box) const
{
    if (gripper_.carries())
        *box = gripper_.carriedAt(tool_);
    return gripper_.carries();
}

void World::aim(std::shared_ptr<const RecipePlan> plan, int layer, int piece)
{
    if (plan_ != plan)
        pallet(plan->side()).follow(plan);
    plan_ = std::move(plan);
    layer_ = layer;
    piece_ = piece;
    pallet(plan_->side()).laySheetsBelow(layer);
    touch();
}

void World::setInput(int index, bool on)
{
    signals_.setInput(index, on);
    showSensors(); // sensors show what is there, whatever was asked for
}

void World::bringPallet(int side)
{
    pallet(side).clear();
    pallet(side).setInPlace(true);
    ++keptVersion_;
    showSensors();
}

void World::takePallet(int side)
{
    pallet(side).clear();
    pallet(side).setInPlace(false);
    ++keptVersion_;
    showSensors();
}

// ---------------------------------------------------------------- faults

void World::setFault(Fault fault, bool on)
{
    if (hasFault(fault) == on)
        return;
    faults_.set(static_cast<std::size_t>(fault), on);
    touch();
    listener_->happened(faultName(fault).toStdString() + (on ? " on" : " off"));
    if (fault == Fault::ConveyorJam)
        conveyor_.setJammed(on);
    if (fault == Fault::PalletPulled)
        pullPallets(on);
    if (fault == Fault::EStop && on)
        drive_.cutPower();
}

void World::pullPallets(bool away)
{
    if (away)
        pulledSide_ = plan_ ? plan_->side() : 0;
    pallet(pulledSide_).setInPlace(!away);
    ++keptVersion_;
    showSensors();
}

void World::cutPower()
{
    listener_->happened("power cut");
    if (gripper_.carries()) {
        if (liftedOff_)
            lose("falls off the gripper");
        else
            gripper_.letGo();
    }
    liftedOff_ = true;
    drive_.cutPower();
    way_ = Way(way_.joints());
    signals_.switchOutputsOff();
    faults_.reset(static_cast<std::size_t>(Fault::Collision));
    touch();
}

// ---------------------------------------------------------------- keeping

orba::Node World::saved() const
{
    orba::Node kept;
    for (int side = 0; side < 2; ++side)
        kept.ensure(QStringLiteral("pallets.#%1").arg(side))->assign(pallet(side).saved());
    kept.ensure(u"column")->setDouble(drive_.heightMm());
    kept.ensure(u"belt_seed")->setInt(static_cast<qint64>(conveyor_.seed()));
    kept.ensure(u"belt_ahead")->setDouble(conveyor_.ahead());
    kept.ensure(u"lost")->setInt(lost_);
    return kept;
}

void World::restoreRest(const orba::Node &kept)
{
    if (kept.isNull())
        return; // nothing was ever kept
    drive_.standAt(std::clamp(kept.getDouble(u"column"), 0.0, Drive::kStrokeMm));
    conveyor_.restore(static_cast<std::uint64_t>(kept.getInt(u"belt_seed")), kept.getDouble(u"belt_ahead"));
    lost_ = static_cast<int>(kept.getInt(u"lost"));
    tool_ = raised(way_.toolPose());
    showSensors();
}

} // namespace controller::cell
