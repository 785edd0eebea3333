// Archives from outside: whatever bytes come, the judge refuses them with a reason, or they are unpacked to exactly what it
// listed and to nowhere else.

#include "project/raw_zip.h"
#include "project/rules/archive_check.h"
#include "project/rules/archive_unpack.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Names and kinds from the bytes, in an archive that is right otherwise, so that what lies behind the checksums is reached.
QByteArray archiveOf(QByteArray bytes)
{
    constexpr std::uint32_t kKinds[] = {0, 0100644, 0100000, 040755, 0120777, 060644, 010644, 0140755};
    std::vector<RawEntry> entries;
    while (bytes.size() >= 3 && entries.size() < 30) {
        const int nameSize = qMin(bytes.size() - 3, uchar(bytes.at(0)) % 40);
        const int dataSize = uchar(bytes.at(1)) % 16;
        RawEntry entry;
        entry.mode = kKinds[uchar(bytes.at(2)) % 8];
        entry.flags = uchar(bytes.at(2)) & 8 ? 1u << 11 : 0; // whether the name is said to be UTF-8
        entry.name = bytes.mid(3, nameSize);
        entry.data = entry.name.endsWith('/') ? QByteArray() : QByteArray(dataSize, 'd');
        entries.push_back(entry);
        bytes.remove(0, 3 + nameSize);
    }
    return rawZip(entries);
}

void unpack(const QByteArray &archive, const palx::ArchiveContent &content)
{
    const QTemporaryDir place;
    const QString name = place.filePath(QStringLiteral("a.zip"));
    const QString inside = place.filePath(QStringLiteral("to"));
    QFile file(name);
    require(file.open(QIODevice::WriteOnly) && file.write(archive) == archive.size());
    file.close();
    palx::NoProgress nobody;
    QString why;
    QDir().mkpath(inside);
    const bool isUnpacked = palx::unpackArchive(name, inside, &why, &nobody);
    require(isUnpacked || !why.isEmpty());
    if (isUnpacked) // `unpackArchive` has compared it with the list
        require(palx::recursiveAllFiles(inside).size() >= content.entries.size());
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    require(QDir(place.path()).entryList(all).size() == 2); // nothing came beside the folder
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 2)
        return 0;
    palx::ArchiveLimits limits;
    limits.bytes = 1 << 20;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, static_cast<int>(size - 1));
    QByteArray archive = data[0] < 128 ? bytes : archiveOf(bytes);
    QBuffer device(&archive);
    palx::ArchiveContent content;
    palx::NoProgress nobody;
    QString why;
    if (palx::checkArchive(&device, &content, &why, &nobody, limits))
        unpack(archive, content);
    else
        require(!why.isEmpty());
    return 0;
}
