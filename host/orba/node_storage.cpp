#include "orba/node_storage.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

namespace orba {

namespace {

constexpr std::uint32_t kFirstCapacity = 4; // a point record has four children

thread_local int notificationDepth = 0;

std::vector<Node *> &graveyard()
{
    thread_local std::vector<Node *> buried;
    return buried;
}

void *allocate(std::size_t bytes)
{
    void *block = std::malloc(bytes);
    if (!block)
        throw std::bad_alloc();
    return block;
}

} // namespace

Node::Children *Node::Children::make(std::uint32_t capacity)
{
    auto *children = static_cast<Children *>(allocate(sizeof(Children) + (capacity - 1) * sizeof(Node *)));
    children->size = 0;
    children->capacity = capacity;
    return children;
}

Node::Children *Node::Children::withRoom(Children *children)
{
    if (!children)
        return make(kFirstCapacity);
    if (children->size < children->capacity)
        return children;
    Children *larger = make(children->capacity * 2);
    larger->size = children->size;
    std::memcpy(larger->items, children->items, children->size * sizeof(Node *));
    free(children);
    return larger;
}

void Node::Children::free(Children *children)
{
    std::free(children);
}

Node::Packed *Node::Packed::make(std::uint32_t size, bool ints, const void *values)
{
    void *block = allocate(sizeof(Packed) + size * sizeof(double));
    auto *packed = new (block) Packed;
    packed->refs.store(1, std::memory_order_relaxed);
    packed->size = size;
    packed->ints = ints;
    if (values && size)
        std::memcpy(packed->integers(), values, size * sizeof(double));
    return packed;
}

Node::Packed *Node::Packed::share(Packed *packed)
{
    packed->refs.fetch_add(1, std::memory_order_relaxed);
    return packed;
}

Node::Packed *Node::Packed::unshared(Packed *packed)
{
    if (packed->refs.load(std::memory_order_acquire) == 1)
        return packed;
    Packed *own = make(packed->size, packed->ints, packed->integers());
    drop(packed);
    return own;
}

void Node::Packed::drop(Packed *packed)
{
    if (packed->refs.fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::free(packed);
}

bool Node::Packed::equals(Packed &other)
{
    return size == other.size && (ints == other.ints || size == 0) &&
           std::memcmp(integers(), other.integers(), size * sizeof(double)) == 0;
}

Notification::Notification()
{
    ++notificationDepth;
}

Notification::~Notification()
{
    if (--notificationDepth > 0)
        return;
    while (!graveyard().empty()) {
        Node *subtree = graveyard().back();
        graveyard().pop_back();
        delete subtree;
    }
}

bool Notification::running()
{
    return notificationDepth > 0;
}

void Notification::bury(Node *subtree)
{
    graveyard().push_back(subtree);
}

} // namespace orba
