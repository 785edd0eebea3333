#pragma once

#include "orba/module_object.h"

#include <memory>

/// A plugin node of its own with the template's keys, for rules that need no module.
std::unique_ptr<orba::ModuleObject> makePluginTree();
/// Adds a stack made from the template, changed by a JSON object whose keys are paths: {"put.ready_h": 50}.
orba::ModuleObject *addTestStack(orba::ModuleObject *plugin, const char *changes);
/// Writes values by path, making what is missing.
void applyPaths(orba::Node &node, const char *changes);
/// A point record as JSON text: position [m] and the C angle [rad].
QByteArray pointJson(double x, double y, double z, double c = 0);
