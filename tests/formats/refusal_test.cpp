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
    {"openText", "[\"abc", 1, 6, "quotation"},
    {"missingColon", "{\"a\" 1}", 1, 6, "colon"},
    {"twoRoots", "{} {}", 1, 4, "root"},
    {"notANumber", "[NaN]", 1, 2, "value"},
    {"tooLargeDouble", "[1.0, 1e400]", 1, 7, "too big"},
    {"tooLargeInt", "{\"n\": 9223372036854775808}", 1, 7, "64 bits"},
    {"badEscape", "[\"a\\x\"]", 1, 4, "escape"},
    {"halfPair", "[\"\\ud800\"]", 1, 3, "surrogate"},
    {"badUtf8", "[\"ab\xff\"]", 1, 5, "encoding"},
    {"controlInText", "[\"a\nb\"]", 1, 4, "Invalid"},
    {"zeroByte", QByteArray("[1]\0[2]", 7), 1, 4, "zero byte"},
    {"columnCountsCharacters", "[\"\xd0\x9a\xd0\xbe\xd1\x80\xd0\xbe\xd0\xb1\", x]", 1, 11, "value"},
    {"reservedKey", "{\"a\": 1, \"#b\": 2}", 1, 10, "reserved"},
    {"mixedKind", "{\"#mixed\": \"set\", \"#items\": []}", 1, 12, "mixed container"},
    {"mixedWithoutItems", "{\"#mixed\": \"list\"}", 1, 12, "mixed container"},
    {"mixedItemsNoArray", "{\"#mixed\": \"list\", \"#items\": {}}", 1, 30, "mixed container"},
    {"itemNoValue", "{\"#mixed\": \"list\", \"#items\": [{\"name\": \"a\"}]}", 1, 40, "item"},
    {"utf16Odd", "{\"#utf16\": \"AA==\"}", 1, 12, "base64"},
    {"utf16More", "{\"#utf16\": \"AEE=\", \"a\": 1}", 1, 20, "#utf16"},
    {"deepArrays", nested("[", 257), 1, 257, "256 deep"},
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
    {"openElement", "<node type=\"list\">", 1, 19, "end of document"},
    {"wrongEnd", "<node type=\"list\">\n</nod>", 2, 7, "mismatch"},
    {"twoRoots", "<node type=\"null\"/><node type=\"null\"/>", 1, 39, "Extra content"},
    {"unknownElement", "<node type=\"map\">\n <leaf/>\n</node>", 2, 2, "unknown element \"leaf\""},
    {"noType", "<node type=\"map\">\n <node name=\"a\">1</node></node>", 2, 2, "no type"},
    {"unknownType", "<node type=\"map\">\n\n  <node name=\"a\" type=\"float\">1</node></node>", 3, 3,
     "\"float\""},
    {"unknownAttribute", "<node type=\"int\" unit=\"mm\">1</node>", 1, 28, "unit=\"mm\""},
    {"boolValue", "<node type=\"bool\">yes</node>", 1, 19, "\"yes\" is neither"},
    {"intText", "<node type=\"int\">12a</node>", 1, 18, "\"12a\" is no whole"},
    {"intTooLarge", "<node type=\"int\">9223372036854775808</node>", 1, 18, "64 bits"},
    {"doubleInf", "<node type=\"double\">-inf</node>", 1, 21, "no finite"},
    {"doubleHuge", "<node type=\"double\">1e400</node>", 1, 21, "no finite"},
    {"doublesText", "<node type=\"doubles\">0 0.5 x 1</node>", 1, 22, "\"x\""},
    {"doublesWithChild", "<node type=\"doubles\">0 <node type=\"int\">1</node></node>", 1, 41,
     "character data"},
    {"textInList", "<node type=\"list\">\n<node type=\"null\"/> 5 </node>", 2, 20, "between elements"},
    {"unknownEncoding", "<node type=\"string\" encoding=\"hex\">00</node>", 1, 36, "encoding=\"hex\""},
    {"badBase64", "<node type=\"string\" encoding=\"base64\">%%</node>", 1, 39, "base64"},
    {"badName", "<node type=\"list\"><node name=\"?\" name-encoding=\"base64\" type=\"null\"/></node>", 1, 19,
     "name"},
    {"documentType", "<!DOCTYPE node [<!ENTITY a \"b\">]>\n<node type=\"null\"/>", 1, 1, "not accepted"},
    {"entityBomb",
     "<?xml version=\"1.0\"?>\n<!DOCTYPE x [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;\"><!ENTITY c "
     "\"&b;&b;&b;\">]>\n"
     "<node type=\"string\">&c;</node>",
     2, 3, "not accepted"},
    {"unknownEntity", "<node type=\"string\">&home;</node>", 1, 27, "home"},
    {"badUtf8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<node type=\"string\">\xff</node>", 2, 21,
     "not UTF-8"},
    {"control", "<node type=\"string\">\x01</node>", 1, 22, "Unexpected"},
    {"zeroByte", QByteArray("<node type=\"string\">a\0b</node>", 31), 1, 23, "Unexpected"},
    {"deep", nested("<node type=\"list\">", 257), 1, 4609, "256 deep"},
    {"veryDeep", nested("<node type=\"list\">\n", 50000), 257, 1, "256 deep"},
};

TEST(Refusal, OfBrokenXml)
{
    for (const Broken &broken : kXml)
        expectRefusal(broken, ModuleManager::fromXml);
}

} // namespace
