#include "ui/recipe_editing.h"

#include "project/rules/run_side.h"
#include "stack/recipe_edit.h"
#include "stack/recipe_fields.h"
#include "stack/shared_lists.h"
#include "stack/stack_check.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <utility>

namespace {

void raise(const char *trigger)
{
    palx::triggerNode()->c(trigger)->trigger();
}

/// Programs that run with an edited recipe lift the robot by the height of its product.
void tellHeights()
{
    const palx::RunSource source = palx::currentRunSource();
    palx::VariableChanges changes;
    for (const palx::LineSide side : palx::kLineSides)
        changes += palx::heightChanges(source, side);
    if (!changes.isEmpty())
        palx::setValueOfPERSVar(changes, nullptr, {});
}

bool differs(const orba::Node &a, const orba::Node &b, std::initializer_list<const char *> paths)
{
    for (const char *path : paths) {
        const orba::Path key(path);
        const orba::Node *x = a.find(key);
        const orba::Node *y = b.find(key);
        if ((x && y) ? *x != *y : x != y)
            return true;
    }
    return false;
}

} // namespace

void RecipeEditing::open(orba::ModuleObject *stack)
{
    stack_ = stack && !stack->isEmptyMobj() ? stack : nullptr;
    isEdited_ = isSharedEdited_ = isTouched_ = isSent_ = false;
    if (stack_) {
        palx::checkProductPallet(stack_);
        palx::ensureRecipeKeys(stack_, palx::pluginNode()->r("default")->node());
        palx::ensureSharedLists(stack_);
    }
    history_.start(stack_);
    opened_ = history_.present();
}

QString RecipeEditing::commit()
{
    if (!stack_)
        return QString();
    const bool reset = palx::marginsTooWide(stack_->node());
    if (reset)
        raise("reset_margin_data");
    palx::ensureSharedLists(stack_);
    stepped(history_.commit());
    return reset ? tr("The margins left no room for a product and were set to 0.") : QString();
}

bool RecipeEditing::undo()
{
    return stepped(history_.undo());
}

bool RecipeEditing::redo()
{
    return stepped(history_.redo());
}

bool RecipeEditing::stepped(bool made)
{
    if (made) {
        isEdited_ = isTouched_ = true;
        isSharedEdited_ = isSharedEdited_ || !history_.before().hasSameShared(history_.present());
        announce();
    }
    return made;
}

/// Tells other editors and pages what has changed between the last two steps.
void RecipeEditing::announce() const
{
    const orba::Node &was = history_.before().recipe;
    const orba::Node &is = history_.present().recipe;
    const bool isSharedSame = history_.before().hasSameShared(history_.present());
    if (!isSharedSame || differs(was, is,
                                 {"put", "get", "product_cfg.product", "pallet_position", "use_global_tool",
                                  "use_global_wobj", "calibrate", "tool", "toolset"}))
        raise("refresh_data");
    if (differs(was, is, {"product_cfg.pallet", "product_cfg.clapboard"}))
        raise("refresh_pallet_data");
    if (differs(was, is, {"wobj_margin"}))
        raise("refresh_margin_data");
}

bool RecipeEditing::differsFromOpened() const
{
    return stack_ && isTouched_ && !(history_.now() == opened_);
}

void RecipeEditing::generate(bool report)
{
    isSent_ = isSent_ || isEdited_;
    isEdited_ = false;
    palx::genPointsAndSaveToRC(stack_, report);
    if (std::exchange(isSharedEdited_, false))
        generateOthers();
    tellHeights();
    history_.absorb();
}

void RecipeEditing::generateOthers() const
{
    for (orba::ModuleObject *other : palx::stacksNode()->cmobjs())
        if (other != stack_ && palx::usesSharedLists(other->node()))
            palx::genPointsAndSaveToRC(other, false);
}

void RecipeEditing::save()
{
    if (stack_ && isEdited_)
        generate(false);
}

void RecipeEditing::saveAndTell()
{
    if (!stack_)
        return;
    generate(isEdited_);
    raise("refresh_table");
}

void RecipeEditing::leave()
{
    save();
    if (stack_)
        raise("refresh_table");
}

void RecipeEditing::revert()
{
    if (!differsFromOpened())
        return;
    history_.restore(opened_);
    stepped(history_.commit());
    if (isSent_)
        leave();
    isEdited_ = false;
}
