#pragma once

#include "orba/node.h"

#include <vector>

/// How two copies of a tree are brought together: the panel's own and what the controller has.
namespace host {

/// A place where a tree differs from an older copy, as a path below the tree's top, and what is there now.
struct TreeDifference
{
    QString path;
    const orba::Node *now;
};

/// The smallest subtrees in which `now` differs from `was`, in tree order: applied to `was` one after the
/// other with `applyWrite` they make it equal to `now`. Event nodes (Node::isEvent) of `now` are no content
/// and left out. A path is empty when the tops themselves differ in a way that no path below can say.
PALX_API std::vector<TreeDifference> differences(const orba::Node &was, const orba::Node &now);

/// Makes `target` equal to `source` in place: children of maps are matched by name, of lists by index; what
/// is alike stays, with its handles, and only what differs is written, added or removed. Event nodes are left
/// alone. Children of maps that `pattern` has too are never removed and keep their children when the source
/// has none of that kind. Nothing is announced.
PALX_API void mirrorTree(orba::Node &target, const orba::Node &source, const orba::Node *pattern = nullptr);

} // namespace host
