// Files that are read and written in pieces: what is told meanwhile, how it is stopped, and texts that a reader could choke
// on before it has the first element.

#include "formats/random_tree.h"
#include "support/test_support.h"

#include "orba/module_manager.h"
#include "orba/xml_source.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;
using orba::ReadLimits;

namespace {

/// A list of so many texts of 100 characters.
Node longList(int texts)
{
    Node list;
    list.reset(Node::Kind::List);
    for (int i = 0; i < texts; ++i)
        list.add()->setString(QString(95, QLatin1Char('x')) + QStringLiteral("%1").arg(i, 5));
    return list;
}

QByteArray contentOf(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    return source.readAll();
}

class PiecesTest : public ::testing::Test
{
protected:
    QString path() const { return folder_.filePath(QStringLiteral("a.xml")); }
    QStringList entries() const
    {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QTemporaryDir folder_;
};

/// Counts, and stops after so many calls.
struct Counter
{
    int stopAt = -1;
    int calls = 0;
    qint64 last = 0;
    qint64 total = 0;
    bool grows = true;

    orba::Watch watch()
    {
        return [this](qint64 done, qint64 all) {
            grows = grows && done >= last && done <= all;
            last = done;
            total = all;
            return ++calls != stopAt;
        };
    }
};

TEST_F(PiecesTest, FilesInPiecesAreTheSameAsInOne)
{
    const Node list = longList(5000);
    Counter writing;
    FormatError error;
    ASSERT_TRUE(ModuleManager::writeToXmlFile(list, path(), &error, ReadLimits(), writing.watch()))
        << error.text();
    EXPECT_EQ(contentOf(path()), ModuleManager::toXml(list));
    EXPECT_GT(writing.calls, 5);
    EXPECT_TRUE(writing.grows);
    EXPECT_EQ(writing.last, 5001); // every node
    EXPECT_EQ(writing.total, 5001);

    Counter reading;
    Node back;
    ASSERT_TRUE(ModuleManager::readFromXmlFile(path(), &back, &error, ReadLimits(), reading.watch()))
        << error.text();
    EXPECT_EQ(back, list);
    EXPECT_GT(reading.calls, 3);
    EXPECT_TRUE(reading.grows);
    EXPECT_EQ(reading.total, contentOf(path()).size());
}

TEST_F(PiecesTest, StoppingLeavesEverythingAsItWas)
{
    const Node list = longList(5000);
    ASSERT_TRUE(ModuleManager::writeToXmlFile(list, path()));
    const QByteArray before = contentOf(path());
    for (int stopAt : {1, 4}) {
        Counter counter{stopAt};
        FormatError error;
        EXPECT_FALSE(
            ModuleManager::writeToXmlFile(longList(4999), path(), &error, ReadLimits(), counter.watch()));
        EXPECT_TRUE(error.isStopped);
        EXPECT_EQ(counter.calls, stopAt); // not asked again
        EXPECT_EQ(contentOf(path()), before);
        EXPECT_EQ(entries(), QStringList(QStringLiteral("a.xml")));
    }
    Node back = longList(1);
    Counter counter{2};
    FormatError error;
    EXPECT_FALSE(ModuleManager::readFromXmlFile(path(), &back, &error, ReadLimits(), counter.watch()));
    EXPECT_TRUE(error.isStopped);
    EXPECT_EQ(counter.calls, 2);
    EXPECT_EQ(back, longList(1));
}

TEST_F(PiecesTest, TextsOfEveryLengthSurviveTheBordersOfPieces)
{
    RandomTree random(11);
    Node list;
    list.reset(Node::Kind::List);
    for (int i = 0; i < 100; ++i)
        list.add()->assign(random.make());
    FormatError error;
    ASSERT_TRUE(ModuleManager::writeToXmlFile(list, path(), &error)) << error.text();
    Node back;
    ASSERT_TRUE(ModuleManager::readFromXmlFile(path(), &back, &error)) << error.text();
    EXPECT_EQ(back, list);
}

/// Attributes that differ, as many as the number says.
QByteArray attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "='>'";
    return text;
}

TEST(Xml, ManyAttributesEndTheReadingAtOnce)
{
    // Comparing all with all would take minutes. The beginnings try to hide the element from whoever counts.
    const char *const beginnings[] = {"",
                                      "<!-- don't -->",
                                      "<!-- \" < ' -> -->",
                                      "<?xml version='1.0'?><?style \"'?>",
                                      "<!---->",
                                      "<node type='list'><!--'--><node name=\"'>\" type='null'/>",
                                      "<node type='string'><![CDATA['\">]]]>",
                                      "<node type='string'>\"'=</node>"};
    for (const char *beginning : beginnings) {
        Node back;
        FormatError error;
        EXPECT_FALSE(ModuleManager::fromXml(beginning + ("<node" + attributes(20000) + "/>"), &back, &error));
        EXPECT_TRUE(error.what.contains(QStringLiteral("more than 64 attributes")))
            << beginning << error.text();
        EXPECT_EQ(error.line, 1);
    }
}

TEST(Xml, EqualSignsElsewhereAreNoAttributes)
{
    const QByteArray many(1000, '=');
    const QByteArray texts[] = {
        "<node type=\"string\">" + many + "</node>", "<node type=\"null\" name=\"" + many + "'\"/>",
        "<!--" + many + "--><node type=\"null\"/>", "<node type=\"string\"><![CDATA[<a" + many + "]]></node>",
        "<?note " + many + "?><node type=\"null\"/>"};
    for (const QByteArray &text : texts) {
        Node back;
        FormatError error;
        EXPECT_TRUE(ModuleManager::fromXml(text, &back, &error)) << text.constData() << error.text();
    }
}

TEST(Xml, OnlyEncodingsThatExtendAsciiAreRead)
{
    Node back;
    FormatError error;
    EXPECT_TRUE(ModuleManager::fromXml(
        "<?xml version='1.0' encoding='iso-8859-1'?><node type='string'>\xe4</node>", &back, &error))
        << error.text();
    EXPECT_EQ(back.toString(), QStringLiteral("ä"));
    EXPECT_FALSE(
        ModuleManager::fromXml("<?xml version='1.0' encoding='UTF-16'?><node type='null'/>", &back, &error));
    EXPECT_TRUE(error.what.contains(QStringLiteral("encoding \"UTF-16\""))) << error.text();
    const QString text = QStringLiteral("<node type='null'/>");
    for (const QByteArray &mark : {QByteArray(), QByteArray("\xff\xfe")}) {
        const QByteArray wide =
            mark + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * int(sizeof(QChar)));
        EXPECT_FALSE(ModuleManager::fromXml(wide, &back, &error));
        EXPECT_TRUE(error.what.contains(QStringLiteral("not UTF-8"))) << error.text();
    }
}

TEST(Xml, ADocumentTypeEndsTheReadingAtOnce)
{
    // The reader would compare all of these with all, too.
    QByteArray declarations = "<!DOCTYPE node [";
    for (int i = 0; i < 5000; ++i)
        declarations += "<!ATTLIST node a" + QByteArray::number(i) + " CDATA 'x'><!ENTITY e" +
                        QByteArray::number(i) + " 'x'>";
    Node back;
    FormatError error;
    EXPECT_FALSE(ModuleManager::fromXml(declarations + "]><node type='null'/>", &back, &error));
    EXPECT_TRUE(error.what.contains(QStringLiteral("document types"))) << error.text();
}

} // namespace
