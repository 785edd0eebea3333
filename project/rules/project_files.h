#pragma once

#include "orba/export.h"

#include <QString>

class QObject;

/// The files of a project's folder: programs, copies.
namespace palx {

/// The whole text of a resource or a file (UTF-8); empty when it cannot be read, which `isRead` tells apart.
PALX_API QString readResourceFile(const QString &file, bool *isRead = nullptr);

enum class ProgramResult {
    Written,
    Exists, ///< left as it was
    Failed, ///< nothing is left behind
};

/// Writes one program file of the current project: `getFileName(fileName + ".mod", taskName)`, with the template that task,
/// file and the project's parameters choose. Whatever has no template is an empty file. A file that is there stays
/// when `report` is set and is replaced otherwise. With `report`, what was not written is told: "File %1 already
/// exists!" as a warning, other reasons as errors. `parent` is the sender of the messages.
PALX_API ProgramResult writeProgram(QObject *parent, const QString &fileName, const QString &taskName,
                                    bool report);

/// The same; true when it was written.
PALX_API bool createMod(QObject *parent, const QString &fileName, const QString &taskName, bool report);

/// Copies a project's folder with all that is in it, hidden files too. Files named ".rlprog" get the new project's name in
/// every "project_name"; all others are copied unchanged, and links as links. False when `source` does not exist or
/// something in it cannot be copied; what was copied until then is left for the caller to remove.
PALX_API bool copyDirectory(const QString &source, const QString &destination, const QString &newName);

} // namespace palx
