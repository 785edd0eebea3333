#include "core/tree_compare.h"

#include <QSet>

namespace host {

using orba::Node;

// ---------------------------------------------------------------- differences

namespace {

class Comparison
{
public:
    std::vector<TreeDifference> found;

    void compare(const Node &was, const Node &now, const QString &path)
    {
        if (now.isEvent() || was == now)
            return;
        if (canDescend(was, now))
            compareChildren(was, now, path);
        else
            found.push_back({path, &now});
    }

private:
    /// Whether everything in which the two differ can be said by paths to their children: nothing was
    /// removed, moved or named anew, and what came stands at the end.
    static bool canDescend(const Node &was, const Node &now)
    {
        if (was.kind() != now.kind() || !now.isContainer() || was.isPacked() || now.isPacked() ||
            was.size() == 0 || was.size() > now.size())
            return false;
        for (int i = 0; i < was.size(); ++i)
            if (was.at(i)->name() != now.at(i)->name())
                return false;
        return now.kind() == Node::Kind::List ? hasUnnamedRest(now, was.size()) : hasNamesForPaths(now);
    }

    static bool hasUnnamedRest(const Node &list, int from)
    {
        for (int i = from; i < list.size(); ++i)
            if (!list.at(i)->name().isNull())
                return false;
        return true;
    }

    static bool hasNamesForPaths(const Node &map)
    {
        QSet<const QChar *> seen; // names are interned: equal ones share their text
        for (int i = 0; i < map.size(); ++i) {
            const QStringView name = map.at(i)->name().view();
            if (name.isEmpty() || name.startsWith(QLatin1Char('#')) || name.contains(QLatin1Char('.')) ||
                seen.contains(name.data()))
                return false;
            seen.insert(name.data());
        }
        return true;
    }

    void compareChildren(const Node &was, const Node &now, const QString &path)
    {
        const QString prefix = path.isEmpty() ? path : path + QLatin1Char('.');
        const bool isList = now.kind() == Node::Kind::List;
        for (int i = 0; i < now.size(); ++i) {
            const Node &child = *now.at(i);
            const QString childPath =
                prefix + (isList ? QStringLiteral("#%1").arg(i) : child.name().toString());
            if (i < was.size())
                compare(*was.at(i), child, childPath);
            else if (!child.isEvent())
                found.push_back({childPath, &child});
        }
    }
};

} // namespace

std::vector<TreeDifference> differences(const Node &was, const Node &now)
{
    Comparison comparison;
    comparison.compare(was, now, QString());
    return std::move(comparison.found);
}

// ---------------------------------------------------------------- mirror

namespace {

int indexFrom(const Node &map, int first, orba::Name name)
{
    for (int i = first; i < map.size(); ++i)
        if (map.at(i)->name() == name)
            return i;
    return -1;
}

const Node *childOf(const Node *pattern, orba::Name name)
{
    return pattern ? pattern->child(name) : nullptr;
}

void mirrorMap(Node &target, const Node &source, const Node *pattern)
{
    for (int i = 0; i < source.size(); ++i) {
        const Node &wanted = *source.at(i);
        const int known = indexFrom(target, i, wanted.name());
        if (known < 0)
            target.insert(i, wanted.name())->assign(wanted);
        else if (known != i)
            target.move(known, i);
        if (known >= 0)
            mirrorTree(*target.at(i), wanted, childOf(pattern, wanted.name()));
    }
    for (int i = target.size() - 1; i >= source.size(); --i)
        if (!childOf(pattern, target.at(i)->name()))
            target.removeAt(i);
}

void mirrorList(Node &target, const Node &source)
{
    const int common = std::min(target.size(), source.size());
    for (int i = 0; i < common; ++i) {
        target.at(i)->setName(source.at(i)->name());
        mirrorTree(*target.at(i), *source.at(i));
    }
    for (int i = target.size() - 1; i >= common; --i)
        target.removeAt(i);
    for (int i = common; i < source.size(); ++i)
        target.add(source.at(i)->name())->assign(*source.at(i));
}

/// A packed list has no nodes that somebody could hold; but the other side of it may.
void mirrorNumbers(Node &target, const Node &source)
{
    if (target.isPacked()) {
        target.assign(source);
        return;
    }
    Node unpacked(source);
    if (unpacked.size() > 0)
        unpacked.at(0); // asking for an element makes nodes of all
    mirrorList(target, unpacked);
}

} // namespace

void mirrorTree(Node &target, const Node &source, const Node *pattern)
{
    if (target.isEvent() || target == source)
        return;
    const bool isAlike = target.kind() == source.kind() && target.isContainer();
    if (isAlike && (target.isPacked() || source.isPacked()))
        mirrorNumbers(target, source);
    else if (isAlike && target.kind() == Node::Kind::List)
        mirrorList(target, source);
    else if (isAlike)
        mirrorMap(target, source, pattern);
    else if (!pattern || pattern->kind() != Node::Kind::Map || source.kind() == Node::Kind::Map)
        target.assign(source);
}

} // namespace host
