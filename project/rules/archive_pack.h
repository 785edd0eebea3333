#pragma once

#include "orba/export.h"
#include "workstation/progress.h"

#include <QString>
#include <QVector>

/// Making archives.
namespace palx {

/// A folder that looks like another one and can be packed, hidden files included. Its files share their contents with those of
/// the other where the disk allows it.
class PALX_API ArchiveMirror
{
public:
    /// `folder` is empty, or can be made.
    explicit ArchiveMirror(QString folder);
    /// Removes the folder with all that is in it.
    ~ArchiveMirror();
    ArchiveMirror(const ArchiveMirror &) = delete;
    ArchiveMirror &operator=(const ArchiveMirror &) = delete;

    QString filePath(const QString &name) const { return folder_ + QLatin1Char('/') + name; }

    /// Fills the folder; once. `source` may be a resource; its copies can be written to. False with the reason when
    /// something in it is neither a file nor a folder, cannot be read, or would make an archive that `checkArchive` refuses.
    /// Also false, with an empty reason, when it was cancelled.
    bool fill(const QString &source, QString *why, Progress *progress);
    /// Gives the folder a file of its own, in the place of one that may be there; the other folder's file stays as it is. Nothing
    /// is flushed, because the folder goes when it is packed. False with the reason.
    bool putFile(const QString &name, const QByteArray &content, QString *why);
    /// Packs the folder, recursively. When the work is cancelled, the folder is removed, so that packing ends soon. The
    /// archive is not flushed to the disk. False, and no archive is left, with the reason, or with an empty one when it was
    /// cancelled.
    bool pack(const QString &archive, QString *why, Progress *progress) const;

private:
    struct Made
    {
        QByteArray path; ///< in the encoding of the disk
        bool isFolder;
    };
    bool makeFolder(const QString &name, QString *why);
    bool shareFile(const QString &file, const QString &name, QString *why);
    bool copyFile(const QString &file, const QString &name, QString *why) const;

    QString folder_;
    QVector<Made> made_; ///< each folder before what is in it
    qint64 bytes_ = 0;   ///< of all files
};

} // namespace palx
