#include "workstation/medium_folder.h"

#include "support/fake_machine.h"
#include "support/test_support.h"
#include "workstation/medium_choice.h"

#include <gtest/gtest.h>

namespace {

using palx::EntryOrder;
using palx::FolderEntry;

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
    QStringList shown(const QString &filter) const
    {
        auto contents = palx::readFolder(root, root, palx::parseFilters(filter).first());
        palx::sortEntries(&contents.entries, EntryOrder::Name, Qt::AscendingOrder);
        QStringList names;
        for (const FolderEntry &entry : contents.entries)
            names.append(entry.isFolder ? entry.name + QLatin1Char('/') : entry.name);
        return names;
    }
    FakeMachine machine;
    QString root;
};

} // namespace

TEST(MediumFolder, ShowsFoldersAndTheFilesOfTheFilter)
{
    const Disk disk({QStringLiteral("паллета 1.xml"), QStringLiteral("B.XML"), QStringLiteral("c.txt"),
                     QStringLiteral(".hidden.xml"), QStringLiteral(".trash/"), QStringLiteral("上海/"),
                     QStringLiteral("folder.xml/")});
    const struct
    {
        const char *filter;
        QStringList shown;
    } cases[] = {{"XML (*.xml)", {"folder.xml/", "上海/", "B.XML", "паллета 1.xml"}},
                 {"", {"folder.xml/", "上海/", "B.XML", "c.txt", "паллета 1.xml"}}};
    for (const auto &c : cases)
        EXPECT_EQ(disk.shown(QLatin1String(c.filter)), c.shown) << c.filter;
}

TEST(MediumFolder, LinksThatLeadOutOfTheMediumAreNotShown)
{
    const Disk disk({QStringLiteral("in/"), QStringLiteral("a.xml")});
    const Disk other({QStringLiteral("b.xml")});
    QFile::link(other.root, disk.path(QStringLiteral("out")));
    QFile::link(other.path(QStringLiteral("b.xml")), disk.path(QStringLiteral("out.xml")));
    QFile::link(disk.path(QStringLiteral("in")), disk.path(QStringLiteral("inside")));
    QFile::link(disk.path(QStringLiteral("gone")), disk.path(QStringLiteral("nowhere.xml")));
    EXPECT_EQ(disk.shown(QString()),
              QStringList({QStringLiteral("in/"), QStringLiteral("inside/"), QStringLiteral("a.xml")}));
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
    } cases[] = {{QString(), QString()},
                 {disk.path(QStringLiteral("Рецепты/2026")), QStringLiteral("/Рецепты/2026")},
                 {disk.path(QStringLiteral("Рецепты/2026/gone/b.xml")), QStringLiteral("/Рецепты/2026")},
                 {disk.path(QStringLiteral("Рецепты/..")), QString()},
                 {disk.path(QStringLiteral("..")), QString()},
                 {disk.path(QStringLiteral("out/x")), QString()},
                 {disk.path(QStringLiteral("link/2026")), QStringLiteral("/Рецепты/2026")},
                 {disk.root + QStringLiteral("x"), QString()},
                 {QStringLiteral("/"), QString()},
                 {QStringLiteral("relative"), QString()}};
    for (const auto &c : cases)
        EXPECT_EQ(palx::folderOfMedium(disk.root, c.path), disk.root + c.folder) << c.path;
}

TEST(MediumFolder, SortsAsAPersonDoes)
{
    const QDateTime noon(QDate(2026, 1, 1), QTime(12, 0));
    const QVector<FolderEntry> all{{QStringLiteral("b10"), false, 5, noon.addDays(8)},
                                   {QStringLiteral("Z"), true, 4096, noon.addDays(9)},
                                   {QStringLiteral("B2"), false, 5, noon.addDays(7)},
                                   {QStringLiteral("a"), true, 1, noon},
                                   {QStringLiteral("c1"), false, 9, noon.addDays(2)}};
    const struct
    {
        EntryOrder order;
        Qt::SortOrder direction;
        const char *names;
    } cases[] = {{EntryOrder::Name, Qt::AscendingOrder, "a Z B2 b10 c1"},
                 {EntryOrder::Date, Qt::AscendingOrder, "a Z c1 B2 b10"},
                 {EntryOrder::Size, Qt::DescendingOrder, "a Z c1 b10 B2"}};
    for (const auto &c : cases) {
        QVector<FolderEntry> entries = all;
        palx::sortEntries(&entries, c.order, c.direction);
        QStringList names;
        for (const FolderEntry &entry : entries)
            names.append(entry.name);
        EXPECT_EQ(names.join(QLatin1Char(' ')), QLatin1String(c.names));
    }
}

TEST(MediumChoice, SaysWhyNothingCanBeWritten)
{
    const Disk disk({QStringLiteral("there.xml"), QStringLiteral("folder/")});
    const struct
    {
        const char *what;
        bool isReadOnly;
        QString folder;
        QString name;
        const char *file; // null: may be written
        const char *newFolder;
    } cases[] = {
        {"new", false, disk.root, QStringLiteral("a.xml"), nullptr, nullptr},
        {"replaces", false, disk.root, QStringLiteral("there.xml"), nullptr, "There is a file of that name."},
        {"a folder", false, disk.root, QStringLiteral("folder"), "There is a folder of that name.",
         "There is a folder of that name."},
        {"a bad name", false, disk.root, QStringLiteral("a:b"), "This disk cannot keep a name with :.",
         "This disk cannot keep a name with :."},
        {"protected", true, disk.root, QStringLiteral("a.xml"),
         "The disk is write-protected. Nothing can be saved on it.",
         "The disk is write-protected. Nothing can be saved on it."},
        {"gone", false, disk.path(QStringLiteral("gone")), QStringLiteral("a.xml"),
         "The folder is not there any more.", "The folder is not there any more."}};
    for (const auto &c : cases) {
        palx::Medium medium;
        medium.root = disk.root;
        medium.fileSystem = QStringLiteral("vfat");
        medium.isReadOnly = c.isReadOnly;
        EXPECT_EQ(palx::fileRefusal(medium, c.folder, c.name), QLatin1String(c.file)) << c.what;
        EXPECT_EQ(palx::newFolderRefusal(medium, c.folder, c.name), QLatin1String(c.newFolder)) << c.what;
    }
}
