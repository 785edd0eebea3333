#include "ui/recipe_history.h"

#include "stack/recipe_edit.h"
#include "workstation/plugin_node.h"

void RecipeHistory::start(orba::ModuleObject *stack)
{
    stack_ = stack;
    undo_.clear();
    redo_.clear();
    before_ = present_ = now();
}

RecipeState RecipeHistory::now() const
{
    if (!stack_)
        return {};
    const orba::Node &plugin = palx::pluginNodeOf(stack_->node());
    const auto list = [&plugin](const char16_t *key) {
        const orba::Node *found = plugin.child(key);
        return found ? *found : orba::Node();
    };
    return {palx::recipeContent(stack_->node()), list(u"global_tool"), list(u"global_wobj")};
}

void RecipeHistory::restore(const RecipeState &state)
{
    if (!stack_)
        return;
    palx::restoreContent(stack_, state.recipe);
    orba::ModuleObject *plugin = stack_->p(1);
    palx::restoreNode(plugin->c("global_tool"), state.tools);
    palx::restoreNode(plugin->c("global_wobj"), state.wobjs);
}

bool RecipeHistory::commit()
{
    if (!stack_)
        return false;
    const RecipeState now = this->now();
    if (now == present_)
        return false;
    undo_.append(present_);
    if (undo_.size() > kSteps)
        undo_.removeFirst();
    redo_.clear();
    before_ = present_;
    present_ = now;
    return true;
}

void RecipeHistory::absorb()
{
    if (stack_)
        present_ = now();
}

bool RecipeHistory::undo()
{
    commit();
    return step(&undo_, &redo_);
}

bool RecipeHistory::redo()
{
    return !commit() && step(&redo_, &undo_);
}

bool RecipeHistory::step(QList<RecipeState> *from, QList<RecipeState> *to)
{
    if (!stack_ || from->isEmpty())
        return false;
    to->append(present_);
    before_ = present_;
    present_ = from->takeLast();
    restore(present_);
    return true;
}
