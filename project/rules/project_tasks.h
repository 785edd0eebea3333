#pragma once

#include "orba/module_object.h"

#include <QVector>

class QObject;

/// The controller's tasks of a project.
namespace palx {

/// Makes the tasks of the current project anew, as its parameters say: records in "quill.project.task._list", copies of
/// "quill.project.task.default", and their program files. A file that is there already is left alone; it is looked for by
/// the type of its entry ("main.MOD"), and programs are written as ".mod".
/// False, after the message, when a program file could not be written; the list then ends with the task before.
PALX_API bool buildProjectTasks(QObject *sender);

/// One program file of a project, for a table.
struct ProgramFile
{
    QString task;
    QString taskDescription;
    QString type;   ///< of the task: "motion", "semi_static", "normal"
    int number = 0; ///< of the file in its task, from 0
    QString name;
    QString description;
    QString path; ///< where the program is, or would be
};

/// The program files of a project: of the current one as its tasks list them; of another one, and of a current one without
/// tasks (a copied one), as its folder holds them.
PALX_API QVector<ProgramFile> projectPrograms(const QString &project);

} // namespace palx
