// Texts that are no trees: each is refused with its place and a reason, and the target stays as it was.

#include "support/test_support.h"

#include "orba/module_manager.h"

#include <gtest/gtest.h>

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

namespace {

struct Broken
{
    const char *name;
    QByteArray text;
    qint64 line;
    qint64 column;
    const char *what; ///< part of the reason
};

using Read = bool (*)(const QByteArray &, Node *, FormatError *, const orba::ReadLimits &);

void expectRefusal(const Broken &broken, Read read)
{
    SCOPED_TRACE(broken.name);
    Node target;
    target.ensure(u"kept")->setInt(1);
    const Node before = target;
    FormatError error;
    EXPECT_FALSE(read(broken.text, &target, &error, orba::ReadLimits()));
    EXPECT_TRUE(target == before);
    EXPECT_TRUE(error.what.contains(QLatin1String(broken.what))) << error.what;
    EXPECT_EQ(error.line, broken.line) << error.text();
    EXPECT_EQ(error.column, broken.column) << error.text();
    EXPECT_FALSE(read(broken.text, &target, nullptr, orba::ReadLimits())); // nobody has to ask why
}

QByteArray nested(const char *open, int depth)
{
    return QByteArray(open).repeated(depth);
}

const Broken kJson[] = {
    {"empty", "", 1, 1, "empty"},
    {"openObject", "{\n  \"a\": 1\n", 3, 1, "comma"},
    {"tooLargeDouble", "[1.0, 1e400]", 1, 7, "too big"},
    {"tooLargeInt", "{\"n\": 9223372036854775808}", 1, 7, "64 bits"},
    {"badUtf8", "[\"ab\xff\"]", 1, 5, "encoding"},
    {"zeroByte", QByteArray("[1]\0[2]", 7), 1, 4, "zero byte"},
    {"columnCountsCharacters", "[\"\xd0\x9a\xd0\xbe\xd1\x80\xd0\xbe\xd0\xb1\", x]", 1, 11, "value"},
    {"mixedWithoutItems", "{\"#mixed\": \"list\"}", 1, 12, "mixed container"},
    {"utf16Odd", "{\"#utf16\": \"AA==\"}", 1, 12, "base64"},
    {"veryDeep", nested("[", 200000), 1, 257, "256 deep"},
    {"veryDeepMixed", nested("{\"#mixed\":\"list\",\"#items\":[{\"value\":", 2000), 1, 9218, "256 deep"},
};

TEST(Refusal, OfBrokenJson)
{
    for (const Broken &broken : kJson)
        expectRefusal(broken, ModuleManager::fromJson);
}

const Broken kXml[] = {
    {"empty", "", 1, 1, "end of document"},
    {"twoRoots", "<node type=\"null\"/><node type=\"null\"/>", 1, 39, "Extra content"},
    {"noType", "<node type=\"map\">\n <node name=\"a\">1</node></node>", 2, 2, "no type"},
    {"intTooLarge", "<node type=\"int\">9223372036854775808</node>", 1, 18, "64 bits"},
    {"doubleHuge", "<node type=\"double\">1e400</node>", 1, 21, "no finite"},
    {"doublesText", "<node type=\"doubles\">0 0.5 x 1</node>", 1, 22, "\"x\""},
    {"badBase64", "<node type=\"string\" encoding=\"base64\">%%</node>", 1, 39, "base64"},
    {"entityBomb",
     "<?xml version=\"1.0\"?>\n<!DOCTYPE x [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;\"><!ENTITY c "
     "\"&b;&b;&b;\">]>\n"
     "<node type=\"string\">&c;</node>",
     2, 3, "not accepted"},
    {"unknownEntity", "<node type=\"string\">&home;</node>", 1, 27, "home"},
    {"badUtf8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<node type=\"string\">\xff</node>", 2, 21,
     "not UTF-8"},
    {"zeroByte", QByteArray("<node type=\"string\">a\0b</node>", 31), 1, 23, "Unexpected"},
    {"veryDeep", nested("<node type=\"list\">\n", 50000), 257, 1, "256 deep"},
};

TEST(Refusal, OfBrokenXml)
{
    for (const Broken &broken : kXml)
        expectRefusal(broken, ModuleManager::fromXml);
}

} // namespace
