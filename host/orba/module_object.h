#pragma once

#include "orba/node.h"

#include <QList>
#include <QObject>

namespace orba {

/// A handle on one node of a data tree: what pages hold, listen to and edit through.
///
/// There is at most one handle per node; it is made when somebody first asks for it, on the GUI thread, and lives
/// exactly as long as the node: its `destroyed` is the node's end. Reading and writing by path makes no handles.
/// Lookups never return null: a missing node is `emptyMobj()`, which reads defaults and ignores every write.
///
/// Setter contract: `set` creates nothing. A value equal in kind and content changes nothing and sends nothing, except
/// on a node marked as an event, which notifies on every set. A container with children is not overwritten by a value.
///
/// Notification: the node's `changed` comes first, then `structureChanged` of the parent when children came or went.
/// Listeners run in connection order and may change the tree. A subtree with handles that is removed while any
/// notification runs is detached at once (paths no longer find it) and ends when the outermost notification is over.
///
/// Names given by an operator are looked up with `c(name)`, never spliced into a path.
class PALX_API ModuleObject : public QObject
{
    Q_OBJECT

public:
    /// A tree of its own with this one node, which ends with this object.
    explicit ModuleObject(const QString &name = QString(), QObject *parent = nullptr);
    ~ModuleObject() override;

    /// The handle of a node, made when missing. GUI thread only. The node must not be a temporary value.
    static ModuleObject *of(Node *node);

    Node &node() { return *node_; }
    const Node &node() const { return *node_; }
    bool isEmptyMobj() const;
    /// Missing or null-valued.
    bool isNull() const { return node_->isNull(); }
    QString name() const { return node_->name().toString(); }


    // --- lookup
    ModuleObject *c(const Path &name) const;
    ModuleObject *c(int index) const { return cmobj(index); }
    ModuleObject *cmobj(int index) const;
    ModuleObject *r(const Path &path) const;
    ModuleObject *rmobj(const Path &path) const { return r(path); }
    QList<ModuleObject *> cmobjs() const;
    int cmobjCount() const { return node_->size(); }
    /// The i-th ancestor: p(0) is the parent.
    ModuleObject *p(int index = 0) const;
    bool has(const Path &path) const { return node_->has(path.view()); }

    // --- reading, converted as QVariant does
    QVariant value() const { return node_->value(); }
    bool getBool(bool def = false) const { return node_->toBool(def); }
    qint64 getInt(qint64 def = 0) const { return node_->toInt(def); }
    double getDouble(double def = 0) const { return node_->toDouble(def); }
    QString getString() const { return node_->toString(); }
    QVariant value(const Path &path) const { return node_->value(path.view()); }
    bool getBool(const Path &path, bool def = false) const { return node_->getBool(path.view(), def); }
    // A literal would else be taken for the default of the function above: a pointer is a bool before it is a Path.
    bool getBool(const char *path, bool def = false) const { return getBool(Path(path), def); }
    bool getBool(const char16_t *path, bool def = false) const { return getBool(Path(path), def); }
    qint64 getInt(const Path &path, qint64 def = 0) const { return node_->getInt(path.view(), def); }
    double getDouble(const Path &path, double def = 0) const { return node_->getDouble(path.view(), def); }
    QString getString(const Path &path, const QString &def = QString()) const
    {
        return node_->getString(path.view(), def);
    }

    // --- writing
    /// Writes the node at a path ("" is this node). Returns whether a value was written.
    bool set(QObject *sender, const Path &path, const QVariant &value, bool notify = true);
    /// Sends `changed` with the present value, whatever it is.
    void trigger(QObject *sender = nullptr);

    // --- structure; each tells the parents concerned
    ModuleObject *ensure(const Path &path);
    ModuleObject *add(const QString &name, QObject *sender = nullptr);
    ModuleObject *addUnnamed(QObject *sender = nullptr);
    ModuleObject *insert(int index, QObject *sender = nullptr);
    void move(int from, int to, QObject *sender = nullptr);
    /// Takes over value and structure of the source; this node keeps its name.
    void copyFrom(const ModuleObject *source, QObject *sender = nullptr);
    void copyFrom(const Node &source, QObject *sender = nullptr);
    /// Ends this node. Does nothing on a root.
    void remove(QObject *sender = nullptr);
    bool remove(const Path &path, QObject *sender = nullptr);
    void clear(QObject *sender = nullptr);
    /// Announces children changed through `node()`.
    void announceStructure(QObject *sender = nullptr);

Q_SIGNALS:
    void changed(QVariant value, QVariant old, QObject *sender);
    /// Children of this node were added, removed, moved or replaced.
    void structureChanged(QObject *sender);

private:
    friend class Node;
    ModuleObject(Node *node, bool owns);
    void announce(const QVariant &old, QObject *sender);

    Node *node_;
    bool ownsNode_;
};

/// The node that stands for "there is none".
PALX_API ModuleObject *emptyMobj();
/// Global lookup: the first key names a module by its full name or by the text before its first underscore.
PALX_API ModuleObject *m(const Path &path);
/// The storage behind `m`, without making handles; null when missing.
PALX_API Node *findGlobal(QStringView path);

} // namespace orba

using orba::emptyMobj;
using orba::m;
