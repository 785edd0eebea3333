#include "stack/recipe_shape.h"

#include "stack/shared_lists.h"

#include <functional>

namespace palx {
namespace {

using orba::Node;
using Kind = Node::Kind;

/// The judge of one node: gets the node and its path, returns the fault.
using Judge = std::function<QString(const Node &, const QString &)>;

QString kindText(const Node &node)
{
    switch (node.kind()) {
    case Kind::Null:
        return QStringLiteral("nothing");
    case Kind::Bool:
        return QStringLiteral("true or false");
    case Kind::Int:
    case Kind::Double:
        return QStringLiteral("a number");
    case Kind::String:
        return QStringLiteral("the text \"%1\"").arg(node.toString().left(40));
    case Kind::List:
        return QStringLiteral("a list");
    case Kind::Map:
        return QStringLiteral("a group");
    }
    return QString();
}

QString fault(const Node &node, const QString &path, const QString &expected)
{
    return QStringLiteral("%1: is %2, expected %3").arg(path, kindText(node), expected);
}

QString below(const QString &path, const Node &child, int index)
{
    const QString key = child.name().isNull() ? QStringLiteral("#%1").arg(index) : child.name().toString();
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString below(const QString &path, const QString &key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString numberFault(const Node &node, const QString &path)
{
    bool readable = node.kind() == Kind::Int || node.kind() == Kind::Double || node.kind() == Kind::Bool;
    if (node.kind() == Kind::String) // fields may have been written as text
        node.toString().toDouble(&readable);
    return readable ? QString() : fault(node, path, QStringLiteral("a number"));
}

QString flagFault(const Node &node, const QString &path)
{
    const QString text = node.toString();
    if (node.kind() == Kind::String && (text == QLatin1String("true") || text == QLatin1String("false")))
        return QString();
    return numberFault(node, path);
}

QString textFault(const Node &node, const QString &path)
{
    return node.isContainer() ? fault(node, path, QStringLiteral("a text")) : QString();
}

/// Judges every child of a list or group of records.
QString eachFault(const Node &node, const QString &path, const Judge &judge)
{
    if (node.isNull())
        return QString();
    if (!node.isContainer())
        return fault(node, path, QStringLiteral("a list"));
    if (node.isPacked())
        return QStringLiteral("%1: is a list of numbers, expected a list of groups").arg(path);
    for (int i = 0; i < node.size(); ++i) {
        QString found = judge(*node.at(i), below(path, *node.at(i), i));
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

QString numbersFault(const Node &node, const QString &path, int atLeast)
{
    if (!node.isContainer() || node.size() < atLeast)
        return fault(node, path, QStringLiteral("a list of at least %1 numbers").arg(atLeast));
    if (node.isPacked())
        return QString();
    for (int i = 0; i < node.size(); ++i) {
        QString found = numberFault(*node.at(i), below(path, QStringLiteral("#%1").arg(i)));
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

QString pointFault(const Node &point, const QString &path)
{
    if (point.isNull())
        return QString();
    if (point.kind() != Kind::Map)
        return fault(point, path, QStringLiteral("a point"));
    static const struct
    {
        const char16_t *key;
        int atLeast;
    } kLists[] = {{u"trans", 3}, {u"rot", 3}, {u"near", 0}, {u"conf", 0}};
    for (const auto &list : kLists) {
        const QString key = QString::fromUtf16(list.key);
        const Node *numbers = point.child(list.key);
        if (!numbers && list.atLeast == 0)
            continue;
        if (!numbers)
            return QStringLiteral("%1: is a group without \"%2\", expected a point").arg(path, key);
        QString found = numbersFault(*numbers, below(path, key), list.atLeast);
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

/// A value against a template's: groups key by key, numbers and texts by their kind; null in the template is
/// a point.
QString templateFault(const Node &value, const Node &wanted, const QString &path);

QString groupFault(const Node &value, const Node &wanted, const QString &path)
{
    if (value.kind() != Kind::Map)
        return fault(value, path.isEmpty() ? QStringLiteral("recipe") : path, QStringLiteral("a group"));
    for (int i = 0; i < wanted.size(); ++i) {
        const Node *child = value.child(wanted.at(i)->name());
        QString found =
            child ? templateFault(*child, *wanted.at(i), below(path, *wanted.at(i), i)) : QString();
        if (!found.isEmpty())
            return found;
    }
    return QString();
}

QString templateFault(const Node &value, const Node &wanted, const QString &path)
{
    if (value.isNull())
        return QString();
    switch (wanted.kind()) {
    case Kind::Map:
        return groupFault(value, wanted, path);
    case Kind::Bool:
        return flagFault(value, path);
    case Kind::Int:
    case Kind::Double:
        return numberFault(value, path);
    case Kind::String:
        return textFault(value, path);
    case Kind::Null:
        return pointFault(value, path);
    case Kind::List:
        break;
    }
    return value.isContainer() ? QString() : fault(value, path, QStringLiteral("a list"));
}

void addNumbers(Node &shape, const QString &path, const QStringList &keys)
{
    for (const QString &key : keys)
        shape.ensure(below(path, key))->setInt(0);
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

Node itemShape()
{
    Node shape;
    addNumbers(shape, QString(), words("x y w h r index orient dx dy dz"));
    shape.ensure(u"direction")->setString(QString());
    return shape;
}

Node layerShape()
{
    Node shape;
    shape.ensure(u"pattern")->setString(QString());
    addNumbers(shape, QString(), words("h_offset"));
    return shape;
}

/// What any entry of a shared list may hold.
Node shapeOf(const QVector<Node> &entries)
{
    Node shape;
    for (const Node &entry : entries)
        for (int i = 0; i < entry.size(); ++i)
            shape.ensureChild(entry.at(i)->name())->assign(*entry.at(i));
    return shape;
}

Judge against(const Node &shape)
{
    return [shape](const Node &value, const QString &path) { return templateFault(value, shape, path); };
}

QString patternsFault(const Node &patterns, const QString &path)
{
    const Judge item = against(itemShape());
    return eachFault(patterns, path, [&item](const Node &pattern, const QString &where) {
        return eachFault(pattern, where, item);
    });
}

/// What the template leaves null without meaning a point.
QString filledLaterFault(const Node &stack)
{
    static const Node empty{};
    const auto part = [&stack](const char16_t *key) -> const Node & {
        const Node *child = stack.child(key);
        return child ? *child : empty;
    };
    QString found = patternsFault(part(u"patterns"), QStringLiteral("patterns"));
    if (found.isEmpty())
        found = eachFault(part(u"layers"), QStringLiteral("layers"), against(layerShape()));
    const Node &toolset = part(u"toolset");
    if (found.isEmpty() && !toolset.isNull() && toolset.kind() != Kind::Map)
        found = fault(toolset, QStringLiteral("toolset"), QStringLiteral("a group"));
    return found;
}

} // namespace

QString recipeFault(const Node &stack, const Node &templateStack)
{
    Node shape = templateStack;
    for (const char16_t *key : {u"toolset", u"patterns", u"layers", u"points"})
        shape.remove(key);
    for (const char16_t *key : {u"name", u"desc"})
        shape.ensureChild(orba::Name(key))->setString(QString());
    QString found = groupFault(stack, shape, QString());
    return found.isEmpty() ? filledLaterFault(stack) : found;
}

QString globalToolFault(const Node &tools)
{
    return eachFault(tools, QStringLiteral("global_tool"), against(shapeOf(sharedToolEntries())));
}

QString globalWobjFault(const Node &wobjs)
{
    return eachFault(wobjs, QStringLiteral("global_wobj"), against(shapeOf(sharedWobjEntries())));
}

} // namespace palx
