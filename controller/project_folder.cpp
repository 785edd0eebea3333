#include "controller/project_folder.h"

#include "controller/texts.h"
#include "controller/tree_depth.h"
#include "orba/module_manager.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace controller {

using orba::FormatError;
using orba::ModuleManager;
using orba::Node;

namespace {

constexpr const char *kTasks = ".rlprog";
constexpr const char *kVariables = "var.xml";
constexpr const char *kMonitored = "var_monitor.json";
constexpr qint64 kMaxFile = 4 * 1024 * 1024; // bytes; a hundred times those of a project from the templates

orba::ReadLimits limits()
{
    orba::ReadLimits limits;
    limits.maxBytes = kMaxFile;
    return limits;
}

/// Nothing of what is no file, which might be waited for, and not more than is read of it.
QByteArray content(const QString &name)
{
    QFile file(name);
    return QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly) ? file.read(kMaxFile + 1)
                                                                      : QByteArray();
}

using ReadFile = bool (*)(const QString &, Node *, FormatError *, const orba::ReadLimits &);

/// An absent file leaves the node as it is.
bool readFile(const QString &name, ReadFile read, Node *node, QString *why)
{
    const QFileInfo file(name);
    if (!file.exists() && !file.isSymLink())
        return true;
    FormatError error;
    if (!file.isFile())
        *why = Texts::tr("%1: this is no file").arg(name);
    else if (!read(name, node, &error, limits()))
        *why = error.text();
    else if (!isShallow(*node))
        *why = Texts::tr("%1: it is nested too deep").arg(name);
    return why->isEmpty();
}

/// The children of a node, whatever they were called; a node that is not there leaves the list as it is.
bool takeList(const Node *from, const QString &name, Node *list, QString *why)
{
    if (!from || from->isNull())
        return true;
    list->reset(Node::Kind::List);
    if (from->isContainer() && !from->isPacked())
        for (int i = 0; i < from->size(); ++i)
            list->add()->assign(*from->at(i));
    else
        *why = Texts::tr("%1: there is no list").arg(name);
    return why->isEmpty();
}

/// Replaces a file whole, so that a copy never has half of it.
bool replace(const QString &name, const QByteArray &text, QString *why)
{
    if (content(name) == text)
        return true;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        *why = QStringLiteral("%1: %2").arg(name, file.errorString());
    return why->isEmpty();
}

/// Whoever copies a project and puts in another name takes a quotation mark for the end of the text.
QByteArray withoutQuotedMarks(const QByteArray &json)
{
    QByteArray text;
    for (int i = 0; i < json.size(); ++i) {
        const bool isEscape = json.at(i) == '\\' && i + 1 < json.size();
        if (isEscape && json.at(i + 1) == '"')
            text += "\\u0022";
        else if (isEscape)
            text += json.mid(i, 2);
        else
            text += json.at(i);
        i += isEscape ? 1 : 0;
    }
    return text;
}

} // namespace

bool ProjectFolder::isBlank() const
{
    return !path_.isEmpty() && QDir(path_).exists() &&
           QDir(path_).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QString ProjectFolder::mark() const
{
    const QByteArray tasks = path_.isEmpty() ? QByteArray() : content(filePath(kTasks));
    if (tasks.isEmpty())
        return QString();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(tasks);
    hash.addData("\0", 1);
    hash.addData(content(filePath(kVariables)));
    return QString::fromLatin1(hash.result().toHex());
}

bool ProjectFolder::read(Node *tasks, Node *variables, Node *monitored, QString *why) const
{
    why->clear();
    Node project, variableFile, monitorFile;
    Node lists[3];
    lists[0].assign(*tasks);
    lists[1].assign(*variables);
    lists[2].assign(*monitored);
    const bool isRead = readFile(filePath(kTasks), &ModuleManager::readFromJson, &project, why) &&
                        readFile(filePath(kVariables), &ModuleManager::readFromXmlFile, &variableFile, why) &&
                        readFile(filePath(kMonitored), &ModuleManager::readFromJson, &monitorFile, why) &&
                        takeList(project.child(QStringView(u"tasks")), filePath(kTasks), &lists[0], why) &&
                        takeList(&variableFile, filePath(kVariables), &lists[1], why) &&
                        takeList(&monitorFile, filePath(kMonitored), &lists[2], why);
    if (!isRead)
        return false;
    tasks->take(lists[0]);
    variables->take(lists[1]);
    monitored->take(lists[2]);
    return true;
}

bool ProjectFolder::write(const QString &project, const Node &tasks, const Node &variables,
                          QString *why) const
{
    why->clear();
    Node content, list; // without the names that they have in the tree
    content.ensure(u"project_name")->setString(project);
    content.ensure(u"tasks")->assign(tasks);
    list.assign(variables);
    return replace(filePath(kVariables), ModuleManager::toXml(list), why) &&
           replace(filePath(kTasks), withoutQuotedMarks(ModuleManager::toJson(content, false)), why);
}

} // namespace controller
