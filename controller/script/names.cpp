#include "controller/script/names.h"

#include "controller/script/limits.h"

#include <algorithm>

namespace controller::script {

namespace {

/// Finds the locals of one procedure, whose names hold from their declaration to its end.
class LocalCollector
{
public:
    LocalCollector(Procedure *procedure, Problems *problems) : procedure_(procedure), problems_(problems) {}

    void run()
    {
        for (const Parameter &parameter : procedure_->parameters)
            add({parameter.name, parameter.type, parameter.place, false});
        collect(&procedure_->body);
    }

private:
    void collect(Block *block)
    {
        for (Statement &statement : *block) {
            if (statement.form == Statement::Form::Var)
                statement.slot = add({statement.name, statement.type, statement.place, false});
            if (statement.form == Statement::Form::For)
                statement.slot = add({statement.name, Type::Int, statement.place, true});
            for (Branch &branch : statement.branches)
                collect(&branch.block);
            collect(&statement.otherwise);
        }
    }

    int add(const Local &local)
    {
        std::vector<Local> &locals = procedure_->locals;
        if (local.name.empty())
            return 0; // it was not read
        const auto known = std::find_if(locals.begin(), locals.end(),
                                        [&local](const Local &other) { return other.name == local.name; });
        const std::string fault = Names::localFault(local.name);
        if (!fault.empty())
            problems_->add(local.from, fault);
        else if (known != locals.end() && !(known->counts && local.counts)) // counters may share one
            problems_->add(local.from, "the name " + quoted(local.name) + " is taken already in line " +
                                           std::to_string(known->from.line));
        else if (locals.size() == kMaxLocals)
            problems_->add(local.from, "a procedure has at most " + std::to_string(kMaxLocals) +
                                           " parameters, variables and counters");
        if (known != locals.end() || locals.size() == kMaxLocals)
            return known == locals.end() ? 0 : static_cast<int>(known - locals.begin());
        locals.push_back(local);
        return static_cast<int>(locals.size()) - 1;
    }

    Procedure *procedure_;
    Problems *problems_;
};

} // namespace

Names::Names(Unit *unit) : ofFile_(unit->problems.size())
{
    for (std::size_t i = 0; i < unit->variables->size(); ++i) {
        const VariableInfo &variable = (*unit->variables)[i];
        variables_.try_emplace(variable.name,
                               Symbol{Meaning::Variable, static_cast<int>(i), kindOf(variable.type)});
    }
    for (std::size_t i = 0; i < unit->procedures.size(); ++i)
        addProcedure(unit, static_cast<int>(i));
}

void Names::addProcedure(Unit *unit, int index)
{
    const Procedure &procedure = unit->procedures[static_cast<std::size_t>(index)];
    if (procedure.name.empty())
        return; // it was not read
    Problems &problems = unit->problems[static_cast<std::size_t>(procedure.file)];
    Function function{};
    if (findFunction(procedure.name, &function))
        problems.add(procedure.place, quoted(procedure.name) + " is a built-in function");
    auto &own = ofFile_[static_cast<std::size_t>(procedure.file)];
    bool isNew = own.try_emplace(procedure.name, index).second;
    int other = own.at(procedure.name);
    if (isNew && procedure.isGlobal) {
        isNew = global_.try_emplace(procedure.name, index).second;
        other = global_.at(procedure.name);
    }
    if (isNew)
        return;
    const Procedure &first = unit->procedures[static_cast<std::size_t>(other)];
    problems.add(procedure.place, "there is a procedure " + quoted(procedure.name) + " already: " +
                                      unit->problems[static_cast<std::size_t>(first.file)].file() +
                                      ", line " + std::to_string(first.place.line));
}

Symbol Names::value(const Procedure &procedure, std::string_view name, Place place) const
{
    for (std::size_t i = 0; i < procedure.locals.size(); ++i) {
        const Local &local = procedure.locals[i];
        if (local.name == name && (local.from < place))
            return {Meaning::Local, static_cast<int>(i), kindOf(local.type)};
    }
    const Symbol fixed = fixedName(name);
    if (fixed.meaning != Meaning::None)
        return fixed;
    const auto variable = variables_.find(name);
    return variable == variables_.end() ? Symbol() : variable->second;
}

bool Names::isAmbiguous(std::string_view name) const
{
    return variables_.count(name) > 0 && fixedName(name).meaning != Meaning::None;
}

int Names::procedure(int file, std::string_view name) const
{
    const auto &own = ofFile_[static_cast<std::size_t>(file)];
    if (const auto found = own.find(name); found != own.end())
        return found->second;
    const auto found = global_.find(name);
    return found == global_.end() ? -1 : found->second;
}

std::string Names::localFault(std::string_view name)
{
    Function function{};
    if (fixedName(name).meaning != Meaning::None || findFunction(name, &function))
        return "the name " + quoted(name) + " is built in";
    return {};
}

void Names::collectLocals(Procedure *procedure, Problems *problems)
{
    LocalCollector(procedure, problems).run();
}

} // namespace controller::script
