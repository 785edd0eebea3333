#include "controller/script_recorder.h"

#include <algorithm>
#include <sstream>

using namespace controller::script;

namespace {

constexpr double kMoveTime = 1; // [s]
constexpr double kTick = 0.1;   // [s]
constexpr std::size_t kQueue = 2;
constexpr double kReach = 5000; // [mm]

std::string text(double number)
{
    std::ostringstream stream;
    stream << number;
    return stream.str();
}

std::string text(const Target &t)
{
    std::string all = text(t.x) + ' ' + text(t.y) + ' ' + text(t.z);
    return t.a == 0 && t.b == 0 && t.c == 0 ? all : all + ' ' + text(t.a) + ' ' + text(t.b) + ' ' + text(t.c);
}

} // namespace

std::string toText(const Value &value)
{
    switch (typeOf(value)) {
    case Type::Bool:
        return std::get<bool>(value) ? "1" : "0";
    case Type::Int:
        return std::to_string(std::get<std::int64_t>(value));
    case Type::Double:
        return text(std::get<double>(value));
    case Type::String:
        return std::get<std::string>(value);
    case Type::Clock:
        return text(std::get<Clock>(value).before) + (std::get<Clock>(value).runs ? " runs" : "");
    case Type::Target:
        return text(std::get<Target>(value));
    }
    return {};
}

ScriptRecorder::ScriptRecorder(const std::vector<VariableInfo> &infos)
{
    for (const VariableInfo &info : infos) {
        names_.push_back(info.name);
        variables.push_back(firstValue(info.type));
    }
}

// ---------------------------------------------------------------- time

std::map<std::pair<std::string, int>, std::string> ScriptRecorder::run(Executor *executor, double limit)
{
    executor_ = executor;
    do {
        for (; !due_.empty() && due_.begin()->first <= now_; due_.erase(due_.begin()))
            due_.begin()->second();
        finishMoves();
        executor->turn();
    } while (step(limit));
    if (executor->activity() == Activity::Failed)
        note(executor->fault().where, "fault: " + executor->fault().what);
    else if (executor->activity() != Activity::Ended)
        note("stands");
    return trace_;
}

/// On to the next moment at which something can happen; false when there is none.
bool ScriptRecorder::step(double limit)
{
    double next = limit + 1;
    const Activity activity = executor_->activity();
    if (activity == Activity::Ended || activity == Activity::Failed)
        return false;
    if (activity == Activity::Ready)
        next = now_ + kTick;
    if (activity == Activity::Asleep)
        next = executor_->wakeTime();
    if (!moves_.empty())
        next = std::min(next, moves_.front().first);
    if (!due_.empty())
        next = std::min(next, due_.begin()->first);
    if (next > limit)
        return false;
    now_ = std::max(now_, next);
    return true;
}

void ScriptRecorder::finishMoves()
{
    for (; !moves_.empty() && moves_.front().first <= now_; moves_.pop_front())
        place_ = moves_.front().second.target;
}

void ScriptRecorder::note(const Location &where, const std::string &what)
{
    std::string &line = trace_[{where.file, where.line}];
    events.push_back(what + (now_ > 0 ? '@' + text(now_) : ""));
    line += (line.empty() ? "" : "; ") + events.back();
}

void ScriptRecorder::note(const std::string &what)
{
    if (executor_) // else a test makes the turns itself
        note(executor_->location(), what);
}

// ---------------------------------------------------------------- moves

MoveAnswer ScriptRecorder::move(const Move &move)
{
    if (moves_.size() == kQueue)
        return {MoveAnswer::Kind::Full, {}};
    if (move.target.z < 0)
        return {MoveAnswer::Kind::Refused, "below the floor"};
    if (move.target.x > kReach)
        fault_ = {move.where, "out of reach"};
    const double start = moves_.empty() ? now_ : moves_.back().first;
    moves_.emplace_back(start + kMoveTime, move);
    note(move.where, "move " + text(move.target) + " v" + text(move.speed) +
                         (move.fine ? " fine" : " z" + text(move.zone)));
    return {};
}

MoveState ScriptRecorder::moveState() const
{
    if (moves_.empty())
        return MoveState::Reached;
    return fault_.what.empty() ? MoveState::Moving : MoveState::Failed;
}

// ---------------------------------------------------------------- signals, registers, variables

void ScriptRecorder::setOutput(int index, bool on)
{
    outputs_[index] = on;
    note(signalName(true, index) + (on ? "=1" : "=0"));
}

void ScriptRecorder::pulseOutput(int index, double seconds)
{
    note(signalName(true, index) + " pulse " + text(seconds));
}

Refusal ScriptRecorder::readRegister(const std::string &name, std::int64_t *value) const
{
    const auto found = registers.find(name);
    if (found == registers.end())
        return "there is no register \"" + name + '"';
    *value = found->second;
    return {};
}

Refusal ScriptRecorder::writeRegister(const std::string &name, std::int64_t value)
{
    if (registers.count(name) == 0)
        return "there is no register \"" + name + '"';
    registers[name] = value;
    note(name + '=' + std::to_string(value));
    if (onWritten)
        onWritten(name);
    return {};
}

void ScriptRecorder::setVariable(int id, const Value &value)
{
    variables[static_cast<std::size_t>(id)] = value;
    note(names_[static_cast<std::size_t>(id)] + '=' + toText(value));
}

// ---------------------------------------------------------------- pallets: recipe "A" of 2 layers with 3 and 2 pieces

Refusal ScriptRecorder::palletName(std::int64_t index, std::optional<std::int64_t> side,
                                   std::string *name) const
{
    *name = side.value_or(0) == 0 ? "A" : "B";
    return index == 0 ? Refusal() : "there is no recipe " + std::to_string(index);
}

Refusal ScriptRecorder::palletUpdate(const std::string &name, std::int64_t layer, std::int64_t piece)
{
    std::int64_t count = 0;
    const Refusal why = palletPieceCount(name, layer, &count);
    if (!why.empty() || piece < 1 || piece > count)
        return why.empty() ? "there is no piece " + std::to_string(piece) : why;
    layer_ = layer;
    piece_ = piece;
    note("update " + name + ' ' + std::to_string(layer) + ' ' + std::to_string(piece));
    return {};
}

Refusal ScriptRecorder::palletLayerCount(const std::string &name, std::int64_t *count) const
{
    *count = 2;
    return name == "A" || name == "B" ? Refusal() : "there is no recipe \"" + name + '"';
}

Refusal ScriptRecorder::palletPieceCount(const std::string &name, std::int64_t layer,
                                         std::int64_t *count) const
{
    std::int64_t layers = 0;
    const Refusal why = palletLayerCount(name, &layers);
    *count = 4 - layer;
    return !why.empty() || (layer >= 1 && layer <= layers) ? why
                                                           : "there is no layer " + std::to_string(layer);
}

/// Every kind of point has an x of its own; y tells the piece and z the layer.
Refusal ScriptRecorder::palletPoint(PalletPoint point, Target *target) const
{
    *target = {100.0 * static_cast<int>(point), 10.0 * static_cast<double>(piece_),
               100.0 * static_cast<double>(layer_)};
    return layer_ > 0 ? Refusal() : "no piece was chosen with PalletUpdate";
}

void ScriptRecorder::pause(const Location &where)
{
    note(where, "pause");
}
