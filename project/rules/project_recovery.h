#pragma once

#include "orba/node.h"

#include <QString>

#include <optional>

/// What puts projects right after a process that was killed in the middle.
namespace palx {

/// A project's record as it is; none when there is none.
std::optional<orba::Node> currentRecord(const QString &name);
/// Makes a project's record what it was.
void restoreRecord(const QString &name, const std::optional<orba::Node> &record);

/// Notes a project's record in its folder, which is staged, so that the record comes back with the folder. False when it cannot be
/// written.
bool noteRecord(const QString &stagedFolder, const std::optional<orba::Node> &record);
/// The folder is not going to come back to another record.
void forgetRecord(const QString &folder);

/// Puts back projects that an interrupted operation left staged, with their records, and removes what else such a one left. To
/// be called when the robot becomes known and before every operation on folders; not in the middle of one.
PALX_API void recoverProjects();

} // namespace palx
