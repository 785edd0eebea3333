#include "pattern/picture_rows.h"

#include "pattern/plan_style.h"
#include "stack/recipe_layers.h"

#include <QCoreApplication>

#include <algorithm>

namespace palx {

namespace {

using plan_style::millimetres;

struct RowText
{
    Q_DECLARE_TR_FUNCTIONS(RowText)
};

constexpr int kMaxPixels = 16384; // Qt's own limit of a picture's side is 32767; this is a gigabyte
constexpr int kNamedOverlaps = 3; // pairs named in one finding

QString sizeText(const BoxSize &box)
{
    return RowText::tr("%1 x %2 x %3 mm")
        .arg(millimetres(box.length), millimetres(box.width), millimetres(box.height));
}

QString kilograms(double kg)
{
    return RowText::tr("%1 kg").arg(QString::number(kg, 'f', 1));
}

QString contentText(const LayerPlan &layer)
{
    switch (layer.kind) {
    case LayerKind::Products:
    case LayerKind::MissingPattern:
    case LayerKind::Unreached:
        return layer.pattern;
    case LayerKind::Sheet:
        return RowText::tr("Separator sheet");
    case LayerKind::Empty:
        return RowText::tr("Empty");
    case LayerKind::Blank:
        return RowText::tr("None");
    }
    return QString();
}

TitleRow productsRow(int products, int shown)
{
    const QString text = products > shown ? RowText::tr("%1, %2 of them shown").arg(products).arg(shown)
                                          : QString::number(products);
    return {RowText::tr("Products"), text, products > kMaxItems ? plan_style::kFault : 0};
}

/// Length and width that the products of the layer take up together.
QString loadText(const QVector<PatternItem> &items)
{
    const QRectF load = itemsBounds(items);
    return RowText::tr("%1 x %2 mm").arg(millimetres(load.height()), millimetres(load.width()));
}

QString overlapText(const QVector<PatternItem> &items, const QVector<Overlap> &overlaps)
{
    QStringList pairs;
    for (int i = 0; i < std::min(kNamedOverlaps, static_cast<int>(overlaps.size())); ++i)
        pairs << RowText::tr("%1/%2 by %3 mm")
                     .arg(items[overlaps[i].first].index)
                     .arg(items[overlaps[i].second].index)
                     .arg(millimetres(overlaps[i].depthMm));
    const int more = overlaps.size() - pairs.size();
    const QString text = pairs.join(QStringLiteral(", "));
    return more > 0 ? RowText::tr("Overlap: %1 and %2 more").arg(text).arg(more)
                    : RowText::tr("Overlap: %1").arg(text);
}

QString overhangText(const Overhang &worst)
{
    QStringList sides;
    const auto add = [&sides](const QString &side, double mm) {
        if (mm > 0)
            sides << RowText::tr("%1 %2 mm").arg(side, millimetres(mm));
    };
    add(RowText::tr("top"), worst.top);
    add(RowText::tr("bottom"), worst.bottom);
    add(RowText::tr("left"), worst.left);
    add(RowText::tr("right"), worst.right);
    return RowText::tr("Over the pallet: %1").arg(sides.join(QStringLiteral(", ")));
}

int countFaults(const QVector<PatternItem> &items, ItemFaults faults)
{
    return static_cast<int>(std::count_if(
        items.begin(), items.end(), [faults](const PatternItem &item) { return item.faults & faults; }));
}

void addCount(const QString &text, int count, QRgb color, QVector<TitleRow> *rows)
{
    if (count > 0)
        rows->append({QString(), text.arg(count), color});
}

void addItemFaults(const QVector<PatternItem> &items, QVector<TitleRow> *rows)
{
    using plan_style::kAttention;
    using plan_style::kFault;
    const ItemFaults values = ItemFaults(ItemFault::MissingValue) | ItemFault::BadValue;
    const ItemFaults clamped =
        ItemFaults(ItemFault::ClampedSize) | ItemFault::ClampedPosition | ItemFault::ClampedOffset;
    addCount(RowText::tr("Products with missing or unreadable values: %1"), countFaults(items, values),
             kFault, rows);
    addCount(RowText::tr("Products with impossible sizes or positions: %1"), countFaults(items, clamped),
             kFault, rows);
    addCount(RowText::tr("Products with an unknown direction: %1"),
             countFaults(items, ItemFault::UnknownDirection), kAttention, rows);
    addCount(RowText::tr("Products whose number is not their place in the order: %1"),
             countFaults(items, ItemFault::NumberOutOfOrder), kAttention, rows);
}

void addSizeFaults(const StackPlan &plan, QVector<TitleRow> *rows)
{
    if (plan.productRepaired)
        rows->append({QString(), RowText::tr("The product's size is not valid"), plan_style::kFault});
    if (plan.palletRepaired)
        rows->append({QString(), RowText::tr("The pallet's size is not valid"), plan_style::kFault});
}

} // namespace

QImage pictureImage(const QSize &pixels)
{
    QImage image(pixels.expandedTo(QSize(1, 1)).boundedTo(QSize(kMaxPixels, kMaxPixels)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QVector<TitleRow> layerRows(const StackPlan &plan, int layer, const QVector<PatternItem> &items)
{
    QVector<TitleRow> rows{
        {RowText::tr("Recipe"), plan.name},
        {RowText::tr("Layer"), RowText::tr("%1 of %2").arg(layer + 1).arg(plan.layers.size())}};
    const bool exists = layer >= 0 && layer < plan.layers.size();
    if (exists)
        rows << TitleRow{RowText::tr("Pattern"), contentText(plan.layers[layer])};
    if (!items.isEmpty())
        rows << productsRow(plan.layers[layer].products, items.size());
    rows << TitleRow{RowText::tr("Product"), sizeText(plan.product)}
         << TitleRow{RowText::tr("Pallet"), sizeText(plan.pallet)};
    if (!items.isEmpty())
        rows << TitleRow{RowText::tr("Load of the layer"), loadText(items)};
    if (exists && plan.layers[layer].isPlaced())
        rows << TitleRow{
            RowText::tr("Height over the deck"),
            RowText::tr("%1 to %2 mm")
                .arg(millimetres(plan.layers[layer].bottomMm), millimetres(plan.layers[layer].topMm()))};
    return rows;
}

QVector<TitleRow> findingRows(const StackPlan &plan, const QVector<PatternItem> &items,
                              const LayoutFindings &findings)
{
    QVector<TitleRow> rows;
    if (!findings.overlaps.isEmpty())
        rows.append({QString(), overlapText(items, findings.overlaps), plan_style::kFault});
    if (findings.worst.any())
        rows.append({QString(), overhangText(findings.worst), plan_style::kAttention});
    addSizeFaults(plan, &rows);
    addItemFaults(items, &rows);
    return rows;
}

QVector<TitleRow> stackRows(const orba::Node &stack, const StackPlan &plan)
{
    const RecipeTotals totals = recipeTotals(stack);
    QVector<TitleRow> rows{{RowText::tr("Recipe"), plan.name},
                           {RowText::tr("Layers of products"), QString::number(totals.layers)}};
    if (totals.sheets > 0)
        rows << TitleRow{RowText::tr("Separator sheets"), QString::number(totals.sheets)};
    rows << TitleRow{RowText::tr("Products"), QString::number(totals.products)}
         << TitleRow{RowText::tr("Product"), sizeText(plan.product)}
         << TitleRow{RowText::tr("Pallet"), sizeText(plan.pallet)}
         << TitleRow{RowText::tr("Height with the pallet"),
                     RowText::tr("%1 mm").arg(millimetres(totals.heightMm))};
    if (totals.weightKg > 0)
        rows << TitleRow{RowText::tr("Weight with the pallet"), kilograms(totals.weightKg)};
    addSizeFaults(plan, &rows);
    return rows;
}

} // namespace palx
