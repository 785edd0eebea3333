#include "ui/nesting_wizards.h"

#include "ui/directions_frame.h"
#include "ui/layers_frame.h"
#include "ui/patterns_frame.h"
#include "ui/stack_frame.h"

PlanarNestingWizard::PlanarNestingWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new PatternsFrame(this));
    addPage(new DirectionsFrame(this));
    start();
}

QString PlanarNestingWizard::titleText() const
{
    return tr("Patterns");
}

QString PlanarNestingWizard::pageTitle(int page) const
{
    return page == 0 ? tr("Products in a layer") : tr("Feeding directions");
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

FeedingDirectionWizard::FeedingDirectionWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new DirectionsFrame(this));
    addPage(new StackFrame(this));
    start();
}

QString FeedingDirectionWizard::titleText() const
{
    return tr("Feeding directions");
}

QString FeedingDirectionWizard::pageTitle(int page) const
{
    return page == 0 ? tr("Sides") : tr("Stack");
}
