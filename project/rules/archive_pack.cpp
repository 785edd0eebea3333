#include "project/rules/archive_pack.h"

#include "project/rules/archive_check.h"
#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"
#include "project/rules/run_beside.h"
#include "project/rules/staged_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <JlCompress.h>

#include <sys/stat.h>
#include <unistd.h>

namespace palx {

namespace {

constexpr auto kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

bool refuse(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

struct PackedEntry
{
    QString name; ///< in the archive; a folder's ends with "/"
    bool isFolder;
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
        QDirIterator files(root_ + QLatin1Char('/') + inside, kEverything);
        while (files.hasNext()) {
            files.next();
            const QFileInfo file = files.fileInfo();
            const bool isFolder = file.isDir();
            const QString name = inside + files.fileName() + (isFolder ? QStringLiteral("/") : QString());
            if (!add(file, name, isFolder) || (isFolder && !listFolder(name)))
                return false;
        }
        return true;
    }

    bool add(const QFileInfo &file, const QString &name, bool isFolder)
    {
        QString problem = entryNameProblem(name);
        if (file.isSymLink())
            problem = ProjectText::tr("is a link");
        else if (!isFolder && !file.isFile())
            problem = ProjectText::tr("is neither a file nor a folder");
        if (problem.isEmpty())
            problem = names_.add(name);
        bytes_ += isFolder ? 0 : file.size();
        entries_.append({name, isFolder});
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

/// What the archive library itself calls for each entry's name; set once for all, before another thread uses it.
void useUtf8Names()
{
    QuaZip::setDefaultFileNameCodec("UTF-8");
}

/// The library takes a quarter of a megabyte for each entry and frees it, and the heap of a thread would give it back to the
/// system each time, which costs a third of the packing of small files. Whoever frees a block that is larger than what is kept
/// makes the heap keep more from then on.
void keepFreedMemory()
{
    QByteArray(2 * 1024 * 1024, Qt::Uninitialized);
}

} // namespace

ArchiveMirror::ArchiveMirror(QString folder) : folder_(std::move(folder)) {}

/// By the names that were made, which costs a third of looking for them.
ArchiveMirror::~ArchiveMirror()
{
    for (auto made = made_.crbegin(); made != made_.crend(); ++made)
        made->isFolder ? ::rmdir(made->path.constData()) : ::unlink(made->path.constData());
    removeFolder(folder_);
}

bool ArchiveMirror::fill(const QString &source, QString *why, Progress *progress)
{
    why->clear();
    if (!QFileInfo(source).isDir())
        return refuse(why, ProjectText::tr("there is no folder %1").arg(source));
    PackList list(source, why);
    if (!list.list())
        return false;
    bytes_ = list.bytes();
    if (!QDir().mkpath(folder_))
        return refuse(why, ProjectText::tr("Cannot create path: %1").arg(folder_));
    for (const PackedEntry &entry : list.entries()) {
        progress->step(0, 0, ProjectText::tr("Packing %1").arg(entry.name));
        if (progress->isCancelled())
            return false;
        if (!(entry.isFolder ? makeFolder(entry.name, why)
                             : shareFile(source + QLatin1Char('/') + entry.name, entry.name, why)))
            return false;
    }
    return true;
}

bool ArchiveMirror::makeFolder(const QString &name, QString *why)
{
    made_.append({QFile::encodeName(filePath(name)), true});
    return ::mkdir(made_.last().path.constData(), 0777) == 0 ||
           refuse(why, ProjectText::tr("Cannot create path: %1").arg(filePath(name)));
}

bool ArchiveMirror::shareFile(const QString &file, const QString &name, QString *why)
{
    made_.append({QFile::encodeName(filePath(name)), false});
    const QByteArray source = QFile::encodeName(file); // a resource's is no name on the disk
    return ::link(source.constData(), made_.last().path.constData()) == 0 || copyFile(file, name, why);
}

bool ArchiveMirror::copyFile(const QString &file, const QString &name, QString *why) const
{
    QFile source(file);
    if (!source.copy(filePath(name)))
        return refuse(why, QStringLiteral("%1: %2").arg(file, source.errorString()));
    return QFile::setPermissions(filePath(name),
                                 source.permissions() | QFile::ReadOwner | QFile::WriteOwner);
}

bool ArchiveMirror::putFile(const QString &name, const QByteArray &content, QString *why)
{
    const QString path = filePath(name);
    made_.append({QFile::encodeName(path), false});
    ::unlink(made_.last().path.constData()); // it may share its content
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush())
        return true;
    return refuse(why, QStringLiteral("%1: %2").arg(path, file.errorString()));
}

bool ArchiveMirror::pack(const QString &archive, QString *why, Progress *progress) const
{
    constexpr qint64 kSoonDone = 2 * 1024 * 1024; // a few hundredths of a second, less than a thread is worth
    why->clear();
    useUtf8Names();
    bool isPacked = false;
    const auto pack = [&] { isPacked = JlCompress::compressDir(archive, folder_, true, QDir::Hidden); };
    const QString text = ProjectText::tr("Packing %1").arg(QFileInfo(archive).fileName());
    progress->step(0, 0, text);
    if (bytes_ > kSoonDone) {
        keepFreedMemory();
        runBeside(progress, {text, [this] { removeFolder(folder_); }}, pack);
    } else {
        pack();
    }
    isPacked = isPacked && isWholeArchive(archive);
    if (!progress->isCancelled() && isPacked)
        return true;
    if (!progress->isCancelled())
        *why = ProjectText::tr("the archive cannot be written: %1").arg(archive);
    QFile::remove(archive);
    return false;
}

} // namespace palx
