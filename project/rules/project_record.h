#pragma once

#include "orba/module_object.h"

#include <QStringList>

/// The record of a project: a child of the plugin node's "projects", named after the project, with "name" and seven whole
/// numbers.
namespace palx {

/// The seven parameters: "scheme_layout" (0 left, 1 right, 2 both, 3 double line), "palletizing_type",
/// "type_of_sucker", "bollard" (0 with lift column), "clapboard" (0 with), and the indexes "left_stack_recipe" and
/// "right_stack_recipe" in the lists of `sideRecipes`.
PALX_API const QStringList &projectParameters();

/// The records of all projects.
PALX_API orba::ModuleObject *projectsNode();
/// The record of a project; the empty node when there is none. The name may hold anything.
PALX_API orba::ModuleObject *projectRecord(const QString &name);
/// The record of the current project as storage; a null node when there is none.
PALX_API const orba::Node &currentProjectRecord();

/// Adds a record with "name" and the seven parameters, all 0. One that is there already stays.
PALX_API orba::ModuleObject *addProjectRecord(const QString &name);
/// Writes the parameters that `values` has into the record of that name; other children of `values` are ignored.
PALX_API void writeProjectParameters(const QString &name, const orba::Node &values);

/// The recipes of one side by their names: the stacks whose "pallet_position" is 0 (left), or any other (right).
PALX_API QStringList sideRecipes(const orba::Node &stacks, bool left);

} // namespace palx
