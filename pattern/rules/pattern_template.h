#pragma once

#include "pattern/rules/pattern_items.h"

/// Pattern templates: rows of products, rows that alternate in their turn, or four products around a middle
/// gap. Lengths are millimetres, angles degrees.
///
/// A template's X runs along the product's and the pallet's length (the plan's vertical axis), its Y along
/// their width. Items continue the pattern that is there: their numbers go on from it. Everything is measured
/// from the pallet's origin; products that lie there already are only counted.
namespace palx {

/// In the order in which the kinds are offered.
enum class TemplateKind { Overlap, Cross, Clip };
/// The words that a recipe stores for the kinds, in their order.
PALX_API const QStringList &templateWords();

/// The numbers of "pattern_cfg.template". Wider than the fields allow, as a foreign recipe may hold anything;
/// beyond +-1,000,000 they are cut there.
struct PALX_API TemplateNumbers
{
    int numX = 0;  ///< rows along X
    int numY = 0;  ///< products in a row ("overlap")
    int numY1 = 0; ///< products in rows 0, 2, ... ("cross")
    int numY2 = 0; ///< products in rows 1, 3, ... ("cross"), turned by 90 degrees
    int offsetX = 0, offsetY = 0;
    int spaceX = 0, spaceY = 0;
};
/// Missing numbers read 0.
PALX_API TemplateNumbers readTemplateNumbers(const orba::Node &stack);

/// A number's key below "pattern_cfg.template" and its place in `TemplateNumbers`.
struct TemplateField
{
    const char *key;
    int TemplateNumbers::*number;
};
/// All eight, in the order of their fields.
PALX_API const QVector<TemplateField> &templateFields();
/// "pattern_cfg.template." before a key.
PALX_API QString templatePath(const char *key);

/// Why the recipe's template must not be applied to a pattern that holds `present` items: counts, the limit of
/// products in a pattern, then the edges of the pallet, the first failure first. Empty when it may. A kind that is
/// none makes no items and is not refused for its size.
PALX_API QString checkTemplate(const orba::Node &stack, int present);

/// The items in placing order, numbered from `present` + 1, with the product and its "orient" of the recipe,
/// without offsets, of the direction "middle". Checks nothing but makes at most kMaxShownItems.
PALX_API QVector<PatternItem> templateItems(const orba::Node &stack, TemplateKind kind,
                                            const TemplateNumbers &numbers, int present);

/// The resource that shows a kind: with Chinese captions when the language is "cn", else with English ones.
PALX_API QString templateImage(const QString &word, const QString &language);

} // namespace palx
