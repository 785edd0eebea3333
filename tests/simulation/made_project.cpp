#include "made_project.h"

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "orba/module_manager.h"
#include "project/rules/project_commit.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "shell/host_session.h"
#include "stack/recipe_file.h"
#include "stack/way_points.h"
#include "support/test_support.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <tuple>

using orba::Node;

namespace {

/// What an operator would choose on the project page.
class Parameters : public palx::ProjectSteps
{
public:
    explicit Parameters(const LineSetup &setup)
    {
        values_.ensure(u"scheme_layout")->setInt(setup.scheme);
        values_.ensure(u"bollard")->setInt(setup.hasLift ? 0 : 1);
    }
    void saveParameters(const QString &name) override { palx::writeProjectParameters(name, values_); }
    void becameCurrent() override { palx::createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool) override {}

private:
    Node values_;
};

/// A taught point on the other side of the robot's foot.
void turnAbout(Node *plugin, const char16_t *path)
{
    Node *point = plugin->find(path);
    ASSERT_TRUE(point);
    for (const int axis : {0, 1})
        point->find(u"trans")->setNumber(axis, -point->find(u"trans")->number(axis));
    point->find(u"rot")->setNumber(2, 3.141592653589793);
}

void lookBackwards(Node *plugin)
{
    plugin->set(u"global_wobj.#0.towards", 1);
    plugin->set(u"global_wobj.#1.towards", 1);
    turnAbout(plugin, u"global_wobj.#0.left_origin_point");
    turnAbout(plugin, u"global_wobj.#1.right_origin_point");
    turnAbout(plugin, u"global_tool.#2.incoming_settings.bottom_left_node");
    // Across the conveyor products lie to the same side of the corner in either cell.
    plugin->find(u"global_tool.#2.incoming_settings.bottom_left_node.trans")->setNumber(1, -0.10);
    plugin->set(u"global_tool.#3.waypoint_settings.get.enter_x", 150);
}

void shorten(Node *list, int count)
{
    while (count > 0 && list->size() > count)
        list->removeAt(list->size() - 1);
}

/// The cell of the examples, its recipes as long as wanted; turned by half a turn for "towards" 1.
Node cellOf(const LineSetup &setup)
{
    const palx::RecipeFile file = palx::readRecipeFile(
        QStringLiteral(PALX_SOURCE_DIR "/examples/global-cell.json"), palx::pluginNode()->node());
    EXPECT_EQ(QString(), file.error);
    Node cell = file.content;
    Node *stacks = cell.find(u"stacks");
    for (int i = 0; i < stacks->size(); ++i) {
        shorten(stacks->at(i)->find(u"layers"), setup.layers);
        Node *patterns = stacks->at(i)->find(u"patterns");
        for (int p = 0; p < patterns->size(); ++p)
            shorten(patterns->at(p), setup.products - p);
    }
    if (setup.towards == 1)
        lookBackwards(&cell);
    return cell;
}

/// What an operator does from the first recipe to the project that is about to run.
void setUpLine(const LineSetup &setup)
{
    const Node cell = cellOf(setup);
    for (const char *key : {"stacks", "global_tool", "global_wobj"})
        palx::pluginNode()->c(key)->copyFrom(*cell.find(QString::fromLatin1(key)));
    for (orba::ModuleObject *stack : palx::stacksNode()->cmobjs())
        palx::genStackWayPoints(stack);
    palx::saveAllToRC(false);
    EXPECT_TRUE(palx::switchToTool());
    ScriptedPresenter presenter;
    presenter.answer(true);
    Parameters parameters(setup);
    EXPECT_TRUE(palx::addProject(QStringLiteral("Line"), std::nullopt, &parameters));
    for (const int side : {0, 1})
        if (setup.scheme == 2 || setup.scheme == side)
            palx::setValueOfPERSVar(side == 0 ? QStringLiteral("enableStackL")
                                              : QStringLiteral("enableStackR"),
                                    QStringLiteral("1"));
}

struct Made
{
    QTemporaryDir folder;
    MadeProject project;
};

std::unique_ptr<Made> make(const LineSetup &setup)
{
    auto made = std::make_unique<Made>();
    made->project.dataFolder = made->folder.filePath(QStringLiteral("data"));
    made->project.workspaceFolder = made->folder.filePath(QStringLiteral("workspace"));
    controller::StationOptions station;
    station.dataFolder = made->project.dataFolder;
    station.workspaceFolder = made->project.workspaceFolder;
    controller::SteppedCarrier *way = nullptr;
    host::SessionOptions options;
    options.workspaceFolder = station.workspaceFolder;
    options.linkedPlugins = QStringList(QStringLiteral("palx_workstation"));
    options.pages = false;
    options.carrier = [&] {
        auto carrier = std::make_unique<controller::SteppedCarrier>(station);
        way = carrier.get();
        return carrier;
    };
    host::HostSession session(options);
    EXPECT_TRUE(session.start());
    EXPECT_TRUE(waitUntil([] { return !m("nexo.r.id")->getString().isEmpty(); }));
    setUpLine(setup);
    const auto *link = host::ControllerLink::current();
    EXPECT_TRUE(waitUntil([link] { return link->unsettledEdits() == 0 && link->isIdle(); }));
    made->project.home = *palx::stacksNode()->node().find(u"#0.get.enter_p");
    EXPECT_TRUE(way->core().station().save());
    QFile::remove(made->project.dataFolder +
                  QStringLiteral("/cell.state")); // a cell that nobody used yet, with its own seed
    return made;
}

} // namespace

const MadeProject &madeProject(const LineSetup &setup)
{
    using Key = std::tuple<int, bool, int, int, int>;
    static std::map<Key, std::unique_ptr<Made>> known;
    std::unique_ptr<Made> &made =
        known[{setup.scheme, setup.hasLift, setup.towards, setup.layers, setup.products}];
    if (!made)
        made = make(setup);
    return made->project;
}
