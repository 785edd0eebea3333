#include "controller/script/checker.h"

#include "controller/script/expression_checker.h"
#include "controller/script/limits.h"

#include <algorithm>

namespace controller::script {

namespace {

/// Checks the statements of one procedure.
class BodyChecker
{
public:
    BodyChecker(const Unit &unit, const Names &names, Procedure *procedure, Problems *problems)
        : procedure_(procedure), problems_(problems), expressions_(unit, names, *procedure, problems)
    {
    }

    void run() { check(&procedure_->body); }

private:
    void check(Block *block)
    {
        for (Statement &statement : *block)
            check(&statement);
    }

    void check(Statement *statement)
    {
        switch (statement->form) {
        case Statement::Form::Var:
            return variable(statement);
        case Statement::Form::Assign:
            return expressions_.checkAs(&statement->value, expressions_.checkTarget(&statement->target));
        case Statement::Form::If:
        case Statement::Form::While:
            for (Branch &branch : statement->branches) {
                expressions_.checkAs(&branch.condition, Kind::Bool);
                check(&branch.block);
            }
            return check(&statement->otherwise);
        case Statement::Form::For:
            return loop(statement);
        case Statement::Form::Return:
            return returns(statement);
        case Statement::Form::Call:
            return expressions_.checkStatement(&statement->value);
        case Statement::Form::Pause:
            return;
        }
    }

    void variable(Statement *statement)
    {
        if (!statement->hasValue)
            return;
        if (statement->type == Type::Clock)
            problems_->add(statement->place, "a clock starts at 0 and takes no value");
        else
            expressions_.checkAs(&statement->value, kindOf(statement->type));
    }

    void loop(Statement *statement)
    {
        expressions_.checkAs(&statement->value, Kind::Int);
        expressions_.checkAs(&statement->last, Kind::Int);
        if (std::find(counting_.begin(), counting_.end(), statement->slot) != counting_.end())
            problems_->add(statement->place,
                           quoted(statement->name) + " counts already in a FOR around this one");
        counting_.push_back(statement->slot);
        check(&statement->branches.front().block);
        counting_.pop_back();
    }

    void returns(Statement *statement)
    {
        if (statement->hasValue)
            expressions_.checkAs(&statement->value, procedure_->result);
        else if (procedure_->result != Kind::Nothing)
            problems_->add(statement->place, "RETURN gives no value here, but it does elsewhere in " +
                                                 quoted(procedure_->name));
    }

    Procedure *procedure_;
    Problems *problems_;
    ExpressionChecker expressions_;
    std::vector<int> counting_;
};

/// The first RETURN with a value; null when there is none.
Statement *firstReturn(Block *block)
{
    for (Statement &statement : *block) {
        if (statement.form == Statement::Form::Return && statement.hasValue)
            return &statement;
        for (Branch &branch : statement.branches)
            if (Statement *found = firstReturn(&branch.block))
                return found;
        if (Statement *found = firstReturn(&statement.otherwise))
            return found;
    }
    return nullptr;
}

/// Checks the procedures of a task.
class UnitChecker
{
public:
    explicit UnitChecker(Unit *unit) : unit_(unit), names_(unit) {}

    void run()
    {
        for (Procedure &procedure : unit_->procedures)
            Names::collectLocals(&procedure, problemsOf(procedure));
        findResults();
        for (Procedure &procedure : unit_->procedures)
            if (!procedure.isBroken)
                BodyChecker(*unit_, names_, &procedure, problemsOf(procedure)).run();
        findEntry();
    }

private:
    Problems *problemsOf(const Procedure &procedure)
    {
        return &unit_->problems[static_cast<std::size_t>(procedure.file)];
    }

    /// What a procedure gives shows in its first RETURN with a value, which may call others. Each round finds those whose
    /// RETURN calls none that is still unknown; what is left then goes round in a circle.
    void findResults()
    {
        std::vector<Procedure *> open;
        for (Procedure &procedure : unit_->procedures)
            if (firstReturn(&procedure.body)) {
                procedure.result = Kind::Wrong;
                open.push_back(&procedure);
            }
        for (std::size_t before = open.size() + 1; before != open.size();) {
            before = open.size();
            open.erase(std::remove_if(open.begin(), open.end(),
                                      [this](Procedure *procedure) { return findResult(procedure); }),
                       open.end());
        }
        for (const Procedure *procedure : open)
            problemsOf(*procedure)
                ->add(procedure->place, "what " + quoted(procedure->name) +
                                            " gives depends on itself; put a RETURN of a plain value first");
    }

    /// False when it is not known yet.
    bool findResult(Procedure *procedure)
    {
        Statement *statement = firstReturn(&procedure->body);
        ExpressionChecker checker(*unit_, names_, *procedure, nullptr);
        const Kind kind = checker.check(&statement->value);
        if (kind == Kind::Wrong && checker.metUnknown())
            return false;
        procedure->result = kind;
        if (kind <= Kind::Target && kind != Kind::Clock)
            return true;
        procedure->result = Kind::Wrong;
        if (kind != Kind::Wrong) // else it is reported with the statement
            problemsOf(*procedure)
                ->add(statement->value.place, std::string(kindText(kind)) + " cannot be returned");
        return true;
    }

    void findEntry()
    {
        for (std::size_t i = 0; i < unit_->procedures.size(); ++i) {
            const Procedure &procedure = unit_->procedures[i];
            if (procedure.name != "main")
                continue;
            if (!procedure.parameters.empty())
                problemsOf(procedure)->add(procedure.place, "\"main\" takes no parameters");
            if (unit_->entry >= 0 && !isReported(procedure))
                problemsOf(procedure)->add(procedure.place,
                                           "there is a second procedure \"main\" in this task");
            unit_->entry = static_cast<int>(i);
        }
        const bool isWhole = std::all_of(unit_->problems.begin(), unit_->problems.end(),
                                         [](const Problems &problems) { return problems.isEmpty(); });
        if (unit_->entry < 0 && isWhole)
            unit_->problems.front().add({}, "there is no procedure \"main\" in this task");
    }

    /// Whether a second `main` is told as a second name already.
    bool isReported(const Procedure &procedure) const
    {
        const Procedure &other = unit_->procedures[static_cast<std::size_t>(unit_->entry)];
        return other.file == procedure.file || (other.isGlobal && procedure.isGlobal);
    }

    Unit *unit_;
    Names names_;
};

} // namespace

void check(Unit *unit)
{
    UnitChecker(unit).run();
}

} // namespace controller::script
