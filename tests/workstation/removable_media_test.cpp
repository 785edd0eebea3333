#include "workstation/removable_media.h"

#include "support/fake_machine.h"
#include "support/test_support.h"
#include "workstation/media_watch.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using palx::Medium;
using palx::Mount;

const QString kStick = QStringLiteral("8:17");

QString mountText(const Mount &mount)
{
    return QStringList({mount.device, mount.root, mount.point, mount.fileSystem, mount.source,
                        mount.isReadOnly ? QStringLiteral("ro") : QStringLiteral("rw")})
        .join(QLatin1Char('|'));
}

/// "name device fileSystem rw"
QStringList mediaTexts(const palx::PluggedMedia &plugged)
{
    QStringList texts;
    for (const Medium &medium : plugged.media)
        texts.append(QStringList({medium.name, medium.device, medium.fileSystem,
                                  medium.isReadOnly ? QStringLiteral("ro") : QStringLiteral("rw")})
                         .join(QLatin1Char(' ')));
    return texts;
}

} // namespace

TEST(MountInfo, ReadsWhatTheKernelWrites)
{
    const struct
    {
        const char *line;
        const char *mount; // null: left out
    } cases[] = {
        {"36 35 98:0 / /mnt rw,noatime master:1 - ext3 /dev/sdb1 rw,errors=continue",
         "98:0|/|/mnt|ext3|/dev/sdb1|rw"},
        {"36 35 98:0 / /mnt rw shared:1 master:2 unbindable - ext3 none rw", "98:0|/|/mnt|ext3|none|rw"},
        {"36 35 98:0 / /mnt ro,noatime - vfat /dev/sdb1 rw", "98:0|/|/mnt|vfat|/dev/sdb1|ro"},
        {"36 35 98:0 / /mnt rw - vfat /dev/sdb1 ro,utf8", "98:0|/|/mnt|vfat|/dev/sdb1|ro"},
        {"36 35 98:0 /a\\040b /mnt/c\\040d\\011e\\012f\\134g rw - vfat /dev/sdb1 rw",
         "98:0|/a b|/mnt/c d\te\nf\\g|vfat|/dev/sdb1|rw"},
        {"36 35 98:0 / /mnt/\xd0\x94 rw - vfat /dev/sdb1 rw", "98:0|/|/mnt/\xd0\x94|vfat|/dev/sdb1|rw"},
        {"36 35 98:0 / /mnt\\999\\000 rw - vfat /dev/sdb1 rw", "98:0|/|/mnt\\999\\000|vfat|/dev/sdb1|rw"},
        {"", nullptr},
        {"36 35 98:0 / /mnt rw - vfat /dev/sdb1", nullptr},
        {"36 35 98:0 / mnt rw - vfat /dev/sdb1 rw", nullptr},
        {"36 35 nothing / /mnt rw - vfat /dev/sdb1 rw", nullptr}};
    for (const auto &c : cases) {
        const QVector<Mount> mounts = palx::parseMountInfo(QByteArray("\nbroken\n") + c.line + '\n');
        ASSERT_EQ(mounts.size(), c.mount ? 1 : 0) << c.line;
        if (!mounts.isEmpty()) {
            EXPECT_EQ(mountText(mounts.first()), QString::fromUtf8(c.mount)) << c.line;
        }
    }
}

TEST(RemovableMedia, AreJudgedByTheDiskThatCarriesThem)
{
    const QMap<QString, QByteArray> removable{{QStringLiteral("removable"), "1\n"}};
    const QMap<QString, QByteArray> fixed{{QStringLiteral("removable"), "0\n"}};
    const auto card = [](const char *type) {
        return QMap<QString, QByteArray>{{QStringLiteral("removable"), "0\n"},
                                         {QStringLiteral("device/type"), type}};
    };
    const struct
    {
        const char *what;
        const char *folder;
        QMap<QString, QByteArray> facts;
        bool isMedium;
    } cases[] = {{"says that it is removable", "devices/pci0/ata1/block/sdb", removable, true},
                 {"fixed disk", "devices/pci0/ata1/block/sdb", fixed, false},
                 {"says nothing", "devices/pci0/ata1/block/sdb", {}, false},
                 {"USB disk that says it is fixed", "devices/pci0/usb2/2-1/block/sdb", fixed, true},
                 {"no USB in spite of the name", "devices/pci0/usbank/block/sdb", fixed, false},
                 {"memory card", "devices/platform/mmc0/block/sdb", card("SD\n"), true},
                 {"soldered memory", "devices/platform/mmc0/block/sdb", card("MMC\n"), false}};
    for (const auto &c : cases) {
        FakeMachine machine;
        const QString folder = QLatin1String(c.folder);
        machine.addDevice(folder, QStringLiteral("8:16"), c.facts);
        machine.addDevice(folder + QStringLiteral("/sdb1"), kStick, {{QStringLiteral("partition"), "1\n"}});
        const QString point = machine.addFolder(QStringLiteral("ДИСК 上海"));
        for (const QString &number : {kStick, QStringLiteral("8:16")}) { // a part and the whole disk
            machine.setMounts({FakeMachine::mount(number, point)});
            EXPECT_EQ(palx::pluggedMedia(machine.places()).media.size(), c.isMedium ? 1 : 0)
                << c.what << number;
        }
    }
}

TEST(RemovableMedia, AreWhatIsMountedOfThem)
{
    FakeMachine machine;
    machine.addStick();
    machine.addStick(QStringLiteral("sdc"), QStringLiteral("8:33"));
    const QString a = machine.addFolder(QStringLiteral("a"));
    const QString b = machine.addFolder(QStringLiteral("b"));
    const QString other = QStringLiteral("8:33");
    const QString none = QStringLiteral("0:44");
    const auto mount = &FakeMachine::mount;
    const struct
    {
        const char *what;
        QList<QByteArray> mounts;
        QStringList media;
    } cases[] = {
        {"nothing", {}, {}},
        {"one", {mount(kStick, a, "rw", "vfat", "/dev/sdb1", "/")}, {"a sdb1 vfat rw"}},
        {"two",
         {mount(kStick, b, "rw", "vfat", "", "/"), mount(other, a, "rw", "exfat", "", "/")},
         {"b sdb1 vfat rw", "a sdc1 exfat rw"}},
        {"the later mount hides the earlier one",
         {mount(kStick, a, "rw", "vfat", "", "/"), mount(other, a, "rw", "exfat", "", "/")},
         {"a sdc1 exfat rw"}},
        {"hidden by no disk",
         {mount(kStick, a, "rw", "vfat", "", "/"), mount(none, a, "rw", "tmpfs", "tmpfs", "/")},
         {}},
        {"a part that is mounted elsewhere is no second one",
         {mount(kStick, b, "rw", "vfat", "", "/sub"), mount(kStick, a, "rw", "vfat", "", "/")},
         {"a sdb1 vfat rw"}},
        {"only a part", {mount(kStick, b, "rw", "btrfs", "", "/@sub")}, {"b sdb1 btrfs rw"}},
        {"served by a process", {mount(none, a, "rw", "fuseblk", "/dev/sdb1", "/")}, {"a sdb1 fuseblk rw"}},
        {"at a place that is gone", {mount(kStick, a + QStringLiteral("/gone"), "rw", "vfat", "", "/")}, {}},
        {"the disk that the system runs from",
         {mount(kStick, a, "rw", "vfat", "", "/"), mount(kStick, QStringLiteral("/"), "rw", "ext4", "", "/")},
         {}},
        {"its start-up part", {mount(kStick, QStringLiteral("/boot/firmware"), "rw", "vfat", "", "/")}, {}}};
    for (const auto &c : cases) {
        machine.setMounts(c.mounts);
        EXPECT_EQ(mediaTexts(palx::pluggedMedia(machine.places())), c.media) << c.what;
    }
}

TEST(RemovableMedia, AnEncryptedVolumeIsJudgedByTheDiskBelow)
{
    FakeMachine machine;
    machine.addStick();
    const QString volume = QStringLiteral("devices/virtual/block/dm-0");
    machine.addDevice(volume, QStringLiteral("253:0"), {{QStringLiteral("removable"), "0\n"}});
    const QString slaves = machine.places().sys + QLatin1Char('/') + volume + QStringLiteral("/slaves");
    QDir().mkpath(slaves);
    QFile::link(machine.places().sys + QStringLiteral("/class/block/sdb1"), slaves + QStringLiteral("/sdb1"));
    machine.setMounts(
        {FakeMachine::mount(QStringLiteral("253:0"), machine.addFolder(QStringLiteral("safe")))});
    EXPECT_EQ(mediaTexts(palx::pluggedMedia(machine.places())),
              QStringList(QStringLiteral("safe dm-0 vfat rw")));
}

TEST(RemovableMedia, TellsWhatIsPluggedInButCannotBeRead)
{
    FakeMachine machine;
    machine.addStick();
    machine.addStick(QStringLiteral("sr0"), QStringLiteral("11:1")); // tells a size when it is empty
    machine.addDevice(QStringLiteral("devices/pci0/usb1/1-2/block/sdd"), QStringLiteral("8:48"),
                      {{QStringLiteral("size"), "0\n"}}); // a card reader without a card
    EXPECT_EQ(palx::pluggedMedia(machine.places()).unreadable, QStringList(QStringLiteral("sdb")));
    machine.setMounts({FakeMachine::mount(kStick, machine.addFolder(QStringLiteral("a")))});
    EXPECT_EQ(palx::pluggedMedia(machine.places()).unreadable, QStringList());
}

TEST(RemovableMedia, AFolderStandsInForADiskWhileItIsThere)
{
    FakeMachine machine;
    palx::MediaPlaces places = machine.places();
    places.standIn = machine.path() + QStringLiteral("/removable");
    EXPECT_EQ(palx::pluggedMedia(places).media.size(), 0);
    QDir().mkpath(places.standIn);
    EXPECT_EQ(mediaTexts(palx::pluggedMedia(places)), QStringList(QStringLiteral("removable   rw")));
    machine.setMounts({FakeMachine::mount(QStringLiteral("8:1"), QStringLiteral("/"), "rw", "ext4"),
                       FakeMachine::mount(QStringLiteral("8:2"), machine.path(), "ro", "ext3")});
    EXPECT_EQ(mediaTexts(palx::pluggedMedia(places)), QStringList(QStringLiteral("removable  ext3 ro")))
        << "what holds it says what it can keep";
}

TEST(RemovableMedia, KnowsTheMediumOfAPath)
{
    FakeMachine machine;
    machine.addStick();
    machine.addStick(QStringLiteral("sdc"), QStringLiteral("8:33"));
    const QString outer = machine.addFolder(QStringLiteral("a"));
    const QString inner = machine.addFolder(QStringLiteral("a/inner"));
    const QString like = machine.addFolder(QStringLiteral("ab"));
    machine.setMounts({FakeMachine::mount(kStick, outer), FakeMachine::mount(QStringLiteral("8:33"), inner)});
    const palx::PluggedMedia plugged = palx::pluggedMedia(machine.places());
    const struct
    {
        QString path;
        const char *device; // null: none
    } cases[] = {{outer, "sdb1"},
                 {inner + QStringLiteral("/not/there.xml"), "sdc1"},
                 {inner + QStringLiteral("/../x"), "sdb1"},
                 {outer + QStringLiteral("/../x"), nullptr},
                 {like, nullptr},
                 {QString(), nullptr}};
    for (const auto &c : cases) {
        const Medium *medium = plugged.of(c.path);
        EXPECT_EQ(medium ? medium->device : QString(), QString::fromLatin1(c.device)) << c.path;
    }
}

TEST(MediaWatch, NoticesDisksThatComeAndGo)
{
    FakeMachine machine;
    machine.addStick();
    const QByteArray line = FakeMachine::mount(kStick, machine.addFolder(QStringLiteral("a")));
    palx::MediaPlaces places = machine.places();
    places.lookEveryMs = 1;
    palx::MediaWatch watch(places);
    const QSignalSpy changes(&watch, &palx::MediaWatch::changed);
    machine.setMounts({line});
    EXPECT_TRUE(waitUntil([&] { return watch.plugged().media.size() == 1; }));
    machine.removeDevice(QStringLiteral("devices/pci0000:00/usb1")); // pulled, and still mounted
    EXPECT_TRUE(waitUntil([&] { return watch.plugged().media.isEmpty(); }));
    EXPECT_EQ(changes.size(), 2);
}
