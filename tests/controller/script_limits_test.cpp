#include "controller/script/limits.h"
#include "controller/script/program.h"

#include <gtest/gtest.h>

/// What is too much is refused with its place, and what is just allowed is read.
namespace {

using namespace controller::script;

std::string repeated(const std::string &text, std::size_t times)
{
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string mainWith(const std::string &statements)
{
    return "GLOBAL PROC main()\n" + statements + "\nENDPROC\n";
}

/// The first problem, or an empty text.
std::string problemOf(const std::string &text)
{
    const Built built = build({"task0", TaskKind::Motion}, {{"main.mod", text}}, {});
    return built.problems.empty() ? std::string() : toText(built.problems.front());
}

TEST(ScriptLimits, nesting)
{
    const auto blocks = [](int depth) {
        return mainWith(repeated("IF true\n", std::size_t(depth)) + repeated("ENDIF\n", std::size_t(depth)));
    };
    EXPECT_EQ(problemOf(blocks(kMaxNesting)), "");
    EXPECT_EQ(problemOf(blocks(5000)), "main.mod:34:1: more than 32 blocks inside each other");
}

TEST(ScriptLimits, expressions)
{
    const auto with = [](const std::string &expression) { return mainWith("VAR int i\ni := " + expression); };
    const std::string what = "the expression is nested deeper than 100 levels";
    EXPECT_EQ(problemOf(with("1" + repeated(" + 1", kMaxDepth - 1))), "");
    EXPECT_EQ(problemOf(with("1" + repeated(" + 1", kMaxDepth))), "main.mod:3:404: " + what);
    EXPECT_EQ(problemOf(with(repeated("(", kMaxDepth - 1) + "1" + repeated(")", kMaxDepth - 1))), "");
    EXPECT_EQ(problemOf(with(repeated("(", 50000))), "main.mod:3:106: " + what);
    EXPECT_EQ(problemOf(with(repeated("Abs(", 50000))), "main.mod:3:406: " + what);
}

} // namespace
