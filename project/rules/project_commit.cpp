#include "project/rules/project_commit.h"

#include "project/rules/controller_project.h"
#include "project/rules/project_backup.h"
#include "project/rules/project_files.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/project_recovery.h"
#include "project/rules/project_tasks.h"
#include "project/rules/project_variables.h"
#include "workstation/config_log.h"
#include "workstation/hidden_project.h"
#include "workstation/plugin_log.h"
#include "workstation/workspace.h"

#include <QDir>

namespace palx {

namespace {

bool error(const QString &text)
{
    return reportProject("error", text);
}

/// Folders that an interrupted operation left behind would stand in the way of this one.
bool isRobotKnown()
{
    if (robotFolder().isEmpty())
        return error(ProjectText::tr("The robot is not known yet: connect the controller first"));
    recoverProjects();
    return true;
}

bool makeFolder(const QString &folder)
{
    return QDir().mkpath(folder) || error(ProjectText::tr("Cannot create path: %1").arg(folder));
}

/// What adding and editing share.
struct Commit
{
    QString name;
    QString oldName; ///< empty when a project is added
    bool isCloned = false;
    ProjectSteps *steps;
};

void makeRecord(const Commit &commit)
{
    if (projectRecord(commit.name)->isEmptyMobj()) {
        writePluginLog(QStringLiteral("Record project data - ") + commit.name);
        addProjectRecord(commit.name);
    }
    commit.steps->saveParameters(commit.name);
}

/// An edit of the start-up project has changed the path already, so that a renamed one no longer equals its old name.
void followStartUp(const Commit &commit)
{
    if (commit.oldName.isEmpty() || startUpProject() == commit.oldName)
        setDefaultProject(commit.name);
}

/// The folder of the project in use may be gone, and a new one is made in its place. The controller looks at the new folder when
/// it changes to it.
void leaveProject(const QString &name)
{
    if (m("quill.project.cur_project")->getString() == projectKey(name))
        switchProject(QString());
}

/// Variables are made where the project's own are known to be missing: made without a look at the controller's, they would
/// replace its counters when it is back.
void useVariables(const QString &name, bool areKnown, ProjectSteps *steps)
{
    if (areKnown)
        return steps->becameCurrent();
    reportProject(
        "warning",
        ProjectText::tr("The controller is away: the variables of %1 are looked at when it is back and the "
                        "project is reloaded")
            .arg(name));
}

/// From the record to the files of variables. False when something cannot be written.
bool fillProject(const Commit &commit, const ProjectBackup &backup)
{
    makeRecord(commit);
    const bool isAdded = commit.oldName.isEmpty();
    if (isAdded)
        leaveProject(commit.name);
    const bool isListed = switchProject(projectKey(commit.name)) && backup.hasLists();
    const bool hasLists = isListed || (isAdded && !commit.isCloned);
    if (!isAdded && commit.oldName != commit.name)
        backup.carryVariables();
    if (!commit.isCloned && !buildProjectTasks(nullptr))
        return false;
    useVariables(commit.name, hasLists || m("quill.project.var._list")->cmobjCount() > 0, commit.steps);
    commit.steps->projectsChanged();
    followStartUp(commit);
    return writeVariables();
}

void finishProject(ProjectBackup *backup)
{
    rebuildProject();
    saveDataToHiddenProject();
    backup->keepChanges();
}

/// The start-up project goes by its bare new name.
void renameStartUp(const QString &oldName, const QString &name)
{
    if (startUpProject() == oldName && setAutoload(name))
        m("quill.project.autoload_prj_path")->set(nullptr, "", name);
}

void removeOldProject(const QString &oldName, const QString &name, ProjectBackup *backup)
{
    projectRecord(oldName)->remove();
    // The panel's own list first: it would else be compared with the new tasks while the controller's is empty already.
    m("quill.project.task._list")->clear();
    removeControllerTasks(oldName);
    const QString folder = projectFolder(oldName);
    if (backup->staged().take(folder))
        renameStartUp(oldName, name);
    else
        error(ProjectText::tr("Remove folder %1 failed").arg(folder));
}

void dropStartUp(const QString &name)
{
    if (startUpProject() != name)
        return;
    setAutoload(QString());
    m("quill.project.autoload_prj_path")->set(nullptr, "", QString());
}

} // namespace

ProjectSteps::~ProjectSteps() = default;

bool addProject(const QString &name, const std::optional<QString> &cloneFrom, ProjectSteps *steps)
{
    if (!isProjectName(name))
        return error(ProjectText::tr("Try to add invalid project name"));
    if (!isRobotKnown())
        return false;
    const QString folder = projectFolder(name);
    if (isTaken(folder))
        return error(ProjectText::tr("Project already exists"));
    if (!askAboutProject(ProjectText::tr("Are you sure to create and switch to new project: %1?").arg(name)))
        return false;
    if (!makeFolder(folder))
        return false;
    ProjectBackup backup{QString()};
    backup.noteNewFolder(name, folder);
    if (cloneFrom && !copyDirectory(projectFolder(*cloneFrom), folder, name))
        return error(ProjectText::tr("Failed to clone project from: %1").arg(*cloneFrom));
    if (!fillProject({name, QString(), cloneFrom.has_value(), steps}, backup))
        return false;
    finishProject(&backup);
    return true;
}

bool editProject(const QString &name, const QString &oldName, ProjectSteps *steps)
{
    if (!isProjectName(name))
        return error(ProjectText::tr("Try to add invalid project name"));
    if (!isRobotKnown())
        return false;
    const QString folder = projectFolder(name);
    if (name != oldName && isTaken(folder))
        return error(ProjectText::tr("Cannot rename to an existing project"));
    if (!askAboutProject(ProjectText::tr("Are you sure to update and switch to project %1?").arg(name)))
        return false;
    ProjectBackup backup(oldName);
    if (!oldName.isEmpty()) // an empty name would be the folder of all projects
        removeOldProject(oldName, name, &backup);
    if (!isTaken(folder)) {
        if (!makeFolder(folder))
            return false;
        backup.noteNewFolder(name, folder);
    }
    if (!fillProject({name, oldName, false, steps}, backup))
        return false;
    finishProject(&backup);
    return true;
}

bool deleteProject(const QString &name, ProjectSteps *steps)
{
    if (name.isEmpty())
        return error(ProjectText::tr("Cannot remove empty project"));
    if (!askAboutProject(ProjectText::tr("Are you sure to delete project %1?").arg(name)) || !isRobotKnown())
        return false;
    const QString folder = projectFolder(name);
    StagedFolder staged;
    if (folder.isEmpty() || !staged.take(folder))
        return error(ProjectText::tr("Remove folder %1 failed").arg(folder.isEmpty() ? name : folder));
    removeControllerTasks(name);
    if (!staged.discard())
        error(ProjectText::tr("Remove folder %1 failed").arg(folder));
    if (m("quill.project.cur_project")->getString() == projectKey(name)) {
        switchProject(QString());
        m("quill.project.rsync.push")->trigger();
    }
    projectRecord(name)->remove();
    steps->projectsChanged();
    reportProject("info", ProjectText::tr("Project %1 removed").arg(name));
    dropStartUp(name);
    saveDataToHiddenProject();
    return true;
}

bool reloadProject(const QString &name, ProjectSteps *steps)
{
    const QString shown = name.isEmpty() ? ProjectText::tr("Empty project") : name;
    if (!name.isEmpty() && !isRobotKnown())
        return false;
    if (!askAboutProject(ProjectText::tr("Are you sure to switch to project %1?").arg(shown)))
        return false;
    recordCfgLog(ProjectText::tr("Reload project %1").arg(name), false);
    m("quill.project._loading")->set(nullptr, "", true);
    steps->showProgress(true);
    const bool hasLists = switchProject(projectKey(name)) || name.isEmpty();
    useVariables(name, hasLists, steps);
    setDefaultProject(name);
    steps->showProgress(false);
    rebuildProject();
    m("quill.project._loading")->set(nullptr, "", false);
    saveDataToHiddenProject();
    steps->projectsChanged();
    return true;
}

bool setDefaultProject(const QString &name)
{
    const QString path = name.isEmpty() ? QString() : QStringLiteral("%1/_build/%1.prj").arg(name);
    if (!setAutoload(path))
        return error(ProjectText::tr("The controller did not take the start-up project"));
    m("quill.project.autoload_prj_path")->set(nullptr, "", path);
    reportProject("info", name.isEmpty() ? ProjectText::tr("Auto load project is set to null!")
                                         : ProjectText::tr("Set %1 to auto load project success!").arg(name));
    return true;
}

} // namespace palx
