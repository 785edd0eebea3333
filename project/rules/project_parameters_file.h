#pragma once

#include "orba/export.h"
#include "orba/module_manager.h"
#include "orba/node.h"

#include <QString>

/// How a project's parameters travel: as variables in the "var.xml" of its folder.
namespace palx {

/// Reads a list of variables; a file that is not there is an empty one. False with the reason when it holds something else.
PALX_API bool readVariableList(const QString &file, orba::Node *list, QString *why);

/// Adds the seven parameters of a record to a list of variables, sorted by their keys, in place of those that are there.
PALX_API void addParameterVariables(const orba::Node &record, orba::Node *list);

/// A list of variables with the parameters of a record, as XML. `text` is the file that the list was read from: as a rule only
/// the parameters are written, before its end, because writing all variables anew takes a tenth of the time of an export.
PALX_API QByteArray variableListWithParameters(const orba::Node &list, const QByteArray &text, const orba::Node &record,
                                               orba::FormatError *error);

/// The parameters that a list of variables has, by their keys. False with the reason when one has a value that a
/// record cannot hold.
bool readParameterVariables(const orba::Node &list, orba::Node *parameters, QString *why);

} // namespace palx
