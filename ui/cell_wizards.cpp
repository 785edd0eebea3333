#include "ui/cell_wizards.h"

#include "ui/calibration_frame.h"
#include "ui/nesting_wizards.h"
#include "ui/pallet_frame.h"
#include "ui/points_frame.h"
#include "ui/product_frame.h"
#include "ui/waypoints_frame.h"

ParameterSettingsWizard::ParameterSettingsWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new ProductFrame(this));
    addPage(new PalletFrame(this));
    start();
}

QString ParameterSettingsWizard::titleText() const
{
    return tr("Product and pallet");
}

QString ParameterSettingsWizard::pageTitle(int page) const
{
    return page == 0 ? tr("Product") : tr("Pallet");
}

WaypointAdjustWizard::WaypointAdjustWizard(orba::ModuleObject *stack, QWidget *parent)
    : RecipeWizard(stack, parent)
{
    addPage(new CalibrationFrame(this));
    addPage(new WaypointsFrame(this));
    addPage(new PointsFrame(this));
    start();
}

QString WaypointAdjustWizard::titleText() const
{
    return tr("Waypoints");
}

QString WaypointAdjustWizard::pageTitle(int page) const
{
    const QString titles[] = {tr("Calibration"), tr("Heights and taught points"), tr("Points")};
    return titles[page];
}

namespace {

RecipeWizard *makeWizard(WizardKind kind, orba::ModuleObject *stack, QWidget *parent)
{
    switch (kind) {
    case WizardKind::Parameters:
        return new ParameterSettingsWizard(stack, parent);
    case WizardKind::Patterns:
        return new PlanarNestingWizard(stack, parent);
    case WizardKind::Directions:
        return new FeedingDirectionWizard(stack, parent);
    case WizardKind::Layers:
        return new CascadeNestingWizard(stack, parent);
    case WizardKind::Waypoints:
        break;
    }
    return new WaypointAdjustWizard(stack, parent);
}

} // namespace

RecipeWizard *openRecipeWizard(WizardKind kind, orba::ModuleObject *stack, QWidget *parent)
{
    RecipeWizard *wizard = makeWizard(kind, stack, parent);
    wizard->openUnique();
    return wizard;
}
