#include "controller/script/expression_checker.h"

#include <algorithm>

namespace controller::script {

namespace {

bool isValue(Kind kind)
{
    return kind <= Kind::Target;
}

std::string countText(std::size_t least, std::size_t most)
{
    const std::string range = std::to_string(least) + (most > least ? " or " + std::to_string(most) : "");
    return range + (most == 1 ? " argument" : " arguments");
}

} // namespace

Symbol ExpressionChecker::wrong(Place place, const std::string &what)
{
    if (problems_)
        problems_->add(place, what);
    return {};
}

/// Whether every file could be read; else a missing name may be among what was left out.
bool ExpressionChecker::isReadWhole() const
{
    return std::none_of(unit_.procedures.begin(), unit_.procedures.end(),
                        [](const Procedure &procedure) { return procedure.isBroken; });
}

Kind ExpressionChecker::check(Expression *expression)
{
    expression->symbol = symbolOf(expression);
    if (expression->symbol.kind == Kind::Nothing)
        expression->symbol.kind = wrongKind(expression->place, quoted(expression->name) + " gives no value");
    return expression->symbol.kind;
}

void ExpressionChecker::checkAs(Expression *expression, Kind wanted)
{
    const Kind given = check(expression);
    if (given != Kind::Wrong && wanted != Kind::Wrong && !isTaken(given, wanted))
        wrong(expression->place, std::string(kindText(wanted)) + " is expected here, not " + kindText(given));
}

Symbol ExpressionChecker::symbolOf(Expression *expression)
{
    switch (expression->form) {
    case Expression::Form::Literal:
        return {Meaning::None, 0, kindOf(typeOf(expression->value))};
    case Expression::Form::Name:
        return nameSymbol(*expression);
    case Expression::Form::Call:
        return callSymbol(expression);
    case Expression::Form::Member:
        return memberSymbol(expression);
    case Expression::Form::Not:
        checkAs(&expression->parts[0], Kind::Bool);
        return {Meaning::None, 0, Kind::Bool};
    case Expression::Form::Minus:
        return {Meaning::None, 0, minusKind(expression)};
    case Expression::Form::Binary:
        return {Meaning::None, 0, binaryKind(expression)};
    }
    return {};
}

// ---------------------------------------------------------------- names, members

Symbol ExpressionChecker::nameSymbol(const Expression &expression)
{
    const Symbol symbol = names_.value(procedure_, expression.name, expression.place);
    if (symbol.meaning != Meaning::Local && names_.isAmbiguous(expression.name))
        return wrong(expression.place,
                     "the project has a variable with the built-in name " + quoted(expression.name));
    if (symbol.meaning != Meaning::None)
        return symbol;
    Function function{};
    if (findFunction(expression.name, &function) || names_.procedure(procedure_.file, expression.name) >= 0)
        return wrong(expression.place, quoted(expression.name) + " is called with ( )");
    return wrong(expression.place, "there is no variable or signal " + quoted(expression.name));
}

Symbol ExpressionChecker::memberSymbol(Expression *expression)
{
    const Kind base = check(&expression->parts[0]);
    const int member = memberIndex(expression->name);
    if (base == Kind::Wrong)
        return {};
    if (base != Kind::Target)
        return wrong(expression->place, std::string("only a robtarget has members, not ") + kindText(base));
    if (member < 0)
        return wrong(expression->place,
                     "a robtarget has the members x, y, z, a, b, c, not " + quoted(expression->name));
    return {Meaning::None, member, Kind::Double};
}

Kind ExpressionChecker::checkTarget(Expression *target)
{
    const bool isMember = target->form == Expression::Form::Member;
    Expression *variable = isMember ? &target->parts[0] : target;
    const Kind kind = check(target);
    if (kind == Kind::Wrong)
        return kind;
    const Meaning meaning =
        variable->form == Expression::Form::Name ? variable->symbol.meaning : Meaning::None;
    if (meaning != Meaning::Local && meaning != Meaning::Variable)
        return wrongKind(target->place, meaning == Meaning::Output
                                            ? "a signal is set with SetDO"
                                            : "only a variable or its member can be assigned");
    if (meaning == Meaning::Local &&
        procedure_.locals[static_cast<std::size_t>(variable->symbol.index)].counts)
        return wrongKind(target->place, "the counter of a FOR cannot be assigned");
    if (kind == Kind::Clock)
        return wrongKind(target->place, "a clock cannot be assigned; use ClockReset");
    return kind;
}

// ---------------------------------------------------------------- operators

Kind ExpressionChecker::minusKind(Expression *expression)
{
    const Kind kind = check(&expression->parts[0]);
    if (kind == Kind::Wrong || kind == Kind::Int || kind == Kind::Double)
        return kind;
    return kind == Kind::Bool
               ? Kind::Int
               : wrongKind(expression->place,
                           std::string("a number is expected behind -, not ") + kindText(kind));
}

Kind ExpressionChecker::binaryKind(Expression *expression)
{
    if (expression->op <= Operator::And) {
        checkAs(&expression->parts[0], Kind::Bool);
        checkAs(&expression->parts[1], Kind::Bool);
        return Kind::Bool;
    }
    const Kind left = check(&expression->parts[0]);
    const Kind right = check(&expression->parts[1]);
    if (expression->op <= Operator::GreaterEqual)
        return comparisonKind(*expression, left, right);
    if (left == Kind::Wrong || right == Kind::Wrong)
        return Kind::Wrong;
    if (!isNumber(left) || !isNumber(right))
        return wrongKind(expression->place, std::string("numbers are expected here, not ") +
                                                kindText(isNumber(left) ? right : left));
    const bool isDouble = left == Kind::Double || right == Kind::Double || expression->op == Operator::Divide;
    return isDouble ? Kind::Double : Kind::Int;
}

Kind ExpressionChecker::comparisonKind(const Expression &expression, Kind left, Kind right)
{
    const bool isOrder = expression.op > Operator::NotEqual;
    const bool isText = left == Kind::Text && right == Kind::Text && !isOrder;
    if (left != Kind::Wrong && right != Kind::Wrong && !isText && !(isNumber(left) && isNumber(right)))
        wrong(expression.place, std::string(kindText(left)) + " and " + kindText(right) +
                                    (isOrder && left == right ? " have no order" : " cannot be compared"));
    return Kind::Bool;
}

// ---------------------------------------------------------------- calls

bool ExpressionChecker::checkCount(const Expression &call, std::size_t least, std::size_t most)
{
    const std::size_t count = call.parts.size();
    if (count >= least && count <= most)
        return true;
    wrong(call.place,
          quoted(call.name) + " takes " + countText(least, most) + ", not " + std::to_string(count));
    return false;
}

Symbol ExpressionChecker::callSymbol(Expression *call)
{
    Function function{};
    if (findFunction(call->name, &function)) {
        checkFunction(call, function);
        Kind kind = signatureOf(function).result;
        if (function == Function::Abs && call->parts.size() == 1 &&
            call->parts[0].symbol.kind != Kind::Double)
            kind = Kind::Int;
        return {Meaning::Builtin, static_cast<int>(function), kind};
    }
    const int index = names_.procedure(procedure_.file, call->name);
    if (index < 0) {
        for (Expression &argument : call->parts)
            check(&argument);
        return isReadWhole() ? wrong(call->place, "there is no procedure " + quoted(call->name)) : Symbol();
    }
    const Procedure &called = unit_.procedures[static_cast<std::size_t>(index)];
    checkProcedure(call, called);
    metUnknown_ = metUnknown_ || called.result == Kind::Wrong;
    return {Meaning::Procedure, index, called.result};
}

void ExpressionChecker::checkProcedure(Expression *call, const Procedure &called)
{
    const std::size_t count = called.parameters.size();
    if (!called.isBroken)
        checkCount(*call, count, count);
    for (std::size_t i = 0; i < call->parts.size(); ++i)
        if (i < count)
            checkAs(&call->parts[i], kindOf(called.parameters[i].type));
        else
            check(&call->parts[i]);
}

void ExpressionChecker::checkFunction(Expression *call, Function function)
{
    const Signature &signature = signatureOf(function);
    checkCount(*call, signature.least, signature.most);
    if (function == Function::MoveL && unit_.task.kind != TaskKind::Motion)
        wrong(call->place, "only a motion task moves the robot");
    for (std::size_t i = 0; i < call->parts.size(); ++i) {
        if (i >= signature.most)
            check(&call->parts[i]);
        else if (i == 0 && takesOutput(function))
            checkOutput(&call->parts[i]);
        else if (signature.arguments[i] == Kind::Clock)
            checkClock(&call->parts[i]);
        else
            checkAs(&call->parts[i], signature.arguments[i]);
    }
}

void ExpressionChecker::checkOutput(Expression *argument)
{
    const bool isWrong = check(argument) == Kind::Wrong;
    if (!isWrong && argument->symbol.meaning != Meaning::Output)
        wrong(argument->place, "the name of an output is expected here, like DO2_0");
}

void ExpressionChecker::checkClock(Expression *argument)
{
    const Kind kind = check(argument);
    if (kind != Kind::Wrong && kind != Kind::Clock)
        wrong(argument->place, std::string("a clock is expected here, not ") + kindText(kind));
}

void ExpressionChecker::checkStatement(Expression *call)
{
    call->symbol = symbolOf(call);
    if (call->symbol.meaning == Meaning::Builtin && isValue(call->symbol.kind))
        wrong(call->place, quoted(call->name) + " does nothing here: its value is not used");
}

} // namespace controller::script
