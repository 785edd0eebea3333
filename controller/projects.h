#pragma once

#include "controller/project_folder.h"
#include "controller/record_files.h"
#include "controller/variables.h"

namespace controller {

/// The robot projects as the controller keeps them: for each, by robot id and name ("SIM-0001/Line 1"), its tasks, its
/// variables and its monitored variables. Those of the current project stand in the tree that the panel sees
/// ("quill.project") and are exchanged when the project changes.
///
/// A project's folder has its lists too, as they were when it was built last. They count as soon as they are neither what was
/// written there nor what was read from there: then the folder is a copy, or another took its place. The lists before are
/// remembered for the case that the folder before comes back.
class Projects
{
public:
    /// `project` is the node "quill.project" and must outlive this.
    explicit Projects(orba::Node *project, const std::vector<KeptRecord> &kept = {});

    /// Key of the project whose lists stand in the tree; empty for none.
    const QString &current() const { return current_; }
    /// "cur_project" was written: keeps the lists of the old project and puts those of the new one, whose folder is given, in
    /// their place. With a blank folder it is a new project, whatever is remembered of another of its name; a folder that lost
    /// its files of lists has programs, and what is remembered counts. Why the folder's could not be used; empty when nothing
    /// is wrong.
    QString exchange(const ProjectFolder &folder);
    /// Whether the lists of the current project's folder count and those in the tree do not.
    bool isReplaced(const ProjectFolder &folder);
    /// Brings the lists of the current project to its folder, with the values that they have. Why not; empty when done.
    QString writeTo(const ProjectFolder &folder);
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
    void keep(const orba::Node &data);
    QString takeFrom(const ProjectFolder &folder);
    void showLists();
    void dropIfRemoved();
    void drop(const QString &key);

    orba::Node *project_;
    Variables variables_;
    /// One list for each of kLists, in that order; the mark of the folder that has them, when there is one; and the same four of
    /// the folder before.
    std::vector<KeptRecord> records_;
    QString current_;
    bool currentRemoved_ = false; ///< its tasks were removed while it was current
};

} // namespace controller
