#include "stack/stack_check.h"

#include "workstation/config_log.h"

#include <QCoreApplication>
#include <QStringList>

namespace palx {

namespace {

using orba::ModuleObject;
using orba::Node;

QString text(const char *source)
{
    return QCoreApplication::translate("palx", source);
}

/// Writes a repaired value, tells those who show it, and records the repair.
void repair(Node &record, const char *key, const QVariant &value, const char *message)
{
    recordCfgLog(text(message), false);
    Node *field = record.ensure(orba::Path(key));
    if (!field)
        return;
    if (field->handle())
        field->handle()->set(nullptr, "", value);
    else
        field->setValue(value);
}

double number(const Node *record, QStringView key)
{
    return record ? record->getDouble(key) : 0;
}

} // namespace

bool checkProductPara(Node &stack)
{
    Node *product = stack.find(u"product_cfg.product");
    if (!product || product->isNull()) {
        recordCfgLog(text(QT_TRANSLATE_NOOP("palx", "Product para is invalid")), false);
        return false;
    }
    if (product->getDouble(u"length") <= 0)
        repair(*product, "length", 200,
               QT_TRANSLATE_NOOP("palx", "Product length is invalid and is setted to default"));
    if (product->getDouble(u"width") <= 0)
        repair(*product, "width", 150,
               QT_TRANSLATE_NOOP("palx", "Product width is invalid and is setted to default"));
    return false; // on purpose also for a good product: callers want the repairs, not a verdict
}

bool checkPalletPara(Node &stack)
{
    const Node *product = stack.find(u"product_cfg.product");
    Node *pallet = stack.find(u"product_cfg.pallet");
    if (!pallet || pallet->isNull()) {
        recordCfgLog(text(QT_TRANSLATE_NOOP("palx", "Pallet para is invalid")), false);
        return false;
    }
    if (pallet->getDouble(u"length") <= 0)
        repair(*pallet, "length", 1000,
               QT_TRANSLATE_NOOP("palx", "Pallet length is invalid and is setted to default"));
    if (pallet->getDouble(u"width") <= 0)
        repair(*pallet, "width", 800,
               QT_TRANSLATE_NOOP("palx", "Pallet width is invalid and is setted to default"));
    // The length is held against the key "product", which a product does not have: kept, as recipes rely on long
    // products being accepted across a short pallet.
    const double productLength = number(product, u"product");
    if (pallet->getDouble(u"length") < productLength)
        repair(*pallet, "length", productLength,
               QT_TRANSLATE_NOOP("palx", "Pallet'length is less than product'length"));
    const double productWidth = number(product, u"width");
    if (pallet->getDouble(u"width") < productWidth)
        repair(*pallet, "width", productWidth,
               QT_TRANSLATE_NOOP("palx", "Pallet'width is less than product'width"));
    return false;
}

bool checkLayersName(const Node &layers)
{
    bool ended = false;
    for (int i = 0; i < layers.size(); ++i) {
        const Node *layer = layers.at(i);
        const QString pattern = layer ? layer->getString(u"pattern") : QString();
        if (ended && !pattern.isEmpty() && pattern != QLatin1String("empty"))
            return false;
        ended = ended || pattern == QLatin1String("empty");
    }
    return true;
}

bool checkProductPara(ModuleObject *stack)
{
    return checkProductPara(stack->node());
}

bool checkPalletPara(ModuleObject *stack)
{
    return checkPalletPara(stack->node());
}

bool checkProductPallet(ModuleObject *stack)
{
    return checkProductPara(stack) && checkPalletPara(stack);
}

bool checkLayersName(ModuleObject *layers)
{
    return checkLayersName(layers->node());
}

} // namespace palx
