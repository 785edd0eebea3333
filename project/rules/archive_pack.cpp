#include "project/rules/archive_pack.h"

#include "project/rules/archive_check.h"
#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"
#include "project/rules/run_beside.h"
#include "project/rules/staged_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>

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

/// Makes what is packed, each folder before what is in it.
class Mirror
{
public:
    Mirror(QString root, QString *why) : root_(std::move(root)), why_(why) {}

    bool add(const PackedEntry &entry) const
    {
        const QString path = root_ + QLatin1Char('/') + entry.name;
        const QByteArray name = QFile::encodeName(path);
        if (entry.file.isDir())
            return ::mkdir(name.constData(), 0777) == 0 ||
                   refuse(why_, ProjectText::tr("Cannot create path: %1").arg(path));
        const QByteArray file =
            QFile::encodeName(entry.file.filePath()); // a resource's is no name on the disk
        return ::link(file.constData(), name.constData()) == 0 || copy(entry.file.filePath(), path);
    }

private:
    bool copy(const QString &file, const QString &path) const
    {
        QFile source(file);
        if (source.copy(path))
            return QFile::setPermissions(path, source.permissions() | QFile::ReadOwner | QFile::WriteOwner);
        return refuse(why_, QStringLiteral("%1: %2").arg(file, source.errorString()));
    }

    QString root_;
    QString *why_;
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

bool mirrorForArchive(const QString &source, const QString &mirror, qint64 *bytes, QString *why,
                      Progress *progress)
{
    why->clear();
    if (!QFileInfo(source).isDir())
        return refuse(why, ProjectText::tr("there is no folder %1").arg(source));
    PackList list(source, why);
    if (!list.list())
        return false;
    *bytes = list.bytes();
    if (!QDir().mkpath(mirror))
        return refuse(why, ProjectText::tr("Cannot create path: %1").arg(mirror));
    const Mirror made(mirror, why);
    for (const PackedEntry &entry : list.entries()) {
        progress->step(0, 0, ProjectText::tr("Packing %1").arg(entry.name));
        if (progress->isCancelled() || !made.add(entry))
            return false;
    }
    return true;
}

bool packFolder(const QString &folder, qint64 bytes, const QString &archive, QString *why, Progress *progress)
{
    constexpr qint64 kSoonDone = 2 * 1024 * 1024; // a few hundredths of a second, less than a thread is worth
    why->clear();
    useUtf8Names();
    bool isPacked = false;
    const auto pack = [&] { isPacked = JlCompress::compressDir(archive, folder, true, QDir::Hidden); };
    const QString text = ProjectText::tr("Packing %1").arg(QFileInfo(archive).fileName());
    progress->step(0, 0, text);
    if (bytes > kSoonDone) {
        keepFreedMemory();
        runBeside(progress, {text, [&folder] { removeFolder(folder); }}, pack);
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
