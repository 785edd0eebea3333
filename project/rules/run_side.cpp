#include "project/rules/run_side.h"

#include "project/rules/project_record.h"
#include "stack/recipe_layers.h"
#include "stack/way_points.h"
#include "workstation/plugin_node.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace palx {

using orba::Node;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::RunText)
};

/// Values of the variables of one side.
class Values
{
public:
    Values(const Node &variables, LineSide side) : variables_(variables), side_(side) {}

    bool has(const char *stem) const
    {
        return recordOfName(variables_, sideVariable(stem, side_)) != nullptr;
    }
    const Node &value(const char *stem) const { return valueOf(sideVariable(stem, side_)); }
    int number(const char *stem) const { return wholeNumber(value(stem)); }
    int shared(const char *name) const { return wholeNumber(valueOf(QLatin1String(name))); }

private:
    const Node &valueOf(const QString &name) const
    {
        static const Node none{};
        const Node *value = valueOfVariable(variables_, name);
        return value ? *value : none;
    }
    static int wholeNumber(const Node &value) { return static_cast<int>(value.toInt()); }

    const Node &variables_;
    LineSide side_;
};

const Node *putPoints(const Node &stack)
{
    const Node *put = stack.find(u"points.put");
    return put && put->kind() == Node::Kind::List ? put : nullptr;
}

bool isSheet(const Node &stack, int layer)
{
    return stack.getString(QStringLiteral("layers.#%1.pattern").arg(layer - 1)) == kSheetPattern;
}

/// 0 left, 1 right, 2 both sides of one line.
bool layoutHas(const Node &project, LineSide side)
{
    const qint64 layout = project.getInt(u"scheme_layout", -1);
    return layout == 2 || layout == static_cast<int>(side);
}

/// Of the robot on its way home, before it moves sideways [mm].
int liftOf(const Node &stack)
{
    return static_cast<int>(std::lround(stack.getDouble(u"product_cfg.product.height")));
}

QString noPoints()
{
    return Text::tr("The recipe has no points yet. Generate them on the page \"Points\".");
}

} // namespace

const Node *valueOfVariable(const Node &variables, const QString &name)
{
    const Node *variable = recordOfName(variables, name);
    return variable ? variable->find(u"value.[0][0][0]") : nullptr;
}

QString sideVariable(const char *stem, LineSide side)
{
    return QLatin1String(stem) + QLatin1Char(side == LineSide::Left ? 'L' : 'R');
}

bool operator==(const RunSide &a, const RunSide &b)
{
    const auto all = [](const RunSide &s) {
        return std::tie(s.isPart, s.recipes, s.recipe, s.isEnabled, s.isFull, s.isStacked, s.piled,
                        s.expected, s.layer, s.layers, s.piece, s.pieces, s.pallets, s.cycleSeconds);
    };
    return all(a) == all(b);
}

RunSide readRunSide(const RunSource &source, LineSide which)
{
    const Values values(source.variables, which);
    RunSide side;
    side.isPart = layoutHas(source.project, which) && values.has("enableStack") && values.has("palletIndex");
    side.recipes = sideRecipes(source.stacks, which == LineSide::Left);
    side.recipe = values.number("palletIndex");
    side.isEnabled = values.value("enableStack").toBool();
    side.isFull = values.number("flag") != 0;
    side.isStacked = source.program.getString(u"state") != QLatin1String("stopped") &&
                     values.shared("palletStatus") == static_cast<int>(which) + 1;
    side.piled = values.number("palletCount");
    side.layer = values.number("currentLayer");
    side.piece = values.number("layerCount");
    side.pallets = values.number("totalPallets");
    side.cycleSeconds = values.value("cycleTime").toDouble();
    if (const Node *stack = recipeOfSide(source.stacks, which, side.recipe)) {
        side.layers = pointLayers(*stack);
        if (side.isFull) // the counters stand before the next pallet
            side.piece = layerPieces(*stack, side.layer = side.layers);
        side.pieces = layerPieces(*stack, side.layer);
        side.expected = piecesBefore(*stack, side.layers + 1, 1, false);
        side.piled = side.isFull ? side.expected : side.piled;
    }
    return side;
}

RunSource currentRunSource()
{
    return {m("quill.project.var._list")->node(), stacksNode()->node(), currentProjectRecord(),
            m("nexo.cell.program")->node()};
}

const Node *recipeOfSide(const Node &stacks, LineSide side, int index)
{
    int place = 0;
    for (int i = 0; i < stacks.size(); ++i) {
        const Node *stack = stacks.at(i);
        if (stack && (stack->getInt(u"pallet_position") == 0) == (side == LineSide::Left) && place++ == index)
            return stack;
    }
    return nullptr;
}

int pointLayers(const Node &stack)
{
    const Node *put = putPoints(stack);
    return put ? put->size() : 0;
}

int layerPieces(const Node &stack, int layer)
{
    const Node *put = putPoints(stack);
    if (!put || layer < 1 || layer > put->size() || isSheet(stack, layer))
        return 0;
    return put->at(layer - 1)->size();
}

int piecesBefore(const Node &stack, int layer, int piece, bool withSheets)
{
    int count = 0;
    const int layers = pointLayers(stack);
    for (int i = 1; i <= std::min(layer - 1, layers); ++i)
        count += withSheets && isSheet(stack, i) ? 1 : layerPieces(stack, i);
    return layer <= layers ? count + std::clamp(piece - 1, 0, layerPieces(stack, layer)) : count;
}

RunState runState(const RunSide &side, const Node &program, const RunCircumstances &now)
{
    if (!now.isConnected)
        return RunState::NoController;
    if (!side.isPart)
        return RunState::Absent;
    const QString state = program.getString(u"state");
    const bool isStopped = state == QLatin1String("stopped");
    if (side.isFull && !isStopped)
        return RunState::Full;
    if (state == QLatin1String("paused") && side.isEnabled)
        return RunState::Paused;
    if (isStopped && now.isRobotMoving)
        return RunState::MovedByHand;
    if (program.getBool(u"fault") && side.isEnabled)
        return RunState::Fault;
    if (side.isFull)
        return RunState::Full;
    if (now.mustConfirm)
        return RunState::Unconfirmed;
    if (side.isStacked)
        return RunState::Stacking;
    if (!side.isEnabled)
        return RunState::Disabled;
    return isStopped ? RunState::Standing : RunState::Waiting;
}

QString recipeChangeProblem(const RunSide &side)
{
    return side.isEnabled || side.isStacked
               ? Text::tr(
                     "The side is in use. Disable it and let the robot end its pallet, or stop the program.")
               : QString();
}

QString enableProblem(const RunSide &side, const Node *stack)
{
    if (side.recipes.isEmpty())
        return Text::tr("There is no recipe for this side.");
    if (!stack)
        return Text::tr("The controller names a recipe that is not here.");
    if (pointLayers(*stack) == 0)
        return noPoints();
    if (piecesBefore(*stack, pointLayers(*stack) + 1, 1, false) == 0)
        return Text::tr("The recipe lays no products. Put some into the patterns of its layers.");
    return pointsState(*stack) == PointsState::Outdated
               ? Text::tr("The recipe or the shared settings were changed after the points were made. "
                          "Generate them again on the page \"Points\".")
               : QString();
}

VariableChanges enableChanges(LineSide side, bool on)
{
    return {{sideVariable("enableStack", side), QString::number(on ? 1 : 0)}};
}

VariableChanges recipeChanges(LineSide side, const Node &stack, int index)
{
    return {{sideVariable("palletIndex", side), QString::number(index)},
            {sideVariable("boxHeight", side), QString::number(liftOf(stack))},
            {sideVariable("currentLayer", side), QStringLiteral("1")},
            {sideVariable("layerCount", side), QStringLiteral("1")},
            {sideVariable("palletCount", side), QStringLiteral("0")}};
}

VariableChanges heightChanges(const RunSource &source, LineSide side)
{
    const Values values(source.variables, side);
    const Node *stack = recipeOfSide(source.stacks, side, values.number("palletIndex"));
    if (!stack || !values.has("boxHeight") || values.number("boxHeight") == liftOf(*stack))
        return {};
    return {{sideVariable("boxHeight", side), QString::number(liftOf(*stack))}};
}

VariableChanges resetChanges(LineSide side)
{
    VariableChanges changes;
    for (const char *stem : {"totalPallets", "palletTotalCount", "totalPiledCount", "cycleTime"})
        changes.append({sideVariable(stem, side), QStringLiteral("0")});
    return changes;
}

} // namespace palx
