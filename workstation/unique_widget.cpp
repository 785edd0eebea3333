#include "workstation/unique_widget.h"

#include "ix/global_node.h"
#include "orba/module_object.h"

#include <QPointer>
#include <QVariant>

#include <memory>

namespace {

/// Shared between the key's node and the widget; empty once the widget has ended by itself.
using UniqueHolder = std::shared_ptr<std::unique_ptr<QPointer<QWidget>>>;

constexpr const char *kProperty = "unique";

} // namespace

Q_DECLARE_METATYPE(UniqueHolder)

namespace palx {

void makeUniqueWidget(const QString &key, QWidget *widget)
{
    orba::ModuleObject *node = ix::globalNode(key);
    const auto held = node->property(kProperty).value<UniqueHolder>();
    QWidget *older = held ? held->get()->data() : nullptr;
    if (older && older != widget)
        delete older;
    const auto holder = std::make_shared<std::unique_ptr<QPointer<QWidget>>>(
        std::make_unique<QPointer<QWidget>>(widget));
    node->setProperty(kProperty, QVariant::fromValue(UniqueHolder(holder)));
    widget->setProperty(kProperty, QVariant::fromValue(UniqueHolder(holder)));
    widget->setAttribute(Qt::WA_DeleteOnClose);
    widget->setAttribute(Qt::WA_StyleSheet);
}

void makeUniqueDialog(QWidget *widget)
{
    makeUniqueWidget(QStringLiteral("xpallet.dialog"), widget);
}

void makeUniqueMoveDialog(QWidget *widget)
{
    makeUniqueWidget(QStringLiteral("palx.move.dialog"), widget);
}

} // namespace palx
