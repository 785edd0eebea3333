#include "controller/script/arithmetic.h"

#include <charconv>
#include <cmath>

namespace controller::script {

namespace {

constexpr double kIntEnd = 9223372036854775808.0; ///< the first double above all ints

std::string textOf(double number)
{
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

const Refusal kTooLarge = "the result is too large for an int";

Refusal calculateInts(Op op, std::int64_t *left, std::int64_t right)
{
    bool isTooLarge = false;
    if (op == Op::Add)
        isTooLarge = __builtin_add_overflow(*left, right, left);
    else if (op == Op::Subtract)
        isTooLarge = __builtin_sub_overflow(*left, right, left);
    else
        isTooLarge = __builtin_mul_overflow(*left, right, left);
    return isTooLarge ? kTooLarge : Refusal();
}

Refusal calculateDoubles(Op op, double *left, double right)
{
    if (op == Op::Divide && right == 0)
        return "division by 0";
    if (op == Op::Add)
        *left += right;
    else if (op == Op::Subtract)
        *left -= right;
    else if (op == Op::Multiply)
        *left *= right;
    else
        *left /= right;
    return std::isfinite(*left) ? Refusal() : "the result is too large for a double";
}

template <typename Number> bool compareAs(Op op, const Number &left, const Number &right)
{
    switch (op) {
    case Op::Equal:
        return left == right;
    case Op::NotEqual:
        return left != right;
    case Op::Less:
        return left < right;
    case Op::LessEqual:
        return left <= right;
    case Op::Greater:
        return left > right;
    default:
        return left >= right;
    }
}

double asDouble(const Value &value)
{
    if (const double *number = std::get_if<double>(&value))
        return *number;
    if (const std::int64_t *number = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*number);
    return std::get<bool>(value) ? 1 : 0;
}

} // namespace

Refusal calculate(Op op, Value *left, const Value &right)
{
    if (std::int64_t *number = std::get_if<std::int64_t>(left))
        return calculateInts(op, number, std::get<std::int64_t>(right));
    return calculateDoubles(op, &std::get<double>(*left), std::get<double>(right));
}

bool compare(Op op, const Value &left, const Value &right)
{
    if (const std::int64_t *number = std::get_if<std::int64_t>(&left))
        return compareAs(op, *number, std::get<std::int64_t>(right));
    if (const double *number = std::get_if<double>(&left))
        return compareAs(op, *number, std::get<double>(right));
    return compareAs(op, std::get<std::string>(left), std::get<std::string>(right));
}

Refusal changeSign(Op op, Value *value)
{
    if (double *number = std::get_if<double>(value)) {
        *number = op == Op::Abs ? std::abs(*number) : -*number;
        return {};
    }
    std::int64_t &number = std::get<std::int64_t>(*value);
    return op == Op::Abs && number >= 0                               ? Refusal()
           : __builtin_sub_overflow(std::int64_t{0}, number, &number) ? kTooLarge
                                                                      : Refusal();
}

Refusal convert(Op op, Value *value)
{
    const double number = asDouble(*value);
    if (op == Op::ToBool)
        *value = number != 0;
    else if (op == Op::ToDouble)
        *value = number;
    else if (const bool *isOn = std::get_if<bool>(value))
        *value = std::int64_t{*isOn ? 1 : 0};
    else if (std::floor(number) == number && number >= -kIntEnd && number < kIntEnd)
        *value = static_cast<std::int64_t>(number);
    else
        return textOf(number) + " is no int";
    return {};
}

double &member(Target &target, int index)
{
    double Target::*const members[] = {&Target::x, &Target::y, &Target::z,
                                       &Target::a, &Target::b, &Target::c};
    return target.*members[index];
}

} // namespace controller::script
