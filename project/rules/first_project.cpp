#include "project/rules/first_project.h"

#include "project/rules/project_commit.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_record.h"
#include "project/rules/project_variables.h"
#include "project/rules/run_side.h"
#include "stack/way_points.h"
#include "workstation/plugin_node.h"

#include <utility>

namespace palx {

using orba::Node;

namespace {

/// What an operator would choose on the project page.
class FirstChoice : public ProjectSteps
{
public:
    FirstChoice(const Node &stacks, std::function<void(bool)> showProgress)
        : showProgress_(std::move(showProgress))
    {
        const bool hasLeft = recipeOfSide(stacks, LineSide::Left, 0) != nullptr;
        const bool hasRight = recipeOfSide(stacks, LineSide::Right, 0) != nullptr;
        values_.ensure(u"scheme_layout")->setInt(hasLeft && hasRight ? 2 : hasRight ? 1 : 0);
        values_.ensure(u"bollard")->setInt(1); // without
    }
    void saveParameters(const QString &name) override { writeProjectParameters(name, values_); }
    void becameCurrent() override { createProjectVariables(); }
    void projectsChanged() override {}
    void showProgress(bool isRunning) override
    {
        if (showProgress_)
            showProgress_(isRunning);
    }

private:
    std::function<void(bool)> showProgress_;
    Node values_;
};

void makeMissingPoints()
{
    for (orba::ModuleObject *stack : stacksNode()->cmobjs())
        if (pointLayers(stack->node()) == 0)
            genStackWayPoints(stack);
}

void useFirstRecipes(const Node &stacks)
{
    for (const LineSide side : kLineSides)
        if (const Node *stack = recipeOfSide(stacks, side, 0))
            for (const auto &[name, value] : recipeChanges(side, *stack, 0))
                setValueOfPERSVar(name, value);
}

} // namespace

bool makeFirstProject(const QString &name, const std::function<void(bool isRunning)> &showProgress)
{
    makeMissingPoints();
    const XReply reply = sendAllStacks();
    if (!reply.isOk())
        return reportProject("error", ProjectText::tr("The recipes were not taken: %1").arg(reply.error));
    switchToTool(); // recipes with a tool of their own bring it along
    FirstChoice choice(stacksNode()->node(), showProgress);
    if (!addProject(name, std::nullopt, &choice))
        return false;
    useFirstRecipes(stacksNode()->node());
    return true;
}

} // namespace palx
