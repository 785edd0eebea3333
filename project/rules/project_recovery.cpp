#include "project/rules/project_recovery.h"

#include "orba/module_manager.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "project/rules/staged_folder.h"
#include "project/rules/work_folder.h"
#include "workstation/hidden_project.h"
#include "workstation/workspace.h"

#include <QFile>

namespace palx {

using orba::ModuleManager;
using orba::Node;

namespace {

QString noteIn(const QString &folder)
{
    return folder + QStringLiteral("/.palx-record.xml");
}

/// A folder without a note was taken out by an operation that had not changed the record yet.
void restoreNotedRecord(const QString &name)
{
    const QString note = noteIn(projectFolder(name));
    Node record;
    if (!isTaken(note) || !ModuleManager::readFromXmlFile(note, &record))
        return;
    restoreRecord(name, record.isNull() ? std::nullopt : std::make_optional(record));
    saveDataToHiddenProject();
    forgetRecord(projectFolder(name));
}

} // namespace

std::optional<Node> currentRecord(const QString &name)
{
    const orba::ModuleObject *record = projectRecord(name);
    return record->isEmptyMobj() ? std::nullopt : std::make_optional(record->node());
}

void restoreRecord(const QString &name, const std::optional<Node> &record)
{
    if (!record)
        projectRecord(name)->remove();
    else
        addProjectRecord(name)->copyFrom(*record);
}

bool noteRecord(const QString &stagedFolder, const std::optional<Node> &record)
{
    return ModuleManager::writeToXmlFile(record.value_or(Node()), noteIn(stagedFolder));
}

void forgetRecord(const QString &folder)
{
    QFile::remove(noteIn(folder));
}

void recoverProjects()
{
    for (const QString &name : recoverStagedFolders(robotFolder()))
        restoreNotedRecord(name);
    removeAbandonedWork(robotFolder());
}

} // namespace palx
