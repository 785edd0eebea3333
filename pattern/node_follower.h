#pragma once

#include "orba/module_object.h"

#include <QObject>

namespace palx {

/// Listens to nodes on behalf of a view. Ending the follower ends all of its connections, so a view that
/// turns to other nodes simply takes a new one. Nodes may end before it.
class NodeFollower : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The node's value, children and end.
    void follow(const orba::ModuleObject *node);
    /// The node and everything below it.
    void followTree(const orba::ModuleObject *node);

Q_SIGNALS:
    void valueTouched();
    /// Children came, went or were replaced, or a followed node ended.
    void structureTouched();
};

} // namespace palx
