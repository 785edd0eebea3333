// Running robot programs in a world that answers anything. Bytes below 128 at the front: the text of a program; else the
// bytes choose the statements of a program, which then can be run.

#include "controller/script/executor.h"
#include "controller/script/program.h"
#include "tests/support/cell_variables.h"

#include <cstdlib>

using namespace controller::script;

namespace {

constexpr int kTurns = 20;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Bytes, and zeros behind them.
class Bytes
{
public:
    Bytes(const std::uint8_t *data, std::size_t size) : data_(data), size_(size) {}
    unsigned next(unsigned below) { return at_ < size_ ? data_[at_++] % below : 0; }
    bool isOver() const { return at_ >= size_; }

private:
    const std::uint8_t *data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

// ---------------------------------------------------------------- programs

/// Writes a program as the bytes choose. Kinds fit, values need not.
class Writer
{
public:
    explicit Writer(Bytes *bytes) : bytes_(bytes) {}

    std::string program()
    {
        std::string text =
            "PROC main()\nVAR int i\nVAR double d\nVAR robtarget t\nVAR string s\nVAR clock c\n" + block(0);
        text += "ENDPROC\nPROC other(int i, double d, string s)\nVAR robtarget t\nVAR clock c\n" + block(0);
        return text + "RETURN " + number(0) + "\nENDPROC\n";
    }

private:
    template <std::size_t N> const char *of(const char *const (&choices)[N])
    {
        return choices[bytes_->next(N)];
    }

    std::string block(int depth)
    {
        std::string text;
        for (unsigned left = bytes_->next(6); left > 0 && !bytes_->isOver(); --left)
            text += statement(depth) + '\n';
        return text;
    }

    std::string nested(int depth)
    {
        if (bytes_->next(2))
            return "IF " + condition(0) + '\n' + block(depth) + "ELSE\n" + block(depth) + "ENDIF";
        if (bytes_->next(2))
            return "WHILE " + condition(0) + '\n' + block(depth) + "ENDWHILE";
        const std::string name = "n" + std::to_string(depth);
        return "FOR " + name + " FROM " + number(0) + " TO " + number(0) + '\n' + block(depth) + "ENDFOR";
    }

    std::string statement(int depth)
    {
        switch (bytes_->next(14)) {
        case 0:
            return "flagL := " + number(0);
        case 1:
            return std::string(of({"i", "rise", "flag", "cycleTimeL", "t.x", "BHOME.c"})) +
                   " := " + number(0);
        case 2:
            return "d := " + number(0);
        case 3:
            return std::string(of({"t", "BHOME"})) + " := " + target(0);
        case 4:
            return "MoveL(" + target(0) + ", v100, " + of({"fine", "z50"}) + ", PalletTool)";
        case 5:
            return "SetDO(DO2_0, " + condition(0) + ")";
        case 6:
            return "PulseDO(DO3_1, " + number(0) + ")";
        case 7:
            return "Wait(" + number(0) + ")";
        case 8:
            return "WaitUntil(" + condition(0) + ")";
        case 9:
            return std::string(of({"ClockStart(", "ClockStop(", "ClockReset("})) + of({"c)", "clock0)"});
        case 10:
            return "WriteRegister(" + text() + ", " + number(0) + ")";
        case 11:
            return "PalletUpdate(" + text() + ", " + number(0) + ", " + number(0) + ")";
        case 12:
            return bytes_->next(4) ? "other(" + number(0) + ", d, " + text() + ")" : "PAUSE";
        default:
            return depth < 8 ? nested(depth + 1) : "RETURN 1";
        }
    }

    std::string number(int depth)
    {
        if (depth > 5)
            return "1";
        switch (bytes_->next(10)) {
        case 0:
            return of({"0", "1", "3", "0.5", "1e300", "9223372036854775807"});
        case 1:
            return of({"i", "d", "flagL", "DI2_0", "rise"});
        case 2:
            return "(" + number(depth + 1) + of({" + ", " - ", " * ", " / "}) + number(depth + 1) + ")";
        case 3:
            return "-" + number(depth + 1);
        case 4:
            return "Abs(" + number(depth + 1) + ")";
        case 5:
            return "ReadRegister(" + text() + ")";
        case 6:
            return "PalletLayerCount(" + text() + ")";
        case 7:
            return std::string("ClockRead(") + of({"c)", "clock0)"});
        case 8:
            return of({"t.x", "BHOME.z", "CurrentTarget(PalletTool, Wobj0).y", "PalletExitPoint.a"});
        default:
            return "other(" + number(depth + 1) + ", 1, " + text() + ")";
        }
    }

    std::string condition(int depth)
    {
        if (depth > 5)
            return "true";
        switch (bytes_->next(5)) {
        case 0:
            return of({"true", "false", "relax", "DI2_1", "flag", "i"});
        case 1:
            return "(NOT " + condition(depth + 1) + ")";
        case 2:
            return "(" + condition(depth + 1) + of({" AND ", " OR "}) + condition(depth + 1) + ")";
        case 3:
            return text() + " <> " + text();
        default:
            return number(depth + 1) + of({" == ", " <> ", " < ", " <= ", " > ", " >= "}) + number(depth + 1);
        }
    }

    std::string target(int depth)
    {
        if (depth < 3 && bytes_->next(2))
            return "Offs(" + target(depth + 1) + ", 1, " + number(2) + ", " + number(3) + ")";
        return of({"t", "BHOME", "PalletHomePoint", "CurrentTarget(PalletTool, Wobj0)"});
    }

    std::string text() { return of({"s", "\"A\"", "GetPalletName(0)", "GetPalletName(1, i)"}); }

    Bytes *bytes_;
};

// ---------------------------------------------------------------- world

/// Answers as the bytes say; refuses about one time in eight.
class World : public Machine
{
public:
    explicit World(Bytes *bytes) : bytes_(bytes)
    {
        for (const VariableInfo &info : infos_)
            variables_.push_back(firstValue(info.type));
    }

    void pass(double seconds) { now_ += seconds; }

    double now() const override { return now_; }
    MoveAnswer move(const Move &move) override
    {
        require(move.where.line >= 1 && move.speed > 0 && (!move.fine || move.zone == 0));
        return {static_cast<MoveAnswer::Kind>(bytes_->next(3)), "refused"};
    }
    MoveState moveState() const override { return static_cast<MoveState>(bytes_->next(3)); }
    Fault moveFault() const override { return {{}, "failed"}; }
    Target currentTarget() const override { return {1, 2, 3, 4, 5, 6}; }
    bool input(int) const override { return bytes_->next(2) != 0; }
    bool output(int) const override { return bytes_->next(2) != 0; }
    void setOutput(int index, bool) override { require(index >= 0 && index < kSignals); }
    void pulseOutput(int, double seconds) override { require(seconds > 0); }
    bool state(State) const override { return bytes_->next(2) != 0; }
    Refusal readRegister(const std::string &, std::int64_t *value) const override
    {
        *value = std::int64_t(bytes_->next(256)) << 56;
        return maybe();
    }
    Refusal writeRegister(const std::string &, std::int64_t) override { return maybe(); }
    const Value &variable(int id) const override { return variables_.at(static_cast<std::size_t>(id)); }
    void setVariable(int id, const Value &value) override
    {
        require(typeOf(value) == infos_.at(static_cast<std::size_t>(id)).type);
        variables_[static_cast<std::size_t>(id)] = value;
    }
    Refusal palletName(std::int64_t, std::optional<std::int64_t>, std::string *name) const override
    {
        *name = "A";
        return maybe();
    }
    Refusal palletUpdate(const std::string &, std::int64_t, std::int64_t) override { return maybe(); }
    Refusal palletLayerCount(const std::string &, std::int64_t *count) const override
    {
        *count = bytes_->next(4);
        return maybe();
    }
    Refusal palletPieceCount(const std::string &, std::int64_t, std::int64_t *count) const override
    {
        *count = bytes_->next(4);
        return maybe();
    }
    Refusal palletPoint(PalletPoint, Target *target) const override
    {
        *target = {1, 2, 3, 0, 0, 0};
        return maybe();
    }
    void pause(const Location &where) override { require(where.line >= 1); }

private:
    Refusal maybe() const { return bytes_->next(8) == 7 ? "refused" : Refusal(); }

    Bytes *bytes_;
    std::vector<VariableInfo> infos_ = cellVariables();
    std::vector<Value> variables_;
    double now_ = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Bytes bytes(data, size);
    const bool isText = size == 0 || data[0] < 128;
    bytes.next(1);
    const std::string text =
        isText ? std::string(reinterpret_cast<const char *>(data), size) : Writer(&bytes).program();
    const Built built = build({"task0", TaskKind::Motion}, {{"main.mod", text}}, cellVariables());
    if (!built.program)
        return 0;
    Bytes answers(data, size);
    World world(isText ? &answers : &bytes);
    Executor executor(built.program, &world);
    for (int turn = 0; turn < kTurns; ++turn) {
        if (executor.turn() == Activity::Ended)
            executor.restart();
        require(executor.location().line >= 1 && executor.location().file == "main.mod");
        world.pass(executor.activity() == Activity::Asleep ? executor.wakeTime() - world.now() : 0.01);
    }
    return 0;
}
