#pragma once

#include "orba/export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace palx {

/// Where the kernel tells of disks, and the folder that stands in for one.
struct PALX_API MediaPlaces
{
    QString mountInfo = QStringLiteral("/proc/self/mountinfo");
    QString sys = QStringLiteral("/sys");
    QString standIn; ///< a folder that counts as a medium while it is there; empty for none

    int lookEveryMs = 1000; ///< for what the kernel tells nobody of

    /// This machine's; the stand-in is the setting "removable", else "removable" in the data folder.
    static MediaPlaces ofMachine();
};

/// A line of the kernel's list of mounts.
struct PALX_API Mount
{
    QString device;     ///< major:minor
    QString root;       ///< the folder of the file system that is mounted; "/" but for parts of one
    QString point;      ///< where, an absolute path
    QString fileSystem; ///< "vfat"
    QString source;     ///< "/dev/sdb1"
    bool isReadOnly = false;
};

/// Lines that are damaged are left out. Points may hold any character; the kernel writes blanks as "\040".
PALX_API QVector<Mount> parseMountInfo(const QByteArray &text);

/// A place on a disk that can be taken out of the machine.
struct PALX_API Medium
{
    QString root;   ///< its topmost folder: absolute, without symbolic links
    QString name;   ///< what operators know it by: the last folder of the root, which holds the disk's label
    QString device; ///< "sdb1"; empty for the stand-in
    QString model;  ///< "Kingston DataTraveler"; empty when unknown
    QString fileSystem; ///< "vfat"; empty when unknown
    bool isReadOnly = false;

    bool operator==(const Medium &other) const;
    bool operator!=(const Medium &other) const { return !(*this == other); }
};

/// What is plugged in now.
struct PALX_API PluggedMedia
{
    QVector<Medium> media; ///< in the order of mounting, the stand-in last
    QStringList
        unreadable; ///< removable disks ("sdb") of which nothing is mounted: empty, or of an unknown format

    bool operator==(const PluggedMedia &other) const;
    bool operator!=(const PluggedMedia &other) const { return !(*this == other); }
    /// The medium that holds `path`, or null.
    const Medium *of(const QString &path) const;
};

/// A medium is a mounted file system of a disk that says it is removable, hangs on USB or is a memory card, and that does not
/// carry the system itself. Any thread.
PALX_API PluggedMedia pluggedMedia(const MediaPlaces &places);

} // namespace palx
