#pragma once

#include "controller/script/names.h"

namespace controller::script {

/// Finds the kinds of expressions in one procedure, from the inside out. The first problem of an expression makes it
/// Wrong, and what holds it is not reported again.
class ExpressionChecker
{
public:
    /// Without `problems` nothing is reported.
    ExpressionChecker(const Unit &unit, const Names &names, const Procedure &procedure, Problems *problems)
        : unit_(unit), names_(names), procedure_(procedure), problems_(problems)
    {
    }

    /// Fills the symbols of an expression and its parts; the kind of its value. A call must give a value.
    Kind check(Expression *expression);
    /// The same where a value of that kind is taken.
    void checkAs(Expression *expression, Kind wanted);
    /// A call as a statement.
    void checkStatement(Expression *call);
    /// What an assignment writes to; its kind.
    Kind checkTarget(Expression *target);

    /// Set when the kind of a value could not be found because that of a procedure is not known yet.
    bool metUnknown() const { return metUnknown_; }

private:
    Symbol symbolOf(Expression *expression);
    Symbol nameSymbol(const Expression &expression);
    Symbol callSymbol(Expression *call);
    Symbol memberSymbol(Expression *expression);
    Kind binaryKind(Expression *expression);
    Kind comparisonKind(const Expression &expression, Kind left, Kind right);
    Kind minusKind(Expression *expression);
    void checkFunction(Expression *call, Function function);
    void checkProcedure(Expression *call, const Procedure &called);
    bool checkCount(const Expression &call, std::size_t least, std::size_t most);
    void checkOutput(Expression *argument);
    void checkClock(Expression *argument);
    Symbol wrong(Place place, const std::string &what);
    Kind wrongKind(Place place, const std::string &what) { return wrong(place, what).kind; }
    bool isReadWhole() const;

    const Unit &unit_;
    const Names &names_;
    const Procedure &procedure_;
    Problems *problems_;
    bool metUnknown_ = false;
};

} // namespace controller::script
