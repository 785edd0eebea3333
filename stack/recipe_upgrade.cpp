#include "stack/recipe_upgrade.h"

namespace palx {

QStringList upgradeRecipe(orba::Node &stack, const orba::Node &templateStack)
{
    QStringList added;
    for (int i = 0; i < templateStack.size(); ++i) {
        const orba::Node *subtree = templateStack.at(i);
        if (stack.child(subtree->name()))
            continue;
        stack.add(subtree->name())->assign(*subtree);
        added.append(subtree->name().toString());
    }
    return added;
}

} // namespace palx
