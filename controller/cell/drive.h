#pragma once

#include <cstdint>
#include <string>

namespace controller::cell {

/// The servo drive of the lift column, as programs see it: registers by name, behind them the power state machine and the
/// modes "profile position" (1) and "profile velocity" (3) of the CiA 402 drive profile. Positions are drive units, 7000
/// to the millimetre.
///
/// Control word: 6 shut down, 7 switch on, 15 enable operation, 0 disable voltage, bit 4 new set-point, bit 7 (rising)
/// resets a fault; whatever else holds the present state. Without enabled operation a brake holds the column.
class Drive
{
public:
    static constexpr double kUnitsPerMm = 7000;
    static constexpr double kStrokeMm = 1000;              ///< from 0; beyond lies the end stop
    static constexpr double kMaxSpeed = 100 * kUnitsPerMm; ///< [units/s]
    static constexpr double kMaxAcceleration =
        250 * kUnitsPerMm; ///< [units/s^2]; that of the register's value -1

    enum class State { SwitchOnDisabled, ReadyToSwitchOn, SwitchedOn, OperationEnabled, Fault };
    /// As the profile calls them: "switch on disabled", ...
    static const char *stateName(State state);

    /// Why not; empty when done.
    std::string read(const std::string &name, std::int64_t *value) const;
    std::string write(const std::string &name, std::int64_t value);

    /// `seconds` at most a tick.
    void advance(double seconds);
    /// The safety chain takes the power away; a program has to bring the drive up again.
    void cutPower();
    /// The drive's own fault, as of an overload.
    void fail();

    State state() const { return state_; }
    int mode() const { return mode_; }
    bool isMoving() const { return speed_ != 0 || hasWay_; }
    /// Whether advance() changes anything.
    bool needsTime() const;
    bool isTargetReached() const { return reached_; }
    double heightMm() const { return position_ / kUnitsPerMm; }
    std::int64_t position() const;
    /// For a column that stood there at the last end.
    void standAt(double heightMm) { position_ = heightMm * kUnitsPerMm; }

private:
    struct Register;
    static const Register *registerOf(const std::string &name);
    void control(std::int64_t word);
    void step(std::int64_t word);
    void takeSetPoint(std::int64_t word, std::int64_t before);
    void enable();
    void leaveOperation(State next);
    void followPosition(double seconds);
    void followSpeed(double seconds);
    double acceleration(std::int64_t asked) const;

    State state_ = State::SwitchOnDisabled;
    int mode_ = 1;
    std::int64_t controlWord_ = 0;
    std::int64_t askedMode_ = 1;
    std::int64_t askedAcceleration_ = -1;
    std::int64_t askedDeceleration_ = -1;
    std::int64_t profileVelocity_ = 0;
    std::int64_t askedPosition_ = 0;
    std::int64_t askedVelocity_ = 0;
    double position_ = 0; ///< [units]
    double speed_ = 0;    ///< [units/s]
    double target_ = 0;   ///< [units]
    bool hasWay_ = false; ///< a set-point is being followed
    bool acknowledged_ = false;
    bool reached_ = false;
};

} // namespace controller::cell
