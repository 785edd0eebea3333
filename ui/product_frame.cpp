#include "ui/product_frame.h"

#include "stack/recipe_fields.h"
#include "ui/recipe_texts.h"
#include "ui_product_frame.h"

ProductFrame::ProductFrame(QWidget *parent) : RecipeFrame(parent), ui_(std::make_unique<Ui::ProductFrame>())
{
    ui_->setupUi(this);
    fillDirections(ui_->cmbDirection);
    bindFields();
    setStack(nullptr);
}

ProductFrame::~ProductFrame() = default;

void ProductFrame::bindFields()
{
    const QString product = QStringLiteral("product_cfg.product.");
    bindNumber(ui_->spnLength, product + QLatin1String("length"));
    bindNumber(ui_->spnWidth, product + QLatin1String("width"));
    bindNumber(ui_->spnHeight, product + QLatin1String("height"));
    bindNumber(ui_->spnWeight, product + QLatin1String("weight"));
    bindNumber(ui_->spnOrient, product + QLatin1String("orient"));
    bindNumber(ui_->spnDx, product + QLatin1String("dx"));
    bindNumber(ui_->spnDy, product + QLatin1String("dy"));
    bindNumber(ui_->spnDz, product + QLatin1String("dz"));
    binder()->bind(ui_->cmbDirection, product + QLatin1String("direction"));
    binder()->bind(ui_->edtDesc, QStringLiteral("desc"));
}

void ProductFrame::refresh()
{
    ui_->lblTotals->setText(stack() ? recipeTotalsText(stack()->node()) : QString());
    showWarning(ui_->lblWarning, stack() ? palx::sizeWarning(stack()->node()) : QString());
    ui_->picture->showRecipe(stack());
}

void ProductFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillDirections(ui_->cmbDirection);
}
