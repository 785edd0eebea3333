#pragma once

#include "orba/export.h"

#include <QString>

/// What the rules of projects ask of the controller. Requests wait for the answer, at most 1600 ms.
namespace palx {

/// Makes another project the current one: "quill.project.cur_project", by its key (see `projectKey`). Tasks and variables of
/// that project are there when it returns. False when the controller is away: the lists are empty then until it is back.
bool switchProject(const QString &key);
/// Forgets a project's tasks; of one that is not current, everything.
void removeControllerTasks(const QString &project);
/// Sets what the controller loads at its start. False when the controller did not take it.
bool setAutoload(const QString &path);
/// Clears every "built" flag of "quill.project" and has the controller build the current project.
void rebuildProject();

} // namespace palx
