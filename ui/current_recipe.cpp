#include "ui/current_recipe.h"

#include "bwaf/bmodule.h"

StringWatcher *currentRecipe(bwaf::BModule *module)
{
    const QString name = QStringLiteral("currentRecipe");
    auto *watcher = module->findChild<StringWatcher *>(name, Qt::FindDirectChildrenOnly);
    if (!watcher) {
        watcher = new StringWatcher(module);
        watcher->setObjectName(name);
    }
    return watcher;
}
