#pragma once

#include "controller/script/executor.h"

#include <deque>
#include <functional>
#include <map>

/// A world that only keeps book: moves take a second each, signals and registers hold what is written, and everything
/// that a program does is noted beside the line that did it.
class ScriptRecorder : public controller::script::Machine
{
public:
    using Refusal = controller::script::Refusal;
    using Target = controller::script::Target;
    using Value = controller::script::Value;

    explicit ScriptRecorder(const std::vector<controller::script::VariableInfo> &variables);

    /// Runs until the task is over, waits for something that never comes, or `limit` seconds are over. What happened, by
    /// file and line: "DO2_0=1@0.5; move 1 2 3 v100 z50@1".
    std::map<std::pair<std::string, int>, std::string> run(controller::script::Executor *executor,
                                                           double limit);

    /// At a time [s] something happens in the world.
    void at(double time, std::function<void()> what) { due_.emplace(time, std::move(what)); }
    void stand(const Target &place) { place_ = place; }
    void setInput(int index, bool on) { inputs_[index] = on; }
    void setState(controller::script::State state, bool on) { states_[static_cast<int>(state)] = on; }
    std::vector<Value> variables;
    std::map<std::string, std::int64_t> registers{
        {"ControlwordWrite", 0}, {"PositionRead", 0}, {"TargetReached", 1}};
    std::vector<std::string> events;                    ///< what happened, in the order of time
    std::function<void(const std::string &)> onWritten; ///< a register was written

    double now() const override { return now_; }
    controller::script::MoveAnswer move(const controller::script::Move &move) override;
    controller::script::MoveState moveState() const override;
    controller::script::Fault moveFault() const override { return fault_; }
    Target currentTarget() const override { return place_; }
    bool input(int index) const override { return inputs_[index]; }
    bool output(int index) const override { return outputs_[index]; }
    void setOutput(int index, bool on) override;
    void pulseOutput(int index, double seconds) override;
    bool state(controller::script::State state) const override { return states_[static_cast<int>(state)]; }
    Refusal readRegister(const std::string &name, std::int64_t *value) const override;
    Refusal writeRegister(const std::string &name, std::int64_t value) override;
    const Value &variable(int id) const override { return variables[static_cast<std::size_t>(id)]; }
    void setVariable(int id, const Value &value) override;
    Refusal palletName(std::int64_t index, std::optional<std::int64_t> side,
                       std::string *name) const override;
    Refusal palletUpdate(const std::string &name, std::int64_t layer, std::int64_t piece) override;
    Refusal palletLayerCount(const std::string &name, std::int64_t *count) const override;
    Refusal palletPieceCount(const std::string &name, std::int64_t layer, std::int64_t *count) const override;
    Refusal palletPoint(controller::script::PalletPoint point, Target *target) const override;
    void pause(const controller::script::Location &where) override;

private:
    void note(const controller::script::Location &where, const std::string &what);
    void note(const std::string &what);
    bool step(double limit);
    void finishMoves();

    std::vector<std::string> names_;
    controller::script::Executor *executor_ = nullptr;
    std::map<std::pair<std::string, int>, std::string> trace_;
    std::multimap<double, std::function<void()>> due_;
    std::deque<std::pair<double, controller::script::Move>> moves_; ///< with their ends
    controller::script::Fault fault_;
    Target place_;
    double now_ = 0;
    bool inputs_[controller::script::kSignals] = {};
    bool outputs_[controller::script::kSignals] = {};
    bool states_[4] = {};
    std::int64_t layer_ = 0;
    std::int64_t piece_ = 0;
};

/// A value as traces and expectations write it: "1", "2.5", "text", "1 2 3 0 0 90".
std::string toText(const controller::script::Value &value);
