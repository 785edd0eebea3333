#include "controller/script/program.h"
#include "controller/script_recorder.h"
#include "project/rules/program_template.h"
#include "support/cell_variables.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <gtest/gtest.h>

/// The program templates as programs: they can be run, and do what a cell relies on.
namespace {

using namespace controller::script;

struct Task
{
    const char *name;
    TaskKind kind;
    QStringList files;
};

/// As a project's parameters ask for them.
QVector<Task> tasksOf(const palx::TemplateChoice &choice)
{
    QStringList motion{"main", "BackHome", "Init"};
    if (choice.schemeLayout != 1)
        motion.append("ZuoMaduo");
    if (choice.schemeLayout != 0)
        motion.append("YouMaduo");
    if (choice.bollard == 0)
        motion.append("Helper");
    QVector<Task> tasks{{"task0", TaskKind::Motion, motion},
                        {"task1", TaskKind::SemiStatic, {"main"}},
                        {"task2", TaskKind::SemiStatic, {"main"}},
                        {"task3", TaskKind::SemiStatic, {"main"}},
                        {"task4", TaskKind::Normal, {"main"}}};
    if (choice.bollard == 0)
        tasks.append({"task5", TaskKind::SemiStatic, {"main", "Helper"}});
    return tasks;
}

QByteArray templateText(const QString &path)
{
    QByteArray text;
    QString why;
    EXPECT_TRUE(palx::readProgramTemplate(path, &text, &why)) << why.toStdString();
    EXPECT_FALSE(text.isEmpty()) << path.toStdString();
    return text;
}

std::shared_ptr<const Program> programOf(const Task &task, const palx::TemplateChoice &choice)
{
    std::vector<Source> sources;
    for (const QString &file : task.files)
        sources.push_back({file.toStdString() + ".mod",
                           templateText(palx::programTemplate(task.name, file, choice)).toStdString()});
    const Built built = build({task.name, task.kind}, sources, cellVariables());
    for (const Problem &problem : built.problems)
        ADD_FAILURE() << task.name << " scheme " << choice.schemeLayout << ": " << toText(problem);
    return built.program;
}

TEST(TemplatePrograms, everyCombinationCanBeRun)
{
    for (int i = 0; i < 3 * 2 * 2; ++i) {
        const palx::TemplateChoice choice{i % 3, i / 3 % 2, i / 6, i / 6};
        for (const Task &task : tasksOf(choice))
            EXPECT_TRUE(programOf(task, choice));
    }
}

/// Statements without comments, blanks at the ends and empty lines.
QStringList statements(const QString &path)
{
    QStringList lines;
    for (const QString &line : QString::fromUtf8(templateText(path)).split('\n'))
        lines.append(line.section('!', 0, 0).trimmed());
    lines.removeAll(QString());
    return lines;
}

/// The other side's words for those of the left side.
QStringList mirrored(QStringList lines)
{
    constexpr const char *kNoVariables[] = {"GLOBAL", "MoveL"};
    for (QString &line : lines) {
        for (const char *word : kNoVariables)
            line.replace(word, QString(word).toLower());
        line.replace(QRegularExpression("\\b(flag)LL\\b"), "\\1RR");
        line.replace(QRegularExpression("\\b(\\w+)L(1?)\\b"), "\\1R\\2");
        line.replace("ZuoMaDuo", "YouMaDuo").replace("(palletIndexR, 0)", "(palletIndexR, 1)");
        line.replace("DI2_5", "DI2_6").replace("palletStatus := 1", "palletStatus := 2");
        line.replace("BHOME.y > 0", "BHOME.y <= 0");
        for (const char *word : kNoVariables)
            line.replace(QString(word).toLower(), word);
    }
    return lines;
}

TEST(TemplatePrograms, theRightSideMirrorsTheLeft)
{
    const QMap<QString, QString> pairs{
        {"/motion/main/main_single_left.mod", "/motion/main/main_single_right.mod"},
        {"/motion/init/Init_single_left.mod", "/motion/init/Init_single_right.mod"},
        {"/motion/init/Init_single_bollard_left.mod", "/motion/init/Init_single_bollard_right.mod"},
        {"/motion/left/ZuoMaDuo_single_suction_bollard_no_clapboard.mod",
         "/motion/right/YouMaDuo_single_suction_bollard_no_clapboard.mod"},
        {"/motion/left/ZuoMaDuo_single_suction_no_bollard_no_clapboard.mod",
         "/motion/right/YouMaDuo_single_suction_no_bollard_no_clapboard.mod"},
        {"/motion/back_home/BackHome_Forward-facing_left.mod",
         "/motion/back_home/BackHome_Forward-facing_right.mod"},
        {"/motion/back_home/BackHome_Forward-facing_bollard_left.mod",
         "/motion/back_home/BackHome_Forward-facing_bollard_right.mod"},
    };
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair)
        EXPECT_EQ(mirrored(statements(pair.key())).join('\n').toStdString(),
                  statements(pair.value()).join('\n').toStdString());
}

TEST(TemplatePrograms, wayHomeDiffersOnlyInTheSignOfY)
{
    for (const QString &path : palx::programTemplates()) {
        if (!path.contains("Forward-facing"))
            continue;
        QString text = statements(path).join('\n');
        text.replace("BHOME.y > 0", "?").replace("BHOME.y <= 0", "BHOME.y > 0").replace("?", "BHOME.y <= 0");
        EXPECT_EQ(text, statements(QString(path).replace("Forward-facing", "Backwards")).join('\n'));
    }
}

// ---------------------------------------------------------------- runs

/// A cell of the recorder's: recipe "A" with layers of 3 and 2 pieces, lift column that obeys at once.
class Cell : public ScriptRecorder
{
public:
    Cell() : ScriptRecorder(cellVariables())
    {
        for (const char *name :
             {"OperationModeWrite", "ProfileAcceleWrite", "ProfileDeceWrite", "ProfileVelocityWrite",
              "PositionWrite", "VelocityWrite", "PositionRead", "PointAcknowledge", "ModesOfOperation"})
            registers.emplace(name, 0);
        onWritten = [this](const std::string &name) {
            if (name == "PositionWrite")
                registers["PositionRead"] = registers[name] + 900; // near enough
        };
        set("currentLayerL", 1), set("layerCountL", 1), set("currentLayerR", 1), set("layerCountR", 1);
        set("SetZ", 150), set("MaxZ", 1000), set("Margin", 400), set("liftHeight", 60),
            set("boxHeightL", 250);
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

    /// Runs one procedure of the left side's motion task, without a lift column or with one.
    void run(const std::string &procedure, bool lifts)
    {
        const palx::TemplateChoice choice{0, lifts ? 0 : 1, 0, 0};
        std::vector<Source> sources{{"start.mod", "PROC main()\n" + procedure + "()\nENDPROC\n"}};
        for (const QString &file : tasksOf(choice)[0].files.mid(1))
            sources.push_back({file.toStdString(),
                               templateText(palx::programTemplate("task0", file, choice)).toStdString()});
        const Built built = build({"task0", TaskKind::Motion}, sources, cellVariables());
        for (const Problem &problem : built.problems)
            ADD_FAILURE() << toText(problem);
        Executor executor(built.program, this);
        ScriptRecorder::run(&executor, 10000);
        EXPECT_EQ(executor.activity(), Activity::Ended);
    }

    /// What happened, without the times, from an event on.
    std::vector<std::string> eventsFrom(const std::string &first, std::size_t count) const
    {
        std::vector<std::string> found;
        for (const std::string &event : events) {
            const std::string what = event.substr(0, event.find('@'));
            if ((!found.empty() || what == first) && found.size() < count)
                found.push_back(what);
        }
        return found;
    }
    std::size_t count(const std::string &what) const
    {
        std::size_t count = 0;
        for (const std::string &event : events)
            count += event.substr(0, event.find('@')) == what ? 1 : 0;
        return count;
    }
};

TEST(TemplatePrograms, stackingFetchesAndSetsDownPieceByPiece)
{
    Cell cell;
    cell.setInput(signalIndex(3, 0), true);
    cell.run("ZuoMaDuo", false);
    const std::vector<std::string> expected{
        "update A 1 2",
        "clock0=0 runs",
        "move 100 20 100 v4000 z200", // above the conveyor
        "move 200 20 100 v4000 fine",
        "DO2_6=1",
        "grabbing=1",
        "move 100 20 100 v4000 z200",
        "move 300 20 100 v4000 z200", // enter
        "move 400 20 100 v4000 z200", // ready
        "move 500 20 100 v4000 z200", // approach
        "move 600 20 100 v4000 fine", // put
        "grabbing=0",
        "DO2_6=0",
        "palletCountL=2",
        "layerCountL=3",
        "move 700 20 100 v4000 z200", // exit
        "move 300 20 100 v4000 z200",
        "move 100 20 100 v4000 z200",
        "clock0=11.5", // ten moves of a second each, suction and release
        "clock0=0",
        "update A 1 3",
    };
    EXPECT_EQ(cell.eventsFrom("update A 1 2", expected.size()), expected);
    EXPECT_EQ(cell.get("flagLL") + cell.get("flagL") + cell.get("totalPalletsL"), "111");
    EXPECT_EQ(cell.get("palletCountL") + cell.get("layerCountL") + cell.get("currentLayerL"), "013");
    EXPECT_EQ(cell.get("cycleTimeL"), "11.5");
    EXPECT_EQ(cell.count("DO2_6=1"), 5u);
}

TEST(TemplatePrograms, theColumnFollowsTheLayers)
{
    Cell cell; // ready points lie at 100 and 200 mm, SetZ at 150
    cell.set("rise", 1);
    cell.setInput(signalIndex(3, 0), true);
    cell.run("ZuoMaDuo", true);
    EXPECT_EQ(cell.count("rise=0"), 2u); // before the first layer and when the pallet is full
    EXPECT_EQ(cell.count("PositionWrite=7000"), 2u);
    EXPECT_EQ(cell.count("move 600 10 100 v4000 fine"), 1u); // column down
    EXPECT_EQ(cell.count("move 600 10 140 v4000 fine"), 1u); // column up
    const std::vector<std::string> raising{
        "use_rise=1",
        "ControlwordWrite=0", // 128 times what was there, and back
        "ControlwordWrite=0",
        "ControlwordWrite=0", // power off
        "OperationModeWrite=1",
        "ControlwordWrite=6",
        "ControlwordWrite=7",
        "ControlwordWrite=15",
        "ProfileAcceleWrite=-1",
        "ProfileDeceWrite=-1",
        "ProfileVelocityWrite=350000",
        "PositionWrite=420000",
        "ControlwordWrite=31",
        "ControlwordWrite=15",
        "ControlwordWrite=0",
        "rise=1",
        "use_rise=0",
    };
    std::vector<std::string> expected{"update A 2 1"};
    expected.insert(expected.end(), raising.begin(), raising.end());
    EXPECT_EQ(cell.eventsFrom("update A 2 1", expected.size()), expected);
}

struct WayHome
{
    Target from;
    int layer;
    int piece;
    std::vector<std::string> moves;
    const char *counters; ///< layer, piece
};

TEST(TemplatePrograms, theWayHomeLeadsOutOfTheStack)
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
        {{0, 0, 900}, 1, 1, {}, "11"},                            // at the other pallet
    };
    for (const WayHome &c : cases) {
        Cell cell;
        cell.stand(c.from);
        cell.set("currentLayerL", c.layer), cell.set("layerCountL", c.piece);
        cell.run("BackHome", false);
        std::vector<std::string> moves;
        for (const std::string &event : cell.events)
            if (event.rfind("move", 0) == 0)
                moves.push_back(event.substr(0, event.find('@')));
        EXPECT_EQ(moves, c.moves);
        EXPECT_EQ(cell.get("currentLayerL") + cell.get("layerCountL"), c.counters);
        EXPECT_EQ(cell.get("boxheight"), c.from.y > 0 ? "250" : "300");
    }
}

// ---------------------------------------------------------------- monitoring

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

TEST(TemplatePrograms, monitoringTasksWatch)
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

TEST(TemplatePrograms, aFullPalletIsToldAndANewOneConfirmed)
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

TEST(TemplatePrograms, bothPalletsFullCloseBothSides)
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

/// The document says of which text it was printed; build the target operator_document when this fails.
TEST(TemplatePrograms, theOperatorDocumentIsUpToDate)
{
    QFile text(PALX_SOURCE_DIR "/docs/robot-programs.md");
    QFile document(PALX_SOURCE_DIR "/resources/mod_template.pdf");
    ASSERT_TRUE(text.open(QIODevice::ReadOnly) && document.open(QIODevice::ReadOnly));
    const QByteArray sum = QCryptographicHash::hash(text.readAll(), QCryptographicHash::Sha1).toHex().left(12);
    const QByteArray printed = document.readAll();
    EXPECT_TRUE(printed.startsWith("%PDF-"));
    EXPECT_TRUE(QByteArray(printed).replace('\0', "").contains("of text " + sum)); // kept in two-byte characters
}

} // namespace
