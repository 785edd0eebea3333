#include "project/rules/recipe_places.h"

#include "project/rules/run_side.h"

#include <QCoreApplication>

#include <utility>

namespace palx {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(palx::RunText)
};

QString placesText()
{
    return Text::tr(
        "Recipes would get other places, and the programs that run would take other ones. Stop them first!");
}

} // namespace

QString whyNotSend(const RunRecovery &run, const std::vector<RecipeMatch> &matches)
{
    return (run.isRunning || run.isPaused) && wouldMove(matches) ? placesText() : QString();
}

QString whyNotImport(const RunRecovery &run, const orba::Node &stacks, const std::vector<ImportStep> &steps)
{
    for (const ImportStep &step : steps) {
        const QString problem = step.replaced < 0 ? QString() : whyNotMove(run, stacks, step.name);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QString whyNotTakeBack(const RunRecovery &run, const orba::Node &stacks, const LastImport &import)
{
    if ((run.isRunning || run.isPaused) && import.removedCount() > 0)
        return placesText();
    for (const QString &name : import.addedNames()) {
        const QString problem = whyNotMove(run, stacks, name);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

QString whyNotInsert(const RunRecovery &run, const orba::Node &stacks, int place)
{
    bool isSeen[2] = {}; // who moves the first recipe of a side moves all behind it
    for (int i = place; i < stacks.size(); ++i) {
        const orba::Node *stack = stacks.at(i);
        if (!stack || std::exchange(isSeen[stack->getInt(u"pallet_position") == 0], true))
            continue;
        const QString problem = whyNotMove(run, stacks, stack->getString(u"name"));
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

KeptRecipes::KeptRecipes()
{
    const RunSource source = currentRunSource();
    for (const LineSide side : kLineSides)
        names_ << readRunSide(source, side).recipeName();
}

void KeptRecipes::follow() const
{
    const RunSource source = currentRunSource();
    for (const LineSide which : kLineSides) {
        const RunSide side = readRunSide(source, which);
        const int place = side.recipes.indexOf(names_.at(static_cast<int>(which)));
        if (side.isPart && place >= 0 && place != side.recipe)
            setValueOfPERSVar(sideVariable("palletIndex", which), QString::number(place));
    }
}

} // namespace palx
