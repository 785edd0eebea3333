#pragma once

#include "orba/node.h"

#include <atomic>

namespace orba {

/// Ordered children: a head and the pointers in one block.
struct Node::Children {
    std::uint32_t size;
    std::uint32_t capacity;
    Node *items[1];

    static Children *make(std::uint32_t capacity);
    /// The same children with room for one more; null makes a first block.
    static Children *withRoom(Children *children);
    static void free(Children *children);
};

/// A block of numbers, shared between copies until one of them writes. Aligned for the numbers that follow it.
struct alignas(double) Node::Packed {
    std::atomic<int> refs;
    std::uint32_t size;
    bool ints;

    double *doubles() { return reinterpret_cast<double *>(this + 1); }
    qint64 *integers() { return reinterpret_cast<qint64 *>(this + 1); }
    std::size_t bytes() const { return sizeof(Packed) + size * sizeof(double); }
    bool equals(Packed &other);

    /// `values` may be null: the numbers are then left for the caller to fill.
    static Packed *make(std::uint32_t size, bool ints, const void *values);
    static Packed *share(Packed *packed);
    /// A block with this content that nobody else holds; takes the caller's share.
    static Packed *unshared(Packed *packed);
    static void drop(Packed *packed);
};
static_assert(sizeof(double) == sizeof(qint64), "packed elements are 8 bytes");

/// Where a path leads: a node, or an element of a packed list, or nowhere.
struct Node::Place {
    Node *node = nullptr;
    int element = -1;
};

/// Notifications on the GUI thread: what listeners remove ends when the outermost one is over.
class Notification
{
public:
    Notification();
    ~Notification();
    static bool running();
    /// Takes over a detached subtree.
    static void bury(Node *subtree);
};

} // namespace orba
