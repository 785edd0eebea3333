#include "project/rules/project_record.h"

#include "project/rules/project_place.h"
#include "workstation/plugin_node.h"

namespace palx {

using orba::ModuleObject;
using orba::Name;
using orba::Node;

const QStringList &projectParameters()
{
    static const QStringList keys{QStringLiteral("scheme_layout"),     QStringLiteral("palletizing_type"),
                                  QStringLiteral("type_of_sucker"),    QStringLiteral("bollard"),
                                  QStringLiteral("clapboard"),         QStringLiteral("left_stack_recipe"),
                                  QStringLiteral("right_stack_recipe")};
    return keys;
}

ModuleObject *projectsNode()
{
    return pluginNode()->c("projects");
}

ModuleObject *projectRecord(const QString &name)
{
    return projectsNode()->c(name);
}

const Node &currentProjectRecord()
{
    static const Node none{};
    const Node *found = std::as_const(projectsNode()->node()).child(QStringView(currentProject()));
    return found ? *found : none;
}

ModuleObject *addProjectRecord(const QString &name)
{
    ModuleObject *known = projectRecord(name);
    if (!known->isEmptyMobj())
        return known;
    Node values;
    values.ensureChild(Name(u"name"))->setString(name);
    for (const QString &key : projectParameters())
        values.ensureChild(Name(key))->setInt(0);
    ModuleObject *record = projectsNode()->add(name);
    record->copyFrom(values);
    return record;
}

void writeProjectParameters(const QString &name, const Node &values)
{
    ModuleObject *record = projectRecord(name);
    for (const QString &key : projectParameters())
        if (const Node *value = values.child(QStringView(key)))
            record->ensure(key)->set(nullptr, "", value->toInt());
}

QStringList sideRecipes(const Node &stacks, bool left)
{
    QStringList names;
    for (int i = 0; i < stacks.size(); ++i) {
        const Node *stack = stacks.at(i);
        if (stack && (stack->getInt(u"pallet_position") == 0) == left)
            names.append(stack->getString(u"name"));
    }
    return names;
}

} // namespace palx
