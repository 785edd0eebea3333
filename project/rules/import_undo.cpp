#include "project/rules/import_undo.h"

#include "orba/module_object.h"
#include "project/rules/controller_project.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_recovery.h"
#include "project/rules/staged_folder.h"
#include "workstation/hidden_project.h"
#include "workstation/plugin_node.h"
#include "workstation/workspace.h"

#include <QDir>

namespace palx {

namespace {

/// As when it is deleted: the controller must not go on with what has no folder.
void leaveProject(const QString &name)
{
    removeControllerTasks(name);
    if (currentProject() != name)
        return;
    switchProject(QString());
    m("quill.project.rsync.push")->trigger();
}

bool undoChange(const ImportUndo::Change &change)
{
    const QString folder = projectFolder(change.name);
    const QString failure = ProjectText::tr("Remove folder %1 failed").arg(folder);
    StagedFolder imported;
    if (folder.isEmpty() || !imported.take(folder))
        return reportProject("error", failure);
    if (change.kept && !QDir().rename(change.kept->filePath(QStringLiteral("project")), folder))
        return reportProject("error", failure); // the imported one comes back
    restoreRecord(change.name, change.recordBefore);
    saveDataToHiddenProject();
    imported.discard();
    if (!change.kept)
        leaveProject(change.name);
    return true;
}

} // namespace

ImportUndo::ImportUndo() : robotFolder_(robotFolder()), generation_(last() ? last()->generation_ + 1 : 0) {}

QString ImportUndo::nextKept()
{
    return QStringLiteral("undo-%1-%2").arg(generation_).arg(++kept_);
}

ImportUndo *ImportUndo::last()
{
    return pluginNode()->findChild<ImportUndo *>(QString(), Qt::FindDirectChildrenOnly);
}

void ImportUndo::keep(std::unique_ptr<ImportUndo> undo)
{
    delete last();
    undo.release()->setParent(pluginNode());
}

bool ImportUndo::isOfThisRobot() const
{
    return robotFolder_ == robotFolder();
}

QStringList ImportUndo::names() const
{
    QStringList names;
    for (const Change &change : changes_)
        names.append(change.name);
    if (templates_.isMade())
        names.append(templates_.isReset() ? ProjectText::tr("templates reset")
                                          : ProjectText::tr("program templates"));
    return names;
}

bool ImportUndo::undo()
{
    bool isDone =
        templates_.undo() || reportProject("error", ProjectText::tr("The templates cannot be put back"));
    while (isDone && !changes_.empty()) {
        isDone = undoChange(changes_.back());
        if (isDone)
            changes_.pop_back();
    }
    m("quill.project.refresh_project")->trigger();
    return isDone;
}

} // namespace palx
