#pragma once

#include "orba/module_object.h"

#include <QStringList>

/// The plugin node (the tree of all palletizing data) and the records in it.
///
/// A point record has "trans" (3 numbers, metres), "rot" (3 numbers, radians, Euler angles A, B, C), "near" (6) and
/// "conf" (as delivered by the controller; 8 in a new record). A tool record has "end.trans", "end.rot" (metres,
/// radians), "load.cog", "load.inertia" (3 each) and "load.mass"; a toolset record adds "ref.trans" and "ref.rot".
namespace palx {

/// Object names of the three translation and the three rotation spin boxes of a point editor.
PALX_API extern const QStringList trans_list;
PALX_API extern const QStringList rot_list;
/// The controller project that keeps global tools and work objects.
PALX_API extern const QString hidden_project_name;

PALX_API QString getPluginName();
PALX_API orba::ModuleObject *pluginNode();
PALX_API orba::ModuleObject *stacksNode();
PALX_API orba::ModuleObject *triggerNode();

/// Whether some stack's "name" equals `name` to the letter.
PALX_API bool hasStack(const QString &name);
/// The first stack of that "name" to the letter; the empty node when there is none or `name` is blank.
PALX_API orba::ModuleObject *getStack(const QString &name);

/// Zero the numbers that the record holds; "conf" stays.
PALX_API void identityPointNode(orba::ModuleObject *point);
PALX_API void identityToolNode(orba::ModuleObject *tool);
PALX_API void identityToolsetNode(orba::ModuleObject *toolset);
/// Copies numbers element by element for as many as `src` has and `dst` holds.
PALX_API void copyPointData(orba::ModuleObject *dst, orba::ModuleObject *src);

// --- the same on storage, for rules and inner loops
/// The first record of a list whose "name" equals `name` to the letter; null when there is none.
PALX_API const orba::Node *recordOfName(const orba::Node &list, const QString &name);
/// Becomes a zero point record: "trans" 3, "rot" 3, "near" 6, "conf" 8.
PALX_API void makePointRecord(orba::Node &point);
/// The child of that name as a point record: made when missing or a mere value, completed with zeros when it lacks
/// numbers. `parent` is a map or null.
PALX_API orba::Node &ensurePointRecord(orba::Node &parent, orba::Name name);
PALX_API void copyPointData(orba::Node &dst, const orba::Node &src);
/// Adds the missing lists and the mass of a toolset record, zeroed; what is there stays.
PALX_API void ensureToolsetRecord(orba::Node &toolset);

/// A new stack: a copy of the template stack "default" with "name" and "desc", appended to the stacks.
PALX_API orba::ModuleObject *addStack(const QString &name, const QString &desc);
/// The plugin node that a stack belongs to: the nearest node above it that holds "stacks", else the module's own, else
/// an empty node. Found from the storage, so that rules also work on trees that no module owns.
PALX_API const orba::Node &pluginNodeOf(const orba::Node &stack);

} // namespace palx
