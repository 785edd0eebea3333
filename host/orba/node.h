#pragma once

#include "orba/name.h"

#include <QVariant>

#include <cstdint>

namespace orba {

class ModuleObject;

/// One node of the data tree: a name and either a small value or ordered children. No Qt object.
///
/// Kinds: null, bool, 64-bit integer, double, string, list (children as a rule unnamed), map (children as a rule
/// named). A child may be named or not in both; equal names are allowed, the first one is found.
///
/// A list of only integers or only doubles without names may be held *packed*, one block of numbers without a node per
/// element; copies share the block until one of them is written. Reading and writing elements works alike for both
/// forms; asking for an element's node (`at`, `find`, a handle) unpacks the list. Comparison ignores the form.
///
/// A node is a value: copying makes a detached deep copy without handles. Addresses of nodes in a tree are stable
/// until the node is removed. A tree may be used on any thread as long as only one thread uses it and no node of it
/// has a handle; handles live on the GUI thread.
///
/// Paths are keys joined by "."; "#n" (decimal) is the n-th child of any node; the empty path is the node itself.
/// A key in brackets ("[0][0][0]") is one key. `child(name)` takes its argument literally, dots and "#1" included.
class PALX_API Node
{
public:
    enum class Kind : std::uint8_t { Null, Bool, Int, Double, String, List, Map };

    Node() = default;
    explicit Node(Name name) : name_(name) {}
    Node(const Node &other);
    /// Leaves `other` null, unless it has handles: then it is copied.
    Node(Node &&other);
    Node &operator=(const Node &other);
    Node &operator=(Node &&other);
    ~Node();

    // --- what it is
    Name name() const { return name_; }
    void setName(Name name);
    Kind kind() const { return kind_; }
    bool isNull() const { return kind_ == Kind::Null; }
    bool isContainer() const { return kind_ == Kind::List || kind_ == Kind::Map; }
    bool isPacked() const { return packed_; }
    bool isPackedDoubles() const;
    Node *parent() const { return parent_; }
    bool isInside(const Node &ancestor) const;
    /// Names and "#n" from `ancestor` (exclusive) to this node, joined with ".".
    QString pathFrom(const Node &ancestor) const;

    // --- children
    int size() const;
    /// The i-th child, or null; unpacks.
    Node *at(int i);
    /// The i-th child, or null; a packed list has no child nodes and answers null.
    const Node *at(int i) const;
    /// First child of that name, or null.
    Node *child(Name name) { return const_cast<Node *>(static_cast<const Node *>(this)->child(name)); }
    const Node *child(Name name) const;
    Node *child(QStringView name) { return const_cast<Node *>(static_cast<const Node *>(this)->child(name)); }
    const Node *child(QStringView name) const;
    int indexOf(const Node *child) const;
    /// The node at a path, or null; unpacks a packed list whose element the path names.
    Node *find(QStringView path);
    /// The node at a path, or null; an element of a packed list has no node and answers null.
    const Node *find(QStringView path) const;
    bool has(QStringView path) const;

    /// Appends a child. A null node becomes a map by a named, a list by an unnamed child; returns null on a scalar.
    Node *add(Name name = Name());
    Node *insert(int index, Name name = Name());
    /// First child of that name, added when missing; null on a scalar.
    Node *ensureChild(Name name);
    /// The node at a path, made with the nodes on the way; "#n" makes up to n + 1 children. Null when a scalar or a
    /// number above kMaxEnsureIndex stands in the way.
    Node *ensure(QStringView path);
    static constexpr int kMaxEnsureIndex = 100000; // a mistyped index must not fill the memory
    void removeAt(int index);
    /// Removes the node at a path; false when there is none.
    bool remove(QStringView path);
    /// Moves a child to another index among its siblings.
    void move(int from, int to);
    /// Removes all children and keeps the kind; a scalar becomes null.
    void clear();
    /// Becomes an empty node of that kind.
    void reset(Kind kind);
    /// Takes over value or children of `source`; name, parent and handle stay. `source` may lie inside this node.
    void assign(const Node &source);
    /// The same without copying: `source`, without handles and neither above nor below this node, is left null.
    void take(Node &source);

    // --- own value, converted as QVariant does
    QVariant value() const;
    bool toBool(bool def = false) const;
    qint64 toInt(qint64 def = 0) const;
    double toDouble(double def = 0) const;
    QString toString(const QString &def = QString()) const;
    /// Each returns whether the value changed. A container with children is not overwritten.
    bool setNull();
    bool setBool(bool value);
    bool setInt(qint64 value);
    bool setDouble(double value);
    bool setString(const QString &value);
    /// Bool, integers, floating point, text and the invalid variant; a list of numbers sets a packed list.
    bool setValue(const QVariant &value);

    // --- values by path; a missing node reads the default
    QVariant value(QStringView path) const;
    bool getBool(QStringView path, bool def = false) const;
    qint64 getInt(QStringView path, qint64 def = 0) const;
    double getDouble(QStringView path, double def = 0) const;
    QString getString(QStringView path, const QString &def = QString()) const;
    /// Writes where a node is, creates nothing; returns whether something changed.
    bool set(QStringView path, double value);
    bool set(QStringView path, const QVariant &value);

    // --- lists of numbers
    /// Element as a double, packed or not; `def` outside the list.
    double number(int i, double def = 0) const;
    /// Writes an existing element; an element or packed list of another kind is converted. False outside the list.
    bool setNumber(int i, double value);
    /// Becomes a packed list of n doubles.
    void setDoubles(const double *values, int n);
    void setInts(const qint64 *values, int n);
    const double *packedDoubles() const;
    const qint64 *packedInts() const;
    /// Packs a list of at least one unnamed numbers of one kind and without handles; else does nothing.
    void pack();

    /// Same kinds, values, names and order below; the nodes' own names are not compared.
    friend PALX_API bool operator==(const Node &a, const Node &b);
    friend bool operator!=(const Node &a, const Node &b) { return !(a == b); }

    /// Heap and node bytes of the subtree, this node included; shared blocks count once per owner's share.
    std::size_t memoryBytes() const;

    // --- for handles and the store
    ModuleObject *handle() const { return handle_; }
    bool hasHandleBelow() const { return handleBelow_; }
    bool isEvent() const { return event_; }
    void setEvent(bool event) { event_ = event; }
    /// Set by every change of the node or below it, up to the root, until `clearChanged`. A new node is changed, so
    /// that one that takes the address of a removed node is not mistaken for it.
    bool isChanged() const { return changed_; }
    void clearChanged();
    void markChanged();

private:
    friend class ModuleObject;
    friend class TreeRegistry;
    struct Children;
    struct Packed;
    struct Place; // a node or an element of a packed list

    void release();
    void copyContent(const Node &other);
    void unpack();
    void becomeContainer(Kind kind);
    void attach(Node *child, int index);
    Node *takeAt(int index);
    static void dispose(Node *subtree);
    Place locate(QStringView path) const;
    bool overwritable() const;

    Name name_;
    Node *parent_ = nullptr;
    ModuleObject *handle_ = nullptr;
    union {
        bool bool_;
        qint64 int_ = 0;
        double double_;
        QString *string_;
        Children *children_;
        Packed *packedData_;
    };
    Kind kind_ = Kind::Null;
    bool packed_ = false;
    bool event_ = false;
    bool changed_ = true;
    bool handleBelow_ = false;
};

} // namespace orba
