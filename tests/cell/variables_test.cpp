#include "controller/program_variables.h"
#include "controller/recipes.h"
#include "controller/variables.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace controller;
using orba::Node;
using script::Target;
using script::Type;

namespace {

Node listOfVariables()
{
    Node list;
    list.reset(Node::Kind::List);
    list.add()->assign(makeVariable("count", "int", "3"));
    list.add()->assign(makeVariable("on", "bool", "false"));
    list.add()->assign(makeVariable("time", "double", "0.0"));
    list.add()->assign(makeVariable("clock0", "clock", "", false));
    list.add()->assign(makeVariable(
        "here", "robtarget", "p:{{1.5,-2,3},{0,0,1,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}", false));
    list.add()->assign(makeVariable("word", "string", "x"));
    list.add()->assign(makeVariable("odd", "matrix", "x"));
    list.add()->assign(makeVariable("count", "int", "7"));
    return list;
}

QString text(const Node &list, const char *name)
{
    return Variables::value(list, QString::fromLatin1(name))->toString();
}

} // namespace

TEST(ProgramVariables, TakeTypesAndValuesFromTheList)
{
    const ProgramVariables variables(listOfVariables());
    ASSERT_EQ(6u, variables.infos().size()) << "unknown types and second ones are left out";
    EXPECT_EQ(script::Value(std::int64_t{3}), variables.value(0));
    EXPECT_EQ(script::Value(0.0), variables.value(2));
    EXPECT_EQ(Type::Clock, script::typeOf(variables.value(3)));
    EXPECT_EQ(-2, std::get<Target>(variables.value(4)).y);
    EXPECT_EQ(script::Value(std::string("x")), variables.value(5));
    EXPECT_EQ(5, variables.idOf("word"));
    EXPECT_EQ(-1, variables.idOf("odd"));
}

TEST(ProgramVariables, PutBackWhatProgramsChanged)
{
    Node list = listOfVariables();
    ProgramVariables variables(list);
    EXPECT_FALSE(variables.flush(&list));
    EXPECT_FALSE(variables.set(0, std::int64_t{3})) << "the same";
    EXPECT_TRUE(variables.set(0, std::int64_t{4}));
    EXPECT_EQ("3", text(list, "count"));
    EXPECT_TRUE(variables.flush(&list)) << "it is persistent";
    EXPECT_EQ("4", text(list, "count"));
    EXPECT_EQ("7", list.at(7)->find(u"value.#0")->toString()) << "the second one of the name";
    variables.set(4, Target{1, 2, 3, 180, 0, 0});
    variables.set(3, script::Clock{2, 0, false});
    EXPECT_FALSE(variables.flush(&list)) << "neither is persistent";
    EXPECT_EQ("", text(list, "clock0"));
    const Target back = targetOfText(text(list, "here"));
    EXPECT_EQ(3, back.z);
    EXPECT_NEAR(180, std::abs(back.a), 1e-6);
}
