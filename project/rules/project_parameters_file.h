#pragma once

#include "orba/export.h"
#include "orba/node.h"

#include <QString>

/// How a project's parameters travel: as variables in the "var.xml" of its folder.
namespace palx {

/// Reads a list of variables; a file that is not there is an empty one. False with the reason when it holds something else.
PALX_API bool readVariableList(const QString &file, orba::Node *list, QString *why);

/// Adds the seven parameters of a record to a list of variables, sorted by their keys, in place of those that are there.
PALX_API void addParameterVariables(const orba::Node &record, orba::Node *list);

/// The parameters that a list of variables has, by their keys. False with the reason when one has a value that a
/// record cannot hold.
bool readParameterVariables(const orba::Node &list, orba::Node *parameters, QString *why);

} // namespace palx
