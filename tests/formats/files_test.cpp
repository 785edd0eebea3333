#include "formats/obstacles.h"
#include "support/test_support.h"

#include "orba/module_manager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

namespace {

/// The file functions of one format.
struct Files
{
    const char *name;
    bool (*write)(const Node &, const QString &, FormatError *);
    bool (*read)(const QString &, Node *, FormatError *, const orba::ReadLimits &);
};

void PrintTo(const Files &files, std::ostream *out)
{
    *out << files.name;
}

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
    QString path(const QString &name) const { return folder_.filePath(name); }
    QStringList entries() const
    {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QTemporaryDir folder_;
};

TEST_P(FileTest, WritesAndReads)
{
    FormatError error;
    ASSERT_TRUE(GetParam().write(sample(), path(QStringLiteral("a")), &error)) << error.text();
    Node back;
    ASSERT_TRUE(GetParam().read(path(QStringLiteral("a")), &back, &error, orba::ReadLimits()))
        << error.text();
    EXPECT_EQ(back, sample());
    EXPECT_EQ(entries(), QStringList{QStringLiteral("a")});
}

TEST_P(FileTest, NamesFileAndPlaceOfAFault)
{
    const QString file = path(QStringLiteral("broken"));
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write("\n\n  ?");
    out.close();
    FormatError error;
    Node back;
    EXPECT_FALSE(GetParam().read(file, &back, &error, orba::ReadLimits()));
    EXPECT_TRUE(error.text().startsWith(file + QStringLiteral(":3:"))) << error.text();
}

TEST_P(FileTest, WhatIsNoFileIsRefused)
{
    const QString pipe = path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString &file : {path(QStringLiteral("missing")), folder_.path(), pipe}) {
        FormatError error;
        Node back = sample();
        EXPECT_FALSE(GetParam().read(file, &back, &error, orba::ReadLimits()));
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

/// What other programs read: the form of the text itself.
TEST(JsonText, IsPlainAndShort)
{
    Node node;
    node.ensure(u"name")->setString(QStringLiteral("Короб \"1\"\n"));
    node.ensure(u"n")->setInt(5);
    node.ensure(u"d")->setDouble(1.0);
    node.ensure(u"e")->setDouble(0.1);
    node.ensure(u"none");
    node.ensure(u"list")->reset(Node::Kind::List);
    node.add(orba::Name(u"#1"))->reset(Node::Kind::Map);
    const double numbers[] = {-0.0, 1e22, 0.30000000000000004};
    node.ensure(u"trans")->setDoubles(numbers, 3);
    Node *mixed = node.ensure(u"mixed");
    mixed->add()->setInt(1);
    mixed->add(orba::Name(u"a"))->setInt(2);
    EXPECT_EQ(
        ModuleManager::toJson(node, true),
        "{\"name\":\"Короб \\\"1\\\"\\n\",\"n\":5,\"d\":1.0,\"e\":0.1,\"none\":null,\"list\":[],\"##1\":{},"
        "\"trans\":[-0.0,1e+22,0.30000000000000004],"
        "\"mixed\":{\"#mixed\":\"list\",\"#items\":[{\"value\":1},{\"name\":\"a\",\"value\":2}]}}");
}

TEST(JsonText, AByteOrderMarkAndEqualKeysAreRead)
{
    const Node node = nodeFromJson("\xef\xbb\xbf{\"a\": 1, \"a\": 2, \"\": [1, 2.5]}");
    ASSERT_EQ(node.size(), 3);
    EXPECT_EQ(node.at(1)->toInt(), 2);
    EXPECT_EQ(node.find(u"a")->toInt(), 1);
    EXPECT_EQ(node.at(2)->at(0)->kind(), Node::Kind::Int);
    EXPECT_EQ(node.at(2)->at(1)->kind(), Node::Kind::Double);
}

TEST(JsonText, NumbersAreRoundedOnceWhateverTheirLength)
{
    const struct
    {
        const char *text;
        double value;
    } kCases[] = {
        {"0.1", 0.1},
        {"1e-400", 0.0},
        {"4.9406564584124654e-324", 5e-324},
        {"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"9007199254740993.0", 9007199254740992.0},
        {"100000000000000016777215.0", 1.0000000000000001e23},
        {"0.50000000000000000000000000000000000000000000000000000000000001", 0.5},
    };
    for (const auto &number : kCases) {
        const Node node = nodeFromJson(number.text);
        ASSERT_EQ(node.kind(), Node::Kind::Double) << number.text;
        EXPECT_EQ(node.toDouble(), number.value) << number.text;
    }
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

TEST(XmlText, ForeignLayoutIsAccepted)
{
    Node node{orba::Name(u"kept")};
    FormatError error;
    ASSERT_TRUE(ModuleManager::fromXml(
        "\xef\xbb\xbf<?xml version='1.0'?><!-- a recipe -->\n<node type='map' name='x'>"
        "<!-- one --><node type='int' name='a'> 5\n</node>\n"
        "<node name='t' type='doubles'>\n 1e3\t-0.0 \n</node>"
        "<node name='s' type='string'><![CDATA[<a>]]> &#65;</node></node>",
        &node, &error))
        << error.text();
    EXPECT_EQ(node.name().toString(), QStringLiteral("kept"));
    EXPECT_EQ(node.find(u"a")->toInt(), 5);
    ASSERT_TRUE(node.find(u"t")->isPackedDoubles());
    EXPECT_EQ(node.find(u"t")->number(0), 1000.0);
    EXPECT_TRUE(std::signbit(node.find(u"t")->number(1)));
    EXPECT_EQ(node.getString(u"s"), QStringLiteral("<a> A"));
}

} // namespace
