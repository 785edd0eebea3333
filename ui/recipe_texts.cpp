#include "ui/recipe_texts.h"

#include "stack/recipe_layers.h"
#include "ui/record_table_model.h"

#include <QCoreApplication>

namespace {

struct RecipeTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecipeTexts)
};

QString sizeOf(const orba::Node &stack, const char *what)
{
    const QString path = QStringLiteral("product_cfg.%1.").arg(QLatin1String(what));
    const auto number = [&](const char *key) { return stack.getDouble(QString(path + QLatin1String(key))); };
    return sizeText(number("length"), number("width"), number("height"));
}

} // namespace

QString sizeText(double length, double width, double height)
{
    const QString times = QStringLiteral(" \u00d7 ");
    return RecipeTexts::tr("%1 mm").arg(shownNumber(length) + times + shownNumber(width) + times +
                                        shownNumber(height));
}

QString recipeFactsText(const orba::Node &stack)
{
    const palx::RecipeTotals totals = palx::recipeTotals(stack);
    return RecipeTexts::tr("Boxes: %1, layers: %2\nProduct: %3\nPallet: %4")
        .arg(QString::number(totals.products), QString::number(totals.layers), sizeOf(stack, "product"),
             sizeOf(stack, "pallet"));
}

QString recipeTotalsText(const orba::Node &stack)
{
    const palx::RecipeTotals totals = palx::recipeTotals(stack);
    QStringList lines{RecipeTexts::tr("Boxes: %1, layers: %2").arg(totals.products).arg(totals.layers)};
    if (totals.sheets > 0)
        lines << RecipeTexts::tr("Separator sheets: %1").arg(totals.sheets);
    lines << RecipeTexts::tr("Height: %1 mm (load %2 mm)")
                 .arg(shownNumber(totals.heightMm), shownNumber(totals.loadHeightMm));
    lines << RecipeTexts::tr("Weight: %1 kg (load %2 kg)")
                 .arg(shownNumber(totals.weightKg, 2), shownNumber(totals.loadWeightKg, 2));
    return lines.join(QLatin1Char('\n'));
}
