#include "stack/recipe_file.h"

#include "orba/module_manager.h"
#include "stack/recipe_shape.h"
#include "stack/recipe_upgrade.h"

#include <QFile>

namespace palx {
namespace {

using orba::Node;

enum class Format { Xml, Json, Unknown };

bool fail(RecipeFile *file, const QString &reason)
{
    file->error = reason;
    return false;
}

/// Read once and from the start, so that a pipe does as well as a file.
bool readText(const QString &name, QByteArray *text, QString *error)
{
    QFile file(name);
    if (file.open(QIODevice::ReadOnly))
        *text =
            file.read(orba::ReadLimits().maxBytes + 1); // one more, for the reader to see that it is too much
    if (file.error() != QFileDevice::NoError)
        *error = QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString());
    return error->isEmpty();
}

Format formatOf(const QByteArray &whole)
{
    constexpr int kSniffBytes = 4096; // far more white space than anybody puts before the first sign
    QByteArray text = whole.left(kSniffBytes);
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    text = text.trimmed();
    const char first = text.isEmpty() ? '\0' : text.at(0);
    return first == '<' ? Format::Xml : first == '{' || first == '[' ? Format::Json : Format::Unknown;
}

bool parse(const QString &name, const QByteArray &text, Format format, Node *source, QString *error)
{
    orba::FormatError fault;
    const bool read = format == Format::Xml ? orba::ModuleManager::fromXml(text, source, &fault)
                                            : orba::ModuleManager::fromJson(text, source, &fault);
    fault.file = name;
    if (!read)
        *error = fault.text();
    return read;
}

/// The exchange file: the template stack "default" of the writer, which is not ours to use, then the stacks.
bool fromExchange(const Node &list, RecipeFile *file)
{
    if (!list.isContainer() || list.isPacked())
        return fail(file, QStringLiteral("holds no list of recipes"));
    Node &stacks = *file->content.ensure(u"stacks");
    stacks.reset(Node::Kind::List);
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i)->name() != orba::Name(u"default"))
            stacks.add()->assign(*list.at(i));
    }
    return true;
}

bool fromPluginNode(const Node &source, const Node &known, RecipeFile *file)
{
    if (source.kind() != Node::Kind::Map || !source.child(u"stacks"))
        return fail(file, QStringLiteral("is no plugin node: there is no list \"stacks\""));
    for (int i = 0; i < source.size(); ++i) {
        const Node &part = *source.at(i);
        const QString key = part.name().toString();
        static const QStringList kOurs{QStringLiteral("default"), QStringLiteral("trigger"),
                                       QStringLiteral("version")};
        if (kOurs.contains(key)) // belong to the plug-in that runs, not to the one that wrote the file
            continue;
        if (known.child(part.name()))
            file->content.ensureChild(part.name())->assign(part);
        else
            file->notes.append(QStringLiteral("unknown key \"%1\" is left aside").arg(key));
    }
    return true;
}

QString recipeTitle(const Node &stack, int index)
{
    const QString name = stack.getString(u"name");
    return name.isEmpty() ? QStringLiteral("recipe %1").arg(index + 1)
                          : QStringLiteral("recipe %1 \"%2\"").arg(index + 1).arg(name);
}

bool adoptStacks(const Node &templateStack, RecipeFile *file)
{
    Node &stacks = *file->content.ensure(u"stacks");
    if (!stacks.isNull() && (!stacks.isContainer() || stacks.isPacked()))
        return fail(file, QStringLiteral("stacks: expected a list of recipes"));
    for (int i = 0; i < stacks.size(); ++i) {
        Node &stack = *stacks.at(i);
        const QString fault = palx::recipeFault(stack, templateStack);
        if (!fault.isEmpty())
            return fail(file, recipeTitle(stack, i) + QStringLiteral(": ") + fault);
        const QStringList added = palx::upgradeRecipe(stack, templateStack);
        if (!added.isEmpty())
            file->notes.append(QStringLiteral("%1: taken from the template: %2")
                                   .arg(recipeTitle(stack, i), added.join(QStringLiteral(", "))));
    }
    return true;
}

bool judgeGlobals(RecipeFile *file)
{
    const Node empty{};
    const Node *tools = file->content.child(u"global_tool");
    const Node *wobjs = file->content.child(u"global_wobj");
    QString fault = palx::globalToolFault(tools ? *tools : empty);
    if (fault.isEmpty())
        fault = palx::globalWobjFault(wobjs ? *wobjs : empty);
    return fault.isEmpty() || fail(file, fault);
}

QString refusalOf(const QString &name, const Node &plugin, RecipeFile *file)
{
    QByteArray text;
    QString error;
    if (!readText(name, &text, &error))
        return error;
    const Format format = formatOf(text);
    if (format == Format::Unknown)
        return name + QStringLiteral(":1:1: is neither a recipe XML nor the JSON of a plugin node");
    Node source;
    if (!parse(name, text, format, &source, &error))
        return error;
    const Node *templateStack = plugin.child(u"default");
    const bool accepted =
        (format == Format::Xml ? fromExchange(source, file) : fromPluginNode(source, plugin, file)) &&
        adoptStacks(templateStack ? *templateStack : Node(), file) && judgeGlobals(file);
    return accepted ? QString() : name + QStringLiteral(": ") + file->error;
}

} // namespace

RecipeFile readRecipeFile(const QString &file, const Node &plugin)
{
    RecipeFile result;
    result.error = refusalOf(file, plugin, &result);
    return result;
}

void adoptRecipes(orba::ModuleObject *plugin, const Node &content)
{
    for (int i = 0; i < content.size(); ++i) {
        const Node &part = *content.at(i);
        if (part.name() != orba::Name(u"stacks")) {
            plugin->ensure(part.name().view())->copyFrom(part);
            continue;
        }
        // Announced once and when they are whole: a list that follows would show half a recipe.
        orba::ModuleObject *stacks = plugin->ensure("stacks");
        for (int j = 0; j < part.size(); ++j)
            stacks->node().add()->assign(*part.at(j));
        stacks->announceStructure();
    }
}

QStringList loadRecipeFiles(orba::ModuleObject *plugin, const QStringList &files)
{
    QStringList refusals;
    for (const QString &file : files) {
        const RecipeFile recipes = readRecipeFile(file, plugin->node());
        if (recipes.error.isEmpty())
            adoptRecipes(plugin, recipes.content);
        else
            refusals.append(recipes.error);
    }
    return refusals;
}

} // namespace palx
