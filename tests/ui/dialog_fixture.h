#pragma once

#include "pattern/patternscene.h"
#include "support/recipe_tree.h"
#include "support/test_support.h"
#include "ui/page_fixture.h"

#include <QWidget>

#include <memory>

/// A recipe of its own with an open pattern, as the pages hand both to the dialogs that put products into it. Product
/// 200 x 150, pallet 1000 x 800.
struct OpenPattern
{
    explicit OpenPattern(const char *changes = "{}")
        : plugin(makePluginTree()), stack(addTestStack(plugin.get(), R"({"patterns": {"A": []}})"))
    {
        applyPaths(stack->node(), changes);
        scene.setStack(stack);
        scene.setPattern(pattern());
    }
    orba::ModuleObject *pattern() const { return stack->r("patterns")->c("A"); }
    /// "1: 75 100 0 middle", one item per entry.
    QStringList items() const
    {
        QStringList texts;
        for (const orba::ModuleObject *item : pattern()->cmobjs())
            texts << QStringLiteral("%1: %2 %3 %4 %5")
                         .arg(item->getInt("index"))
                         .arg(item->getDouble("x"))
                         .arg(item->getDouble("y"))
                         .arg(item->getInt("r"))
                         .arg(item->getString("direction"));
        return texts;
    }

    std::unique_ptr<orba::ModuleObject> plugin;
    orba::ModuleObject *stack;
    PatternScene scene;
    QWidget window;
};

/// "title / text / text of the refusing button"
inline QString messageText(const nexo::Message &message)
{
    return QStringList({message.title, message.text, message.rejectText}).join(QStringLiteral(" / "));
}
/// What a dialog says with a title and no way to refuse.
inline QString plainWarning(const char *text)
{
    return QStringLiteral("warning / %1 / ").arg(QLatin1String(text));
}
