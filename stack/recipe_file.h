#pragma once

#include "orba/module_object.h"

#include <QStringList>

namespace palx {

/// What a recipe file holds, judged and brought up to the current layout.
struct PALX_API RecipeFile
{
    orba::Node content; ///< parts of a plugin node: "stacks", and further ones when the file has them
    QStringList notes;  ///< what was taken from the template, what was left aside
    QString error;      ///< why the file is refused; `content` is then of no use
};

/// Reads the stacks of an exchange file (XML), or the recipes, tools and work objects of a whole plugin node
/// (JSON); the content decides, not the name. The file is only read.
///
/// `plugin` gives the template stack "default" and the parts that a plugin node may have. A file with any
/// fault is refused whole; the error names the file and, as far as there is one, line and column or the path
/// of the faulty value.
PALX_API RecipeFile readRecipeFile(const QString &file, const orba::Node &plugin);

/// Appends the recipes to those of the plugin node and takes over the other parts. Names are not looked at.
PALX_API void adoptRecipes(orba::ModuleObject *plugin, const orba::Node &content);

/// Adopts file after file; a refused one is left out. Returns the refusals.
PALX_API QStringList loadRecipeFiles(orba::ModuleObject *plugin, const QStringList &files);

} // namespace palx
