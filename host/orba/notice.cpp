#include "orba/notice.h"

#include "orba/node_storage.h"

#include <QPointer>

namespace orba {

struct NoticeOfChanges::Held {
    QPointer<ModuleObject> handle;
    QVariant value;
    std::vector<const Node *> children;
};

namespace {

/// The children as they stand; a packed list counts as one child per element.
std::vector<const Node *> childrenOf(const Node &node)
{
    std::vector<const Node *> children(static_cast<std::size_t>(node.size()));
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i] = node.at(static_cast<int>(i));
    return children;
}

} // namespace

NoticeOfChanges::NoticeOfChanges(Node &top, QObject *sender) : sender_(sender)
{
    collect(top);
}

void NoticeOfChanges::collect(Node &node)
{
    if (!node.hasHandleBelow())
        return;
    if (node.handle())
        held_.push_back({node.handle(), node.value(), childrenOf(node)});
    if (node.isPacked())
        return;
    for (int i = 0; i < node.size(); ++i)
        collect(*node.at(i));
}

NoticeOfChanges::~NoticeOfChanges()
{
    const Notification notification;
    for (const Held &held : held_)
        if (held.handle && held.handle->value() != held.value)
            Q_EMIT held.handle->changed(held.handle->value(), held.value, sender_);
    for (const Held &held : held_)
        if (held.handle && childrenOf(held.handle->node()) != held.children)
            Q_EMIT held.handle->structureChanged(sender_);
}

} // namespace orba
