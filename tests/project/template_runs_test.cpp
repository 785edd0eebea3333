// What the program templates do, in a cell that only keeps book. That they fill pallets is tried in the simulated cell.

#include "controller/script/program.h"
#include "controller/script_recorder.h"
#include "project/rules/program_template.h"
#include "support/cell_variables.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace controller::script;

/// Runs files of a task for a left stack with a lift column or without, after what `start` says.
class Cell : public ScriptRecorder
{
public:
    Cell() : ScriptRecorder(cellVariables())
    {
        set("currentLayerL", 1), set("layerCountL", 1);
        set("SetZ", 150), set("MaxZ", 1000), set("Margin", 400), set("boxHeightL", 250);
        for (const char *name : {"OperationModeWrite", "ModesOfOperation"})
            registers.emplace(name, 0);
    }

    Value &at(const std::string &name)
    {
        const std::vector<VariableInfo> all = cellVariables();
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i].name == name)
                return variables[i];
        ADD_FAILURE() << name;
        return variables[0];
    }
    void set(const std::string &name, std::int64_t value) { at(name) = value; }
    std::string get(const std::string &name) { return toText(at(name)); }

    void runFiles(const char *task, TaskKind kind, const QStringList &files, bool lifts, double limit,
                  const char *start = nullptr)
    {
        std::vector<Source> sources;
        if (start)
            sources.push_back({"start.mod", start});
        for (const QString &file : files) {
            QByteArray text;
            QString why;
            const palx::TemplateChoice choice{0, lifts ? 0 : 1, 0, 0};
            EXPECT_TRUE(palx::readProgramTemplate(palx::programTemplate(task, file, choice), &text, &why))
                << why.toStdString();
            sources.push_back({file.toStdString() + ".mod", text.toStdString()});
        }
        const Built built = build({task, kind}, sources, cellVariables());
        for (const Problem &problem : built.problems)
            ADD_FAILURE() << toText(problem);
        Executor executor(built.program, this);
        ScriptRecorder::run(&executor, limit);
        EXPECT_NE(executor.activity(), Activity::Failed) << executor.fault().what;
    }
    /// One of the monitoring tasks.
    void watch(const QString &task, double limit)
    {
        const QStringList files =
            task == QLatin1String("task5") ? QStringList{"main", "Helper"} : QStringList("main");
        runFiles(task.toLatin1(), task == QLatin1String("task4") ? TaskKind::Normal : TaskKind::SemiStatic,
                 files, true, limit);
    }
};

struct WayHome
{
    Target from;
    int layer;
    int piece;
    std::vector<std::string> moves;
    const char *counters; ///< layer, piece
};

TEST(TemplateRuns, theWayHomeLeadsOutOfTheStack)
{
    const WayHome cases[] = {
        {{0, 300, 100}, 1, 1, {"move 0 10 100 v1000 fine"}, "11"}, // within Margin
        {{0, 450, 100},
         1,
         2,
         {"move 0 450 350 v1000 fine", "move 300 20 100 v1000 z200", "move 0 20 100 v1000 fine"},
         "12"},
        {{0, 450, 800},
         1,
         2,
         {"move 300 20 100 v1000 z200", "move 0 20 100 v1000 fine"},
         "12"},                                                   // no room above
        {{0, 10, 100}, 3, 3, {"move 0 20 200 v1000 fine"}, "22"}, // behind the last layer
        {{0, 0, 900}, 3, 1, {"move 0 10 100 v1000 fine"}, "31"},  // not at the pallet: its counters stay
    };
    for (const WayHome &c : cases) {
        Cell cell;
        cell.stand(c.from);
        cell.set("currentLayerL", c.layer), cell.set("layerCountL", c.piece);
        cell.runFiles("task0", TaskKind::Motion, {"BackHome", "Init", "ZuoMaduo"}, false, 10000,
                      "PROC main()\nBackHome()\nENDPROC\n");
        std::vector<std::string> moves;
        for (const std::string &event : cell.events)
            if (event.rfind("move", 0) == 0)
                moves.push_back(event.substr(0, event.find('@')));
        EXPECT_EQ(moves, c.moves);
        EXPECT_EQ(cell.get("currentLayerL") + cell.get("layerCountL"), c.counters);
        EXPECT_EQ(cell.get("boxheight"), c.from.y > 0 ? "250" : "300");
    }
}

struct Watch
{
    const char *task;
    const char *given;  ///< inputs, states, variables, and outputs that are on
    const char *events; ///< of one cycle
};

constexpr Watch kWatches[] = {
    {"task1", "", "DO3_8=1"},
    {"task1", "DI3_0", "DO3_8=0"},
    {"task3", "", "DO3_0=0 DO3_4=0 DO3_2=0 DO3_6=0 DO3_7=0 DO3_1=1 DO3_5=1"},
    {"task3", "estop0", "DO3_1=0 DO3_5=0 DO3_2=0 DO3_6=0 DO3_0=1 DO3_4=1 DO3_7=1"},
    {"task3", "relax collision", "DO3_1=0 DO3_5=0 DO3_2=0 DO3_6=0 DO3_0=1 DO3_4=1 DO3_7=1"},
    {"task3", "relax", "DO3_0=0 DO3_4=0 DO3_7=0"},
    {"task3", "move", "DO3_0=0 DO3_4=0 DO3_7=0"},
    {"task4", "", ""},
    {"task4", "palletStatus=1 DI2_5", ""},
    {"task4", "palletStatus=1 DI2_6", "DO3_1=1 pause"},
    {"task4", "palletStatus=2 DI2_5", "DO3_5=1 pause"},
    {"task4", "palletStatus=2 DI2_6 DO2_6 DI2_15 grabbing=1", ""},
    {"task4", "palletStatus=2 DI2_6 DO2_6", ""},
    {"task4", "palletStatus=2 DI2_6 DO2_6 grabbing=1", "DO3_5=1@1 grabbing=0@1 pause@1"},
    {"task4", "palletStatus=1 DI2_5 DO2_6 grabbing=1", "DO3_1=1@1 grabbing=0@1 pause@1"},
    {"task5", "use_rise=1", ""},
    {"task5", "use_rise=1 DI2_1", "ControlwordWrite=0 use_rise=2@1"},
    {"task5", "use_rise=2 DI2_1", ""},
    {"task5", "use_rise=2 DI2_0",
     "ControlwordWrite=0 ControlwordWrite=0@0.01 ControlwordWrite=0@0.01 OperationModeWrite=1@1.01 "
     "ControlwordWrite=6@1.01 ControlwordWrite=7@1.02 ControlwordWrite=15@1.03 use_rise=1@2.03"},
};

void give(Cell *cell, const QStringList &given)
{
    const QStringList states{"estop0", "collision", "relax", "move"};
    for (const QString &what : given) {
        const std::string name = what.section('=', 0, 0).toStdString();
        for (int i = 0; i < kSignals; ++i) {
            if (name == signalName(false, i))
                cell->setInput(i, true);
            if (name == signalName(true, i))
                cell->setOutput(i, true);
        }
        if (states.contains(what))
            cell->setState(static_cast<State>(states.indexOf(what)), true);
        else if (name == "grabbing")
            cell->at(name) = true;
        else if (what.contains('='))
            cell->set(name, what.section('=', 1).toInt());
    }
}

TEST(TemplateRuns, monitoringTasksWatch)
{
    for (const Watch &watch : kWatches) {
        Cell cell;
        give(&cell, QString(watch.given).split(' '));
        cell.watch(watch.task, 10);
        std::string events;
        for (const std::string &event : cell.events)
            events += (events.empty() ? "" : " ") + event;
        EXPECT_EQ(events.substr(0, events.find(" stands")), watch.events) << watch.task << ' ' << watch.given;
    }
}

TEST(TemplateRuns, aFullPalletIsToldAndANewOneConfirmed)
{
    Cell cell;
    give(&cell, {"flagL=1", "DI2_5", "DO2_3", "currentLayerL=3", "relax"});
    const auto input = [&cell](int channel, bool on) {
        return [&cell, channel, on] { cell.setInput(channel, on); };
    };
    cell.ScriptRecorder::at(1, input(3, true)); // the arrow button while the full pallet is there
    cell.ScriptRecorder::at(7, input(3, false));
    cell.ScriptRecorder::at(7, input(5, false));
    cell.ScriptRecorder::at(9.5, input(5, true));
    cell.ScriptRecorder::at(11, input(3, true));
    cell.watch("task2", 100);
    const std::vector<std::string> expected{
        "DO3_1 pulse 1",     "DO3_3 pulse 1",    "DO3_1 pulse 1@3",    "DO3_3 pulse 1@3",
        "DO3_1 pulse 1@6",   "DO3_3 pulse 1@6",  "DO3_2=0@9",          "DO2_3=0@9",
        "DO3_1 pulse 0.5@9", "DO3_1 pulse 1@10", "DO3_3 pulse 1@10",   "DO3_2=1@13",
        "DO2_3=1@13",        "flagL=0@13",       "currentLayerL=1@13", "stands@13",
    };
    EXPECT_EQ(cell.events, expected);
}

} // namespace
