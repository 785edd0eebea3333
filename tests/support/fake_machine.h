#pragma once

#include "workstation/removable_media.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

/// The folders in which a kernel tells of disks, made up, and places where disks are mounted.
class FakeMachine
{
public:
    FakeMachine()
    {
        QDir(path()).mkpath(QStringLiteral("sys/class/block"));
        QDir(path()).mkpath(QStringLiteral("sys/dev/block"));
        setMounts({});
    }
    QString path() const { return QFileInfo(root_.path()).canonicalFilePath(); }
    palx::MediaPlaces places() const
    {
        palx::MediaPlaces places;
        places.mountInfo = path() + QStringLiteral("/mountinfo");
        places.sys = path() + QStringLiteral("/sys");
        return places;
    }

    /// "devices/pci0/usb1/1-1/block/sdb", or with "/sdb1" behind for a partition. `facts` are files in its folder.
    void addDevice(const QString &folder, const QString &number, const QMap<QString, QByteArray> &facts = {})
    {
        const QString device = places().sys + QLatin1Char('/') + folder;
        QDir().mkpath(device);
        for (auto fact = facts.begin(); fact != facts.end(); ++fact)
            write(device + QLatin1Char('/') + fact.key(), fact.value());
        QFile::link(device, places().sys + QStringLiteral("/class/block/") + QFileInfo(device).fileName());
        QFile::link(device, places().sys + QStringLiteral("/dev/block/") + number);
    }
    void removeDevice(const QString &folder)
    {
        QDir(places().sys + QLatin1Char('/') + folder).removeRecursively();
    }
    /// A USB disk with one partition, "sdb" and "sdb1".
    void addStick(const QString &disk = QStringLiteral("sdb"), const QString &number = QStringLiteral("8:17"))
    {
        const QString folder = QStringLiteral("devices/pci0000:00/usb1/1-1/host0/block/") + disk;
        addDevice(folder, QStringLiteral("0:0"),
                  {{QStringLiteral("removable"), "0\n"}, {QStringLiteral("size"), "4096\n"}});
        addDevice(folder + QLatin1Char('/') + disk + QLatin1Char('1'), number,
                  {{QStringLiteral("partition"), "1\n"}});
    }

    /// A folder to mount at.
    QString addFolder(const QString &name)
    {
        const QString folder = path() + QStringLiteral("/media/") + name;
        QDir().mkpath(folder);
        return folder;
    }
    /// A line of the list of mounts; the place as the kernel writes it.
    static QByteArray mount(const QString &number, const QString &point, const char *options = "rw",
                            const char *fileSystem = "vfat", const char *source = "/dev/sdb1",
                            const char *root = "/")
    {
        QByteArray escaped;
        for (const char c : QFile::encodeName(point))
            escaped += c == ' ' || c == '\\' || c == '\t' || c == '\n'
                           ? '\\' + QByteArray::number(uchar(c), 8).rightJustified(3, '0')
                           : QByteArray(1, c);
        return "60 25 " + number.toLatin1() + ' ' + root + ' ' + escaped + ' ' + options +
               ",relatime shared:7 - " + fileSystem + ' ' + source + ' ' + options + '\n';
    }
    void setMounts(const QList<QByteArray> &lines) { write(places().mountInfo, lines.join()); }

    /// A file of so many bytes.
    static void write(const QString &file, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(file).path());
        QFile target(file);
        if (target.open(QIODevice::WriteOnly))
            target.write(bytes);
    }

private:
    QTemporaryDir root_;
};
