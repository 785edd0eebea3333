#pragma once

#include <QHash>
#include <QString>

namespace palx {

/// The names of an archive's entries, of which each may be there once, whatever the case of its letters: a disk that was
/// formatted elsewhere takes "A" and "a" for one.
class EntryNames
{
public:
    /// Adds the name of a file, or of a folder with "/" at its end, and the folders on the way to it. What is wrong with it; empty
    /// for nothing.
    QString add(const QString &name);

private:
    struct Seen
    {
        QString name;
        bool isFolder = false;
        bool isEntry = false; ///< not only on the way to another
    };
    bool addFolderOnTheWay(const QString &name);

    QHash<QString, Seen> seen_; ///< by the name in one way of writing
};

/// As it may stand in a message: without control characters, and not too long.
QString shownEntryName(const QString &name);

} // namespace palx
