#include "project/template_tasks.h"

/// What the programs beside the motion task do.
namespace {

using namespace template_tasks;

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

TEST(TemplateWatch, monitoringTasksWatch)
{
    for (const Watch &watch : kWatches) {
        Cell cell;
        give(&cell, QString(watch.given).split(' '));
        const palx::TemplateChoice choice{2, 0, 0, 0};
        for (const Task &task : tasksOf(choice)) {
            if (QString(task.name) != watch.task)
                continue;
            Executor executor(programOf(task, choice), &cell);
            cell.ScriptRecorder::run(&executor, 10);
            EXPECT_NE(executor.activity(), Activity::Failed) << executor.fault().what;
        }
        std::string events;
        for (const std::string &event : cell.events)
            events += (events.empty() ? "" : " ") + event;
        EXPECT_EQ(events.substr(0, events.find(" stands")), watch.events) << watch.task << ' ' << watch.given;
    }
}

TEST(TemplateWatch, aFullPalletIsToldAndANewOneConfirmed)
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
    const palx::TemplateChoice choice{0, 1, 0, 0};
    Executor executor(programOf(tasksOf(choice)[2], choice), &cell);
    cell.ScriptRecorder::run(&executor, 100);
    const std::vector<std::string> expected{
        "DO3_1 pulse 1",     "DO3_3 pulse 1",    "DO3_1 pulse 1@3",    "DO3_3 pulse 1@3",
        "DO3_1 pulse 1@6",   "DO3_3 pulse 1@6",  "DO3_2=0@9",          "DO2_3=0@9",
        "DO3_1 pulse 0.5@9", "DO3_1 pulse 1@10", "DO3_3 pulse 1@10",   "DO3_2=1@13",
        "DO2_3=1@13",        "flagL=0@13",       "currentLayerL=1@13", "stands@13",
    };
    EXPECT_EQ(cell.events, expected);
}

TEST(TemplateWatch, bothPalletsFullCloseBothSides)
{
    Cell cell;
    give(&cell, {"flagL=1", "flagR=1", "DI2_5", "DI2_6"});
    cell.ScriptRecorder::at(2, [&cell] { cell.setState(State::EStop, true); });
    const palx::TemplateChoice choice{2, 1, 0, 0};
    Executor executor(programOf(tasksOf(choice)[2], choice), &cell);
    cell.ScriptRecorder::run(&executor, 3);
    const std::vector<std::string> expected{
        "flagL1=1",      "flagR1=1",        "DO3_1=0",         "DO3_2=0",       "DO3_5=0",
        "DO3_6=0",       "DO2_3=0",         "DO2_4=0",         "DO3_3 pulse 1", "DO3_1 pulse 1",
        "DO3_5 pulse 1", "DO3_1 pulse 1@3", "DO3_3 pulse 1@3", "stands@3",
    };
    EXPECT_EQ(cell.events, expected);
}

} // namespace
