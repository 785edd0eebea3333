#include "ix/global_node.h"

#include "orba/tree_registry.h"

namespace ix {

orba::ModuleObject *globalNode(const QString &key)
{
    orba::TreeRegistry &registry = orba::TreeRegistry::instance();
    orba::Node *tree = registry.module(u"ix");
    if (!tree)
        tree = registry.addModule(QStringLiteral("ix"));
    orba::Node *shared = tree->ensureChild(orba::Name(u"global_node"));
    return orba::ModuleObject::of(shared->ensureChild(orba::Name(key)));
}

} // namespace ix
