// Exchange files: whatever bytes come, the reader refuses them with a reason or gives a tree that it writes and reads again
// as the same, and the recipes in it are judged, brought up, merged in every way and taken back.

#include "orba/module_manager.h"
#include "stack/recipe_import.h"
#include "stack/recipe_shape.h"
#include "stack/recipe_upgrade.h"
#include "workstation/progress.h"

#include <QCoreApplication>

#include <cstdlib>

using orba::ModuleManager;
using orba::ModuleObject;
using orba::Node;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

const Node &templateStack()
{
    static const Node made = [] {
        Node node;
        node.ensure(u"get.get_p");
        node.ensure(u"bollard.height")->setInt(0);
        node.ensure(u"product_cfg.product.length")->setDouble(200);
        node.ensure(u"pallet_position")->setInt(0);
        node.ensure(u"use_global_tool")->setBool(false);
        return node;
    }();
    return made;
}

void merge(const Node &content)
{
    using palx::RecipeClash;
    const std::vector<bool> all(palx::recipeIndexes(content).size(), true);
    palx::NoProgress progress;
    for (const RecipeClash onClash : {RecipeClash::Rename, RecipeClash::Replace, RecipeClash::Discard}) {
        ModuleObject list;
        list.node().reset(Node::Kind::List);
        require(palx::importRecipes(&list, content, all, RecipeClash::Rename, progress));
        delete palx::LastImport::of(&list);
        const Node before = list.node();
        require(palx::importRecipes(&list, content, all, onClash, progress));
        if (palx::LastImport *import = palx::LastImport::of(&list))
            import->takeBack();
        require(list.node() == before);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 0;
    static QCoreApplication application(argc, nullptr);
    const QByteArray text =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    Node content;
    orba::FormatError error;
    if (!ModuleManager::fromXml(text, &content, &error)) {
        require(error.isSet() && content.isNull());
        return 0;
    }
    const QByteArray written = ModuleManager::toXml(content, &error);
    Node again;
    require(!written.isEmpty() && ModuleManager::fromXml(written, &again, &error) && again == content);
    if (!content.isContainer() || content.isPacked())
        return 0;
    for (const int child : palx::recipeIndexes(content)) {
        Node &recipe = *content.at(child);
        if (!palx::recipeFault(recipe, templateStack()).isEmpty())
            return 0;
        palx::upgradeRecipe(recipe, templateStack());
    }
    merge(content);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
