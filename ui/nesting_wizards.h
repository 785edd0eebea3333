#pragma once

#include "ui/recipe_wizard.h"

/// How products lie in one layer: the patterns, then the side from which each product comes to its place.
class PALX_API PlanarNestingWizard : public RecipeWizard
{
    Q_OBJECT

public:
    PlanarNestingWizard(orba::ModuleObject *stack, QWidget *parent);

protected:
    QString titleText() const override;
    QString pageTitle(int page) const override;
};

/// How layers lie on each other: the sequence, then the whole stack to look at. The sequence must be well
/// formed before one may go on.
class PALX_API CascadeNestingWizard : public RecipeWizard
{
    Q_OBJECT

public:
    CascadeNestingWizard(orba::ModuleObject *stack, QWidget *parent);

protected:
    QString titleText() const override;
    QString pageTitle(int page) const override;
};

/// From which side each product comes to its place, and what it hits on its way; then the stack.
class PALX_API FeedingDirectionWizard : public RecipeWizard
{
    Q_OBJECT

public:
    FeedingDirectionWizard(orba::ModuleObject *stack, QWidget *parent);

protected:
    QString titleText() const override;
    QString pageTitle(int page) const override;
};
