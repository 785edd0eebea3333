#include "orba/module_object.h"

#include "orba/node_storage.h"
#include "orba/tree_registry.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

namespace orba {

namespace {

ModuleObject *handleOrEmpty(Node *node)
{
    return node ? ModuleObject::of(node) : emptyMobj();
}

void tellStructure(Node *node, QObject *sender);

/// The new node's handle, or the empty node when a listener has already removed it.
ModuleObject *announced(Node *made, Node *parent, QObject *sender)
{
    const QPointer<ModuleObject> handle = ModuleObject::of(made);
    tellStructure(parent, sender);
    return handle ? handle.data() : emptyMobj();
}

void tellStructure(Node *node, QObject *sender)
{
    if (!node || !node->handle())
        return;
    const Notification notification;
    Q_EMIT node->handle()->structureChanged(sender);
}

} // namespace

ModuleObject *emptyMobj()
{
    static ModuleObject *empty = new ModuleObject(QString()); // outlives every handle that falls back on it
    return empty;
}

ModuleObject *m(const Path &path)
{
    return handleOrEmpty(findGlobal(path.view()));
}

ModuleObject::ModuleObject(const QString &name, QObject *parent)
    : QObject(parent), node_(new Node(name.isNull() ? Name() : Name(name))), ownsNode_(true)
{
    node_->handle_ = this;
    node_->handleBelow_ = true;
}

ModuleObject::ModuleObject(Node *node, bool owns) : node_(node), ownsNode_(owns)
{
    node->handle_ = this;
    for (Node *up = node; up && !up->handleBelow_; up = up->parent_)
        up->handleBelow_ = true;
}

ModuleObject::~ModuleObject()
{
    if (node_->handle_ == this)
        node_->handle_ = nullptr;
    if (ownsNode_)
        delete node_;
}

ModuleObject *ModuleObject::of(Node *node)
{
    Q_ASSERT(!QCoreApplication::instance() ||
             QThread::currentThread() == QCoreApplication::instance()->thread());
    return node->handle_ ? node->handle_ : new ModuleObject(node, false);
}

bool ModuleObject::isEmptyMobj() const
{
    return this == emptyMobj();
}

// ---------------------------------------------------------------- lookup

ModuleObject *ModuleObject::c(const Path &name) const
{
    return handleOrEmpty(node_->child(name.view()));
}

ModuleObject *ModuleObject::cmobj(int index) const
{
    return handleOrEmpty(node_->at(index));
}

ModuleObject *ModuleObject::r(const Path &path) const
{
    return handleOrEmpty(node_->find(path.view()));
}

QList<ModuleObject *> ModuleObject::cmobjs() const
{
    QList<ModuleObject *> children;
    const int n = node_->size();
    children.reserve(n);
    for (int i = 0; i < n; ++i)
        children.append(of(node_->at(i)));
    return children;
}

ModuleObject *ModuleObject::p(int index) const
{
    Node *ancestor = node_->parent();
    while (ancestor && index-- > 0)
        ancestor = ancestor->parent();
    return handleOrEmpty(ancestor);
}

// ---------------------------------------------------------------- writing

void ModuleObject::announce(const QVariant &old, QObject *sender)
{
    const Notification notification;
    Q_EMIT changed(node_->value(), old, sender);
}

bool ModuleObject::set(QObject *sender, const Path &path, const QVariant &value, bool notify)
{
    if (isEmptyMobj())
        return false;
    const Node::Place place = node_->locate(path.view());
    if (!place.node)
        return false;
    if (place.element >= 0) {
        node_->set(path.view(), value); // an element of a packed list has no listener
        return true;
    }
    Node *target = place.node;
    ModuleObject *listener = notify ? target->handle_ : nullptr;
    const QVariant old = listener ? target->value() : QVariant();
    const bool wasOverwritable = target->overwritable();
    const bool isNew = target->setValue(value);
    if (listener && (isNew || target->isEvent()))
        listener->announce(old, sender);
    return wasOverwritable;
}

void ModuleObject::trigger(QObject *sender)
{
    if (!isEmptyMobj())
        announce(node_->value(), sender);
}

// ---------------------------------------------------------------- structure

ModuleObject *ModuleObject::ensure(const Path &path)
{
    if (isEmptyMobj())
        return this;
    if (Node *known = node_->find(path.view()))
        return of(known);
    Node *deepest = node_; // the lowest node that is there now, whose structure changes
    QStringView rest = path.view();
    for (int length = rest.size(); length > 0; --length) {
        if (rest[length - 1] != QLatin1Char('.'))
            continue;
        if (Node *above = node_->find(rest.left(length - 1))) {
            deepest = above;
            break;
        }
    }
    Node *made = node_->ensure(path.view());
    return made ? announced(made, deepest, nullptr) : emptyMobj();
}

ModuleObject *ModuleObject::insert(int index, QObject *sender)
{
    Node *child = isEmptyMobj() ? nullptr : node_->insert(index);
    return child ? announced(child, node_, sender) : emptyMobj();
}

ModuleObject *ModuleObject::addUnnamed(QObject *sender)
{
    return insert(node_->size(), sender);
}

ModuleObject *ModuleObject::add(const QString &name, QObject *sender)
{
    Node *child = isEmptyMobj() ? nullptr : node_->add(Name(name));
    return child ? announced(child, node_, sender) : emptyMobj();
}

void ModuleObject::move(int from, int to, QObject *sender)
{
    node_->move(from, to);
    tellStructure(node_, sender);
}

void ModuleObject::copyFrom(const Node &source, QObject *sender)
{
    if (isEmptyMobj() || &source == node_)
        return;
    const QVariant old = node_->value();
    const bool wasContainer = node_->isContainer();
    node_->assign(source);
    if (node_->value() != old)
        announce(old, sender);
    if (wasContainer || node_->isContainer())
        tellStructure(node_, sender);
}

void ModuleObject::copyFrom(const ModuleObject *source, QObject *sender)
{
    copyFrom(source->node(), sender);
}

void ModuleObject::remove(QObject *sender)
{
    Node *parent = node_->parent();
    if (!parent)
        return;
    parent->removeAt(parent->indexOf(node_)); // may end this object
    tellStructure(parent, sender);
}

bool ModuleObject::remove(const Path &path, QObject *sender)
{
    Node *target = node_->find(path.view());
    if (!target || target == node_)
        return false;
    Node *parent = target->parent();
    parent->removeAt(parent->indexOf(target));
    tellStructure(parent, sender);
    return true;
}

void ModuleObject::clear(QObject *sender)
{
    if (isEmptyMobj())
        return;
    node_->clear();
    tellStructure(node_, sender);
}

void ModuleObject::announceStructure(QObject *sender)
{
    tellStructure(node_, sender);
}

} // namespace orba
