#include "controller/cell/signals.h"

#include <algorithm>

namespace controller::cell {

namespace {

constexpr int di(int card, int channel)
{
    return script::signalIndex(card, channel);
}

} // namespace

const std::vector<SignalInfo> &signalTable()
{
    static const std::vector<SignalInfo> table{
        {false, in::kStart, QT_TRANSLATE_NOOP("controller::Texts", "start button")},
        {false, in::kStop, QT_TRANSLATE_NOOP("controller::Texts", "stop button")},
        {false, in::kReset, QT_TRANSLATE_NOOP("controller::Texts", "reset button")},
        {false, in::kLeftArrow, QT_TRANSLATE_NOOP("controller::Texts", "left arrow button")},
        {false, in::kRightArrow, QT_TRANSLATE_NOOP("controller::Texts", "right arrow button")},
        {false, in::kPallet[0], QT_TRANSLATE_NOOP("controller::Texts", "left pallet in place")},
        {false, in::kPallet[1], QT_TRANSLATE_NOOP("controller::Texts", "right pallet in place")},
        {false, di(2, 8), QT_TRANSLATE_NOOP("controller::Texts", "scanner 1, input 1")},
        {false, di(2, 9), QT_TRANSLATE_NOOP("controller::Texts", "scanner 1, input 2")},
        {false, di(2, 10), QT_TRANSLATE_NOOP("controller::Texts", "scanner 1, input 3")},
        {false, di(2, 11), QT_TRANSLATE_NOOP("controller::Texts", "scanner 2, input 1")},
        {false, di(2, 12), QT_TRANSLATE_NOOP("controller::Texts", "scanner 2, input 2")},
        {false, di(2, 13), QT_TRANSLATE_NOOP("controller::Texts", "scanner 2, input 3")},
        {false, in::kAirPressure, QT_TRANSLATE_NOOP("controller::Texts", "air pressure")},
        {false, in::kProduct, QT_TRANSLATE_NOOP("controller::Texts", "product in place")},
        {true, di(2, 0), QT_TRANSLATE_NOOP("controller::Texts", "start lamp")},
        {true, di(2, 1), QT_TRANSLATE_NOOP("controller::Texts", "stop lamp")},
        {true, di(2, 2), QT_TRANSLATE_NOOP("controller::Texts", "reset lamp")},
        {true, di(2, 3), QT_TRANSLATE_NOOP("controller::Texts", "left arrow lamp")},
        {true, di(2, 4), QT_TRANSLATE_NOOP("controller::Texts", "right arrow lamp")},
        {true, out::kSuction, QT_TRANSLATE_NOOP("controller::Texts", "suction")},
        {true, di(2, 10), QT_TRANSLATE_NOOP("controller::Texts", "scanner 1, zone 1")},
        {true, di(2, 11), QT_TRANSLATE_NOOP("controller::Texts", "scanner 1, zone 2")},
        {true, di(2, 12), QT_TRANSLATE_NOOP("controller::Texts", "scanner 2, zone 1")},
        {true, di(2, 13), QT_TRANSLATE_NOOP("controller::Texts", "scanner 2, zone 2")},
        {true, di(3, 0), QT_TRANSLATE_NOOP("controller::Texts", "left beacon red")},
        {true, di(3, 1), QT_TRANSLATE_NOOP("controller::Texts", "left beacon yellow")},
        {true, di(3, 2), QT_TRANSLATE_NOOP("controller::Texts", "left beacon green")},
        {true, di(3, 3), QT_TRANSLATE_NOOP("controller::Texts", "left buzzer")},
        {true, di(3, 4), QT_TRANSLATE_NOOP("controller::Texts", "right beacon red")},
        {true, di(3, 5), QT_TRANSLATE_NOOP("controller::Texts", "right beacon yellow")},
        {true, di(3, 6), QT_TRANSLATE_NOOP("controller::Texts", "right beacon green")},
        {true, di(3, 7), QT_TRANSLATE_NOOP("controller::Texts", "right buzzer")},
        {true, out::kConveyorForward, QT_TRANSLATE_NOOP("controller::Texts", "conveyor forward")},
        {true, out::kConveyorReverse, QT_TRANSLATE_NOOP("controller::Texts", "conveyor reverse")},
    };
    return table;
}

int inputOfName(const QString &name)
{
    for (int index = 0; index < script::kSignals; ++index)
        if (name == QString::fromStdString(script::signalName(false, index)))
            return index;
    return -1;
}

void Signals::change(bool isOutput, int index, bool on)
{
    auto &states = isOutput ? outputs_ : inputs_;
    const auto place = static_cast<std::size_t>(index);
    if (states.test(place) == on)
        return;
    states.set(place, on);
    if (listener_)
        listener_(isOutput, index, on);
}

void Signals::setOutput(int index, bool on)
{
    pulseEnds_[static_cast<std::size_t>(index)] = 0;
    change(true, index, on);
}

void Signals::pulse(int index, double until)
{
    change(true, index, true);
    pulseEnds_[static_cast<std::size_t>(index)] = until;
}

void Signals::advance(double now)
{
    for (int index = 0; index < script::kSignals; ++index) {
        const double end = pulseEnds_[static_cast<std::size_t>(index)];
        if (end > 0 && end <= now)
            setOutput(index, false);
    }
}

bool Signals::hasPulses() const
{
    return std::any_of(pulseEnds_.begin(), pulseEnds_.end(), [](double end) { return end > 0; });
}

void Signals::switchOutputsOff()
{
    for (int index = 0; index < script::kSignals; ++index)
        setOutput(index, false);
}

} // namespace controller::cell
