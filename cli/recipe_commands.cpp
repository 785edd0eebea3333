#include "recipe_commands.h"

#include "stack/recipe_file.h"
#include "workstation/plugin_node.h"

namespace cli {
namespace {

/// The recipes called `name`, or all without one; empty with a reason when none has that name.
RecipeList chosenRecipes(const QString &name, QString *error)
{
    QStringList names;
    RecipeList chosen;
    for (orba::ModuleObject *stack : palx::stacksNode()->cmobjs()) {
        const QString own = stack->getString("name");
        names.append(QLatin1Char('"') + own + QLatin1Char('"'));
        if (name.isEmpty() || own == name)
            chosen.append(stack);
    }
    if (chosen.isEmpty() && !name.isEmpty())
        *error = QStringLiteral("no recipe is called \"%1\"; there are: %2")
                     .arg(name, names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", ")));
    return chosen;
}

} // namespace

bool loadRecipes(const QString &file)
{
    const palx::RecipeFile recipes = palx::readRecipeFile(file, palx::pluginNode()->node());
    if (!recipes.error.isEmpty()) {
        say(recipes.error);
        return false;
    }
    for (const QString &note : recipes.notes)
        say(file + QStringLiteral(": ") + note);
    palx::adoptRecipes(palx::pluginNode(), recipes.content);
    return true;
}

bool openRecipes(Session &session, const RecipeRequest &request, RecipeList *stacks)
{
    if (!session.start() || !loadRecipes(request.file))
        return false;
    QString error;
    *stacks = chosenRecipes(request.stack, &error);
    if (!error.isEmpty())
        say(request.file + QStringLiteral(": ") + error);
    return error.isEmpty();
}

} // namespace cli
