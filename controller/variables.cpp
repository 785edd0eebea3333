#include "controller/variables.h"

#include "controller/texts.h"

#include <QLocale>
#include <QRegularExpression>

#include <vector>

namespace controller {

using orba::Node;
using Kind = orba::Node::Kind;

namespace {

Node *variableOf(Node &list, const QString &name)
{
    for (int i = 0; !list.isPacked() && i < list.size(); ++i)
        if (list.at(i)->getString(u"name") == name)
            return list.at(i);
    return nullptr;
}

bool isPersistent(const Node &variable)
{
    return variable.getBool(u"pers"); // the text "false" reads as false
}

Node *valueOf(Node &variable)
{
    Node *value = variable.child(QStringView(u"value"));
    return value && value->isContainer() && !value->isPacked() && value->size() > 0 ? value->at(0) : value;
}

const Node *valueOf(const Node &variable)
{
    return valueOf(const_cast<Node &>(variable)); // which changes nothing
}

/// What a variable of a type takes, as a value of that type; null when it takes no such value.
Node typed(const QString &type, const Node &given)
{
    Node value;
    const bool isWhole = given.kind() == Kind::Int;
    const bool isText = given.kind() == Kind::String;
    if (type == QLatin1String("bool") && (given.kind() == Kind::Bool || (isWhole && given.toInt() >> 1 == 0)))
        value.setBool(given.toBool());
    else if (type == QLatin1String("int") && isWhole)
        value.setInt(given.toInt());
    else if (type == QLatin1String("double") && (isWhole || given.kind() == Kind::Double))
        value.setDouble(given.toDouble());
    else if (isText && (type == QLatin1String("string") ||
                        (type == QLatin1String("robtarget") && isTargetText(given.toString()))))
        value.setString(given.toString());
    return value;
}

QString textOf(const Node &value)
{
    return value.kind() == Kind::Double
               ? QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest)
               : value.toString();
}

/// Variables are declared with texts as values; what is a text stays one, so that nobody finds another kind there.
void store(const Node &value, Node *place)
{
    if (place->kind() == Kind::String || place->kind() == Kind::Null)
        place->setString(textOf(value));
    else
        place->assign(value);
}

struct Assignment
{
    Node *place;
    Node value;
};

/// Finds where a value goes and what it becomes. Returns why not.
QString prepare(Node &list, const QString &name, const Node &given, bool onlyPersistent,
                Assignment *assignment)
{
    Node *variable = variableOf(list, name);
    if (!variable)
        return Texts::tr("there is no variable \"%1\"").arg(name);
    if (onlyPersistent && !isPersistent(*variable))
        return Texts::tr("the variable \"%1\" is not persistent").arg(name);
    const QString type = variable->getString(u"type");
    assignment->value = typed(type, given);
    if (assignment->value.isNull())
        return Texts::tr("the variable \"%1\" of type %2 does not take \"%3\"")
            .arg(name, type, textOf(given));
    assignment->place = valueOf(*variable);
    if (assignment->place && !assignment->place->isContainer())
        return {};
    return Texts::tr("the variable \"%1\" has no place for a value").arg(name);
}

} // namespace

bool isTargetText(const QString &text)
{
    static const QRegularExpression form = [] {
        const QString n = QStringLiteral("\\s*-?\\d+(\\.\\d*)?([eE][-+]?\\d+)?\\s*");
        const auto list = [&n](int count) { return n + QStringLiteral("(,%1){%2}").arg(n).arg(count - 1); };
        return QRegularExpression(QStringLiteral("\\Ap:\\{\\{%1\\},\\{%2\\},%3\\}\\{cfg %4\\}\\{EJ %5\\}\\z")
                                      .arg(list(3), list(4), n, list(8), list(6)));
    }();
    return text.size() < 1000 && form.match(text).hasMatch();
}

void Variables::follow(const Node &list)
{
    QHash<QString, Node> first;
    for (int i = 0; !list.isPacked() && i < list.size(); ++i) {
        const Node &variable = *list.at(i);
        const QString name = variable.getString(u"name");
        const Node *value = valueOf(variable);
        if (value && !isPersistent(variable) && !first.contains(name))
            first.insert(name, first_.value(name, *value));
    }
    first_ = first;
}

void Variables::exchange(const Node &list)
{
    first_.clear();
    follow(list);
}

QString Variables::modify(Node &list, const Node &values)
{
    if (!values.isNull() && (!values.isContainer() || values.isPacked()))
        return Texts::tr("this is no map of variables");
    std::vector<Assignment> assignments(static_cast<std::size_t>(values.size()));
    for (int i = 0; i < values.size(); ++i) {
        const Node &value = *values.at(i);
        QString why =
            prepare(list, value.name().toString(), value, true, &assignments[static_cast<std::size_t>(i)]);
        if (!why.isEmpty())
            return why;
    }
    for (const Assignment &assignment : assignments)
        store(assignment.value, assignment.place);
    return {};
}

QString Variables::assign(Node &list, const QString &name, const Node &value)
{
    Assignment assignment{};
    QString why = prepare(list, name, value, false, &assignment);
    if (why.isEmpty())
        store(assignment.value, assignment.place);
    return why;
}

const Node *Variables::value(const Node &list, const QString &name)
{
    const Node *variable = variableOf(const_cast<Node &>(list), name); // which changes nothing
    return variable ? valueOf(*variable) : nullptr;
}

Node Variables::kept(const Node &list) const
{
    Node kept = list;
    for (int i = 0; !kept.isPacked() && i < kept.size(); ++i) {
        Node &variable = *kept.at(i);
        const auto first = first_.constFind(variable.getString(u"name"));
        Node *value = valueOf(variable);
        if (value && first != first_.constEnd() && !isPersistent(variable))
            value->assign(*first);
    }
    return kept;
}

} // namespace controller
