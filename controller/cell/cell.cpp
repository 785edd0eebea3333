#include "controller/cell/cell.h"

#include "controller/texts.h"

#include <cstdio>

namespace controller::cell {

using script::Location;
using script::MoveAnswer;
using script::Refusal;
using script::Target;

namespace {

constexpr double kMmPerM = 1000;

std::string text(const Target &t)
{
    char buffer[160];
    std::snprintf(buffer, sizeof buffer, "%.3f %.3f %.3f / %.3f %.3f %.3f", t.x, t.y, t.z, t.a, t.b, t.c);
    return buffer;
}

std::string text(double number)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.10g", number);
    return buffer;
}

std::string text(const script::Value &value)
{
    switch (script::typeOf(value)) {
    case script::Type::Bool:
        return std::get<bool>(value) ? "true" : "false";
    case script::Type::Int:
        return std::to_string(std::get<std::int64_t>(value));
    case script::Type::Double:
        return text(std::get<double>(value));
    case script::Type::String:
        return "\"" + std::get<std::string>(value) + "\"";
    case script::Type::Clock:
        return std::get<script::Clock>(value).runs
                   ? "runs"
                   : "stands at " + text(std::get<script::Clock>(value).before);
    case script::Type::Target:
        break;
    }
    return text(std::get<Target>(value));
}

} // namespace

Target targetOf(const Pose &pose)
{
    const Vector abc = anglesOf(pose.linear());
    const Vector at = pose.translation() * kMmPerM;
    return {at.x(), at.y(), at.z(), degrees(abc.x()), degrees(abc.y()), degrees(abc.z())};
}

Pose poseOf(const Target &target)
{
    return controller::poseOf(Vector(target.x, target.y, target.z) / kMmPerM,
                              Vector(radians(target.a), radians(target.b), radians(target.c)));
}

Cell::Cell(const PalletStore *recipes, std::uint64_t seed) : recipes_(recipes), world_(seed, this) {}

// ---------------------------------------------------------------- what happens

void Cell::note(const std::string &what)
{
    if (!trace_)
        return;
    char time[32];
    std::snprintf(time, sizeof time, "%.2f ", world_.now());
    std::string line = time;
    if (turn_) {
        const Location where = turn_->location();
        line += where.task + " " + where.file + ":" + std::to_string(where.line) + " ";
    }
    trace_->line(line + what);
}

void Cell::signalChanged(bool isOutput, int index, bool on)
{
    if (trace_)
        note(script::signalName(isOutput, index) + (on ? " on" : " off"));
}

void Cell::violated(const Violation &violation)
{
    note("violation: " + violation.what);
}

void Cell::happened(const std::string &what)
{
    note(what);
}

// ---------------------------------------------------------------- the program as a whole

void Cell::setRelax(bool relax)
{
    if (relax_ != relax)
        world_.touch();
    relax_ = relax;
}

void Cell::pause(const Location &where)
{
    if (relax_) // who asks again while nothing runs changes nothing
        note("pause");
    pause_ = where;
    world_.way().pause();
}

bool Cell::takePause(Location *where)
{
    if (!pause_)
        return false;
    *where = *pause_;
    pause_.reset();
    return true;
}

bool Cell::takeRestless() const
{
    return std::exchange(isRestless_, false);
}

double Cell::now() const
{
    isRestless_ = true;
    return world_.now();
}

bool Cell::state(script::State state) const
{
    switch (state) {
    case script::State::EStop:
        return world_.hasFault(Fault::EStop);
    case script::State::Collision:
        return world_.hasFault(Fault::Collision);
    case script::State::Relax:
        return relax_;
    case script::State::Move:
        break;
    }
    return world_.way().isMoving();
}

// ---------------------------------------------------------------- moves

Pose Cell::toolOf(const RecipePlan *plan) const
{
    return plan && plan->tool() ? *plan->tool() : sharedTool_;
}

MoveAnswer Cell::move(const script::Move &move)
{
    if (!world_.way().hasRoom() || (isStepping_ && !world_.way().isEmpty()))
        return {MoveAnswer::Kind::Full, {}};
    const LegWish wish{poseOf(move.target), toolOf(world_.plan()), move.speed / kMmPerM,
                       move.fine ? 0 : move.zone / kMmPerM, move.where};
    QString why;
    if (!world_.way().add(wish, &why)) {
        world_.violate(move.where, why.toStdString());
        return {MoveAnswer::Kind::Refused, why.toStdString()};
    }
    world_.touch();
    if (trace_)
        note("move " + text(move.target) + " at " + text(move.speed) +
             (move.fine ? std::string(" fine") : " zone " + text(move.zone)));
    return {};
}

script::MoveState Cell::moveState() const
{
    return world_.way().isReached() ? script::MoveState::Reached : script::MoveState::Moving;
}

Target Cell::currentTarget() const
{
    isRestless_ = true;
    return targetOf(world_.way().toolPose());
}

// ---------------------------------------------------------------- signals, registers, variables

void Cell::pulseOutput(int index, double seconds)
{
    world_.signals().pulse(index, world_.now() + seconds);
}

Refusal Cell::readRegister(const std::string &name, std::int64_t *value) const
{
    return world_.drive().read(name, value);
}

Refusal Cell::writeRegister(const std::string &name, std::int64_t value)
{
    Refusal why = world_.drive().write(name, value);
    if (why.empty() && trace_)
        note(name + " = " + std::to_string(value));
    world_.touch();
    return why;
}

void Cell::setVariable(int id, const script::Value &value)
{
    if (!variables_->set(id, value))
        return;
    world_.touch();
    if (trace_)
        note(variables_->infos()[static_cast<std::size_t>(id)].name + " = " + text(value));
}

// ---------------------------------------------------------------- recipes

std::shared_ptr<const RecipePlan> Cell::plan(const QString &name) const
{
    auto recipe = recipes_->shared(name);
    if (!recipe)
        return nullptr;
    std::shared_ptr<const RecipePlan> &known = plans_[name];
    if (!known || known->recipe() != recipe.get())
        known = std::make_shared<RecipePlan>(std::move(recipe));
    return known;
}

Refusal Cell::usablePlan(const std::string &name, std::shared_ptr<const RecipePlan> *plan) const
{
    *plan = this->plan(QString::fromStdString(name));
    if (!*plan)
        return Texts::tr("there is no recipe \"%1\"").arg(QString::fromStdString(name)).toStdString();
    if (!(*plan)->problem().isEmpty())
        return Texts::tr("the recipe \"%1\" cannot be used: %2")
            .arg((*plan)->name(), (*plan)->problem())
            .toStdString();
    return {};
}

Refusal Cell::palletName(std::int64_t index, std::optional<std::int64_t> side, std::string *name) const
{
    std::int64_t found = -1;
    for (int i = 0; i < recipes_->count(); ++i) {
        const bool isLeft = recipes_->at(i)->getInt(u"pallet_position") == 0;
        if (side && isLeft != (*side == 0))
            continue;
        if (++found == index) {
            *name = recipes_->at(i)->getString(u"name").toStdString();
            return {};
        }
    }
    const QString which = !side        ? Texts::tr("recipe %1")
                          : *side == 0 ? Texts::tr("left recipe %1")
                                       : Texts::tr("right recipe %1");
    return Texts::tr("there is no %1, there are %2").arg(which.arg(index)).arg(found + 1).toStdString();
}

Refusal Cell::usableLayer(const std::string &name, std::int64_t layer,
                          std::shared_ptr<const RecipePlan> *plan) const
{
    Refusal why = usablePlan(name, plan);
    if (why.empty() && (layer < 1 || layer > (*plan)->layers()))
        why = Texts::tr("the recipe \"%1\" has no layer %2, it has %3")
                  .arg((*plan)->name())
                  .arg(layer)
                  .arg((*plan)->layers())
                  .toStdString();
    return why;
}

Refusal Cell::palletUpdate(const std::string &name, std::int64_t layer, std::int64_t piece)
{
    std::shared_ptr<const RecipePlan> plan;
    Refusal why = usableLayer(name, layer, &plan);
    if (!why.empty())
        return why;
    const int layerNumber = static_cast<int>(layer);
    const int pieces =
        plan->isSheet(layerNumber) ? 1 : plan->pieces(layerNumber); // a sheet has one place, its own
    if (piece < (plan->isSheet(layerNumber) ? 0 : 1) || piece > pieces)
        return Texts::tr("layer %1 of the recipe \"%2\" has no piece %3, it has %4")
            .arg(layer)
            .arg(plan->name())
            .arg(piece)
            .arg(pieces)
            .toStdString();
    const bool isOther = world_.plan() != plan.get();
    world_.aim(plan, layerNumber, std::max(1, static_cast<int>(piece)));
    if (isOther && world_.way().isReached())
        world_.way().setTool(toolOf(plan.get()));
    if (trace_)
        note("pallet \"" + name + "\" layer " + std::to_string(layer) + " piece " + std::to_string(piece));
    return {};
}

Refusal Cell::palletLayerCount(const std::string &name, std::int64_t *count) const
{
    std::shared_ptr<const RecipePlan> plan;
    Refusal why = usablePlan(name, &plan);
    if (why.empty())
        *count = plan->layers();
    return why;
}

Refusal Cell::palletPieceCount(const std::string &name, std::int64_t layer, std::int64_t *count) const
{
    std::shared_ptr<const RecipePlan> plan;
    Refusal why = usableLayer(name, layer, &plan);
    if (!why.empty())
        return why;
    *count = plan->pieces(static_cast<int>(layer));
    return {};
}

Refusal Cell::palletPoint(script::PalletPoint point, Target *target) const
{
    if (!world_.plan())
        return Texts::tr("no pallet point is set yet").toStdString();
    Pose pose;
    QString why;
    if (!world_.plan()->point(point, world_.layer(), world_.piece(), &pose, &why))
        return why.toStdString();
    *target = targetOf(pose);
    return {};
}

} // namespace controller::cell
