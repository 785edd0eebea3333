#pragma once

#include "orba/module_object.h"
#include "xservice.h"

#include <QPair>
#include <QVector>

#include <functional>

/// The plug-in's only way to the controller: recipes, variables, tools. GUI thread; blocking calls wait at most the
/// timeout of the service. Results are checked only where a function says so.
namespace palx {

/// Sends one stack as it stands ("pallet.set.one").
PALX_API void saveToRC(orba::ModuleObject *stack);

/// Sends all stacks ("pallet.data") on the calling thread, then raises "refresh_table"; what the controller answered.
PALX_API XReply sendAllStacks();

/// Sends all stacks ("pallet.data"). Asynchronously from one task on the global thread pool, which sends the stacks as
/// they are at the call and tells nobody; or on the calling thread, after which "refresh_table" is raised.
PALX_API void saveAllToRC(bool async);

/// Regenerates the stack's points, records that if `report`, and sends the stack.
PALX_API void genPointsAndSaveToRC(orba::ModuleObject *stack, bool report);

/// Tells a recipe's name and description by its index ("pallet.set.name").
PALX_API void saveNameToRC(int index, const QString &name, const QString &desc);

/// Sets a persistent variable of the current project ("monitor.pers.modify"). The text is read as a double for
/// variables of type "double", as a decimal integer for "bool" and "int" (anything else sends 0); other types and
/// unknown or plain variables send an empty change.
PALX_API void setValueOfPERSVar(const QString &name, const QString &value);

/// Variables of the current project by name, and their new values as texts.
using VariableChanges = QVector<QPair<QString, QString>>;

/// Sets several persistent variables at once, all of them or none, each read as above, and does not wait. `answered` gets
/// the answer once, as long as `sender` lives. A name that is no persistent number or bool of the project is refused at
/// once, and nothing is sent.
PALX_API void setValueOfPERSVar(const VariableChanges &changes, QObject *sender,
                                std::function<void(const XReply &)> answered);

/// Whether the controller's software version starts with `prefix`.
PALX_API bool checkNexoVersion(const QString &prefix);

/// Kept as an entry point; does nothing.
PALX_API void syncData();

/// Makes the first global tool the controller's active tool ("sys.toolset"); false when there is none or the controller
/// refuses. The orientation comes from the load's pose on purpose.
PALX_API bool switchToTool();

/// Makes a stack's toolset the active tool, under the name of the first global tool when the stack uses it, else
/// "default" or the stack's own name. `zeroReference` and `zeroEnd` zero those frames in what is sent.
PALX_API bool switchToToolset(orba::ModuleObject *toolset, bool zeroReference, bool zeroEnd,
                              bool useDefaultName);

} // namespace palx
