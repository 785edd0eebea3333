#pragma once

#include "controller/script/machine.h"
#include "orba/node.h"

#include <vector>

namespace controller {

/// The variables of a project while its programs run: typed values by number. They are taken from the list that panel and
/// controller share, and what programs changed is put back into it.
class ProgramVariables
{
public:
    /// Reads the whole list. Variables of a type that programs do not know, and a second one of a name, are left out.
    explicit ProgramVariables(const orba::Node &list);

    /// What programs are checked with; numbers count here.
    const std::vector<script::VariableInfo> &infos() const { return infos_; }
    const script::Value &value(int id) const { return values_[static_cast<std::size_t>(id)]; }
    /// Whether that changes it.
    bool set(int id, const script::Value &value);
    /// Number of a variable; -1 when there is none.
    int idOf(const std::string &name) const;

    /// Puts what changed since the last time into the list. Returns whether something of it is persistent.
    bool flush(orba::Node *list);
    /// The panel changed the list: takes its values over. To be flushed before. Returns whether something changed.
    bool reload(const orba::Node &list);

private:
    std::vector<script::VariableInfo> infos_;
    std::vector<script::Value> values_;
    std::vector<bool> changed_;
    bool isAnyChanged_ = false;
};

/// The text that a target has in the list: "p:{{x,y,z},{q1,q2,q3,q4},0}{cfg 0,...}{EJ 0,...}", millimetres and a quaternion
/// with its real part first.
std::string targetText(const script::Target &target);
/// Back; a text of another form gives the origin. Four zeros stand for no turn.
script::Target targetOfText(const QString &text);

} // namespace controller
