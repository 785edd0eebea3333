#include "workstation/removable_media.h"

#include "nexo/setting_manager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QRegularExpression>

#include <algorithm>

namespace palx {

namespace {

QByteArray contents(const QString &file)
{
    QFile source(file);
    return !file.isEmpty() && source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QString lineOf(const QString &file)
{
    return QString::fromLatin1(contents(file).trimmed());
}

/// The kernel writes blanks, tabs, line ends and backslashes as a backslash and three octal digits.
QString unescaped(const QByteArray &text)
{
    QByteArray plain;
    for (int i = 0; i < text.size(); ++i) {
        bool isOctal = false;
        const int code = text[i] == '\\' ? text.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        const bool isEscape = isOctal && i + 3 < text.size() && code > 0 && code < 256;
        plain += isEscape ? static_cast<char>(code) : text[i];
        i += isEscape ? 3 : 0;
    }
    return QFile::decodeName(plain);
}

/// "36 35 98:0 / /mnt/a rw,noatime master:1 - ext3 /dev/sdb1 rw"; the fields before the dash vary in number,
/// and the source may be empty.
bool parseMount(const QByteArray &line, Mount *mount)
{
    enum { kDevice = 2, kRoot, kPoint, kOptions, kFirstOptional };
    const QList<QByteArray> fields = line.split(' ');
    const int dash = fields.indexOf("-", kFirstOptional);
    if (dash < 0 || dash + 3 >= fields.size() || !fields[kDevice].contains(':') ||
        !fields[kPoint].startsWith('/'))
        return false;
    mount->device = QString::fromLatin1(fields[kDevice]);
    mount->root = unescaped(fields[kRoot]);
    mount->point = unescaped(fields[kPoint]);
    mount->fileSystem = QString::fromLatin1(fields[dash + 1]);
    mount->source = unescaped(fields[dash + 2]);
    mount->isReadOnly =
        fields[kOptions].split(',').contains("ro") || fields[dash + 3].split(',').contains("ro");
    return true;
}

bool isBelow(const QString &path, const QString &folder)
{
    return path == folder || folder == QLatin1String("/") || path.startsWith(folder + QLatin1Char('/'));
}

/// Reads the kernel's folders of block devices.
class BlockDevices
{
public:
    explicit BlockDevices(const QString &sys) : sys_(sys) {}

    /// The folder of the device that is mounted; empty for what is on no disk. File systems that a process serves have no
    /// device number of a disk, but name their source.
    QString folderOf(const Mount &mount) const
    {
        QString byNumber =
            QFileInfo(sys_ + QStringLiteral("/dev/block/") + mount.device).canonicalFilePath();
        if (!byNumber.isEmpty() || !mount.source.startsWith(QLatin1String("/dev/")))
            return byNumber;
        return QFileInfo(sys_ + QStringLiteral("/class/block/") + QFileInfo(mount.source).fileName())
            .canonicalFilePath();
    }

    /// The folders of the disks that carry a device: an encrypted or joined volume lies on others.
    static QStringList disksOf(const QString &device, int depth = 0)
    {
        constexpr int kDeepest = 8;
        const QDir lower(device + QStringLiteral("/slaves"));
        QStringList disks;
        if (depth < kDeepest)
            for (const QFileInfo &entry : lower.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
                disks += disksOf(entry.canonicalFilePath(), depth + 1);
        if (!disks.isEmpty())
            return disks;
        const bool isPartition = QFileInfo::exists(device + QStringLiteral("/partition"));
        return {isPartition ? QFileInfo(device).path() : device};
    }

    /// USB disks often say that they are fixed, and so do slots for memory cards.
    static bool isRemovable(const QString &disk)
    {
        static const QRegularExpression usb(QStringLiteral("/usb[0-9]+/"));
        return usb.match(disk).hasMatch() ||
               lineOf(disk + QStringLiteral("/removable")) == QLatin1String("1") ||
               lineOf(disk + QStringLiteral("/device/type")) == QLatin1String("SD");
    }

    /// Maker and kind, as the disk tells them.
    static QString modelOf(const QString &disk)
    {
        const QString device = disk + QStringLiteral("/device/");
        return (lineOf(device + QStringLiteral("vendor")) + QLatin1Char(' ') +
                lineOf(device + QStringLiteral("model")))
            .simplified();
    }

    /// Removable disks that hold something. Optical drives tell a size even when they are empty.
    QStringList removableDisks() const
    {
        static const QRegularExpression noDisk(QStringLiteral("^(sr|fd)[0-9]+$"));
        QStringList disks;
        for (const QFileInfo &entry :
             QDir(sys_ + QStringLiteral("/class/block")).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QString disk = entry.canonicalFilePath();
            if (!noDisk.match(entry.fileName()).hasMatch() && disksOf(disk) == QStringList(disk) &&
                isRemovable(disk) && lineOf(disk + QStringLiteral("/size")).toLongLong() > 0)
                disks.append(disk);
        }
        return disks;
    }

private:
    QString sys_;
};

/// A mount with the disks under it.
struct MountedDisks
{
    Mount mount;
    QString device; ///< its folder
    QStringList disks;
};

/// Only what can be reached: a later mount at the same place hides the earlier one.
QVector<MountedDisks> mountedDisks(const QVector<Mount> &mounts, const BlockDevices &devices)
{
    QVector<MountedDisks> found;
    for (int i = 0; i < mounts.size(); ++i) {
        const auto hides = [&](const Mount &later) { return later.point == mounts[i].point; };
        const QString device = devices.folderOf(mounts[i]);
        if (!device.isEmpty() && std::none_of(mounts.begin() + i + 1, mounts.end(), hides))
            found.append({mounts[i], device, BlockDevices::disksOf(device)});
    }
    return found;
}

/// The disks that the machine runs from may say that they are removable, too.
QStringList systemDisks(const QVector<MountedDisks> &mounts)
{
    QStringList disks;
    for (const MountedDisks &mounted : mounts) {
        const QString &point = mounted.mount.point;
        bool isSystem = point == QLatin1String("/");
        for (const char *folder : {"/boot", "/usr", "/var", "/home"})
            isSystem = isSystem || isBelow(point, QLatin1String(folder));
        if (isSystem)
            disks += mounted.disks;
    }
    return disks;
}

Medium mediumOf(const QString &folder, const Mount &mount)
{
    Medium medium;
    medium.root = QFileInfo(folder).canonicalFilePath();
    medium.name = QFileInfo(medium.root).fileName();
    medium.fileSystem = mount.fileSystem;
    medium.isReadOnly = mount.isReadOnly;
    return medium;
}

/// With whole file systems first, so that a part of one that is mounted elsewhere is not a second medium.
QVector<Medium> mediaOf(const QVector<MountedDisks> &mounts)
{
    const QStringList system = systemDisks(mounts);
    QVector<Medium> media;
    QStringList devices;
    for (const bool wantsWhole : {true, false})
        for (const MountedDisks &mounted : mounts) {
            const auto counts = [&](const QString &disk) {
                return BlockDevices::isRemovable(disk) && !system.contains(disk);
            };
            if ((mounted.mount.root == QLatin1String("/")) != wantsWhole ||
                devices.contains(mounted.device) || !QFileInfo(mounted.mount.point).isDir() ||
                !std::all_of(mounted.disks.begin(), mounted.disks.end(), counts))
                continue;
            media.append(mediumOf(mounted.mount.point, mounted.mount));
            media.last().device = QFileInfo(mounted.device).fileName();
            media.last().model = BlockDevices::modelOf(mounted.disks.first());
            devices.append(mounted.device);
        }
    return media;
}

QStringList unreadableDisks(const BlockDevices &devices, const QVector<MountedDisks> &mounts)
{
    QStringList used;
    for (const MountedDisks &mounted : mounts)
        used += mounted.disks;
    QStringList names;
    for (const QString &disk : devices.removableDisks())
        if (!used.contains(disk))
            names.append(QFileInfo(disk).fileName());
    return names;
}

/// Of the file system that holds it.
Medium standInMedium(const QString &folder, const QVector<Mount> &mounts)
{
    const QString root = QFileInfo(folder).canonicalFilePath();
    Mount holder;
    for (const Mount &mount : mounts)
        if (isBelow(root, mount.point) && mount.point.size() >= holder.point.size())
            holder = mount;
    Medium medium = mediumOf(root, holder);
    medium.isReadOnly = medium.isReadOnly || !QFileInfo(root).isWritable();
    return medium;
}

/// The nearest folder that is there.
QString existingPart(const QString &path)
{
    QString part = QDir::cleanPath(path);
    while (!QFileInfo::exists(part) && part.contains(QLatin1Char('/')))
        part.truncate(part.lastIndexOf(QLatin1Char('/')));
    return QFileInfo(part).canonicalFilePath();
}

} // namespace

MediaPlaces MediaPlaces::ofMachine()
{
    MediaPlaces places;
    const auto *settings = nexo::SettingManager::instance();
    const QString data = settings->getStr(QStringLiteral("data"));
    places.standIn = settings->getStr(QStringLiteral("removable"));
    if (places.standIn.isEmpty() && !data.isEmpty())
        places.standIn = QDir(data).filePath(QStringLiteral("removable"));
    return places;
}

QVector<Mount> parseMountInfo(const QByteArray &text)
{
    QVector<Mount> mounts;
    for (const QByteArray &line : text.split('\n')) {
        Mount mount;
        if (parseMount(line, &mount))
            mounts.append(mount);
    }
    return mounts;
}

bool Medium::operator==(const Medium &other) const
{
    return root == other.root && name == other.name && device == other.device && model == other.model &&
           fileSystem == other.fileSystem && isReadOnly == other.isReadOnly;
}

bool PluggedMedia::operator==(const PluggedMedia &other) const
{
    return media == other.media && unreadable == other.unreadable;
}

const Medium *PluggedMedia::of(const QString &path) const
{
    const QString part = existingPart(path);
    const Medium *holder = nullptr;
    for (const Medium &medium : media)
        if (!part.isEmpty() && isBelow(part, medium.root) &&
            (!holder || medium.root.size() > holder->root.size()))
            holder = &medium;
    return holder;
}

PluggedMedia pluggedMedia(const MediaPlaces &places)
{
    const QVector<Mount> mounts = parseMountInfo(contents(places.mountInfo));
    const BlockDevices devices(places.sys);
    const QVector<MountedDisks> mounted = mountedDisks(mounts, devices);
    PluggedMedia plugged{mediaOf(mounted), unreadableDisks(devices, mounted)};
    if (!places.standIn.isEmpty() && QFileInfo(places.standIn).isDir())
        plugged.media.append(standInMedium(places.standIn, mounts));
    return plugged;
}

} // namespace palx
