#pragma once

#include "orba/module_object.h"

#include <functional>

namespace orba {

/// The root of all trees: one child per module. Lives on the GUI thread from first use to the end of the process.
class PALX_API TreeRegistry
{
public:
    static TreeRegistry &instance();

    Node &root() { return root_; }
    /// The tree of a module by full or short name, or null.
    Node *module(QStringView name);
    /// Adds an empty tree, or empties the one that is there (its handles below it end; its own stays).
    Node *addModule(const QString &name);
    void removeModule(const QString &name);
    /// Called once after the first change below the root since the changed flags were cleared.
    void setChangeHook(std::function<void()> hook) { hook_ = std::move(hook); }

private:
    friend class Node;
    TreeRegistry();
    /// Told by a node without parent that it changed for the first time; any thread, any tree.
    static void rootChanged(Node *node);
    Node root_;
    std::function<void()> hook_;
};

} // namespace orba
