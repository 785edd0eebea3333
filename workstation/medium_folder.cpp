#include "workstation/medium_folder.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace palx {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::MediumFolder)
};

bool isInside(const QString &path, const QString &root)
{
    return path == root || path.startsWith(root + QLatin1Char('/'));
}

bool leadsOut(const QFileInfo &entry, const QString &root)
{
    return entry.isSymLink() && !isInside(entry.canonicalFilePath(), root);
}

/// -1, 0, 1
template <typename Value> int compared(const Value &a, const Value &b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

} // namespace

FolderContents readFolder(const QString &root, const QString &folder, const FileFilter &filter)
{
    constexpr int kMost = 5000; // more than anybody looks through
    FolderContents contents;
    if (!QFileInfo(folder).isReadable())
        contents.problem = Text::tr("The folder cannot be read.");
    QDirIterator entries(folder, filter.patterns, QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (leadsOut(entry, root))
            continue;
        if (contents.entries.size() == kMost) {
            contents.problem = Text::tr("Only %1 entries of the folder are shown.").arg(kMost);
            break;
        }
        contents.entries.append({entry.fileName(), entry.isDir(), entry.size(), entry.lastModified()});
    }
    return contents;
}

void sortEntries(QVector<FolderEntry> *entries, EntryOrder order, Qt::SortOrder direction)
{
    QCollator collator{QLocale(QLocale::English)}; // the locale of a bare system knows no numbers in names
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const auto byName = [&](const FolderEntry &a, const FolderEntry &b) {
        const int result = collator.compare(a.name, b.name);
        return result != 0 ? result : compared(a.name, b.name);
    };
    const auto byOrder = [&](const FolderEntry &a, const FolderEntry &b) {
        int result = 0;
        if (order == EntryOrder::Date)
            result = compared(a.changed, b.changed);
        else if (order == EntryOrder::Size)
            result = compared(a.bytes, b.bytes);
        return result != 0 ? result : byName(a, b);
    };
    std::sort(entries->begin(), entries->end(), [&](const FolderEntry &a, const FolderEntry &b) {
        if (a.isFolder || b.isFolder)
            return a.isFolder != b.isFolder ? a.isFolder : byName(a, b) < 0;
        return direction == Qt::AscendingOrder ? byOrder(a, b) < 0 : byOrder(a, b) > 0;
    });
}

QString folderOfMedium(const QString &root, const QString &path)
{
    QString part = path.isEmpty() ? root : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo(part).isDir() && part.size() > 1)
        part = QFileInfo(part).path();
    const QString folder = QFileInfo(part).canonicalFilePath();
    return isInside(folder, root) ? folder : root;
}

QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace palx
