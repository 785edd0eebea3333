#pragma once

#include "orba/export.h"

#include <QString>
#include <QStringList>

/// Where a robot's projects are: folders of the controller workspace (workspace / robot id / project), and the nodes that
/// name the current and the start-up project.
namespace palx {

/// Whether a text can name a project: one folder name that is no folder of the system's own. Refused are the empty name,
/// "_temp", "_build", the hidden project, ".", "..", separators, and what a file system cannot hold.
PALX_API bool isProjectName(const QString &name);

/// The folder of a project of the connected robot, whether or not it exists. Empty for a name that isProjectName refuses
/// and while the robot is not known.
PALX_API QString projectFolder(const QString &name);

/// "<robot id>/<name>", by which "quill.project.cur_project" names a project; empty for an empty name.
PALX_API QString projectKey(const QString &name);

/// The project that is current on the controller; empty for none.
PALX_API QString currentProject();

/// The project that the controller loads at its start; empty for none.
PALX_API QString startUpProject();

/// The projects of the connected robot, by name: its folders but for those of the system.
PALX_API QStringList projectNames();

/// A file of the current project: workspace / current project / task / file. Without a current project that of
/// "LOCALHOST/_temp". An empty task name leads to the project's own folder, an empty file name to the task's.
PALX_API QString getFileName(const QString &fileName, const QString &taskName);

} // namespace palx
