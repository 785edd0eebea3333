#pragma once

#include "controller/script/code.h"

namespace controller::script {

/// What the operators do. The checker has seen to it that both sides have the same type, and that it is a fitting one.

/// Add to Divide: `left` becomes the result. Refuses a division by 0 and results that are no int or no number.
Refusal calculate(Op op, Value *left, const Value &right);
/// Equal to GreaterEqual.
bool compare(Op op, const Value &left, const Value &right);
/// Negate, Abs.
Refusal changeSign(Op op, Value *value);
/// ToBool, ToInt, ToDouble, of a bool, int or double. A double that is not whole is no int.
Refusal convert(Op op, Value *value);

/// The member x, y, z, a, b, c of a target, by number.
double &member(Target &target, int index);

} // namespace controller::script
