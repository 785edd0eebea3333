#pragma once

#include "workstation/medium_names.h"

#include <QDateTime>

namespace palx {

struct PALX_API FolderEntry
{
    QString name;
    bool isFolder = false;
    qint64 bytes = 0; ///< of a file
    QDateTime changed;
};

struct PALX_API FolderContents
{
    QVector<FolderEntry> entries; ///< unsorted
    QString problem;              ///< for the operator: why some or all are missing
};

enum class EntryOrder { Name, Date, Size };

/// What of a folder is shown: its folders, and the files that the filter lets through. Left out are hidden entries and
/// symbolic links that lead out of `root`. Any thread; a slow disk takes its time.
PALX_API FolderContents readFolder(const QString &root, const QString &folder, const FileFilter &filter);

/// Folders first and always upwards by name; numbers in names count as numbers.
PALX_API void sortEntries(QVector<FolderEntry> *entries, EntryOrder order, Qt::SortOrder direction);

/// The folder of a medium that comes nearest to `path`: absolute, without links and "..", never above `root`.
PALX_API QString folderOfMedium(const QString &root, const QString &path);

/// "12.5 MB"; powers of 1000, as on the disk's label.
PALX_API QString sizeText(qint64 bytes);

} // namespace palx
