#include "ui/recipe_history.h"

#include "stack/recipe_edit.h"

void RecipeHistory::start(orba::ModuleObject *stack)
{
    stack_ = stack;
    undo_.clear();
    redo_.clear();
    present_ = stack_ ? palx::recipeContent(stack_->node()) : orba::Node();
    before_ = present_;
}

bool RecipeHistory::commit()
{
    if (!stack_)
        return false;
    orba::Node now = palx::recipeContent(stack_->node());
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
        present_ = palx::recipeContent(stack_->node());
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

bool RecipeHistory::step(QList<orba::Node> *from, QList<orba::Node> *to)
{
    if (!stack_ || from->isEmpty())
        return false;
    to->append(present_);
    before_ = present_;
    present_ = from->takeLast();
    palx::restoreContent(stack_, present_);
    return true;
}
