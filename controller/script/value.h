#pragma once

#include <cstdint>
#include <string>
#include <variant>

/// The script language of robot programs. Plain C++, no threads, no exceptions across its functions; see
/// docs/robot-script.md for the language.
namespace controller::script {

/// A place of the tool's point in the robot's base: millimetres, and degrees about x, y, z, applied as
/// Rz(c) * Ry(b) * Rx(a).
struct Target
{
    double x = 0, y = 0, z = 0;
    double a = 0, b = 0, c = 0;
    bool operator==(const Target &o) const
    {
        return x == o.x && y == o.y && z == o.z && a == o.a && b == o.b && c == o.c;
    }
};

/// A stop watch in simulated time.
struct Clock
{
    double before = 0; ///< gathered until it was stopped last [s]
    double since = 0;  ///< when it was started [s of Machine::now()]; means nothing while it stands
    bool runs = false;

    double read(double now) const { return before + (runs ? now - since : 0); }
    bool operator==(const Clock &o) const
    {
        return before == o.before && runs == o.runs && (!runs || since == o.since);
    }
};

/// In the order of the types.
enum class Type { Bool, Int, Double, String, Clock, Target };

/// A value of one of the types; a new one is false.
using Value = std::variant<bool, std::int64_t, double, std::string, Clock, Target>;

inline Type typeOf(const Value &value)
{
    return static_cast<Type>(value.index());
}

/// The value that a variable of a type has when nothing else is said: false, 0, "", a clock that stands at 0, the origin.
Value firstValue(Type type);

/// As programs write it: "bool", "int", "double", "string", "clock", "robtarget".
const char *typeName(Type type);
/// False when no type has that name.
bool typeOfName(const std::string &name, Type *type);

} // namespace controller::script
