#include "controller/mirror.h"

#include "link/path_write.h"

namespace controller {

using orba::Name;
using orba::Node;

namespace {

/// What the panel mirrors, and whether it is told in parts.
struct Root
{
    const char16_t *path;
    bool inParts;
};
constexpr Root kRoots[] = {{u"nexo.r", true},
                           {u"nexo.robot", false},
                           {u"nexo.cell", true},
                           {u"quill.project", true},
                           {u"quill.body.toolset", true}};

bool canBePathKey(Name name)
{
    const QStringView text = name.view();
    return name.isNull() ||
           (!text.isEmpty() && !text.contains(QLatin1Char('.')) && !text.startsWith(QLatin1Char('#')));
}

/// Whether a node can be told child by child: the same children, each of which a path can name.
bool haveSamePaths(const Node &tree, const Node &told)
{
    if (tree.kind() != told.kind() || !tree.isContainer() || tree.isPacked() || told.isPacked() ||
        tree.size() != told.size())
        return false;
    for (int i = 0; i < tree.size(); ++i) {
        const Name name = tree.at(i)->name();
        if (name != told.at(i)->name() || !canBePathKey(name) ||
            (!name.isNull() && tree.child(name) != tree.at(i)))
            return false;
    }
    return true;
}

QString keyOf(const Node &parent, int index)
{
    const Name name = parent.at(index)->name();
    return name.isNull() ? QStringLiteral("#%1").arg(index) : name.toString();
}

} // namespace

Node Mirror::tellAll()
{
    forced_.clear();
    tree_->clearChanged();
    told_ = *tree_;
    Node state;
    state.reset(Node::Kind::List);
    for (const Root &root : kRoots) {
        Node *entry = state.add();
        entry->ensure(u"path")->setString(QString::fromUtf16(root.path));
        entry->ensure(u"value")->assign(*tree_->find(root.path));
    }
    return state;
}

bool Mirror::write(const QString &path, Node &payload)
{
    Node copy = payload;
    if (!host::applyWrite(*tree_, path, payload))
        return false;
    host::applyWrite(told_, path, copy); // what does not fit there is told as a difference
    return true;
}

std::deque<Mirror::Change> Mirror::takeChanges()
{
    std::deque<Change> changes;
    for (const QString &path : forced_) {
        const Node *node = std::as_const(*tree_).find(path);
        Node *told = told_.ensure(path);
        if (!node || !told)
            continue;
        told->assign(*node);
        changes.push_back({path, *node});
    }
    forced_.clear();
    for (const Root &root : kRoots) {
        const Node *node = std::as_const(*tree_).find(root.path);
        Node *told = told_.ensure(root.path);
        const QString path = QString::fromUtf16(root.path);
        if (root.inParts)
            compare(*node, told, path, &changes);
        else if (node->isChanged() && *node != *told) {
            told->assign(*node);
            changes.push_back({path, *node});
        }
    }
    tree_->clearChanged();
    return changes;
}

void Mirror::compare(const Node &tree, Node *told, const QString &path, std::deque<Change> *changes)
{
    if (!tree.isChanged())
        return;
    if (haveSamePaths(tree, *told)) {
        for (int i = 0; i < tree.size(); ++i)
            compare(*tree.at(i), told->at(i), path + QLatin1Char('.') + keyOf(tree, i), changes);
        return;
    }
    if (tree == *told)
        return;
    told->assign(tree);
    changes->push_back({path, tree});
}

} // namespace controller
