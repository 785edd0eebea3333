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

void PrintTo(const Broken &broken, std::ostream *out)
{
    *out << broken.name;
}

std::string caseName(const ::testing::TestParamInfo<Broken> &info)
{
    return info.param.name;
}

using Read = bool (*)(const QByteArray &, Node *, FormatError *, const orba::ReadLimits &);

void expectRefusal(const Broken &broken, Read read)
{
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

class BrokenJson : public ::testing::TestWithParam<Broken>
{
};

TEST_P(BrokenJson, IsRefusedWithItsPlace)
{
    expectRefusal(GetParam(), ModuleManager::fromJson);
}

const Broken kJson[] = {
    {"empty", "", 1, 1, "empty"},
    {"onlyMark", "\xef\xbb\xbf", 1, 1, "empty"},
    {"blank", " \n ", 2, 2, "empty"},
    {"openArray", "[1, 2", 1, 6, "comma"},
    {"openObject", "{\n  \"a\": 1\n", 3, 1, "comma"},
    {"openText", "[\"abc", 1, 6, "quotation"},
    {"missingColon", "{\"a\" 1}", 1, 6, "colon"},
    {"missingComma", "[1 2]", 1, 4, "comma"},
    {"trailingComma", "[1,]", 1, 4, "value"},
    {"comment", "[1, // one\n2]", 1, 5, "value"},
    {"twoRoots", "{} {}", 1, 4, "root"},
    {"word", "[nul]", 1, 5, "value"},
    {"notANumber", "[NaN]", 1, 2, "value"},
    {"infinity", "[\n1.0,\n-Infinity]", 3, 2, "value"},
    {"tooLargeDouble", "[1.0, 1e400]", 1, 7, "too big"},
    {"tooLargeInt", "{\"n\": 9223372036854775808}", 1, 7, "64 bits"},
    {"tooLargeInt65", "[18446744073709551616]", 1, 2, "64 bits"},
    {"tooSmallInt", "[1,\n -9223372036854775809 ]", 2, 2, "64 bits"},
    {"hex", "[0x10]", 1, 3, "comma"},
    {"plus", "[+1]", 1, 2, "value"},
    {"bareKey", "{a: 1}", 1, 2, "name"},
    {"badEscape", "[\"a\\x\"]", 1, 4, "escape"},
    {"halfPair", "[\"\\ud800\"]", 1, 3, "surrogate"},
    {"badUtf8", "[\"ab\xff\"]", 1, 5, "encoding"},
    {"longUtf8", "[\"\xc0\xaf\"]", 1, 3, "encoding"},
    {"controlInText", "[\"a\nb\"]", 1, 4, "Invalid"},
    {"zeroByte", QByteArray("[1]\0[2]", 7), 1, 4, "zero byte"},
    {"zeroInText", QByteArray("[\"a\0b\"]", 7), 1, 4, "quotation"},
    {"columnCountsCharacters", "[\"\xd0\x9a\xd0\xbe\xd1\x80\xd0\xbe\xd0\xb1\", x]", 1, 11, "value"},
    {"reservedKey", "{\"a\": 1, \"#b\": 2}", 1, 10, "reserved"},
    {"reservedFirstKey", "{\"#\": 2}", 1, 2, "reserved"},
    {"mixedKind", "{\"#mixed\": \"set\", \"#items\": []}", 1, 12, "mixed container"},
    {"mixedKindNumber", "{\"#mixed\": 1}", 1, 12, "mixed container"},
    {"mixedWithoutItems", "{\"#mixed\": \"list\"}", 1, 12, "mixed container"},
    {"mixedOtherKey", "{\"#mixed\": \"list\", \"a\": []}", 1, 20, "mixed container"},
    {"mixedItemsNoArray", "{\"#mixed\": \"list\", \"#items\": {}}", 1, 30, "mixed container"},
    {"mixedMore", "{\"#mixed\": \"list\", \"#items\": [], \"a\": 1}", 1, 34, "item"},
    {"itemNoObject", "{\"#mixed\": \"list\", \"#items\": [true]}", 1, 31, "item"},
    {"itemNoValue", "{\"#mixed\": \"list\", \"#items\": [{\"name\": \"a\"}]}", 1, 40, "item"},
    {"itemOtherKey", "{\"#mixed\": \"list\", \"#items\": [{\"nam\": \"a\"}]}", 1, 32, "item"},
    {"itemNameNumber", "{\"#mixed\": \"map\", \"#items\": [{\"name\": 1, \"value\": 2}]}", 1, 39, "item"},
    {"itemNameObject", "{\"#mixed\": \"map\", \"#items\": [{\"name\": {}, \"value\": 2}]}", 1, 40, "a name"},
    {"utf16Number", "{\"#utf16\": 1}", 1, 12, "#utf16"},
    {"utf16Odd", "{\"#utf16\": \"AA==\"}", 1, 12, "base64"},
    {"utf16NoBase64", "{\"#utf16\": \"%%%%\"}", 1, 12, "base64"},
    {"utf16More", "{\"#utf16\": \"AEE=\", \"a\": 1}", 1, 20, "#utf16"},
    {"deepArrays", nested("[", 257), 1, 257, "256 deep"},
    {"deepObjects", nested("{\"a\":", 257) + "{}", 1, 1282, "256 deep"},
    {"veryDeep", nested("[", 2000000), 1, 257, "256 deep"},
    {"veryDeepMixed", nested("{\"#mixed\":\"list\",\"#items\":[{\"value\":", 2000), 1, 9218, "256 deep"},
};

INSTANTIATE_TEST_SUITE_P(Texts, BrokenJson, ::testing::ValuesIn(kJson), caseName);

class BrokenXml : public ::testing::TestWithParam<Broken>
{
};

TEST_P(BrokenXml, IsRefusedWithItsPlace)
{
    expectRefusal(GetParam(), ModuleManager::fromXml);
}

const Broken kXml[] = {
    {"empty", "", 1, 1, "end of document"},
    {"noXml", "hello", 1, 2, "Start tag"},
    {"openElement", "<node type=\"list\">", 1, 19, "end of document"},
    {"wrongEnd", "<node type=\"list\">\n</nod>", 2, 7, "mismatch"},
    {"twoRoots", "<node type=\"null\"/><node type=\"null\"/>", 1, 39, "Extra content"},
    {"unknownRoot", "<recipe type=\"map\"/>", 1, 21, "unknown element \"recipe\""},
    {"unknownElement", "<node type=\"map\">\n <leaf/>\n</node>", 2, 2, "unknown element \"leaf\""},
    {"noType", "<node type=\"map\">\n <node name=\"a\">1</node></node>", 2, 2, "no type"},
    {"unknownType", "<node type=\"map\">\n\n  <node name=\"a\" type=\"float\">1</node></node>", 3, 3,
     "\"float\""},
    {"unknownAttribute", "<node type=\"int\" unit=\"mm\">1</node>", 1, 28, "unit=\"mm\""},
    {"unknownSpace", "<node type=\"int\" xml:space=\"keep\">1</node>", 1, 35, "xml:space"},
    {"attributeTwice", "<node type=\"int\" type=\"int\">1</node>", 1, 29, "redefined"},
    {"boolValue", "<node type=\"bool\">yes</node>", 1, 19, "\"yes\" is neither"},
    {"boolEmpty", "<node type=\"bool\"/>", 1, 20, "neither"},
    {"intText", "<node type=\"int\">12a</node>", 1, 18, "\"12a\" is no whole"},
    {"intFraction", "<node type=\"int\">1.0</node>", 1, 18, "no whole"},
    {"intTooLarge", "<node type=\"int\">9223372036854775808</node>", 1, 18, "64 bits"},
    {"intEmpty", "<node type=\"int\"></node>", 1, 18, "no whole"},
    {"intTwo", "<node type=\"int\">1 2</node>", 1, 18, "no whole"},
    {"doubleText", "<node type=\"double\">1,5</node>", 1, 21, "no finite"},
    {"doubleNan", "<node type=\"double\">nan</node>", 1, 21, "no finite"},
    {"doubleInf", "<node type=\"double\">-inf</node>", 1, 21, "no finite"},
    {"doubleHuge", "<node type=\"double\">1e400</node>", 1, 21, "no finite"},
    {"doublesText", "<node type=\"doubles\">0 0.5 x 1</node>", 1, 22, "\"x\""},
    {"doublesComma", "<node type=\"doubles\">0,5</node>", 1, 22, "\"0,5\""},
    {"doublesWithChild", "<node type=\"doubles\">0 <node type=\"int\">1</node></node>", 1, 41,
     "character data"},
    {"nullValue", "<node type=\"null\">0</node>", 1, 19, "null"},
    {"textInList", "<node type=\"list\">\n<node type=\"null\"/> 5 </node>", 2, 20, "between elements"},
    {"listInString", "<node type=\"string\">a<node type=\"null\"/></node>", 1, 41, "character data"},
    {"encodedInt", "<node type=\"int\" encoding=\"base64\">1</node>", 1, 36, "encoding"},
    {"unknownEncoding", "<node type=\"string\" encoding=\"hex\">00</node>", 1, 36, "encoding=\"hex\""},
    {"badBase64", "<node type=\"string\" encoding=\"base64\">%%</node>", 1, 39, "base64"},
    {"oddBase64", "<node type=\"string\" encoding=\"base64\">AA==</node>", 1, 39, "base64"},
    {"badName", "<node type=\"list\"><node name=\"?\" name-encoding=\"base64\" type=\"null\"/></node>", 1, 19,
     "name"},
    {"encodingWithoutName", "<node name-encoding=\"base64\" type=\"null\"/>", 1, 43, "no name"},
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
    {"deepDoubles", nested("<node type=\"map\">", 256) + "<node type=\"doubles\">1</node>", 1, 4353,
     "256 deep"},
    {"veryDeep", nested("<node type=\"list\">\n", 500000), 257, 1, "256 deep"},
};

INSTANTIATE_TEST_SUITE_P(Texts, BrokenXml, ::testing::ValuesIn(kXml), caseName);

} // namespace
