#pragma once

#include "orba/export.h"

#include <QStringList>

namespace palx {

/// A project's folder that was taken out of the robot's folder, by one renaming, until it is certain that it can go. It
/// stands in ".palx-staging" beside the robot's folder; what a power cut leaves there is put back by
/// `recoverStagedFolders`.
class PALX_API StagedFolder
{
public:
    StagedFolder() = default;
    /// Puts the folder back unless it was discarded.
    ~StagedFolder();
    StagedFolder(const StagedFolder &) = delete;
    StagedFolder &operator=(const StagedFolder &) = delete;

    /// Takes a folder out; one that does not exist is no failure. False, and the folder is untouched, when it cannot be
    /// renamed.
    bool take(const QString &folder);
    /// Gives the folder back its place; what stands there meanwhile is removed.
    bool putBack();
    /// Removes the folder for good. False when something of it could not be removed; the rest is no project any more and is
    /// tried again by `recoverStagedFolders`.
    bool discard();
    /// Moves the folder there, out of reach of `recoverStagedFolders`; it is the caller's then. False when it stays staged.
    bool moveTo(const QString &path);

    /// Where it stands while it is staged; empty while nothing is.
    QString path() const { return staged_; }

private:
    QString folder_; ///< its place; empty while nothing is staged
    QString staged_; ///< where it is
};

/// The folder beside a robot's folder for what is being changed.
PALX_API QString stagingFolder(const QString &robotFolder);

/// Whether something stands at that place; a link that leads nowhere counts.
PALX_API bool isTaken(const QString &path);

/// Removes a folder with all that is in it; links in it are removed and not followed. True when nothing is left.
PALX_API bool removeFolder(const QString &folder);

/// Puts back the projects that an interrupted operation left staged, and removes what is left of discarded ones.
/// Returns those that were put back. `robotFolder` is the folder that holds the robot's projects; an empty one does nothing.
PALX_API QStringList recoverStagedFolders(const QString &robotFolder);

} // namespace palx
