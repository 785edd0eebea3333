#pragma once

#include "orba/node.h"
#include "project/rules/staged_folder.h"

#include <QString>

namespace palx {

/// What a commit changes, as it was before, to be put back when the commit fails half-way: the records, the current and
/// the start-up project, and tasks and variables of one project.
class ProjectBackup
{
public:
    /// `edited` is the project that is going to be replaced; empty for none. It becomes the current one, because a
    /// controller forgets everything of another project when its tasks are removed, its counters too.
    explicit ProjectBackup(const QString &edited);
    /// Puts everything back unless `keepChanges` was called.
    ~ProjectBackup();
    ProjectBackup(const ProjectBackup &) = delete;
    ProjectBackup &operator=(const ProjectBackup &) = delete;

    /// False when the lists of the edited project are not known, because the controller was away.
    bool hasLists() const { return edited_.isEmpty() || !lists_.isNull(); }
    /// Gives the current project the variables and monitored variables of the edited one, as they were: a project that gets
    /// another name goes on counting.
    void carryVariables() const;
    /// A folder that the commit made, to be removed with the failed project of that name.
    void noteNewFolder(const QString &name, const QString &folder);
    StagedFolder &staged() { return staged_; }
    /// The commit is done; false when something of the staged folder could not be removed.
    bool keepChanges();

private:
    void restoreNodes();
    void restoreLists();

    QString edited_;
    QString current_; ///< "quill.project.cur_project"
    QString startUp_; ///< "quill.project.autoload_prj_path"
    orba::Node records_;
    orba::Node lists_; ///< those of the edited project, by their paths; null when the controller was away
    QString newName_;
    QString newFolder_;
    StagedFolder staged_;
    bool isDone_ = false;
};

} // namespace palx
