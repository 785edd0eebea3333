#pragma once

#include "controller/script/problems.h"
#include "controller/script/vocabulary.h"

#include <memory>

/// A program file as the parser read it. The checker fills in what names mean; the emitter turns it into steps.
namespace controller::script {

enum class Operator {
    Or,
    And,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Add,
    Subtract,
    Multiply,
    Divide
};

struct Expression
{
    enum class Form {
        Literal, ///< `value`
        Name,    ///< `name`
        Call,    ///< `name` of the arguments `parts`
        Member,  ///< `name` of parts[0]
        Not,     ///< of parts[0]
        Minus,   ///< of parts[0]
        Binary,  ///< `op` between parts[0] and parts[1]
    };
    Form form = Form::Literal;
    Place place; ///< of a binary one the operator's
    std::string name;
    Value value;
    Operator op = Operator::Or;
    std::vector<Expression> parts;
    int depth = 1; ///< operations inside each other

    Symbol symbol; ///< set by the checker; its kind for every form
};

struct Statement;
using Block = std::vector<Statement>;

/// A condition and what is done when it holds.
struct Branch
{
    Place place;
    Expression condition;
    Block block;
};

struct Statement
{
    enum class Form {
        Var,    ///< `type` `name`, `value` when there is one
        Assign, ///< `target` becomes `value`
        If,     ///< the first of `branches` that holds, else `otherwise`
        While,  ///< branches[0]
        For,    ///< `name` from `value` to `last`: branches[0].block
        Return, ///< `value` when there is one
        Pause,
        Call, ///< `value`
    };
    Form form = Form::Pause;
    Place place;
    Type type = Type::Bool;
    std::string name;
    bool hasValue = false;
    Expression target;
    Expression value;
    Expression last;
    std::vector<Branch> branches;
    Block otherwise;

    int slot = 0; ///< of Var and For; set by the checker
};

struct Parameter
{
    Place place;
    Type type = Type::Bool;
    std::string name;
};

/// A parameter, variable or loop counter of a procedure.
struct Local
{
    std::string name;
    Type type = Type::Bool;
    Place from;          ///< known from here on
    bool counts = false; ///< of FOR, which programs do not assign
};

struct Procedure
{
    Place place;
    int file = 0;
    bool isGlobal = false;
    std::string name;
    std::vector<Parameter> parameters;
    Block body;
    Place end;             ///< of ENDPROC
    bool isBroken = false; ///< it could not be read whole

    std::vector<Local> locals; ///< set by the checker, by slot; the parameters first
    Kind result = Kind::Nothing;
};

} // namespace controller::script
