#include "stack/recipe_upgrade.h"

namespace palx {

QStringList upgradeRecipe(orba::Node &stack, const orba::Node &templateStack)
{
    std::vector<orba::Name> keys;
    for (int i = 0; i < templateStack.size(); ++i)
        keys.push_back(templateStack.at(i)->name());
    return upgradeRecipe(stack, templateStack, keys);
}

QStringList upgradeRecipe(orba::Node &stack, const orba::Node &templateStack,
                          const std::vector<orba::Name> &keys)
{
    QStringList added;
    for (const orba::Name key : keys) {
        const orba::Node *subtree = templateStack.child(key);
        if (!subtree || stack.child(key))
            continue;
        stack.add(key)->assign(*subtree);
        added.append(key.toString());
    }
    return added;
}

} // namespace palx
