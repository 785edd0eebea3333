#include "orba/tree_registry.h"

#include <atomic>

namespace orba {

namespace {

// Known to every thread, so that a temporary tree can tell whether it is the one that is watched.
std::atomic<Node *> watchedRoot{nullptr};

QStringView shortName(QStringView module)
{
    const auto underscore = module.indexOf(QLatin1Char('_'));
    return underscore < 0 ? module : module.left(underscore);
}

} // namespace

TreeRegistry::TreeRegistry()
{
    root_.reset(Node::Kind::Map);
    watchedRoot.store(&root_);
}

TreeRegistry &TreeRegistry::instance()
{
    static TreeRegistry *registry = new TreeRegistry; // listeners may still look nodes up while the process ends
    return *registry;
}

void TreeRegistry::rootChanged(Node *node)
{
    if (node != watchedRoot.load(std::memory_order_relaxed))
        return;
    if (const auto &hook = instance().hook_)
        hook();
}

Node *TreeRegistry::module(QStringView name)
{
    if (Node *exact = root_.child(name))
        return exact;
    for (int i = 0; i < root_.size(); ++i)
        if (shortName(root_.at(i)->name().view()) == name)
            return root_.at(i);
    return nullptr;
}

Node *TreeRegistry::addModule(const QString &name)
{
    Node *tree = root_.ensureChild(Name(name));
    tree->reset(Node::Kind::Map);
    return tree;
}

void TreeRegistry::removeModule(const QString &name)
{
    const int index = root_.indexOf(root_.child(QStringView(name)));
    root_.removeAt(index);
}

Node *findGlobal(QStringView path)
{
    const auto dot = path.indexOf(QLatin1Char('.'));
    Node *module = TreeRegistry::instance().module(dot < 0 ? path : path.left(dot));
    return module && dot >= 0 ? module->find(path.mid(dot + 1)) : module;
}

} // namespace orba
