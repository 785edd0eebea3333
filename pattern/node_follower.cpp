#include "pattern/node_follower.h"

namespace palx {

using orba::ModuleObject;

void NodeFollower::follow(const ModuleObject *node)
{
    if (node->isEmptyMobj())
        return;
    connect(node, &ModuleObject::changed, this, &NodeFollower::valueTouched);
    connect(node, &ModuleObject::structureChanged, this, &NodeFollower::structureTouched);
    connect(node, &QObject::destroyed, this, &NodeFollower::structureTouched);
}

void NodeFollower::followTree(const ModuleObject *node)
{
    follow(node);
    const QList<ModuleObject *> children = node->cmobjs();
    for (const ModuleObject *child : children)
        followTree(child);
}

} // namespace palx
