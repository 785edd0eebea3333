#include "ix/xnav.h"

#include "bwaf/bmodule.h"
#include "orba/tree_registry.h"

namespace ix {
namespace xnav {

namespace {

orba::ModuleObject *entries()
{
    orba::TreeRegistry &registry = orba::TreeRegistry::instance();
    orba::Node *tree = registry.module(u"ix");
    if (!tree)
        tree = registry.addModule(QStringLiteral("ix"));
    return orba::ModuleObject::of(tree)->ensure("nav");
}

} // namespace

orba::ModuleObject *registerPage(bwaf::BModule *module, const QString &title, const QString &category,
                                 const QString &icon, int order)
{
    orba::Node filled;
    filled.ensureChild(orba::Name(u"title"))->setString(title);
    filled.ensureChild(orba::Name(u"category"))->setString(category);
    filled.ensureChild(orba::Name(u"icon"))->setString(icon);
    filled.ensureChild(orba::Name(u"order"))->setInt(order);
    filled.ensureChild(orba::Name(u"nav"))->setString(QStringLiteral(""));
    filled.ensureChild(orba::Name(u"key"))->setString(QStringLiteral(""));
    orba::ModuleObject *entry = entries()->addUnnamed(module);
    entry->copyFrom(filled, module);
    if (module)
        QObject::connect(module, &QObject::destroyed, entry, [entry] { entry->remove(); });
    return entry;
}

} // namespace xnav
} // namespace ix
