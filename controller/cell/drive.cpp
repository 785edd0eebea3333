#include "controller/cell/drive.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace controller::cell {

namespace {

// Bits of the control word.
constexpr std::int64_t kSwitchOn = 1, kVoltage = 2, kNoQuickStop = 4, kOperate = 8, kNewSetPoint = 16,
                       kFaultReset = 128;
constexpr std::int64_t kMaxWord = 0xffff;
constexpr std::int64_t kMaxInt = std::numeric_limits<std::int32_t>::max();

constexpr int kPositionMode = 1;
constexpr int kVelocityMode = 3;

} // namespace

struct Drive::Register
{
    const char *name;
    std::int64_t Drive::*place; ///< null: see read()
    std::int64_t min;
    std::int64_t max; ///< below `min`: read only
};

const Drive::Register *Drive::registerOf(const std::string &name)
{
    static const Register registers[] = {
        {"ControlwordWrite", &Drive::controlWord_, 0, kMaxWord},
        {"OperationModeWrite", &Drive::askedMode_, -128, 127},
        {"ProfileAcceleWrite", &Drive::askedAcceleration_, -1, kMaxInt},
        {"ProfileDeceWrite", &Drive::askedDeceleration_, -1, kMaxInt},
        {"ProfileVelocityWrite", &Drive::profileVelocity_, 0, kMaxInt},
        {"PositionWrite", &Drive::askedPosition_, -kMaxInt, kMaxInt},
        {"VelocityWrite", &Drive::askedVelocity_, -kMaxInt, kMaxInt},
        {"PositionRead", nullptr, 1, 0},
        {"PointAcknowledge", nullptr, 1, 0},
        {"TargetReached", nullptr, 1, 0},
        {"ModesOfOperation", nullptr, 1, 0},
    };
    for (const Register &known : registers)
        if (name == known.name)
            return &known;
    return nullptr;
}

const char *Drive::stateName(State state)
{
    switch (state) {
    case State::SwitchOnDisabled:
        return "switch on disabled";
    case State::ReadyToSwitchOn:
        return "ready to switch on";
    case State::SwitchedOn:
        return "switched on";
    case State::OperationEnabled:
        return "operation enabled";
    case State::Fault:
        break;
    }
    return "fault";
}

std::string Drive::read(const std::string &name, std::int64_t *value) const
{
    const Register *known = registerOf(name);
    if (!known)
        return "there is no register \"" + name + "\"";
    if (known->place)
        *value = this->*known->place;
    else if (name == "PositionRead")
        *value = position();
    else if (name == "PointAcknowledge")
        *value = acknowledged_;
    else if (name == "TargetReached")
        *value = reached_;
    else
        *value = mode_;
    return {};
}

std::string Drive::write(const std::string &name, std::int64_t value)
{
    const Register *known = registerOf(name);
    if (!known)
        return "there is no register \"" + name + "\"";
    if (!known->place)
        return "the register \"" + name + "\" can only be read";
    if (value < known->min || value > known->max)
        return "the register \"" + name + "\" takes " + std::to_string(known->min) + " to " +
               std::to_string(known->max) + ", not " + std::to_string(value);
    if (known->place == &Drive::controlWord_) {
        control(value);
        return {};
    }
    this->*known->place = value;
    if (known->place == &Drive::askedMode_ && !isMoving())
        mode_ = static_cast<int>(value);
    return {};
}

// ---------------------------------------------------------------- the state machine

void Drive::control(std::int64_t word)
{
    const std::int64_t before = controlWord_;
    controlWord_ = word;
    const bool isReset = (word & kFaultReset) && !(before & kFaultReset);
    if (state_ == State::Fault) {
        state_ = isReset ? State::SwitchOnDisabled : State::Fault;
        return;
    }
    step(word);
    takeSetPoint(word, before);
}

/// One transition for each write, as the profile has it: nothing is skipped but the way down.
void Drive::step(std::int64_t word)
{
    const std::int64_t command = word & (kSwitchOn | kVoltage | kNoQuickStop | kOperate);
    if (!(command & kVoltage) || !(command & kNoQuickStop))
        leaveOperation(State::SwitchOnDisabled);
    else if (!(command & kSwitchOn))
        leaveOperation(State::ReadyToSwitchOn);
    else if (state_ == State::ReadyToSwitchOn)
        state_ = State::SwitchedOn;
    else if (state_ == State::SwitchedOn && (command & kOperate))
        enable();
    else if (state_ == State::OperationEnabled && !(command & kOperate))
        leaveOperation(State::SwitchedOn);
}

void Drive::enable()
{
    state_ = State::OperationEnabled;
    mode_ = static_cast<int>(askedMode_);
    reached_ = true; // it stands where it is meant to be until a set-point comes
}

void Drive::leaveOperation(State next)
{
    if (isMoving())
        reached_ = false; // the way was given up
    speed_ = 0;
    hasWay_ = false;
    acknowledged_ = false;
    state_ = next;
}

void Drive::takeSetPoint(std::int64_t word, std::int64_t before)
{
    if (!(word & kNewSetPoint)) {
        acknowledged_ = false;
        return;
    }
    if ((before & kNewSetPoint) || state_ != State::OperationEnabled || mode_ != kPositionMode)
        return;
    acknowledged_ = true;
    target_ = static_cast<double>(askedPosition_);
    hasWay_ = true;
    reached_ = false;
}

void Drive::cutPower()
{
    if (state_ != State::Fault)
        leaveOperation(State::SwitchOnDisabled);
    controlWord_ = 0;
}

void Drive::fail()
{
    leaveOperation(State::Fault);
}

// ---------------------------------------------------------------- motion

std::int64_t Drive::position() const
{
    return std::llround(position_);
}

double Drive::acceleration(std::int64_t asked) const
{
    return asked < 0 ? kMaxAcceleration : std::min(static_cast<double>(asked), kMaxAcceleration);
}

bool Drive::needsTime() const
{
    const bool followsSpeed = state_ == State::OperationEnabled && mode_ == kVelocityMode;
    return isMoving() || (followsSpeed && (askedVelocity_ != 0 || !reached_));
}

void Drive::advance(double seconds)
{
    if (state_ != State::OperationEnabled)
        return;
    if (mode_ == kPositionMode)
        followPosition(seconds);
    else if (mode_ == kVelocityMode)
        followSpeed(seconds);
    const double end = std::clamp(position_, 0.0, kStrokeMm * kUnitsPerMm);
    if (end != position_) {
        position_ = end;
        fail(); // at the end stop
    }
}

/// As fast as allowed, and no faster than can be braked on the way that is left.
void Drive::followPosition(double seconds)
{
    if (!hasWay_)
        return;
    const double left = target_ - position_;
    const double braking = acceleration(askedDeceleration_);
    const double limit =
        std::min({static_cast<double>(profileVelocity_), kMaxSpeed, std::sqrt(2 * braking * std::abs(left))});
    const double gain = acceleration(askedAcceleration_) * seconds;
    const double wished = std::copysign(limit, left);
    speed_ = std::clamp(wished, speed_ - std::max(gain, braking * seconds), speed_ + gain);
    const double way = speed_ * seconds;
    if (std::abs(left) <= std::max(std::abs(way), 1.0)) {
        position_ = target_;
        speed_ = 0;
        hasWay_ = false;
        reached_ = true;
        return;
    }
    position_ += way;
}

void Drive::followSpeed(double seconds)
{
    const double wished = std::clamp(static_cast<double>(askedVelocity_), -kMaxSpeed, kMaxSpeed);
    const double up = acceleration(askedAcceleration_) * seconds;
    const double down = acceleration(askedDeceleration_) * seconds;
    const double step = std::abs(wished) > std::abs(speed_) ? up : down;
    speed_ = std::clamp(wished, speed_ - step, speed_ + step);
    position_ += speed_ * seconds;
    reached_ = speed_ == wished;
}

} // namespace controller::cell
