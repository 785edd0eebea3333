#include "controller/script/limits.h"
#include "controller/script/program.h"
#include "controller/script/vocabulary.h"

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

Built buildOf(const std::vector<Source> &sources)
{
    return build({"task0", TaskKind::Motion}, sources, {});
}

/// The first problem, or an empty text.
std::string problemOf(const std::string &text)
{
    const Built built = buildOf({{"main.mod", text}});
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

TEST(ScriptLimits, namesAndTexts)
{
    const std::string name(kMaxName, 'a');
    EXPECT_EQ(problemOf(mainWith("VAR int " + name)), "");
    EXPECT_EQ(problemOf(mainWith("VAR int " + name + 'a')),
              "main.mod:2:9: the name \"" + name + "...\" has more than 64 characters");
    const auto text = [](std::size_t size) {
        return mainWith("VAR string s := \"" + std::string(size, 'x') + '"');
    };
    EXPECT_EQ(problemOf(text(kMaxText - 1)), "");
    EXPECT_EQ(problemOf(text(kMaxText)), "main.mod:2:17: the text is longer than 1000 bytes");
}

TEST(ScriptLimits, parametersAndLocals)
{
    const auto call = [](std::size_t count) {
        std::string parameters, arguments;
        for (std::size_t i = 0; i < count; ++i) {
            parameters += (i ? ", int a" : "int a") + std::to_string(i);
            arguments += i ? ", 1" : "1";
        }
        return mainWith("sub(" + arguments + ")") + "PROC sub(" + parameters + ")\nENDPROC\n";
    };
    EXPECT_EQ(problemOf(call(kMaxParameters)), "");
    EXPECT_EQ(problemOf(call(kMaxParameters + 1)), "main.mod:2:53: more than 16 arguments");
    std::string locals;
    for (std::size_t i = 0; i < kMaxLocals; ++i)
        locals += "VAR int i" + std::to_string(i) + '\n';
    EXPECT_EQ(problemOf(mainWith(locals)), "");
    EXPECT_EQ(problemOf(mainWith(locals + "VAR int more")),
              "main.mod:130:9: a procedure has at most 128 parameters, variables and counters");
}

TEST(ScriptLimits, filesAndProcedures)
{
    std::string text = mainWith("");
    for (std::size_t i = 1; i < kMaxProcedures; ++i)
        text += "PROC p" + std::to_string(i) + "()\nENDPROC\n";
    EXPECT_EQ(problemOf(text), "");
    EXPECT_EQ(problemOf(text + "PROC more()\nENDPROC\n"),
              "main.mod:1:1: the task has 257 procedures, 256 are allowed");
    std::vector<Source> files(kMaxFiles, {"more.mod", ""});
    files.front() = {"main.mod", mainWith("")};
    EXPECT_TRUE(buildOf(files).problems.empty());
    files.push_back({"more.mod", ""});
    ASSERT_EQ(buildOf(files).problems.size(), 1u);
    EXPECT_EQ(buildOf(files).problems.front().what, "the task has 33 files, 32 are allowed");
}

TEST(ScriptLimits, problems)
{
    const std::vector<Source> two{{"main.mod", mainWith(repeated("x := 1\n", 70))},
                                  {"other.mod", repeated("\x01\xFF", 70)}};
    EXPECT_EQ(buildOf(two).problems.size(), kMaxProblems);
    EXPECT_EQ(problemOf("\xEF\xBB\xBFGLOBAL PROC main()\r\nENDPROC"), ""); // byte-order mark, other line ends
}

TEST(ScriptNames, ofSignalsSpeedsAndZones)
{
    EXPECT_EQ(signalName(false, signalIndex(3, 11)), "DI3_11");
    EXPECT_EQ(fixedName("v4000").index, 4000);
    EXPECT_EQ(fixedName("z0").meaning, Meaning::Zone);
    for (const char *name :
         {"", "v", "v0", "v-1", "v01", "v1.5", "v1234567", "z1x", "DI1_0", "DI2_", "DO2_016"})
        EXPECT_EQ(fixedName(name).meaning, Meaning::None) << name;
}

} // namespace
