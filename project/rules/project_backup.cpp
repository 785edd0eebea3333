#include "project/rules/project_backup.h"

#include "project/rules/controller_project.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"

namespace palx {

namespace {

constexpr const char *kVariables = "quill.project.var._list";
constexpr const char *kMonitored = "quill.project.var_monitor._list";
constexpr const char *kLists[] = {"quill.project.task._list", kVariables, kMonitored};

} // namespace

ProjectBackup::ProjectBackup(const QString &edited)
    : edited_(edited), current_(m("quill.project.cur_project")->getString()),
      startUp_(m("quill.project.autoload_prj_path")->getString()), records_(projectsNode()->node())
{
    if (edited_.isEmpty())
        return;
    if (!switchProject(projectKey(edited_)))
        return;
    for (const char *list : kLists)
        lists_.add(orba::Name(QString::fromLatin1(list)))->assign(m(list)->node());
}

ProjectBackup::~ProjectBackup()
{
    if (isDone_)
        return;
    if (!newFolder_.isEmpty())
        removeFolder(newFolder_);
    staged_.putBack();
    restoreNodes(); // which has the controller look at the folder
}

void ProjectBackup::carryVariables() const
{
    for (const char *list : {kVariables, kMonitored})
        if (const orba::Node *kept = lists_.child(orba::Name(QString::fromLatin1(list))))
            m(list)->copyFrom(*kept);
}

void ProjectBackup::noteNewFolder(const QString &name, const QString &folder)
{
    newName_ = name;
    newFolder_ = folder;
}

bool ProjectBackup::keepChanges()
{
    isDone_ = true;
    return staged_.discard();
}

void ProjectBackup::restoreNodes()
{
    projectsNode()->copyFrom(records_);
    if (!edited_.isEmpty())
        restoreLists();
    switchProject(current_);
    if (!newName_.isEmpty() && newName_ != edited_)
        removeControllerTasks(newName_);
    if (m("quill.project.autoload_prj_path")->getString() != startUp_ && setAutoload(startUp_))
        m("quill.project.autoload_prj_path")->set(nullptr, "", startUp_);
    rebuildProject();
}

void ProjectBackup::restoreLists()
{
    if (!switchProject(projectKey(edited_)) || lists_.isNull())
        return;
    for (const char *list : kLists)
        m(list)->copyFrom(*lists_.child(orba::Name(QString::fromLatin1(list))));
}

} // namespace palx
