// Archives that must not be unpacked are refused before anything of them is written, with the entry named.

#include "raw_zip.h"

#include "project/rules/archive_check.h"
#include "project/rules/archive_unpack.h"
#include "support/test_support.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using palx::ArchiveContent;

namespace {

/// The reason; "fine" for an archive that is accepted.
QString judged(const QByteArray &bytes, ArchiveContent *content = nullptr)
{
    QBuffer device;
    device.setData(bytes);
    ArchiveContent mine;
    QString why;
    palx::NoProgress nobody;
    return palx::checkArchive(&device, content ? content : &mine, &why, &nobody) ? QStringLiteral("fine")
                                                                                 : why;
}

RawEntry file(const char *name, const char *data = "data", std::uint32_t mode = 0100644)
{
    return {name, data, mode, 0, 0, {}, {}, 0};
}

std::vector<RawEntry> many(int count)
{
    std::vector<RawEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back(file(QByteArray::number(i).constData(), "", 0));
    return entries;
}

} // namespace

TEST(ArchiveCheck, RefusesWhatCannotBeUnpackedAsItIsListed)
{
    const QByteArray longName = QByteArray(200, 'a') + "/" + QByteArray(55, 'b');
    RawEntry encrypted = file("a");
    encrypted.flags = 1;
    RawEntry wrongSum = file("a/b");
    wrongSum.checksum = 1;
    RawEntry foreign = file("a");
    foreign.method = 12;
    RawEntry folder = file("a");
    folder.dosAttributes = 0x10;
    RawEntry longer = zeros("z", 1000);
    longer.size = 1001;
    const struct
    {
        std::vector<RawEntry> entries;
        const char *reason;
    } cases[] = {
        {{file("ok"), file("a/../../b")}, "the entry \"a/../../b\" leads out of the folder"},
        {{file("/etc/passwd")}, "the entry \"/etc/passwd\" has an absolute name"},
        {{file("C:a")}, "the entry \"C:a\" has an absolute name"},
        {{file("a\\b")}, "the entry \"a\\b\" has a backslash in its name"},
        {{file("a//b")}, "the entry \"a//b\" has a name that is no path"},
        {{file("\xff")}, "the entry \"\xef\xbf\xbd\" has a name that is no text in UTF-8"},
        {{file("a\nb")}, "the entry \"a?b\" has a control character in its name"},
        {{file(longName.constData())}, "has too long a name"},
        {{file("a", "b", 0120777)}, "the entry \"a\" is a link"},
        {{file("a", "", 060644)}, "the entry \"a\" is neither a file nor a folder"},
        {{file("a/", "b", 040755)}, "the entry \"a/\" is a folder with a content of its own"},
        {{folder}, "the entry \"a\" is called a file and a folder"},
        {{file("a/b"), file("a/b")}, "the entry \"a/b\" is there twice"},
        {{file("main.mod"), file("Main.mod")}, "the entry \"Main.mod\" is there twice"},
        {{file("a"), file("a/b")}, "the entry \"a/b\" needs a folder where there is another entry"},
        {{encrypted}, "the entry \"a\" is encrypted"},
        {{file("ok"), wrongSum}, "the entry \"a/b\" is damaged"},
        {{foreign}, "the entry \"a\" is packed in a way that is not known here"},
        {{longer}, "the entry \"z\" is damaged"},
        {{}, "it is no whole zip archive"},
    };
    for (const auto &each : cases) {
        const QString why = judged(rawZip(each.entries));
        EXPECT_TRUE(why.contains(QString::fromUtf8(each.reason))) << why << " instead of " << each.reason;
    }
}

TEST(ArchiveCheck, RefusesBombsByWhatTheyClaim)
{
    RawEntry bomb = zeros("zeros", 1 << 20);
    bomb.size = 1U << 30;
    EXPECT_EQ(judged(rawZip({bomb})),
              QStringLiteral("the entry \"zeros\" makes it larger than 512 MB, which no project is"));
    bomb.size = 1000;
    EXPECT_EQ(judged(rawZip({bomb})), QStringLiteral("the entry \"zeros\" is damaged"));
    EXPECT_EQ(judged(rawZip(many(60000))),
              QStringLiteral("it has 60000 entries; no project has more than 10000"));
    EXPECT_EQ(judged(rawZip(many(10000))), QStringLiteral("fine"));
    // The count in the end has 16 bits, so that it is not true.
    const QString why = judged(rawZip(many(100000)));
    EXPECT_TRUE(why.contains(QStringLiteral("entries"))) << why;
}

TEST(ArchiveCheck, RefusesATruncatedArchiveAtAnyByte)
{
    const QByteArray whole = rawZip({file("a/b"), file("c")});
    EXPECT_EQ(judged(whole), QStringLiteral("fine"));
    for (int size = 0; size < whole.size(); ++size)
        EXPECT_NE(judged(whole.left(size)), QStringLiteral("fine")) << size;
    EXPECT_EQ(judged(whole + 'x'), QStringLiteral("it is no whole zip archive"));
}

TEST(ArchiveCheck, RefusesADamagedByteOfContentOrReadsTheSame)
{
    const QByteArray whole = rawZip({file("a/b", "content"), file("c", "more")});
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged.at(at) ^ 0x20);
        ArchiveContent content;
        const bool isTaken = judged(damaged, &content) == QLatin1String("fine");
        EXPECT_EQ(isTaken ? content.bytes : 11, 11) << at;
    }
}

TEST(ArchiveUnpack, WritesNothingOfARefusedArchive)
{
    const QTemporaryDir folder;
    QFile archive(folder.filePath("a.zip"));
    ASSERT_TRUE(archive.open(QIODevice::WriteOnly));
    archive.write(rawZip({file("good"), file("../evil")}));
    archive.close();
    ASSERT_TRUE(QDir(folder.path()).mkdir("to"));
    QString why;
    palx::NoProgress nobody;
    EXPECT_FALSE(palx::unpackArchive(archive.fileName(), folder.filePath("to"), &why, &nobody));
    EXPECT_EQ(why, QStringLiteral("the entry \"../evil\" leads out of the folder"));
    EXPECT_TRUE(QDir(folder.filePath("to")).isEmpty());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({"a.zip", "to"}));
}
