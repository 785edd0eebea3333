#include "simulation_project.h"

#include "controller/in_process_carrier.h"
#include "core/controller_link.h"
#include "project/rules/project_commit.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "stack/way_points.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "xservice.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace cli {
namespace {

const QString kProject = QStringLiteral("Simulation");
constexpr int kSettleMs = 20000; // of a machine that is busy with other things

/// The place of a recipe in the list of its side, as projects and programs name it.
int indexOnSide(const StackedSide &side)
{
    return palx::sideRecipes(palx::stacksNode()->node(), side.side == 0).indexOf(side.recipe);
}

/// What a person would choose on the project page.
class Parameters : public palx::ProjectSteps
{
public:
    Parameters(const QVector<StackedSide> &sides, bool withLift)
    {
        const int scheme = sides.size() == 2 ? 2 : sides.first().side;
        values_.ensure(u"scheme_layout")->setInt(scheme);
        values_.ensure(u"bollard")->setInt(withLift ? 0 : 1);
        for (const StackedSide &side : sides)
            values_.ensure(side.side == 0 ? u"left_stack_recipe" : u"right_stack_recipe")
                ->setInt(indexOnSide(side));
    }
    void saveParameters(const QString &name) override { palx::writeProjectParameters(name, values_); }
    void becameCurrent() override { palx::createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool) override {}

private:
    orba::Node values_;
};

orba::ModuleObject *recipeNode(const QString &name)
{
    const auto all = palx::stacksNode()->cmobjs();
    const auto found = std::find_if(all.begin(), all.end(), [&name](orba::ModuleObject *stack) {
        return stack->getString("name") == name;
    });
    return found == all.end() ? palx::stacksNode()->c("") : *found;
}

/// What a person would do on the tool page.
bool useTool(orba::ModuleObject *recipe)
{
    if (recipe->getBool("use_global_tool"))
        return palx::switchToTool();
    return palx::switchToToolset(recipe->c("toolset"), true, false, false);
}

/// What a person would set on the home page.
void enable(const StackedSide &side)
{
    const QString suffix = side.side == 0 ? QStringLiteral("L") : QStringLiteral("R");
    const int height = qRound(recipeNode(side.recipe)->getDouble("product_cfg.product.height"));
    palx::setValueOfPERSVar(QStringLiteral("palletIndex") + suffix, QString::number(indexOnSide(side)));
    palx::setValueOfPERSVar(QStringLiteral("boxHeight") + suffix, QString::number(height));
    palx::setValueOfPERSVar(QStringLiteral("enableStack") + suffix, QStringLiteral("1"));
}

/// Until the controller has everything: edits go out when the event loop rests, and what was sent without waiting is behind
/// no answer yet.
bool settle()
{
    const auto *link = host::ControllerLink::current();
    QElapsedTimer clock;
    clock.start();
    while (link->unsettledEdits() > 0 || !link->isIdle()) {
        if (clock.elapsed() > kSettleMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return xservice()
        ->get(nullptr, QStringLiteral("pallet.get.list"))
        .isOk(); // requests are worked off in order
}

} // namespace

bool SimulationProject::make(const SimulateRequest &request)
{
    options_.dataFolder = folder_.filePath(QStringLiteral("controller"));
    options_.workspaceFolder = folder_.filePath(QStringLiteral("workspace"));
    options_.seed = static_cast<std::uint64_t>(request.seed);
    const controller::StationOptions controllerOptions = options_;
    host::SessionOptions options;
    options.workspaceFolder = options_.workspaceFolder;
    options.pages = false;
    options.carrier = [controllerOptions] {
        return std::make_unique<controller::InProcessCarrier>(
            std::make_shared<controller::Controller>(controllerOptions));
    };
    Session session(options);
    session.presenter().setAccepting(true);
    RecipeList stacks;
    return openRecipes(session, request.recipes, &stacks) && chooseSides(request, stacks) &&
           fill(session, request);
}

bool SimulationProject::chooseSides(const SimulateRequest &request, const RecipeList &stacks)
{
    for (const int side : {0, 1}) {
        const QString name = side == 0 ? QStringLiteral("left") : QStringLiteral("right");
        if (!request.scheme.isEmpty() && request.scheme != name && request.scheme != QLatin1String("both"))
            continue;
        const auto found = std::find_if(stacks.begin(), stacks.end(), [side](orba::ModuleObject *stack) {
            return (stack->node().getInt(u"pallet_position") == 0) == (side == 0);
        });
        if (found != stacks.end())
            sides_.append({side, (*found)->getString("name")});
        else if (!request.scheme.isEmpty()) {
            say(QStringLiteral("%1: there is no recipe for the %2 pallet").arg(request.recipes.file, name));
            return false;
        }
    }
    if (sides_.isEmpty())
        say(request.recipes.file + QStringLiteral(": there is no recipe"));
    return !sides_.isEmpty();
}

bool SimulationProject::fill(Session &session, const SimulateRequest &request)
{
    for (orba::ModuleObject *stack : palx::stacksNode()->cmobjs())
        palx::genStackWayPoints(stack);
    palx::saveAllToRC(false);
    if (!useTool(recipeNode(sides_.first().recipe))) {
        say(QStringLiteral("the tool of the recipe \"%1\" cannot be used").arg(sides_.first().recipe));
        return false;
    }
    session.presenter().setQuiet(true);
    Parameters parameters(sides_, request.withLift);
    if (!palx::addProject(kProject, std::nullopt, &parameters)) {
        say(QStringLiteral("the project cannot be made"));
        return false;
    }
    for (const StackedSide &side : std::as_const(sides_))
        enable(side);
    if (settle())
        return true;
    say(QStringLiteral("the controller did not take the project in time"));
    return false;
}

} // namespace cli
