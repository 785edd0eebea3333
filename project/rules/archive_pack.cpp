#include "project/rules/archive_pack.h"

#include "project/rules/archive_check.h"
#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <quazip.h>
#include <quazipfile.h>
#include <quazipnewinfo.h>

namespace palx {

namespace {

constexpr auto kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
// What every entry has, because whoever unpacks it would else have a resource's, that nobody may write to.
constexpr auto kReadAndWrite = QFile::ReadOwner | QFile::WriteOwner;
constexpr auto kUseFolder = kReadAndWrite | QFile::ExeOwner;

bool refuse(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

struct PackedEntry
{
    QString name; ///< in the archive; a folder's ends with "/"
    QFileInfo file;
};

/// What an archive is to hold, one folder after the other, with what an archive may hold in sight.
class PackList
{
public:
    PackList(QString root, QString *why) : root_(std::move(root)), why_(why) {}

    bool list() { return listFolder(QString()); }
    const QVector<PackedEntry> &entries() const { return entries_; }
    qint64 bytes() const { return bytes_; }

private:
    /// `inside` is the path of a folder below the root, with "/" at its end, or empty for the root.
    bool listFolder(const QString &inside)
    {
        for (const QFileInfo &file : QDir(root_ + QLatin1Char('/') + inside).entryInfoList(kEverything)) {
            const QString name = inside + file.fileName() + (file.isDir() ? QStringLiteral("/") : QString());
            if (!add(file, name) || (file.isDir() && !listFolder(name)))
                return false;
        }
        return true;
    }

    bool add(const QFileInfo &file, const QString &name)
    {
        QString problem = entryNameProblem(name);
        if (file.isSymLink())
            problem = ProjectText::tr("is a link");
        else if (!file.isDir() && !file.isFile())
            problem = ProjectText::tr("is neither a file nor a folder");
        if (problem.isEmpty())
            problem = names_.add(name);
        bytes_ += file.isDir() ? 0 : file.size();
        entries_.append({name, file});
        if (problem.isEmpty() && (entries_.size() > limits_.entries || bytes_ > limits_.bytes))
            problem = ProjectText::tr("makes the project too large for an archive");
        return problem.isEmpty() ||
               refuse(why_, QStringLiteral("\"%1\" %2").arg(shownEntryName(name), problem));
    }

    QString root_;
    QString *why_;
    ArchiveLimits limits_;
    EntryNames names_;
    QVector<PackedEntry> entries_;
    qint64 bytes_ = 0;
};

/// Writes an archive entry by entry.
class Packer
{
public:
    /// `bytes` is about what the files have together, for the progress.
    Packer(const QString &archive, qint64 bytes, QString *why, Progress *progress)
        : file_(archive), zip_(&file_), bytes_(bytes), why_(why), progress_(progress)
    {
        zip_.setAutoClose(false);
        zip_.setUtf8Enabled(true);
    }

    bool open()
    {
        return (file_.open(QIODevice::WriteOnly) && zip_.open(QuaZip::mdCreate)) || refuseArchive();
    }

    bool add(const PackedEntry &entry)
    {
        told_ = ProjectText::tr("Packing %1").arg(entry.name);
        QuaZipNewInfo info(now_);
        info.name = entry.name;
        if (const QDateTime changed = entry.file.lastModified();
            changed.isValid()) // a resource may have none
            info.dateTime = changed;
        info.setPermissions(entry.file.permissions() | (entry.file.isDir() ? kUseFolder : kReadAndWrite));
        if (entry.file.isDir())
            return write(info, nullptr);
        QFile file(entry.file.filePath());
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return refuse(why_, QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
        return write(info, &file);
    }

    bool add(const QString &name, QByteArray content)
    {
        QuaZipNewInfo info(now_);
        info.name = name;
        info.setPermissions(kReadAndWrite | QFile::ReadGroup | QFile::ReadOther);
        QBuffer buffer(&content);
        return buffer.open(QIODevice::ReadOnly) && write(info, &buffer);
    }

    /// The list of all entries is written last.
    bool close()
    {
        zip_.close();
        return (zip_.getZipError() == ZIP_OK && file_.flush()) || refuseArchive();
    }

    /// Leaves no archive.
    void giveUp()
    {
        if (zip_.isOpen())
            zip_.close();
        file_.remove();
    }

private:
    bool refuseArchive()
    {
        return refuse(why_, ProjectText::tr("the archive cannot be written: %1").arg(file_.fileName()));
    }

    /// Without a source the entry is empty.
    bool write(const QuaZipNewInfo &info, QIODevice *source)
    {
        QuaZipFile entry(&zip_);
        if (!entry.open(QIODevice::WriteOnly, info))
            return refuseArchive();
        if (source && !copy(source, &entry))
            return false;
        entry.close();
        return entry.getZipError() == ZIP_OK || refuseArchive();
    }

    bool copy(QIODevice *source, QIODevice *entry)
    {
        qint64 size = 0;
        do {
            progress_->step(int(done_ / 1024), int(bytes_ / 1024), told_);
            if (progress_->isCancelled())
                return false;
            size = source->read(piece_.data(), piece_.size());
            if (size < 0)
                return refuse(why_, QStringLiteral("%1: %2").arg(told_, source->errorString()));
            if (entry->write(piece_.constData(), size) != size)
                return refuseArchive();
            done_ += size;
        } while (size == piece_.size()); // a file's last piece is shorter
        return true;
    }

    QFile file_;
    QuaZip zip_;
    const QuaZipNewInfo now_{QString()}; ///< asking for the time for each entry is slow
    QByteArray piece_ = QByteArray(64 * 1024, Qt::Uninitialized);
    qint64 done_ = 0;
    qint64 bytes_;
    QString told_;
    QString *why_;
    Progress *progress_;
};

bool packAll(const QVector<PackedEntry> &entries, QHash<QString, QByteArray> instead, Packer *packer)
{
    for (const PackedEntry &entry : entries) {
        const auto given = instead.find(entry.name);
        const bool isAdded = given == instead.end() ? packer->add(entry) : packer->add(entry.name, *given);
        if (!isAdded)
            return false;
        if (given != instead.end())
            instead.erase(given);
    }
    for (auto given = instead.cbegin(); given != instead.cend(); ++given)
        if (!packer->add(given.key(), given.value()))
            return false;
    return packer->close();
}

/// The library takes a quarter of a megabyte for each entry and frees it again, and the heap would give it back to the
/// system each time, which costs a third of the packing of small files. When a block is freed that is larger than what the heap
/// keeps, it keeps as much from then on.
void keepFreedMemory()
{
    QByteArray(2 * 1024 * 1024, Qt::Uninitialized);
}

} // namespace

bool packFolder(const PackedFolder &folder, const QString &archive, QString *why, Progress *progress)
{
    why->clear();
    if (!QFileInfo(folder.path).isDir())
        return refuse(why, ProjectText::tr("there is no folder %1").arg(folder.path));
    PackList list(folder.path, why);
    if (!list.list())
        return false;
    keepFreedMemory();
    Packer packer(archive, list.bytes(), why, progress);
    if (packer.open() && packAll(list.entries(), folder.instead, &packer))
        return true;
    packer.giveUp();
    return false;
}

} // namespace palx
