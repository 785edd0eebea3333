#pragma once

#include "controller/record_files.h"
#include "controller/variables.h"

namespace controller {

/// The robot projects as the controller keeps them: for each, by robot id and name ("SIM-0001/Line 1"), its tasks, its
/// variables and its monitored variables. Those of the current project stand in the tree that the panel sees
/// ("quill.project") and are exchanged when the project changes.
class Projects
{
public:
    /// `project` is the node "quill.project" and must outlive this.
    explicit Projects(orba::Node *project, const std::vector<KeptRecord> &kept = {});

    /// Key of the project whose lists stand in the tree; empty for none.
    const QString &current() const { return current_; }
    /// "cur_project" was written: keeps the lists of the old project and puts those of the new one in their place.
    void exchange();
    /// Remembers the lists of the current project as they stand.
    void keepLists();
    /// The panel edited something below "quill.project".
    void follow();
    /// Forgets the tasks of a project; of one that is not current everything.
    void removeTasks(const QString &key);
    Variables &variables() { return variables_; }
    /// The list of the current project; made when a panel removed it.
    orba::Node &variableList() { return list(u"var._list"); }

    /// The lists of all projects, to be kept by their keys.
    std::vector<KeptRecord> snapshot();

    /// Paths below "quill.project" of the lists that are exchanged.
    static constexpr QStringView kLists[] = {u"task._list", u"var._list", u"var_monitor._list"};

private:
    orba::Node &list(QStringView path);
    KeptRecord *find(const QString &key);
    void showLists();
    void dropIfRemoved();
    void drop(const QString &key);

    orba::Node *project_;
    Variables variables_;
    /// One list for each of kLists, in that order.
    std::vector<KeptRecord> records_;
    QString current_;
    bool currentRemoved_ = false; ///< its tasks were removed while it was current
};

} // namespace controller
