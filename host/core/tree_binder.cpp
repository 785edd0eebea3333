#include "core/tree_binder.h"

#include "core/store.h"
#include "orba/module_manager.h"
#include "orba/tree_registry.h"

#include <QCoreApplication>
#include <QStringList>

namespace host {

using orba::Name;
using orba::Node;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(host::TreeBinder)
};

int indexFrom(const Node &map, int first, Name name)
{
    for (int i = first; i < map.size(); ++i)
        if (map.at(i)->name() == name)
            return i;
    return -1;
}

void mergeMap(const Node &pattern, Node *stored, QStringList *givenWay);

/// `stored` keeps its value and gains what the template has and it lacks.
void merge(const Node &pattern, Node *stored, QStringList *givenWay)
{
    if (!pattern.isContainer())
        return;
    if (pattern.kind() == Node::Kind::Map && stored->kind() == Node::Kind::Map) {
        mergeMap(pattern, stored, givenWay);
        return;
    }
    if (stored->isContainer())
        return;
    if (!stored->isNull())
        givenWay->append(stored->pathFrom(orba::TreeRegistry::instance().root()));
    stored->assign(pattern);
}

void mergeMap(const Node &pattern, Node *stored, QStringList *givenWay)
{
    for (int i = 0; i < pattern.size(); ++i) {
        const Node &child = *pattern.at(i);
        const int known = indexFrom(*stored, i, child.name());
        if (known < 0) {
            stored->insert(i, child.name())->assign(child);
            continue;
        }
        stored->move(known, i);
        merge(child, stored->at(i), givenWay);
    }
}

/// An empty map and a reason when there is no usable template.
Node readTemplate(const QString &file, QString *why)
{
    Node pattern;
    orba::FormatError error;
    if (!orba::ModuleManager::readFromJson(file, &pattern, &error))
        *why = Texts::tr("The template cannot be used: %1").arg(error.text());
    else if (pattern.kind() != Node::Kind::Map)
        *why = Texts::tr("The template %1 holds no map of keys").arg(file);
    else
        return pattern;
    pattern.reset(Node::Kind::Map);
    return pattern;
}

} // namespace

orba::ModuleObject *bindTree(const QString &module, const QString &templateFile, bool persistent,
                             QString *error)
{
    QString why;
    Node pattern = readTemplate(templateFile, &why);
    Store *store = persistent ? Store::current() : nullptr;
    orba::TreeRegistry &registry = orba::TreeRegistry::instance();
    Node *tree = store && store->isKept(module) ? registry.root().child(QStringView(module)) : nullptr;
    QStringList givenWay;
    if (!store) {
        tree = registry.addModule(module);
        tree->take(pattern);
    } else {
        if (!tree) {
            tree = registry.addModule(module);
            store->fill(module, tree);
        }
        mergeMap(pattern, tree, &givenWay);
    }
    tree->ensureChild(Name(u"version"));
    if (store)
        store->keep(module);
    if (!givenWay.isEmpty())
        why = Texts::tr("Stored values do not fit the template and were left out: %1")
                  .arg(givenWay.join(QStringLiteral(", ")));
    if (error && !why.isEmpty())
        *error = why;
    orba::ModuleObject *handle = orba::ModuleObject::of(tree);
    handle->announceStructure();
    return handle;
}

} // namespace host
