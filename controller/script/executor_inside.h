#pragma once

#include "controller/script/code.h"
#include "controller/script/executor.h"

namespace controller::script {

/// The step machine behind an executor.
struct Executor::Inside
{
    Inside(std::shared_ptr<const Program> program, Machine *machine);

    Activity turn();
    void restart();
    Location locationOf(std::size_t step) const;
    static constexpr std::size_t kNone = ~std::size_t{0};
    /// During a turn the step at work.
    std::size_t present() const { return shown == kNone ? next - 1 : shown; }

    /// What one step does. True: on with the next one; false: the turn is over and `activity` says why.
    using Handler = bool (Inside::*)(const Step &step);
    static const Handler kHandlers[];

    /// A call that is not over.
    struct Call
    {
        std::size_t procedure = 0;
        std::size_t returnTo = 0;
        std::size_t base = 0;      ///< of its locals
        std::uint64_t changes = 0; ///< of its locals so far
    };

    std::shared_ptr<const Program> program;
    Machine *machine;
    std::vector<Call> calls;
    std::vector<Value> locals; ///< of all calls
    std::vector<Value> operands;
    std::size_t next = 0;                         ///< step
    std::size_t shown = kNone;                    ///< step that the task stands at between turns
    std::uint64_t changes = 0;                    ///< of what others can see, and of time that passed
    std::uint64_t timeReadAt = ~std::uint64_t{0}; ///< `changes` when a running clock was read last
    bool hasMoves = false;                        ///< some were handed over and not yet seen to be reached
    bool isAsleep = false;                        ///< the present step is a Wait that began
    double wakeTime = 0;
    bool changedWorld = false;
    Activity activity = Activity::Ready;
    Fault fault;

private:
    bool fail(std::string what);
    bool failUnless(const Refusal &refusal) { return refusal.empty() || fail(refusal); }
    /// Ends the turn at the present step, which comes again.
    bool stay(Activity why);
    Value pop();
    template <typename T> T popAs()
    {
        T value = std::get<T>(std::move(operands.back()));
        operands.pop_back();
        return value;
    }
    Value &top() { return operands.back(); }
    template <typename T> void push(T value)
    {
        operands.emplace_back(std::in_place_type<T>, std::move(value));
    }
    Value &local(std::int32_t slot) { return locals[calls.back().base + static_cast<std::size_t>(slot)]; }
    void enter(std::size_t procedure, std::size_t returnTo);
    void storeLocal(std::int32_t slot, const Value &value);
    void storeVariable(std::int32_t id, const Value &value);
    std::uint64_t seenChanges() const { return changes + calls.back().changes; }
    Activity idleOrReady() const { return timeReadAt == changes ? Activity::Ready : Activity::Idle; }
    bool areMovesReached();

    // data
    bool pushConstant(const Step &step);
    bool drop(const Step &step);
    bool loadLocal(const Step &step);
    bool storeLocal(const Step &step);
    bool loadVariable(const Step &step);
    bool storeVariable(const Step &step);
    bool loadMember(const Step &step);
    bool storeLocalMember(const Step &step);
    bool storeVariableMember(const Step &step);
    bool increment(const Step &step);
    bool convert(const Step &step);
    bool calculate(const Step &step);
    bool changeSign(const Step &step);
    bool invert(const Step &step);
    bool compare(const Step &step);
    // flow
    bool jump(const Step &step);
    bool jumpIfFalse(const Step &step);
    bool shortCut(const Step &step);
    bool loopStart(const Step &step);
    bool loopBack(const Step &step);
    bool call(const Step &step);
    bool leave(const Step &step);
    bool noValue(const Step &step);
    bool settle(const Step &step);
    bool pause(const Step &step);
    bool wait(const Step &step);
    bool waitCheck(const Step &step);
    // world
    bool readSignal(const Step &step);
    bool readState(const Step &step);
    bool readPoint(const Step &step);
    bool moveL(const Step &step);
    bool offs(const Step &step);
    bool currentTarget(const Step &step);
    bool setOutput(const Step &step);
    bool pulseOutput(const Step &step);
    bool changeClock(const Step &step);
    bool readClock(const Step &step);
    bool readRegister(const Step &step);
    bool writeRegister(const Step &step);
    bool palletName(const Step &step);
    bool palletUpdate(const Step &step);
    bool palletCount(const Step &step);
};

} // namespace controller::script
