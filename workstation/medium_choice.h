#pragma once

#include "workstation/removable_media.h"

/// What may be written to a medium. All answers are reasons for the operator, empty when nothing is in the way.
namespace palx {

/// Why nothing can be written into a folder of the medium: gone, write-protected, full, not writable.
PALX_API QString folderRefusal(const Medium &medium, const QString &folder);
/// Why no file of that name can be written there. A file that is there already is no reason.
PALX_API QString fileRefusal(const Medium &medium, const QString &folder, const QString &name);
/// Why no folder of that name can be made there.
PALX_API QString newFolderRefusal(const Medium &medium, const QString &folder, const QString &name);

/// Why files of those names cannot be written into a folder that was chosen before, an answer for each. The disk may have been
/// pulled since, and a panel's own memory must not be filled instead. Asks the media that are plugged in now.
PALX_API QStringList targetProblems(const QString &folder, const QStringList &names);
/// The same of one file, or without a name of the folder itself.
PALX_API QString targetProblem(const QString &folder, const QString &name = QString());

struct PALX_API MediumSpace
{
    qint64 total = 0; ///< bytes; 0 when unknown
    qint64 free = 0;  ///< bytes that may be written
};
PALX_API MediumSpace spaceOf(const Medium &medium);

} // namespace palx
