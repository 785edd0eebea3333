#include "formats/obstacles.h"
#include "formats/random_tree.h"
#include "support/test_support.h"

#include "orba/module_manager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;
using orba::ReadLimits;

namespace {

/// The file functions of one format.
struct Files
{
    const char *name;
    bool (*write)(const Node &, const QString &, FormatError *);
    bool (*read)(const QString &, Node *, FormatError *, const orba::ReadLimits &);
};

Node sample(int seed = 1)
{
    Node node;
    node.ensure(u"name")->setString(QStringLiteral("Короб"));
    node.ensure(u"height")->setInt(seed);
    return node;
}

QByteArray contentOf(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    return source.readAll();
}

class FileTest : public ::testing::TestWithParam<Files>
{
protected:
    QString path(const QString &name = QStringLiteral("a")) const { return folder_.filePath(name); }
    QStringList entries() const
    {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QTemporaryDir folder_;
};

/// Texts of every length, also over the borders of pieces.
TEST_P(FileTest, FilesInPiecesAreTheSameAsInOne)
{
    Node list;
    list.reset(Node::Kind::List);
    for (int i = 0; i < 5000; ++i)
        list.add()->setString(QString(95, QLatin1Char('x')) + QStringLiteral("%1").arg(i, 5));
    RandomTree random(11);
    for (int i = 0; i < 100; ++i)
        list.add()->assign(random.make());
    FormatError error;
    ASSERT_TRUE(GetParam().write(list, path(), &error)) << error.text();
    Node back;
    ASSERT_TRUE(GetParam().read(path(), &back, &error, ReadLimits())) << error.text();
    EXPECT_EQ(back, list);
}

TEST_P(FileTest, WhatIsNoFileIsRefused)
{
    const QString pipe = path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString &file : {path(QStringLiteral("missing")), folder_.path(), pipe}) {
        FormatError error;
        Node back = sample();
        EXPECT_FALSE(GetParam().read(file, &back, &error, ReadLimits()));
        EXPECT_TRUE(error.text().startsWith(file + QStringLiteral(": "))) << error.text();
        EXPECT_EQ(back, sample());
    }
}

TEST_P(FileTest, LargerThanTheLimitIsRefused)
{
    const QString file = path(QStringLiteral("a"));
    ASSERT_TRUE(GetParam().write(sample(), file, nullptr));
    orba::ReadLimits limits;
    limits.maxBytes = contentOf(file).size() - 1;
    FormatError error;
    Node back;
    EXPECT_FALSE(GetParam().read(file, &back, &error, limits));
    EXPECT_TRUE(error.what.contains(QString::number(limits.maxBytes))) << error.what;
    ++limits.maxBytes;
    EXPECT_TRUE(GetParam().read(file, &back, &error, limits));
}

TEST_P(FileTest, AFailedWriteLeavesTheOldFile)
{
    const QString file = path(QStringLiteral("a"));
    ASSERT_TRUE(GetParam().write(sample(1), file, nullptr));
    const QByteArray before = contentOf(file);
    Node large = sample(2);
    large.ensure(u"text")->setString(QString(200000, QLatin1Char('x')));
    Node infinite = sample(2);
    infinite.ensure(u"x")->setDouble(std::numeric_limits<double>::infinity());
    FormatError full, readOnly, refused, missing;
    {
        const FullDisk obstacle(50000);
        EXPECT_FALSE(GetParam().write(large, file, &full));
    }
    {
        const ReadOnlyFolder obstacle(folder_.path());
        EXPECT_FALSE(GetParam().write(sample(2), file, &readOnly));
    }
    EXPECT_FALSE(GetParam().write(infinite, file, &refused));
    for (const FormatError &error : {full, readOnly, refused}) {
        EXPECT_EQ(error.file, file);
        EXPECT_TRUE(error.isSet());
    }
    EXPECT_FALSE(GetParam().write(sample(), path(QStringLiteral("no/a")), &missing));
    EXPECT_TRUE(missing.text().contains(QStringLiteral("no/a: cannot be written"))) << missing.text();
    EXPECT_EQ(contentOf(file), before);
    EXPECT_EQ(entries(), QStringList{QStringLiteral("a")});
    EXPECT_TRUE(GetParam().write(large, file, nullptr));
}

INSTANTIATE_TEST_SUITE_P(
    Formats, FileTest,
    ::testing::Values(Files{"json", ModuleManager::writeToJson, ModuleManager::readFromJson},
                      Files{"xml", ModuleManager::writeToXmlFile, ModuleManager::readFromXmlFile}),
    [](const auto &files) { return std::string(files.param.name); });

// ---------------------------------------------------------------- texts

/// What other programs read: the form of the text itself.
TEST(JsonText, IsPlainAndShort)
{
    Node node;
    node.ensure(u"name")->setString(QStringLiteral("Короб \"1\"\n"));
    node.ensure(u"n")->setInt(5);
    node.ensure(u"d")->setDouble(1.0);
    node.ensure(u"none");
    node.add(orba::Name(u"#1"))->reset(Node::Kind::Map);
    const double numbers[] = {-0.0, 1e22, 0.30000000000000004};
    node.ensure(u"trans")->setDoubles(numbers, 3);
    node.ensure(u"mixed")->add()->setInt(1);
    node.find(u"mixed")->add(orba::Name(u"a"))->setInt(2);
    EXPECT_EQ(ModuleManager::toJson(node, true),
              "{\"name\":\"Короб \\\"1\\\"\\n\",\"n\":5,\"d\":1.0,\"none\":null,\"##1\":{},"
              "\"trans\":[-0.0,1e+22,0.30000000000000004],"
              "\"mixed\":{\"#mixed\":\"list\",\"#items\":[{\"value\":1},{\"name\":\"a\",\"value\":2}]}}");
}

TEST(XmlText, FollowsTheDialect)
{
    Node node{orba::Name(u"temp_list")};
    node.reset(Node::Kind::Map);
    node.add(orba::Name(u"name"))->setString(QStringLiteral("A & B"));
    node.add()->setString(QStringLiteral(" a"));
    node.add(orba::Name(u"c"))->setString(QString(QChar(1)));
    const double numbers[] = {0.5, 1};
    node.add(orba::Name(u"trans"))->setDoubles(numbers, 2);
    node.add(orba::Name(u"on"))->setBool(true);
    EXPECT_EQ(ModuleManager::toXml(node),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<node name=\"temp_list\" type=\"map\">\n"
              " <node name=\"name\" type=\"string\">A &amp; B</node>\n"
              " <node type=\"string\" xml:space=\"preserve\"> a</node>\n"
              " <node name=\"c\" type=\"string\" encoding=\"base64\">AAE=</node>\n"
              " <node name=\"trans\" type=\"doubles\">0.5 1</node>\n"
              " <node name=\"on\" type=\"bool\">true</node>\n"
              "</node>\n");
}

TEST(Xml, ManyAttributesEndTheReadingAtOnce)
{
    // Comparing all with all would take minutes. The beginnings try to hide the element from whoever counts.
    const char *const beginnings[] = {"", "<!-- \" < ' -> -->",
                                      "<node type='list'><!--'--><node name=\"'>\" type='null'/>",
                                      "<node type='string'><![CDATA['\">]]]>"};
    QByteArray element = "<node";
    for (int i = 0; i < 20000; ++i)
        element += " a" + QByteArray::number(i) + "='>'";
    for (const char *beginning : beginnings) {
        Node back;
        FormatError error;
        EXPECT_FALSE(ModuleManager::fromXml(beginning + element + "/>", &back, &error));
        EXPECT_TRUE(error.what.contains(QStringLiteral("more than 64 attributes"))) << beginning;
    }
}

} // namespace
