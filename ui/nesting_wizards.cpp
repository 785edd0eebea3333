#include "ui/nesting_wizards.h"

#include "ui/layers_frame.h"
#include "ui/patterns_frame.h"

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
    start();
}

QString CascadeNestingWizard::titleText() const
{
    return tr("Layers");
}

QString CascadeNestingWizard::pageTitle(int) const
{
    return tr("Layer sequence");
}
