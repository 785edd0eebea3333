#include "workstation/medium_folder.h"

#include "support/fake_machine.h"
#include "support/test_support.h"
#include "workstation/medium_names.h"

#include <gtest/gtest.h>

namespace {

/// A folder with files and folders of the names, "a/" is a folder; its topmost one is a medium's.
struct Disk
{
    explicit Disk(const QStringList &names) : root(machine.addFolder(QStringLiteral("ДИСК 1")))
    {
        for (const QString &name : names)
            if (name.endsWith(QLatin1Char('/')))
                QDir().mkpath(path(name));
            else
                FakeMachine::write(path(name), "x");
    }
    QString path(const QString &name) const { return root + QLatin1Char('/') + name; }
    FakeMachine machine;
    QString root;
};

} // namespace

TEST(MediumFolder, LinksThatLeadOutOfTheMediumAreNotShown)
{
    const Disk disk({QStringLiteral("in/"), QStringLiteral("a.xml")});
    const Disk other({QStringLiteral("b.xml")});
    QFile::link(other.root, disk.path(QStringLiteral("out")));
    QFile::link(other.path(QStringLiteral("b.xml")), disk.path(QStringLiteral("out.xml")));
    QFile::link(disk.path(QStringLiteral("in")), disk.path(QStringLiteral("inside")));
    QFile::link(disk.path(QStringLiteral("gone")), disk.path(QStringLiteral("nowhere.xml")));
    QStringList names;
    for (const palx::FolderEntry &entry :
         palx::readFolder(disk.root, disk.root, palx::parseFilters(QString()).first()).entries)
        names.append(entry.name);
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("a.xml"), QStringLiteral("in"), QStringLiteral("inside")}));
}

TEST(MediumFolder, NobodyGetsAboveTheMedium)
{
    const Disk disk({QStringLiteral("Рецепты/2026/"), QStringLiteral("a.xml")});
    const Disk other({QStringLiteral("x/")});
    QFile::link(other.root, disk.path(QStringLiteral("out")));
    QFile::link(disk.path(QStringLiteral("Рецепты")), disk.path(QStringLiteral("link")));
    const struct
    {
        QString path;
        QString folder; // below the root
    } cases[] = {
        {disk.path(QStringLiteral("Рецепты/2026")), QStringLiteral("/Рецепты/2026")},
        {disk.path(QStringLiteral("Рецепты/..")), QString()},
        {disk.path(QStringLiteral("out/x")), QString()},
        {disk.path(QStringLiteral("link/2026")), QStringLiteral("/Рецепты/2026")},
        {disk.root + QStringLiteral("x"), QString()},
        {QStringLiteral("/"), QString()},
    };
    for (const auto &c : cases)
        EXPECT_EQ(palx::folderOfMedium(disk.root, c.path), disk.root + c.folder) << c.path;
}

TEST(MediumNames, AFileSystemKeepsOnlyWhatItCan)
{
    const QString letter = QString::fromUtf8("п"); // two bytes
    const struct
    {
        QString name;
        const char *onFat; // what the refusal holds; null: the name is kept
        const char *onLinux;
    } cases[] = {{QString::fromUtf8("上海 паллета №1.xml"), nullptr, nullptr},
                 {QStringLiteral("a:b"), "with :", nullptr},
                 {QStringLiteral("a/b"), "with /", "with /"},
                 {QStringLiteral("a."), "dot or a blank", nullptr},
                 {QStringLiteral("Com1.xml"), "named Com1.xml", nullptr},
                 {QStringLiteral(".xml"), "begin with a dot", "begin with a dot"},
                 {QStringLiteral("a\nb"), "cannot be seen", "cannot be seen"},
                 {QString(255, QLatin1Char('x')), nullptr, nullptr},
                 {letter.repeated(128), nullptr, "256 of 255 bytes"},
                 {letter.repeated(256), "256 of 255 characters", "512 of 255 bytes"}};
    for (const auto &c : cases) {
        for (const char *system : {"vfat", "ext4"}) {
            const char *part = QByteArray(system) == "ext4" ? c.onLinux : c.onFat;
            const QString refusal = palx::nameRefusal(c.name, QLatin1String(system));
            EXPECT_EQ(refusal.isEmpty(), !part) << c.name << " on " << system << ": " << refusal;
            EXPECT_TRUE(refusal.contains(QLatin1String(part)))
                << c.name << " on " << system << ": " << refusal;
        }
    }
}
