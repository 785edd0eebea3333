#include "project/rules/project_parameters_file.h"
#include "support/test_support.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using orba::Node;

namespace {

Node readList(const QString &file)
{
    Node list;
    QString why;
    EXPECT_TRUE(palx::readVariableList(file, &list, &why)) << qPrintable(why);
    return list;
}

void put(const QString &name, const QByteArray &content)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

TEST(ParametersFile, AddsTheParametersToEveryFormOfAList)
{
    const Node record = nodeFromJson(R"({"scheme_layout": 2, "bollard": 1, "left_stack_recipe": -1})");
    const QByteArray own = orba::ModuleManager::toXml(
        nodeFromJson(R"([{"name": "currentLayerL", "value": {"[0][0][0]": 3}}, {"name": "<a> & \"b\"\n</node>"}])"));
    Node withThem = nodeFromJson(R"([{"name": "currentLayerL"}])");
    palx::addParameterVariables(nodeFromJson(R"({"scheme_layout": 1})"), &withThem);
    QByteArray oneLine = own;
    oneLine.replace("\n <node", "<node").replace("\n  <node", "<node");
    const struct
    {
        const char *what;
        QByteArray text;
    } cases[] = {
        {"as written", own},
        {"with parameters already", orba::ModuleManager::toXml(withThem)},
        {"on few lines", oneLine},
        {"with a remark behind it", own + "<!-- end\n</node>\n-->\n"},
        {"a list of numbers", orba::ModuleManager::toXml(nodeFromJson("[1, 2]"))},
        {"an empty list", orba::ModuleManager::toXml(nodeFromJson("[]"))},
        {"not there", QByteArray()},
    };
    const QTemporaryDir folder;
    const QString file = folder.filePath("var.xml"), result = folder.filePath("out.xml");
    for (const auto &c : cases) {
        QFile::remove(file);
        if (!c.text.isEmpty())
            put(file, c.text);
        Node expected = readList(file);
        orba::FormatError error;
        put(result, palx::variableListWithParameters(expected, c.text, record, &error));
        EXPECT_FALSE(error.isSet()) << c.what;
        palx::addParameterVariables(record, &expected);
        EXPECT_EQ(readList(result), expected) << c.what;
    }
}

TEST(ParametersFile, KeepsTheTextOfTheVariablesAsItStands)
{
    const QByteArray text = orba::ModuleManager::toXml(nodeFromJson(R"([{"name": "a", "value": 1.5}])"));
    const Node list = nodeFromJson(R"([{"name": "a", "value": 1.5}])");
    orba::FormatError error;
    const QByteArray all = palx::variableListWithParameters(list, text, nodeFromJson("{}"), &error);
    Node expected = list;
    palx::addParameterVariables(nodeFromJson("{}"), &expected);
    EXPECT_EQ(all, orba::ModuleManager::toXml(expected)) << "to the byte as if all was written";
}
