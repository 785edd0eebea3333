#include "support/recipe_tree.h"

#include "orba/module_manager.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

std::unique_ptr<orba::ModuleObject> makePluginTree()
{
    auto plugin = std::make_unique<orba::ModuleObject>(QStringLiteral("plugin"));
    orba::FormatError error;
    const QString file = QStringLiteral(PALX_SOURCE_DIR "/resources/template/palx_workstation.json");
    if (!orba::ModuleManager::readFromJson(file, &plugin->node(), &error))
        ADD_FAILURE() << qPrintable(error.text());
    return plugin;
}

void applyPaths(orba::Node &node, const char *changes)
{
    const orba::Node wanted = nodeFromJson(changes);
    for (int i = 0; i < wanted.size(); ++i)
        node.ensure(wanted.at(i)->name().view())->assign(*wanted.at(i));
}

orba::ModuleObject *addTestStack(orba::ModuleObject *plugin, const char *changes)
{
    orba::Node *stack = plugin->node().find(u"stacks")->add();
    stack->assign(*plugin->node().child(u"default"));
    applyPaths(*stack, changes);
    return orba::ModuleObject::of(stack);
}

QByteArray pointJson(double x, double y, double z, double c)
{
    const auto number = [](double value) { return QByteArray::number(value, 'g', 17); };
    return "{\"trans\":[" + number(x) + "," + number(y) + "," + number(z) + "],\"rot\":[3.0,0.5," + number(c) +
           "],\"near\":[1,2,3,4,5,6],\"conf\":[8,7,6,5,4,3,2,1]}";
}
