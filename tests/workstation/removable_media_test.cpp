#include "workstation/removable_media.h"

#include "support/fake_machine.h"
#include "support/test_support.h"
#include "workstation/media_watch.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using palx::Medium;

const QString kStick = QStringLiteral("8:17");

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
                 {"USB disk that says it is fixed", "devices/pci0/usb2/2-1/block/sdb", fixed, true},
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
        {"two",
         {mount(kStick, b, "rw", "vfat", "", "/"), mount(other, a, "rw", "exfat", "", "/")},
         {"b sdb1 vfat rw", "a sdc1 exfat rw"}},
        {"the later mount hides the earlier one",
         {mount(kStick, a, "rw", "vfat", "", "/"), mount(other, a, "rw", "exfat", "", "/")},
         {"a sdc1 exfat rw"}},
        {"a part that is mounted elsewhere is no second one",
         {mount(kStick, b, "rw", "vfat", "", "/sub"), mount(kStick, a, "rw", "vfat", "", "/")},
         {"a sdb1 vfat rw"}},
        {"served by a process", {mount(none, a, "rw", "fuseblk", "/dev/sdb1", "/")}, {"a sdb1 fuseblk rw"}},
        {"the disk that the system runs from",
         {mount(kStick, a, "rw", "vfat", "", "/"), mount(kStick, QStringLiteral("/"), "rw", "ext4", "", "/")},
         {}}};
    for (const auto &c : cases) {
        machine.setMounts(c.mounts);
        EXPECT_EQ(mediaTexts(palx::pluggedMedia(machine.places())), c.media) << c.what;
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
