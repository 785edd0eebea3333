#pragma once

#include "controller/script/checker.h"

#include <string_view>
#include <unordered_map>

namespace controller::script {

/// What the names of a task mean. Procedures are found in their own file first, then among the GLOBAL ones.
class Names
{
public:
    /// Reports names that are there twice.
    explicit Names(Unit *unit);

    /// A value: a local of the procedure that is known at `place`, else a fixed name or a variable of the project.
    Symbol value(const Procedure &procedure, std::string_view name, Place place) const;
    /// Whether a built-in name hides a variable of the project.
    bool isAmbiguous(std::string_view name) const;
    /// Number of the procedure of that name as seen from a file; -1 when there is none.
    int procedure(int file, std::string_view name) const;

    /// Why a local cannot have that name; empty when it can.
    static std::string localFault(std::string_view name);
    /// Fills `locals` and the slots of the statements. Reports names that are there twice.
    static void collectLocals(Procedure *procedure, Problems *problems);

private:
    void addProcedure(Unit *unit, int index);

    std::unordered_map<std::string_view, Symbol> variables_;
    std::unordered_map<std::string_view, int> global_;
    std::vector<std::unordered_map<std::string_view, int>> ofFile_;
};

} // namespace controller::script
