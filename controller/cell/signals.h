#pragma once

#include "controller/script/machine.h"

#include <QString>

#include <array>
#include <bitset>
#include <functional>
#include <vector>

namespace controller::cell {

/// Inputs with a meaning, see signalTable().
namespace in {
constexpr int kStart = script::signalIndex(2, 0);
constexpr int kStop = script::signalIndex(2, 1);
constexpr int kReset = script::signalIndex(2, 2);
constexpr int kLeftArrow = script::signalIndex(2, 3);
constexpr int kRightArrow = script::signalIndex(2, 4);
constexpr int kPallet[2] = {script::signalIndex(2, 5), script::signalIndex(2, 6)}; ///< left, right
constexpr int kScannerFirst[2] = {script::signalIndex(2, 8), script::signalIndex(2, 11)};
constexpr int kScannerChannels = 3; ///< of each scanner; the last one is the field that stops the robot
constexpr int kAirPressure = script::signalIndex(2, 15);
constexpr int kProduct = script::signalIndex(3, 0);
} // namespace in

/// Outputs with a meaning.
namespace out {
constexpr int kSuction = script::signalIndex(2, 6);
constexpr int kConveyorForward = script::signalIndex(3, 8);
constexpr int kConveyorReverse = script::signalIndex(3, 9);
} // namespace out

/// One signal of the cell.
struct SignalInfo
{
    bool isOutput;
    int index;
    const char *text; ///< what it means; to be translated in the context "controller::Texts"
};

/// Every signal with a meaning: inputs, then outputs, each in the order of cards and channels.
const std::vector<SignalInfo> &signalTable();
/// Index of a name like "DI2_0"; -1 when there is no such input.
int inputOfName(const QString &name);

/// The states of all digital signals, with the pulses that run on outputs.
class Signals
{
public:
    using Listener = std::function<void(bool isOutput, int index, bool on)>;

    /// Called for each real change.
    void setListener(Listener listener) { listener_ = std::move(listener); }

    bool input(int index) const { return inputs_.test(static_cast<std::size_t>(index)); }
    bool output(int index) const { return outputs_.test(static_cast<std::size_t>(index)); }
    void setInput(int index, bool on) { change(false, index, on); }
    /// Ends a pulse that runs on it.
    void setOutput(int index, bool on);
    /// On until that time [s].
    void pulse(int index, double until);
    /// Ends the pulses whose time has come.
    void advance(double now);
    bool hasPulses() const;
    /// Without power no output is on.
    void switchOutputsOff();

private:
    void change(bool isOutput, int index, bool on);

    std::bitset<script::kSignals> inputs_;
    std::bitset<script::kSignals> outputs_;
    std::array<double, script::kSignals> pulseEnds_{}; ///< 0: no pulse
    Listener listener_;
};

} // namespace controller::cell
