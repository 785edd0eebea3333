#include "stack/recipe_exchange.h"

#include "orba/module_manager.h"
#include "stack/recipe_shape.h"
#include "stack/recipe_upgrade.h"
#include "workstation/progress.h"

#include <QCoreApplication>

namespace palx {

using orba::Name;
using orba::Node;

namespace {

struct ExchangeText
{
    Q_DECLARE_TR_FUNCTIONS(ExchangeText)
};

const QString kSuffix = QStringLiteral(".xml");

const std::vector<Name> &keysOfOlderFiles()
{
    static const std::vector<Name> keys{Name(u"get"),
                                        Name(u"bollard"),
                                        Name(u"pallet_position"),
                                        Name(u"use_global_tool"),
                                        Name(u"use_global_wobj"),
                                        Name(u"automatic_stacker"),
                                        Name(u"wobj_margin")};
    return keys;
}

orba::ReadLimits exchangeLimits()
{
    orba::ReadLimits limits;
    limits.maxBytes = kMostExchangeBytes;
    return limits;
}

/// Tells the progress in thousandths, whatever is counted.
orba::Watch watchOf(Progress &progress, const QString &text, bool endsInLastPart)
{
    constexpr int kParts = 1000;
    return [&progress, text, endsInLastPart](qint64 done, qint64 total) {
        progress.step(total > 0 ? static_cast<int>(done * kParts / total) : 0, kParts, text);
        if (endsInLastPart && done == total)
            return progress.enterLastPart();
        return !progress.isCancelled();
    };
}

QString titleOf(const Node &recipe, int index)
{
    const QString name = recipe.getString(u"name");
    return name.isEmpty() ? ExchangeText::tr("recipe %1").arg(index + 1)
                          : ExchangeText::tr("recipe %1 \"%2\"").arg(index + 1).arg(name);
}

/// Judges and completes every recipe; the first fault ends it.
QString adopt(Node *content, const Node &templateStack, std::vector<QStringList> *added)
{
    if (!content->isContainer() || content->isPacked())
        return ExchangeText::tr("holds no list of recipes");
    int index = 0;
    for (const int child : recipeIndexes(*content)) {
        Node &recipe = *content->at(child);
        const QString fault = recipeFault(recipe, templateStack);
        if (!fault.isEmpty())
            return titleOf(recipe, index) + QStringLiteral(": ") + fault;
        added->push_back(upgradeRecipe(recipe, templateStack, keysOfOlderFiles()));
        ++index;
    }
    return QString();
}

} // namespace

std::vector<int> recipeIndexes(const Node &list)
{
    const Name templateName(u"default");
    std::vector<int> indexes;
    for (int i = 0; i < list.size(); ++i)
        if (const Node *child = list.at(i); child && child->name() != templateName)
            indexes.push_back(i);
    return indexes;
}

int recipeOfName(const Node &list, const QString &name)
{
    for (const int child : recipeIndexes(list))
        if (list.at(child)->getString(u"name") == name)
            return child;
    return -1;
}

const Node *templateStackOf(const Node &list, const Node &plugin)
{
    const Name name(u"default");
    const Node *own = list.child(name);
    return own ? own : plugin.child(name);
}

Node makeTempList(const Node &list, const Node *templateStack, const std::vector<bool> &ticked)
{
    Node tempList{Name(u"temp_list")};
    tempList.reset(Node::Kind::List);
    Node *first = tempList.add(Name(u"default"));
    if (templateStack)
        first->assign(*templateStack);
    const std::vector<int> recipes = recipeIndexes(list);
    for (std::size_t i = 0; i < recipes.size() && i < ticked.size(); ++i) {
        const Node &recipe = *list.at(recipes[i]);
        if (ticked[i])
            tempList.add(recipe.name())->assign(recipe);
    }
    return tempList;
}

WrittenFile writeExchangeFile(const Node &tempList, const QString &file, Progress &progress)
{
    WrittenFile written;
    orba::FormatError fault;
    const orba::Watch watch = watchOf(progress, ExchangeText::tr("Writing the file"), true);
    if (orba::ModuleManager::writeToXmlFile(tempList, file, &fault, exchangeLimits(), watch))
        return written;
    written.isCancelled = fault.isStopped;
    if (!fault.isStopped)
        written.error = fault.text();
    return written;
}

QString exchangeFileName(const QString &name)
{
    return name.isEmpty() || name.endsWith(kSuffix, Qt::CaseInsensitive) ? name : name + kSuffix;
}

ExchangeFile readExchangeFile(const QString &file, const Node &templateStack, Progress &progress)
{
    ExchangeFile result;
    orba::FormatError fault;
    const orba::Watch watch = watchOf(progress, ExchangeText::tr("Reading the file"), false);
    if (!orba::ModuleManager::readFromXmlFile(file, &result.content, &fault, exchangeLimits(), watch)) {
        result.isCancelled = fault.isStopped;
        if (!fault.isStopped)
            result.error = fault.text();
        return result;
    }
    const QString refusal = adopt(&result.content, templateStack, &result.added);
    if (refusal.isEmpty())
        return result;
    result = ExchangeFile();
    result.error = file + QStringLiteral(": ") + refusal;
    return result;
}

} // namespace palx
