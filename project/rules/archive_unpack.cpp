#include "project/rules/archive_unpack.h"

#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QStorageInfo>
#include <QTextCodec>

#include <JlCompress.h>

namespace palx {

namespace {

constexpr auto kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
constexpr qint64 kFolder = -1;

bool refuse(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

/// An archive that tells how far it was read, and that cannot be read any more when the work is cancelled.
class WatchedFile : public QFile
{
public:
    WatchedFile(const QString &name, Progress *progress) : QFile(name), progress_(progress) {}

protected:
    qint64 readData(char *data, qint64 most) override
    {
        progress_->step(int(pos() / 1024), int(size() / 1024), ProjectText::tr("Unpacking"));
        return progress_->isCancelled() ? -1 : QFile::readData(data, most);
    }

private:
    Progress *progress_;
};

/// The paths that must be there, with the sizes of files.
QMap<QString, qint64> expected(const ArchiveContent &content)
{
    QMap<QString, qint64> paths;
    for (const ArchiveEntry &entry : content.entries) {
        for (int slash = entry.name.indexOf(QLatin1Char('/')); slash >= 0;
             slash = entry.name.indexOf(QLatin1Char('/'), slash + 1))
            paths.insert(entry.name.left(slash), kFolder);
        paths.insert(entry.name, entry.isFolder ? kFolder : entry.size);
    }
    return paths;
}

/// Those that are; a link or something else that is no file never has a size that is expected.
QMap<QString, qint64> found(const QString &folder)
{
    constexpr qint64 kOther = -2;
    QMap<QString, qint64> paths;
    const QDir top(folder);
    QDirIterator each(folder, kEverything, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = top.relativeFilePath(each.next());
        const QFileInfo info = each.fileInfo();
        if (info.isSymLink() || (!info.isDir() && !info.isFile()))
            paths.insert(path, kOther);
        else
            paths.insert(path, info.isDir() ? kFolder : info.size());
    }
    return paths;
}

bool isAsListed(const ArchiveContent &content, const QString &folder, QString *why)
{
    const QMap<QString, qint64> wanted = expected(content);
    const QMap<QString, qint64> there = found(folder);
    for (auto each = wanted.begin(); each != wanted.end(); ++each)
        if (there.value(each.key(), kFolder - 1) != each.value())
            return refuse(why, ProjectText::tr("the entry \"%1\" was not unpacked as it is listed")
                                   .arg(shownEntryName(each.key())));
    return there.size() == wanted.size() || refuse(why, ProjectText::tr("more was unpacked than it lists"));
}

bool hasRoom(const QString &folder, qint64 bytes)
{
    const QStorageInfo disk(folder);
    return !disk.isValid() || disk.bytesAvailable() > bytes;
}

} // namespace

bool unpackArchive(const QString &archive, const QString &folder, QString *why, Progress *progress,
                   ArchiveContent *content)
{
    ArchiveContent unwanted;
    content = content ? content : &unwanted;
    if (!checkArchive(archive, content, why, progress))
        return false;
    if (!hasRoom(folder, content->bytes))
        return refuse(why,
                      ProjectText::tr("there is no room for %1 MB").arg(content->bytes / (1024 * 1024) + 1));
    WatchedFile file(archive, progress);
    const QStringList paths = JlCompress::extractDir(&file, QTextCodec::codecForName("UTF-8"), folder);
    if (progress->isCancelled())
        return false;
    if (paths.isEmpty())
        return refuse(why, ProjectText::tr("it cannot be unpacked to %1").arg(folder));
    return isAsListed(*content, folder, why);
}

QStringList recursiveAllFiles(const QString &folder)
{
    QStringList files;
    QDirIterator each(folder, kEverything | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (each.hasNext())
        files.append(each.next());
    return files;
}

bool chmodFiles(const QStringList &files)
{
    constexpr auto kAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadUser |
                          QFile::WriteUser | QFile::ExeUser | QFile::ReadGroup | QFile::WriteGroup |
                          QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    bool isDone = true;
    for (const QString &file : files)
        isDone = QFile::setPermissions(file, kAll) && isDone;
    return isDone;
}

} // namespace palx
