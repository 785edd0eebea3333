#include "orba/node.h"

#include "orba/module_object.h"
#include "orba/node_storage.h"
#include "orba/tree_registry.h"

#include <QStringList>

#include <algorithm>
#include <cstring>
#include <memory>

namespace orba {

// ---------------------------------------------------------------- life

Node::Node(const Node &other) : name_(other.name_)
{
    copyContent(other);
}

Node::Node(Node &&other) : name_(other.name_)
{
    if (other.handleBelow_)
        copyContent(other);
    else
        take(other);
}

Node &Node::operator=(const Node &other)
{
    if (this != &other)
        assign(other);
    return *this;
}

Node &Node::operator=(Node &&other)
{
    if (other.handleBelow_ || other.isInside(*this) || isInside(other))
        assign(other);
    else
        take(other);
    return *this;
}

Node::~Node()
{
    release();
    if (ModuleObject *handle = handle_) {
        handle_ = nullptr;
        handle->node_ = &emptyMobj()->node();
        delete handle;
    }
}

/// Frees the value or the children and leaves null.
void Node::release()
{
    if (packed_) {
        Packed::drop(packedData_);
    } else if (kind_ == Kind::String) {
        delete string_;
    } else if (isContainer() && children_) {
        Children *children = children_;
        children_ = nullptr; // listeners of `destroyed` see an empty node
        for (std::uint32_t i = 0; i < children->size; ++i) {
            children->items[i]->parent_ = nullptr;
            dispose(children->items[i]);
        }
        Children::free(children);
    }
    kind_ = Kind::Null;
    packed_ = false;
    int_ = 0;
}

/// Fills a node whose value was released.
void Node::copyContent(const Node &other)
{
    if (other.packed_) {
        packedData_ = Packed::share(other.packedData_);
        packed_ = true;
    } else if (other.kind_ == Kind::String) {
        string_ = new QString(*other.string_);
    } else if (other.isContainer()) {
        children_ = nullptr;
        if (other.size() > 0) { // one whose children were all removed keeps its empty block
            children_ = Children::make(other.children_->size);
            for (std::uint32_t i = 0; i < other.children_->size; ++i) {
                Node *copy = new Node(*other.children_->items[i]);
                copy->parent_ = this;
                children_->items[i] = copy;
            }
            children_->size = other.children_->size;
        }
    } else {
        int_ = 0;
        std::memcpy(&int_, &other.int_, sizeof int_);
    }
    kind_ = other.kind_;
}

void Node::assign(const Node &source)
{
    if (&source == this)
        return;
    Node copy(source); // the source may lie inside this node
    take(copy);
}

void Node::take(Node &source)
{
    Q_ASSERT(!source.handleBelow_ && !source.isInside(*this) && !isInside(source));
    release();
    kind_ = source.kind_;
    packed_ = source.packed_;
    std::memcpy(&int_, &source.int_, sizeof int_);
    if (isContainer() && !packed_ && children_)
        for (std::uint32_t i = 0; i < children_->size; ++i)
            children_->items[i]->parent_ = this;
    source.kind_ = Kind::Null; // its content moved here
    source.packed_ = false;
    source.markChanged();
    markChanged();
}

void Node::dispose(Node *subtree)
{
    if (subtree->handleBelow_ && Notification::running())
        Notification::bury(subtree);
    else
        delete subtree;
}

// ---------------------------------------------------------------- place in the tree

void Node::setName(Name name)
{
    if (name_ == name)
        return;
    name_ = name;
    markChanged();
}

bool Node::isInside(const Node &ancestor) const
{
    for (const Node *node = this; node; node = node->parent_)
        if (node == &ancestor)
            return true;
    return false;
}

QString Node::pathFrom(const Node &ancestor) const
{
    QStringList keys;
    for (const Node *node = this; node != &ancestor && node->parent_; node = node->parent_)
        keys.prepend(node->name_.isNull() ? QStringLiteral("#%1").arg(node->parent_->indexOf(node))
                                          : node->name_.toString());
    return keys.join(QLatin1Char('.'));
}

void Node::markChanged()
{
    for (Node *node = this; node; node = node->parent_) {
        if (node->changed_)
            return;
        node->changed_ = true;
        if (!node->parent_)
            TreeRegistry::rootChanged(node);
    }
}

void Node::clearChanged()
{
    if (!changed_)
        return;
    changed_ = false;
    if (packed_ || !isContainer() || !children_)
        return;
    for (std::uint32_t i = 0; i < children_->size; ++i)
        children_->items[i]->clearChanged();
}

// ---------------------------------------------------------------- children

int Node::size() const
{
    if (packed_)
        return static_cast<int>(packedData_->size);
    return isContainer() && children_ ? static_cast<int>(children_->size) : 0;
}

Node *Node::at(int i)
{
    if (packed_ && i >= 0 && i < size())
        unpack();
    return const_cast<Node *>(static_cast<const Node *>(this)->at(i));
}

const Node *Node::at(int i) const
{
    return packed_ || i < 0 || i >= size() ? nullptr : children_->items[i];
}

const Node *Node::child(Name name) const
{
    if (packed_ || !isContainer() || !children_)
        return nullptr;
    for (std::uint32_t i = 0; i < children_->size; ++i)
        if (children_->items[i]->name_ == name && !name.isNull())
            return children_->items[i];
    return nullptr;
}

const Node *Node::child(QStringView name) const
{
    if (packed_ || !isContainer() || !children_)
        return nullptr;
    const auto bytes = static_cast<std::size_t>(name.size()) * sizeof(QChar);
    for (std::uint32_t i = 0; i < children_->size; ++i) {
        const Name known = children_->items[i]->name_;
        const QStringView text = known.view();
        // Inline on purpose: most names differ in length, and the library's comparison is a call.
        if (!known.isNull() && text.size() == name.size() &&
            (bytes == 0 || std::memcmp(text.data(), name.data(), bytes) == 0))
            return children_->items[i];
    }
    return nullptr;
}

int Node::indexOf(const Node *child) const
{
    const int n = packed_ ? 0 : size();
    for (int i = 0; i < n; ++i)
        if (children_->items[i] == child)
            return i;
    return -1;
}

void Node::becomeContainer(Kind kind)
{
    kind_ = kind;
    packed_ = false;
    children_ = nullptr;
}

void Node::attach(Node *child, int index)
{
    children_ = Children::withRoom(children_);
    Node **place = children_->items + index;
    std::memmove(place + 1, place, (children_->size - static_cast<std::uint32_t>(index)) * sizeof(Node *));
    *place = child;
    ++children_->size;
    child->parent_ = this;
    markChanged();
}

Node *Node::takeAt(int index)
{
    Node *child = children_->items[index];
    Node **place = children_->items + index;
    --children_->size;
    std::memmove(place, place + 1, (children_->size - static_cast<std::uint32_t>(index)) * sizeof(Node *));
    child->parent_ = nullptr;
    markChanged();
    return child;
}

Node *Node::add(Name name)
{
    return insert(size(), name);
}

Node *Node::insert(int index, Name name)
{
    if (kind_ == Kind::Null)
        becomeContainer(name.isNull() ? Kind::List : Kind::Map);
    if (!isContainer())
        return nullptr;
    if (packed_)
        unpack();
    Node *child = new Node(name);
    attach(child, std::clamp(index, 0, size()));
    return child;
}

Node *Node::ensureChild(Name name)
{
    Node *known = child(name);
    return known ? known : add(name);
}

void Node::removeAt(int index)
{
    if (index < 0 || index >= size())
        return;
    if (packed_)
        unpack();
    dispose(takeAt(index));
}

bool Node::remove(QStringView path)
{
    Node *node = find(path);
    if (!node || node == this)
        return false;
    Node *parent = node->parent_;
    parent->removeAt(parent->indexOf(node));
    return true;
}

void Node::move(int from, int to)
{
    if (from == to || from < 0 || to < 0 || from >= size() || to >= size())
        return;
    if (packed_)
        unpack();
    attach(takeAt(from), to);
}

void Node::clear()
{
    reset(isContainer() ? kind_ : Kind::Null);
}

void Node::reset(Kind kind)
{
    if (kind_ == kind && (kind == Kind::Null || (isContainer() && size() == 0 && !packed_)))
        return;
    release();
    if (kind == Kind::List || kind == Kind::Map)
        becomeContainer(kind);
    else if (kind == Kind::String)
        string_ = new QString(QLatin1String(""));
    kind_ = kind;
    markChanged();
}

// ---------------------------------------------------------------- lists of numbers

bool Node::isPackedDoubles() const
{
    return packed_ && !packedData_->ints;
}

const double *Node::packedDoubles() const
{
    return isPackedDoubles() ? packedData_->doubles() : nullptr;
}

const qint64 *Node::packedInts() const
{
    return packed_ && packedData_->ints ? packedData_->integers() : nullptr;
}

double Node::number(int i, double def) const
{
    if (i < 0 || i >= size())
        return def;
    if (!packed_)
        return children_->items[i]->toDouble(def);
    return packedData_->ints ? static_cast<double>(packedData_->integers()[i]) : packedData_->doubles()[i];
}

bool Node::setNumber(int i, double value)
{
    if (i < 0 || i >= size())
        return false;
    if (!isPackedDoubles()) {
        at(i)->setDouble(value);
        return true;
    }
    if (std::memcmp(packedData_->doubles() + i, &value, sizeof value) != 0) {
        packedData_ = Packed::unshared(packedData_);
        packedData_->doubles()[i] = value;
        markChanged();
    }
    return true;
}

void Node::setDoubles(const double *values, int n)
{
    Packed *packed = Packed::make(static_cast<std::uint32_t>(n), false, values);
    release();
    kind_ = Kind::List;
    packed_ = true;
    packedData_ = packed;
    markChanged();
}

void Node::setInts(const qint64 *values, int n)
{
    Packed *packed = Packed::make(static_cast<std::uint32_t>(n), true, values);
    release();
    kind_ = Kind::List;
    packed_ = true;
    packedData_ = packed;
    markChanged();
}

void Node::unpack()
{
    Packed *packed = packedData_;
    becomeContainer(Kind::List);
    const std::uint32_t n = packed->size;
    children_ = n ? Children::make(n) : nullptr;
    for (std::uint32_t i = 0; i < n; ++i) {
        Node *element = new Node;
        element->kind_ = packed->ints ? Kind::Int : Kind::Double;
        std::memcpy(&element->int_, packed->integers() + i, sizeof element->int_);
        element->parent_ = this;
        element->changed_ = changed_; // another form is no change
        children_->items[i] = element;
        children_->size = i + 1;
    }
    Packed::drop(packed);
}

void Node::pack()
{
    const int n = size();
    if (packed_ || kind_ != Kind::List || n == 0)
        return;
    const Kind kind = children_->items[0]->kind_;
    if (kind != Kind::Int && kind != Kind::Double)
        return;
    for (int i = 0; i < n; ++i) {
        const Node *element = children_->items[i];
        if (element->kind_ != kind || !element->name_.isNull() || element->handle_ || element->event_)
            return;
    }
    Packed *packed = Packed::make(static_cast<std::uint32_t>(n), kind == Kind::Int, nullptr);
    for (int i = 0; i < n; ++i)
        std::memcpy(packed->integers() + i, &children_->items[i]->int_, sizeof(qint64));
    release();
    kind_ = Kind::List;
    packed_ = true;
    packedData_ = packed;
}

// ---------------------------------------------------------------- comparison, size

bool operator==(const Node &a, const Node &b)
{
    if (a.kind_ != b.kind_ || a.size() != b.size())
        return false;
    if (a.packed_ && b.packed_)
        return a.packedData_->equals(*b.packedData_);
    if (a.packed_ || b.packed_) {
        Node unpacked(a.packed_ ? a : b);
        unpacked.unpack();
        return unpacked == (a.packed_ ? b : a);
    }
    if (a.kind_ == Node::Kind::String)
        return *a.string_ == *b.string_;
    if (a.kind_ == Node::Kind::Bool)
        return a.bool_ == b.bool_;
    if (!a.isContainer())
        return a.isNull() || std::memcmp(&a.int_, &b.int_, sizeof a.int_) == 0;
    for (int i = 0; i < a.size(); ++i) {
        const Node *left = a.children_->items[i];
        const Node *right = b.children_->items[i];
        if (left->name_ != right->name_ || !(*left == *right))
            return false;
    }
    return true;
}

std::size_t Node::memoryBytes() const
{
    std::size_t bytes = sizeof(Node);
    if (packed_)
        return bytes + packedData_->bytes() / static_cast<std::size_t>(packedData_->refs.load());
    if (kind_ == Kind::String)
        return bytes + sizeof(QString) + static_cast<std::size_t>(string_->capacity()) * sizeof(QChar);
    if (!isContainer() || !children_)
        return bytes;
    bytes += sizeof(Children) + children_->capacity * sizeof(Node *);
    for (std::uint32_t i = 0; i < children_->size; ++i)
        bytes += children_->items[i]->memoryBytes();
    return bytes;
}

} // namespace orba
