#include "controller/script_recorder.h"

#include "controller/script/limits.h"
#include "controller/script/program.h"

#include <gtest/gtest.h>

namespace {

using namespace controller::script;

const std::vector<VariableInfo> kVariables{{"count", Type::Int}, {"clock0", Type::Clock}};

std::shared_ptr<const Program> programOf(const std::string &statements)
{
    const Built built =
        build({"task2", TaskKind::Normal},
              {{"main.mod", "GLOBAL PROC main()\n" + statements + "\nENDPROC\n"}}, kVariables);
    for (const Problem &problem : built.problems)
        ADD_FAILURE() << toText(problem);
    return built.program;
}

TEST(ScriptExecutor, aBusyLoopGivesItsTurnBack)
{
    for (const char *loop : {"VAR int i\nWHILE true\ni := 1 - i\nENDWHILE",
                             "ClockStart(clock0)\nWHILE ClockRead(clock0) < 5\nENDWHILE"}) {
        ScriptRecorder world(kVariables);
        Executor executor(programOf(loop), &world);
        for (int turn = 0; turn < 3; ++turn)
            EXPECT_EQ(executor.turn(), Activity::Ready);
    }
}

TEST(ScriptExecutor, aLoopThatChangesNothingIsIdle)
{
    ScriptRecorder world(kVariables);
    Executor executor(programOf("VAR int i\nWHILE true\ni := count\nIF i > 3\nRETURN\nENDIF\nENDWHILE"),
                      &world);
    EXPECT_EQ(executor.turn(), Activity::Idle);
    EXPECT_EQ(executor.location().line, 3);
    world.variables[0] = std::int64_t{4};
    EXPECT_EQ(executor.turn(), Activity::Ended);
    EXPECT_EQ(executor.turn(), Activity::Ended);
}

TEST(ScriptExecutor, saysWhereItStands)
{
    ScriptRecorder world(kVariables);
    Executor executor(programOf("sub()\nENDPROC\nPROC sub()\nPAUSE\nWait(2)\ncount := 1 / 0"), &world);
    const auto expectAt = [&executor](int line, Activity activity) {
        const Location at = executor.location();
        EXPECT_EQ(at.task + ' ' + at.file + ' ' + at.procedure, "task2 main.mod sub");
        EXPECT_EQ(at.line, line);
        EXPECT_EQ(executor.activity(), activity);
    };
    EXPECT_EQ(executor.location().line, 2);
    EXPECT_EQ(executor.location().procedure, "main");
    world.run(&executor, 0); // starts with the pause, then sleeps
    expectAt(5, Activity::Ready);
    world.run(&executor, 1);
    expectAt(6, Activity::Asleep);
    EXPECT_EQ(executor.wakeTime(), 2);
    world.run(&executor, 3);
    expectAt(7, Activity::Failed);
    EXPECT_EQ(executor.fault().what, "division by 0");
    EXPECT_EQ(executor.fault().where.line, 7);
}

} // namespace
