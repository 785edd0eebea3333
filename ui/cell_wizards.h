#pragma once

#include "ui/recipe_wizard.h"

/// What is stacked: the product, then the pallet with its sheets and margins.
class PALX_API ParameterSettingsWizard : public RecipeWizard
{
    Q_OBJECT

public:
    ParameterSettingsWizard(orba::ModuleObject *stack, QWidget *parent);

protected:
    QString titleText() const override;
    QString pageTitle(int page) const override;
};

/// Where the robot goes: pallet frame, tool and incoming side, then heights and taught points, then the points that follow from
/// them.
class PALX_API WaypointAdjustWizard : public RecipeWizard
{
    Q_OBJECT

public:
    WaypointAdjustWizard(orba::ModuleObject *stack, QWidget *parent);

protected:
    QString titleText() const override;
    QString pageTitle(int page) const override;
};

/// In the order in which a recipe is made.
enum class WizardKind { Parameters, Patterns, Directions, Layers, Waypoints };
/// Opens one over the window of `parent`, in place of any other dialog of the plug-in; it ends by itself.
PALX_API RecipeWizard *openRecipeWizard(WizardKind kind, orba::ModuleObject *stack, QWidget *parent);
