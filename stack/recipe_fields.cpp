#include "stack/recipe_fields.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace palx {

namespace {

using orba::Node;

struct FieldText
{
    Q_DECLARE_TR_FUNCTIONS(FieldText)
};

constexpr FieldUnit kMm = FieldUnit::Millimetre;
constexpr FieldUnit kKg = FieldUnit::Kilogram;

// Lengths up to what a robot reaches; the heights of waypoints may lie below the taught point.
const FieldSpec kFields[] = {
    {"product_cfg.product.length", 1, 5000, 1, kMm},
    {"product_cfg.product.width", 1, 5000, 1, kMm},
    {"product_cfg.product.height", 0, 5000, 1, kMm},
    {"product_cfg.product.weight", 0, 2000, 3, kKg},
    {"product_cfg.product.orient", 0, 99, 0, FieldUnit::None},
    {"product_cfg.product.dx", -2000, 2000, 1, kMm},
    {"product_cfg.product.dy", -2000, 2000, 1, kMm},
    {"product_cfg.product.dz", -2000, 2000, 1, kMm},
    {"product_cfg.pallet.length", 1, 10000, 1, kMm},
    {"product_cfg.pallet.width", 1, 10000, 1, kMm},
    {"product_cfg.pallet.height", 0, 2000, 1, kMm},
    {"product_cfg.pallet.weight", 0, 1000, 3, kKg},
    {"product_cfg.clapboard.length", 0, 10000, 1, kMm},
    {"product_cfg.clapboard.width", 0, 10000, 1, kMm},
    {"product_cfg.clapboard.height", 0, 200, 1, kMm},
    {"product_cfg.clapboard.weight", 0, 200, 3, kKg},
    {"wobj_margin.left", -1000, 5000, 1, kMm},
    {"wobj_margin.right", -1000, 5000, 1, kMm},
    {"wobj_margin.top", -1000, 5000, 1, kMm},
    {"wobj_margin.bottom", -1000, 5000, 1, kMm},
    {"bollard.height", 0, 5000, 1, kMm},
    {"pattern_cfg.template.num_x", 0, 99, 0, FieldUnit::None},
    {"pattern_cfg.template.num_y", 0, 99, 0, FieldUnit::None},
    {"pattern_cfg.template.num_y1", 0, 99, 0, FieldUnit::None},
    {"pattern_cfg.template.num_y2", 0, 99, 0, FieldUnit::None},
    {"pattern_cfg.template.offset_x", 0, 999, 0, kMm},
    {"pattern_cfg.template.offset_y", 0, 999, 0, kMm},
    {"pattern_cfg.template.space_x", 0, 999, 0, kMm},
    {"pattern_cfg.template.space_y", 0, 999, 0, kMm},
    {"automatic_stacker.top_bottom_margin", 0, 5000, 1, kMm},
    {"automatic_stacker.left_right_margin", 0, 5000, 1, kMm},
    {"automatic_stacker.min_product_spacing", 0, 5000, 1, kMm},
    {"put.ready_h", -5000, 5000, 1, kMm},
    {"put.approach_h", -5000, 5000, 1, kMm},
    {"put.retract_h", -5000, 5000, 1, kMm},
    {"put.exit_h", -5000, 5000, 1, kMm},
    {"get.ready_h", -5000, 5000, 1, kMm},
    {"get.approach_h", -5000, 5000, 1, kMm},
    {"get.retract_h", -5000, 5000, 1, kMm},
    {"calibrate.wobj_x", -5000, 5000, 1, kMm},
    {"calibrate.wobj_y", -5000, 5000, 1, kMm},
    {"load.length", 0, 5000, 1, kMm},
    {"load.width", 0, 5000, 1, kMm},
    // below an offsets record, a layer, an item
    {"enter_x", -5000, 5000, 1, kMm},
    {"enter_y", -5000, 5000, 1, kMm},
    {"enter_h", -5000, 5000, 1, kMm},
    {"ready_h", -5000, 5000, 1, kMm},
    {"approach_h", -5000, 5000, 1, kMm},
    {"retract_h", -5000, 5000, 1, kMm},
    {"exit_h", -5000, 5000, 1, kMm},
    {"h_offset", -1000, 1000, 1, kMm},
    {"x", -5000, 15000, 2, kMm},
    {"y", -5000, 15000, 2, kMm},
    {"w", 1, 5000, 0, kMm},
    {"h", 1, 5000, 0, kMm},
    {"r", -359, 359, 0, FieldUnit::Degree},
    {"dx", -2000, 2000, 1, kMm},
    {"dy", -2000, 2000, 1, kMm},
    {"dz", -2000, 2000, 1, kMm},
    {"orient", 0, 99, 0, FieldUnit::None},
};

struct Margins
{
    double left, right, top, bottom;
};

Margins marginsOf(const Node &stack)
{
    return {stack.getDouble(u"wobj_margin.left"), stack.getDouble(u"wobj_margin.right"),
            stack.getDouble(u"wobj_margin.top"), stack.getDouble(u"wobj_margin.bottom")};
}

/// In the better of the product's two turns.
bool productFits(const Node &stack, double width, double length)
{
    const double a = stack.getDouble(u"product_cfg.product.width");
    const double b = stack.getDouble(u"product_cfg.product.length");
    return (a <= width && b <= length) || (b <= width && a <= length);
}

bool roomWithin(const Node &stack, const Margins &margins)
{
    return productFits(stack, stack.getDouble(u"product_cfg.pallet.width") - margins.left - margins.right,
                       stack.getDouble(u"product_cfg.pallet.length") - margins.top - margins.bottom);
}

QString rangeProblem(const FieldSpec &spec, double value)
{
    if (value >= spec.minimum && value <= spec.maximum)
        return QString();
    return FieldText::tr("%1 is outside of %2 to %3%4.")
        .arg(value)
        .arg(spec.minimum)
        .arg(spec.maximum)
        .arg(unitSuffix(spec.unit));
}

QString marginProblem(const Node &stack, QStringView path, double value)
{
    Margins margins = marginsOf(stack);
    const std::pair<QStringView, double *> sides[] = {{u"wobj_margin.left", &margins.left},
                                                      {u"wobj_margin.right", &margins.right},
                                                      {u"wobj_margin.top", &margins.top},
                                                      {u"wobj_margin.bottom", &margins.bottom}};
    for (const auto &[side, margin] : sides) {
        if (side != path)
            continue;
        if (value <= *margin)
            return QString(); // giving room back is always right
        *margin = value;
        return roomWithin(stack, margins) ? QString()
                                          : FieldText::tr("With this margin no product fits on the pallet.");
    }
    return QString();
}

} // namespace

const FieldSpec *fieldSpec(QStringView path)
{
    const auto *found = std::find_if(std::begin(kFields), std::end(kFields),
                                     [&](const FieldSpec &spec) { return path == QLatin1String(spec.path); });
    return found == std::end(kFields) ? nullptr : found;
}

QString unitSuffix(FieldUnit unit)
{
    switch (unit) {
    case FieldUnit::Millimetre:
        return FieldText::tr(" mm");
    case FieldUnit::Kilogram:
        return FieldText::tr(" kg");
    case FieldUnit::Degree:
        return QString(QChar(0x00B0));
    case FieldUnit::None:
        break;
    }
    return QString();
}

QString fieldProblem(const Node &stack, QStringView path, double value)
{
    const FieldSpec *spec = fieldSpec(path);
    const QString range = spec ? rangeProblem(*spec, value) : QString();
    return range.isEmpty() ? marginProblem(stack, path, value) : range;
}

bool marginsTooWide(const Node &stack)
{
    const double width = stack.getDouble(u"product_cfg.pallet.width");
    const double length = stack.getDouble(u"product_cfg.pallet.length");
    return productFits(stack, width, length) && !roomWithin(stack, marginsOf(stack));
}

QString sizeWarning(const Node &stack)
{
    if (productFits(stack, stack.getDouble(u"product_cfg.pallet.width"),
                    stack.getDouble(u"product_cfg.pallet.length")))
        return QString();
    return FieldText::tr("The product is larger than the pallet; it will reach over the edge.");
}

int palletSpecification(const Node &presets, double length, double width, double height)
{
    for (int i = 0; i < presets.size(); ++i) {
        const QString preset = QStringLiteral("#%1.").arg(i);
        const auto number = [&](const char *key) {
            return presets.getDouble(QString(preset + QLatin1String(key)));
        };
        if (number("length") == length && number("width") == width && number("height") == height)
            return i + 1;
    }
    return 0;
}

} // namespace palx
