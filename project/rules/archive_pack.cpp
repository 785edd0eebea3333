#include "project/rules/archive_pack.h"

#include "project/rules/archive_check.h"
#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"
#include "project/rules/run_beside.h"
#include "project/rules/staged_folder.h"

#include <QDir>
#include <QFileInfo>

#include <JlCompress.h>

#include <unistd.h>

namespace palx {

namespace {

constexpr auto kEverything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

bool refuse(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

/// One folder after the other, with what an archive may hold in sight.
class TreeCopy
{
public:
    TreeCopy(const QString &source, const QString &copy, QString *why, Progress *progress)
        : source_(source), copy_(copy), why_(why), progress_(progress)
    {
    }

    qint64 bytes() const { return bytes_; }
    bool copyAll() { return makeFolder(QString()) && copyFolder(QString()); }

private:
    /// `inside` is the path of a folder below the source, with "/" at its end, or empty for the source.
    bool copyFolder(const QString &inside)
    {
        for (const QFileInfo &entry : QDir(source_ + QLatin1Char('/') + inside).entryInfoList(kEverything)) {
            const QString name = inside + entry.fileName();
            progress_->step(0, 0, ProjectText::tr("Packing %1").arg(name));
            if (progress_->isCancelled() || !isAllowed(entry, name))
                return false;
            const bool isDone = entry.isDir() ? makeFolder(name) && copyFolder(name + QLatin1Char('/'))
                                              : copyFile(entry.filePath(), name);
            if (!isDone)
                return false;
        }
        return true;
    }

    bool isAllowed(const QFileInfo &entry, const QString &name)
    {
        QString problem = entryNameProblem(name + (entry.isDir() ? QStringLiteral("/") : QString()));
        if (entry.isSymLink())
            problem = ProjectText::tr("is a link");
        else if (!entry.isDir() && !entry.isFile())
            problem = ProjectText::tr("is neither a file nor a folder");
        if (problem.isEmpty())
            problem = names_.add(entry.isDir() ? name + QLatin1Char('/') : name);
        bytes_ += entry.isDir() ? 0 : entry.size();
        if (problem.isEmpty() && (++entries_ > limits_.entries || bytes_ > limits_.bytes))
            problem = ProjectText::tr("makes the project too large for an archive");
        return problem.isEmpty() ||
               refuse(why_, QStringLiteral("\"%1\" %2").arg(shownEntryName(name), problem));
    }

    bool makeFolder(const QString &name)
    {
        const QString path = copy_ + QLatin1Char('/') + name;
        return QDir().mkpath(path) || refuse(why_, ProjectText::tr("Cannot create path: %1").arg(path));
    }

    bool copyFile(const QString &file, const QString &name)
    {
        const QString path = copy_ + QLatin1Char('/') + name;
        if (::link(QFile::encodeName(file).constData(), QFile::encodeName(path).constData()) == 0)
            return true;
        QFile source(file);
        if (source.copy(path))
            return QFile::setPermissions(path, source.permissions() | QFile::ReadOwner | QFile::WriteOwner);
        return refuse(why_, QStringLiteral("%1: %2").arg(file, source.errorString()));
    }

    QString source_;
    QString copy_;
    QString *why_;
    Progress *progress_;
    ArchiveLimits limits_;
    EntryNames names_;
    int entries_ = 0;
    qint64 bytes_ = 0;
};

/// What the archive library itself calls for each entry's name; set once for all, before another thread uses it.
void useUtf8Names()
{
    QuaZip::setDefaultFileNameCodec("UTF-8");
}

} // namespace

bool copyForArchive(const QString &source, const QString &copy, qint64 *bytes, QString *why,
                    Progress *progress)
{
    why->clear();
    if (!QFileInfo(source).isDir())
        return refuse(why, ProjectText::tr("there is no folder %1").arg(source));
    TreeCopy tree(source, copy, why, progress);
    const bool isDone = tree.copyAll();
    *bytes = tree.bytes();
    return isDone;
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
    if (bytes > kSoonDone)
        runBeside(progress, {text, [&folder] { removeFolder(folder); }}, pack);
    else
        pack();
    isPacked = isPacked && isWholeArchive(archive);
    if (!progress->isCancelled() && isPacked)
        return true;
    if (!progress->isCancelled())
        *why = ProjectText::tr("the archive cannot be written: %1").arg(archive);
    QFile::remove(archive);
    return false;
}

} // namespace palx
