#include "ui/nesting_wizards.h"

#include "ui/layers_frame.h"
#include "ui/patterns_frame.h"
#include "ui/stack_frame.h"

PlanarNestingWizard::PlanarNestingWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new PatternsFrame(this));
    start();
}

QString PlanarNestingWizard::titleText() const
{
    return tr("Patterns");
}

QString PlanarNestingWizard::pageTitle(int) const
{
    return tr("Products in a layer");
}

CascadeNestingWizard::CascadeNestingWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new LayersFrame(this));
    addPage(new StackFrame(this));
    start();
}

QString CascadeNestingWizard::titleText() const
{
    return tr("Layers");
}

QString CascadeNestingWizard::pageTitle(int page) const
{
    return page == 0 ? tr("Layer sequence") : tr("Stack");
}

RecipeWizard *openNestingWizard(NestingWizard kind, orba::ModuleObject *stack, QWidget *parent)
{
    RecipeWizard *wizard = nullptr;
    if (kind == NestingWizard::Planar)
        wizard = new PlanarNestingWizard(stack, parent);
    else
        wizard = new CascadeNestingWizard(stack, parent);
    wizard->openUnique();
    return wizard;
}
