#include "line.h"

#include "controller/recipes.h"
#include "orba/module_manager.h"
#include "project/rules/program_template.h"
#include "stack/recipe_file.h"
#include "stack/way_points.h"
#include "support/cell_variables.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using orba::Node;

namespace {

struct Task
{
    const char *name;
    const char *type;
    QStringList files;
};

QVector<Task> tasksOf(const LineSetup &setup)
{
    QStringList motion{QStringLiteral("main"), QStringLiteral("BackHome"), QStringLiteral("Init")};
    if (setup.scheme != 1)
        motion.append(QStringLiteral("ZuoMaduo"));
    if (setup.scheme != 0)
        motion.append(QStringLiteral("YouMaduo"));
    const QStringList main{QStringLiteral("main")};
    QVector<Task> tasks{{"task0", "motion", motion},
                        {"task1", "semi_static", main},
                        {"task2", "semi_static", main},
                        {"task3", "semi_static", main},
                        {"task4", "normal", main}};
    if (setup.hasLift) {
        tasks.first().files.append(QStringLiteral("Helper"));
        tasks.append({"task5", "semi_static", {QStringLiteral("main"), QStringLiteral("Helper")}});
    }
    return tasks;
}

/// The value that a project declares.
const char *firstValue(const std::string &name)
{
    static const std::map<std::string, const char *> known{
        {"currentLayerL", "1"},
        {"currentLayerR", "1"},
        {"layerCountL", "1"},
        {"layerCountR", "1"},
        {"boxHeightL", "300"},
        {"boxHeightR", "300"},
        {"rise", "1"},
        {"SetZ", "700"},
        {"MaxZ", "1000"},
        {"Margin", "400"},
        {"liftHeight", "550"},
        {"boxheight", "300"},
        {"BHOME", "p:{{0,0,0},{0,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}"}};
    const auto found = known.find(name);
    return found == known.end() ? "0" : found->second;
}

bool isPersistent(const std::string &name)
{
    for (const char *plain : {"clock0", "boxheight", "flagLL", "flagRR", "flag", "BHOME"})
        if (name == plain)
            return false;
    return true;
}

/// A taught point on the other side of the robot's foot.
void turnAbout(Node *plugin, const char16_t *path)
{
    Node *point = plugin->find(path);
    ASSERT_TRUE(point);
    for (const int axis : {0, 1})
        point->find(u"trans")->setNumber(axis, -point->find(u"trans")->number(axis));
    point->find(u"rot")->setNumber(2, controller::kPi);
}

/// The cell of the examples; turned by half a turn for "towards" 1.
Node cellOf(const LineSetup &setup)
{
    Node plugin;
    EXPECT_TRUE(orba::ModuleManager::readFromJson(
        QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json"), &plugin));
    const palx::RecipeFile file =
        palx::readRecipeFile(QStringLiteral(PALX_SOURCE_DIR "/examples/global-cell.json"), plugin);
    EXPECT_EQ(QString(), file.error);
    for (const char16_t *key : {u"stacks", u"global_tool", u"global_wobj"})
        plugin.ensure(key)->assign(*file.content.find(key));
    for (int i = 0; i < plugin.find(u"stacks")->size(); ++i) {
        Node *layers = plugin.find(u"stacks")->at(i)->find(u"layers");
        while (layers->size() > setup.layers)
            layers->removeAt(layers->size() - 1);
    }
    if (setup.towards == 1) {
        plugin.set(u"global_wobj.#0.towards", 1);
        plugin.set(u"global_wobj.#1.towards", 1);
        turnAbout(&plugin, u"global_wobj.#0.left_origin_point");
        turnAbout(&plugin, u"global_wobj.#1.right_origin_point");
        turnAbout(&plugin, u"global_tool.#2.incoming_settings.bottom_left_node");
        // Across the conveyor products lie to the same side of the corner in either cell.
        plugin.find(u"global_tool.#2.incoming_settings.bottom_left_node.trans")->setNumber(1, -0.10);
        plugin.set(u"global_tool.#3.waypoint_settings.get.enter_x", 150);
    }
    for (int i = 0; i < plugin.find(u"stacks")->size(); ++i)
        palx::genStackWayPoints(*plugin.find(u"stacks")->at(i), plugin);
    return plugin;
}

} // namespace

Line::Line(const LineSetup &setup) : setup_(setup)
{
    open();
    writePrograms();
    QString why;
    Node project;
    project.setString(QStringLiteral("SIM-0001/Line"));
    EXPECT_TRUE(station_->write(QStringLiteral("quill.project.cur_project"), project, &why)) << why;
    Node tasks;
    tasks.reset(Node::Kind::List);
    for (const Task &task : tasksOf(setup_)) {
        Node *record = tasks.add();
        record->ensure(u"name")->setString(QLatin1String(task.name));
        record->ensure(u"type")->setString(QLatin1String(task.type));
        record->ensure(u"priority")->setInt(2);
        for (const QString &file : task.files)
            record->ensure(u"files")->add()->ensure(u"name")->setString(file);
    }
    EXPECT_TRUE(station_->write(QStringLiteral("quill.project.task._list"), tasks, &why)) << why;
    declareVariables();
    sendRecipes();
}

void Line::open()
{
    controller::StationOptions options;
    options.dataFolder = folder_.filePath(QStringLiteral("data"));
    options.workspaceFolder = folder_.filePath(QStringLiteral("workspace"));
    options.seed = setup_.seed;
    station_ = std::make_unique<controller::Station>(options);
}

void Line::restart()
{
    EXPECT_TRUE(station_->save());
    station_.reset();
    open();
}

void Line::writePrograms()
{
    const palx::TemplateChoice choice{setup_.scheme, setup_.hasLift ? 0 : 1, setup_.towards, setup_.towards};
    const QDir project(folder_.filePath(QStringLiteral("workspace/SIM-0001/Line")));
    for (const Task &task : tasksOf(setup_)) {
        const QString name = QLatin1String(task.name);
        project.mkpath(name);
        for (const QString &file : task.files) {
            QByteArray text;
            QString why;
            ASSERT_TRUE(palx::readProgramTemplate(palx::programTemplate(name, file, choice), &text, &why))
                << why;
            QFile program(project.filePath(name + QLatin1Char('/') + file + QStringLiteral(".mod")));
            ASSERT_TRUE(program.open(QIODevice::WriteOnly));
            program.write(text);
        }
    }
}

void Line::declareVariables()
{
    Node list;
    list.reset(Node::Kind::List);
    for (const controller::script::VariableInfo &info : cellVariables())
        list.add()->assign(makeVariable(info.name.c_str(), controller::script::typeName(info.type),
                                        firstValue(info.name), isPersistent(info.name)));
    QString why;
    EXPECT_TRUE(station_->write(QStringLiteral("quill.project.var._list"), list, &why)) << why;
    set("enableStackL", setup_.scheme != 1);
    set("enableStackR", setup_.scheme != 0);
}

void Line::sendRecipes()
{
    Node plugin = cellOf(setup_);
    home_ = *plugin.find(u"stacks.#0.get.enter_p");
    EXPECT_EQ(QString(), station_->request(QStringLiteral("pallet.data"), *plugin.find(u"stacks")).refusal);
    EXPECT_EQ("", ask("sys.toolset", R"({"name":"gripper","end":{"trans":[0,0,0.31],"rot":[0,0,0]},
        "ref":{"trans":[0,0,0],"rot":[0,0,0]},"load":{"mass":16,"cog":[0,0,0.1],"inertia":[0.3,0.3,0.2]}})"));
}

// ---------------------------------------------------------------- running

QString Line::ask(const char *request, const char *payload)
{
    Node node = nodeFromJson(payload);
    return station_->request(QString::fromLatin1(request), node).refusal;
}

void Line::start()
{
    Node move = nodeFromJson(R"({"type":"j","motion":{"toolset":"gripper","speed":1000},"point":null})");
    move.find(u"point")->assign(home_);
    Node nothing;
    ASSERT_EQ(QString(), station_->request(QStringLiteral("motion.start"), move).refusal);
    while (station_->isBusy()) {
        station_->advance(0.1);
        station_->request(QStringLiteral("motion.hold"), nothing);
    }
    ASSERT_TRUE(station_->tree().getBool(u"nexo.robot.arrived"));
    ASSERT_EQ("", ask("program.run"));
}

void Line::run(double seconds)
{
    station_->simulate(seconds);
    station_->publishAll();
}

bool Line::runUntil(const std::function<bool()> &condition, double bound)
{
    const double end = world().now() + bound;
    while (!condition() && world().now() < end)
        station_->simulate(0.1);
    station_->publishAll();
    return condition();
}

bool Line::isFull()
{
    const bool isLeft = setup_.scheme == 1 || number("flagL") == 1;
    const bool isRight = setup_.scheme == 0 || number("flagR") == 1;
    return isLeft && isRight && number("palletStatus") == 0;
}

void Line::exchangePallet(int side)
{
    const bool isLeft = side == 0;
    EXPECT_EQ("",
              ask("cell.pallet", isLeft ? R"({"side":0,"action":"take"})" : R"({"side":1,"action":"take"})"));
    run(6); // lamps and buzzer take their time
    EXPECT_EQ(
        "", ask("cell.pallet", isLeft ? R"({"side":0,"action":"bring"})" : R"({"side":1,"action":"bring"})"));
    run(2);
    EXPECT_EQ("", ask("cell.input",
                      isLeft ? R"({"signal":"DI2_3","seconds":5})" : R"({"signal":"DI2_4","seconds":5})"));
    run(6);
}

qint64 Line::number(const char *variable)
{
    const auto *variables = runner().variables();
    const int id = variables ? runner().variables()->idOf(variable) : -1;
    if (id < 0) {
        const Node *list = station_->tree().find(u"quill.project.var._list");
        const Node *value = controller::Variables::value(*list, QString::fromLatin1(variable));
        return value ? value->toInt() : -1;
    }
    const controller::script::Value &value = variables->value(id);
    return std::holds_alternative<bool>(value) ? std::get<bool>(value) : std::get<std::int64_t>(value);
}

void Line::set(const char *variable, int value)
{
    Node values;
    values.ensure(QString::fromLatin1(variable))->setInt(value);
    EXPECT_EQ(QString(), station_->request(QStringLiteral("monitor.pers.modify"), values).refusal);
}

QString Line::violations()
{
    QString text;
    for (const auto &violation : world().violations())
        text += QStringLiteral("%1 %2:%3 layer %4 piece %5 %6\n")
                    .arg(QString::fromStdString(violation.where.task),
                         QString::fromStdString(violation.where.file))
                    .arg(violation.where.line)
                    .arg(violation.layer)
                    .arg(violation.piece)
                    .arg(QString::fromStdString(violation.what));
    return text;
}
