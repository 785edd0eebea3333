#include "controller/variables.h"
#include "recipes.h"

#include <gtest/gtest.h>

using namespace controller;
using orba::Node;

namespace {

constexpr const char *kTarget = "p:{{0,0,0},{0,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}";

Node makeList()
{
    Node list;
    list.reset(Node::Kind::List);
    list.add()->assign(makeVariable("on", "bool", "false"));
    list.add()->assign(makeVariable("count", "int", "3"));
    list.add()->assign(makeVariable("time", "double", "0.0"));
    list.add()->assign(makeVariable("title", "string", "x"));
    list.add()->assign(makeVariable("HOME", "robtarget", kTarget));
    list.add()->assign(makeVariable("clock", "clock", ""));
    list.add()->assign(makeVariable("loose", "int", "1", false));
    return list;
}

QString valueText(const Node &list, const char *name)
{
    const Node *value = Variables::value(list, QLatin1String(name));
    return value ? value->toString() : QStringLiteral("(none)");
}

} // namespace

TEST(Variables, TakeValuesOfTheirKind)
{
    const struct
    {
        const char *json, *name;
        const char *value; ///< afterwards; null: refused
    } cases[] = {
        {R"({"on":2})", "on", nullptr},
        {R"({"count":-7})", "count", "-7"},
        {R"({"count":1.5})", "count", nullptr},
        {R"({"time":1.5})", "time", "1.5"},
        {R"({"HOME":"p:{{1,2.5,-3},{1,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,1e2}"})", "HOME",
         "p:{{1,2.5,-3},{1,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,1e2}"},
        {R"({"HOME":"p:{{1,2.5},{1,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}"})", "HOME", nullptr},
        {R"({"clock":"1"})", "clock", nullptr},
    };
    for (const auto &c : cases) {
        Node list = makeList();
        const QString why = Variables::modify(list, nodeFromJson(c.json));
        EXPECT_EQ(c.value != nullptr, why.isEmpty()) << c.json << why;
        if (c.value)
            EXPECT_EQ(QLatin1String(c.value), valueText(list, c.name)) << c.json;
        else
            EXPECT_EQ(makeList(), list) << c.json;
    }
}

TEST(Variables, AreChangedAllOrNone)
{
    Node list = makeList();
    EXPECT_EQ("the variable \"time\" of type double does not take \"x\"",
              Variables::modify(list, nodeFromJson(R"({"count":9,"time":"x"})")));
    EXPECT_EQ(makeList(), list);
    EXPECT_EQ("there is no variable \"b\"", Variables::modify(list, nodeFromJson(R"({"count":9,"b":1})")));
    EXPECT_EQ("the variable \"loose\" is not persistent",
              Variables::modify(list, nodeFromJson(R"({"loose":9})")));
    EXPECT_EQ(makeList(), list);
}
