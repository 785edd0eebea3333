#include "project/rules/archive_check.h"

#include "project/rules/archive_names.h"
#include "project/rules/project_messages.h"

#include <QDir>
#include <QFile>
#include <QTextCodec>

#include <quazip.h>
#include <quazipfile.h>
#include <quazipfileinfo.h>

#include <sys/stat.h>

namespace palx {

namespace {

constexpr int kStored = 0;
constexpr int kDeflated = 8;
constexpr quint32 kDosFolder = 0x10;
constexpr quint16 kStrongEncryption = 1u << 6;

bool refuse(QString *why, const QString &reason)
{
    *why = reason;
    return false;
}

bool refuseEntry(QString *why, const QString &name, const QString &reason)
{
    return refuse(why, ProjectText::tr("the entry \"%1\" %2").arg(shownEntryName(name), reason));
}

/// The library takes an end that is cut off for one, and looks for the last mark wherever it stands.
bool hasWholeEnd(QIODevice *device)
{
    constexpr int kEndBytes = 22;
    constexpr int kCommentAt = 20;
    const qint64 tailBytes = qMin<qint64>(device->size(), kEndBytes + 0xffff);
    if (!device->seek(device->size() - tailBytes))
        return false;
    const QByteArray tail = device->read(tailBytes);
    const int at = tail.lastIndexOf("PK\5\6");
    if (tail.size() != tailBytes || at < 0 || tail.size() - at < kEndBytes)
        return false;
    const auto byte = [&tail, at](int offset) { return static_cast<uchar>(tail.at(at + offset)); };
    return at + kEndBytes + byte(kCommentAt) + 256 * byte(kCommentAt + 1) == tail.size();
}

/// The kind of file that the writer's system noted; 0 for none.
quint32 notedKind(const QuaZipFileInfo64 &info)
{
    return info.externalAttr >> 16 & S_IFMT;
}

/// What is wrong with an entry apart from its name; empty for nothing.
QString kindProblem(const QuaZipFileInfo64 &info)
{
    const bool isFolder = info.name.endsWith(QLatin1Char('/'));
    const quint32 kind = notedKind(info);
    const bool isOther = kind != 0 && kind != S_IFREG && kind != S_IFDIR;
    const bool isCalledFolder = kind == S_IFDIR || (info.externalAttr & kDosFolder) != 0;
    const struct
    {
        bool holds;
        const char *text;
    } problems[] = {
        {info.isEncrypted() || (info.flags & kStrongEncryption) != 0,
         QT_TRANSLATE_NOOP("palx::ProjectText", "is encrypted")},
        {info.isSymbolicLink(), QT_TRANSLATE_NOOP("palx::ProjectText", "is a link")},
        {isOther, QT_TRANSLATE_NOOP("palx::ProjectText", "is neither a file nor a folder")},
        {isFolder != isCalledFolder && (isCalledFolder || kind == S_IFREG),
         QT_TRANSLATE_NOOP("palx::ProjectText", "is called a file and a folder")},
        {isFolder && info.uncompressedSize != 0,
         QT_TRANSLATE_NOOP("palx::ProjectText", "is a folder with a content of its own")},
        {info.method != kStored && info.method != kDeflated,
         QT_TRANSLATE_NOOP("palx::ProjectText", "is packed in a way that is not known here")},
    };
    for (const auto &problem : problems)
        if (problem.holds)
            return ProjectText::tr(problem.text);
    return QString();
}

class Judge
{
public:
    Judge(QuaZip *zip, const ArchiveLimits &limits, ArchiveContent *content, QString *why)
        : zip_(zip), limits_(limits), content_(content), why_(why)
    {
    }

    bool list()
    {
        const int count = zip_->getEntriesCount();
        if (count > limits_.entries)
            return refuse(why_, ProjectText::tr("it has %1 entries; no project has more than %2")
                                    .arg(count)
                                    .arg(limits_.entries));
        for (bool isThere = zip_->goToFirstFile(); isThere; isThere = zip_->goToNextFile())
            if (!listEntry())
                return false;
        if (content_->entries.isEmpty() || content_->entries.size() != count)
            return refuse(why_, count == 0 ? ProjectText::tr("it is empty")
                                           : ProjectText::tr("its list of entries is damaged"));
        return true;
    }

    /// Every byte, so that checksums and sizes are known to be true.
    bool readAll(Progress *progress)
    {
        qint64 done = 0;
        int next = 0;
        for (bool isThere = zip_->goToFirstFile(); isThere; isThere = zip_->goToNextFile())
            if (!readEntry(content_->entries.at(next++), &done, progress))
                return false;
        return true;
    }

private:
    bool listEntry()
    {
        QuaZipFileInfo64 info;
        if (!zip_->getCurrentFileInfo(&info))
            return refuse(why_, ProjectText::tr("its list of entries is damaged"));
        QString problem = entryNameProblem(info.name, limits_);
        if (problem.isEmpty() && zip_->getCurrentFileName() != info.name)
            problem = ProjectText::tr("has a name that is read in two ways");
        if (problem.isEmpty())
            problem = kindProblem(info);
        if (problem.isEmpty())
            problem = names_.add(info.name);
        if (!problem.isEmpty())
            return refuseEntry(why_, info.name, problem);
        return take(info);
    }

    bool take(const QuaZipFileInfo64 &info)
    {
        ArchiveEntry entry;
        entry.isFolder = info.name.endsWith(QLatin1Char('/'));
        entry.name = entry.isFolder ? info.name.chopped(1) : info.name;
        if (info.uncompressedSize > quint64(limits_.bytes - content_->bytes))
            return refuseEntry(why_, info.name,
                               ProjectText::tr("makes it larger than %1 MB, which no project is")
                                   .arg(limits_.bytes / (1024 * 1024)));
        entry.size = qint64(info.uncompressedSize);
        content_->bytes += entry.size;
        content_->entries.append(entry);
        return true;
    }

    bool readEntry(const ArchiveEntry &entry, qint64 *done, Progress *progress)
    {
        constexpr int kPiece = 64 * 1024;
        QuaZipFile file(zip_);
        if (!file.open(QIODevice::ReadOnly))
            return refuseDamaged(entry);
        QByteArray piece(kPiece, Qt::Uninitialized);
        qint64 size = 0;
        for (qint64 got = 1; got > 0; size += got) {
            progress->step(int((*done + size) / 1024), int(content_->bytes / 1024),
                           ProjectText::tr("Checking %1").arg(entry.name));
            if (progress->isCancelled())
                return false;
            got = file.read(piece.data(), kPiece);
            if (got < 0)
                return refuseDamaged(entry);
        }
        file.close(); // compares the checksum
        if (size != entry.size || file.getZipError() != UNZ_OK)
            return refuseDamaged(entry);
        *done += size;
        return true;
    }

    bool refuseDamaged(const ArchiveEntry &entry)
    {
        return refuseEntry(why_, entry.name, ProjectText::tr("is damaged"));
    }

    QuaZip *zip_;
    ArchiveLimits limits_;
    ArchiveContent *content_;
    QString *why_;
    EntryNames names_;
};

/// Without somebody to tell, the contents are not read.
bool judge(QIODevice *device, ArchiveContent *content, QString *why, Progress *progress,
           const ArchiveLimits &limits)
{
    *content = ArchiveContent();
    why->clear();
    if (!device->isOpen() && !device->open(QIODevice::ReadOnly))
        return refuse(why, ProjectText::tr("it cannot be read: %1").arg(device->errorString()));
    if (!hasWholeEnd(device) || !device->seek(0))
        return refuse(why, ProjectText::tr("it is no whole zip archive"));
    QuaZip zip(device);
    zip.setAutoClose(false);
    zip.setFileNameCodec(QTextCodec::codecForName("UTF-8"));
    if (!zip.open(QuaZip::mdUnzip))
        return refuse(why, ProjectText::tr("it is no whole zip archive"));
    Judge entries(&zip, limits, content, why);
    return entries.list() && entries.readAll(progress);
}

/// A pipe would be waited for.
bool isFile(const QString &name, QString *why)
{
    return QFileInfo(name).isFile() || refuse(why, ProjectText::tr("there is no such file"));
}

} // namespace

bool checkArchive(QIODevice *device, ArchiveContent *content, QString *why, Progress *progress,
                  const ArchiveLimits &limits)
{
    return judge(device, content, why, progress, limits);
}

bool checkArchive(const QString &name, ArchiveContent *content, QString *why, Progress *progress,
                  const ArchiveLimits &limits)
{
    QFile file(name);
    return isFile(name, why) && judge(&file, content, why, progress, limits);
}

bool isWholeArchive(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) && hasWholeEnd(&file);
}

} // namespace palx
