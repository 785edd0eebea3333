#include "project/rules/project_parameters_file.h"

#include "project/rules/project_messages.h"
#include "project/rules/project_record.h"
#include "project/rules/staged_folder.h"

#include <limits>

namespace palx {

using orba::Name;
using orba::Node;

namespace {

constexpr const char16_t *kValue = u"value.[0][0][0]";

// How a list begins and ends where it was written by the framework's writer.
constexpr const char *kListHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<node type=\"list\">\n";
constexpr const char *kListTail = "\n</node>\n";

/// The highest value of a parameter; the lowest is 0, of an index in a list of recipes -1 for none.
struct Range
{
    const char *key;
    qint64 least;
    qint64 most;
};
constexpr Range kRanges[] = {
    {"scheme_layout", 0, 3},
    {"palletizing_type", 0, 1},
    {"type_of_sucker", 0, 1},
    {"bollard", 0, 1},
    {"clapboard", 0, 1},
    {"left_stack_recipe", -1, std::numeric_limits<int>::max()},
    {"right_stack_recipe", -1, std::numeric_limits<int>::max()},
};

bool canHold(const QString &key, qint64 value)
{
    for (const Range &range : kRanges)
        if (key == QLatin1String(range.key))
            return value >= range.least && value <= range.most;
    return false;
}

QStringList sortedKeys()
{
    QStringList keys = projectParameters();
    keys.sort();
    return keys;
}

void addVariable(const QString &key, qint64 value, Node *list)
{
    Node *variable = list->add();
    variable->ensureChild(Name(u"name"))->setString(key);
    variable->ensureChild(Name(u"description"))->setString(QString());
    variable->ensureChild(Name(u"type"))->setString(QStringLiteral("int"));
    variable->ensureChild(Name(u"pers"))->setString(QStringLiteral("false"));
    const qint64 scalar[] = {0, 0, 0};
    variable->ensureChild(Name(u"d"))->setInts(scalar, 3);
    variable->ensure(kValue)->setInt(value);
}

bool hasParameters(const Node &list)
{
    for (int i = 0; i < list.size(); ++i) {
        const Node *variable = list.at(i); // null in a list of numbers
        if (variable && projectParameters().contains(variable->getString(u"name")))
            return true;
    }
    return false;
}

/// A whole number, as a number or as a text.
bool readWhole(const Node *node, qint64 *value)
{
    bool isWhole = node && (node->kind() == Node::Kind::Int || node->kind() == Node::Kind::String);
    if (isWhole)
        *value = node->toString().toLongLong(&isWhole);
    return isWhole;
}

} // namespace

bool readVariableList(const QString &file, Node *list, QString *why)
{
    list->reset(Node::Kind::List);
    if (!isTaken(file))
        return true;
    Node content;
    orba::FormatError error;
    if (!orba::ModuleManager::readFromXmlFile(file, &content, &error)) {
        *why = error.text();
        return false;
    }
    if (!content.isContainer() && !content.isNull()) {
        *why = ProjectText::tr("%1 holds no list of variables").arg(file);
        return false;
    }
    if (content.isContainer())
        list->take(content);
    return true;
}

void addParameterVariables(const Node &record, Node *list)
{
    const QStringList keys = sortedKeys();
    for (int i = list->size() - 1; i >= 0; --i)
        if (keys.contains(list->at(i)->getString(u"name")))
            list->removeAt(i);
    for (const QString &key : keys)
        addVariable(key, record.getInt(key), list);
}

QByteArray variableListWithParameters(const Node &list, const QByteArray &text, const Node &record,
                                      orba::FormatError *error)
{
    if (hasParameters(list) || !text.startsWith(kListHead) || !text.endsWith(kListTail)) {
        Node all;
        all.assign(list);
        addParameterVariables(record, &all);
        return orba::ModuleManager::toXml(all, error);
    }
    Node parameters;
    parameters.reset(Node::Kind::List);
    addParameterVariables(record, &parameters);
    const QByteArray more = orba::ModuleManager::toXml(parameters, error);
    return text.left(text.size() - int(qstrlen(kListTail))) + '\n' + more.mid(int(qstrlen(kListHead)));
}

bool readParameterVariables(const Node &list, Node *parameters, QString *why)
{
    parameters->reset(Node::Kind::Map);
    for (int i = 0; i < list.size(); ++i) {
        const Node *variable = list.at(i);
        const QString key = variable ? variable->getString(u"name") : QString();
        if (!projectParameters().contains(key))
            continue;
        qint64 value = 0;
        if (!readWhole(variable->find(kValue), &value) || !canHold(key, value)) {
            *why = ProjectText::tr("\"var.xml\": the value of %1 is none that a project can have").arg(key);
            return false;
        }
        parameters->ensureChild(Name(key))->setInt(value);
    }
    return true;
}

} // namespace palx
