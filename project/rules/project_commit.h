#pragma once

#include "orba/export.h"

#include <QString>

#include <optional>

/// What the project manager does with projects. Reports and questions go through the host's message service. GUI thread;
/// requests to the controller wait for their answers.
namespace palx {

/// What the caller has to do at certain steps.
class PALX_API ProjectSteps
{
public:
    virtual ~ProjectSteps();
    /// Writes the parameters into the record of that name.
    virtual void saveParameters(const QString &name) = 0;
    /// The project is current and has its tasks: its variables are to be created.
    virtual void becameCurrent() = 0;
    /// The projects are others now, or another one is current.
    virtual void projectsChanged() = 0;
    /// Long work begins or ends.
    virtual void showProgress(bool isRunning) = 0;
};

/// Makes a new project and switches to it: folder, record, tasks with their program files, start-up project, "var.json".
/// With `cloneFrom`, a project's name, the folder is a copy of that project's and no tasks are built. False when it was refused (name, an
/// existing folder, the operator) or failed; nothing of it is left then.
PALX_API bool addProject(const QString &name, const std::optional<QString> &cloneFrom, ProjectSteps *steps);

/// Replaces the project `oldName` by one made anew from its parameters under `name`, and switches to it. False when it was
/// refused or failed; the old project is then as it was.
PALX_API bool editProject(const QString &name, const QString &oldName, ProjectSteps *steps);

/// Deletes a project: folder, record, and what the controller knows of it. False when it was refused or its folder could
/// not be removed; the project is then as it was.
PALX_API bool deleteProject(const QString &name, ProjectSteps *steps);

/// Switches to a project, or to none for an empty name. False when the operator refused.
PALX_API bool reloadProject(const QString &name, ProjectSteps *steps);

/// Makes a project, or none for an empty name, the one that the controller loads at its start. False, after the message,
/// when the controller does not take it.
PALX_API bool setDefaultProject(const QString &name);

} // namespace palx
