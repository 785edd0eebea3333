#include "controller/pallet_store.h"

#include "controller/recipe_check.h"
#include "controller/texts.h"

#include <QSet>

namespace controller {

using orba::Node;

namespace {

QString noRecipe(const QString &name, const QString &why)
{
    return name.isEmpty() ? Texts::tr("no recipe: %1").arg(why)
                          : Texts::tr("\"%1\" is no recipe: %2").arg(name, why);
}

/// Every entry a recipe, no name twice.
QString listFault(const Node &list)
{
    if (list.kind() != Node::Kind::List || list.isPacked())
        return Texts::tr("this is no list of recipes");
    QSet<QString> names;
    for (int i = 0; i < list.size(); ++i) {
        const Node &recipe = *list.at(i);
        const QString name = recipe.getString(u"name");
        const QString why = names.contains(name) ? Texts::tr("the name is there twice") : recipeFault(recipe);
        if (!why.isEmpty())
            return Texts::tr("entry %1: %2").arg(i + 1).arg(noRecipe(name, why));
        names.insert(name);
    }
    return {};
}

} // namespace

PalletStore::PalletStore(const std::vector<KeptRecord> &kept)
{
    for (const KeptRecord &record : kept)
        if (recipeFault(*record.data).isEmpty() && indexOf(record.data->getString(u"name")) < 0)
            recipes_.push_back(makeRecipe(record.data)); // others were edited by hand
}

PalletStore::Recipe PalletStore::makeRecipe(std::shared_ptr<const Node> data)
{
    host::RecipeSummary summary = host::summaryOf(*data);
    return {std::move(data), std::move(summary)};
}

PalletStore::Recipe PalletStore::takeRecipe(Node &data)
{
    auto taken = std::make_shared<Node>();
    taken->take(data);
    return makeRecipe(std::move(taken));
}

int PalletStore::indexOf(const QString &name) const
{
    for (std::size_t i = 0; i < recipes_.size(); ++i)
        if (recipes_[i].summary.name == name)
            return static_cast<int>(i);
    return -1;
}

const Node *PalletStore::find(const QString &name) const
{
    return at(indexOf(name));
}

const Node *PalletStore::at(int index) const
{
    return index >= 0 && index < count() ? recipes_[static_cast<std::size_t>(index)].data.get() : nullptr;
}

std::shared_ptr<const Node> PalletStore::shared(const QString &name) const
{
    const int index = indexOf(name);
    return index < 0 ? nullptr : recipes_[static_cast<std::size_t>(index)].data;
}

QString PalletStore::setOne(Node &recipe)
{
    const QString why = recipeFault(recipe);
    if (!why.isEmpty())
        return noRecipe(recipe.getString(u"name"), why);
    const int index = indexOf(recipe.getString(u"name"));
    if (index < 0)
        recipes_.push_back(takeRecipe(recipe));
    else if (*at(index) != recipe)
        recipes_[static_cast<std::size_t>(index)] = takeRecipe(recipe);
    return {};
}

QString PalletStore::setAll(Node &list)
{
    QString why = listFault(list);
    if (!why.isEmpty())
        return why;
    std::vector<Recipe> all;
    for (int i = 0; i < list.size(); ++i) {
        const int known = indexOf(list.at(i)->getString(u"name"));
        const bool isSame = known >= 0 && *at(known) == *list.at(i); // it need not be written again
        all.push_back(isSame ? recipes_[static_cast<std::size_t>(known)] : takeRecipe(*list.at(i)));
    }
    recipes_ = std::move(all);
    return {};
}

QString PalletStore::setName(const Node &request)
{
    const Node *index = request.child(QStringView(u"index"));
    const Node *name = request.child(QStringView(u"name"));
    if (!index || index->kind() != Node::Kind::Int)
        return Texts::tr("\"index\" is missing or no whole number");
    if (index->toInt() < 0 || index->toInt() >= count())
        return Texts::tr("there is no recipe %1, there are %2").arg(index->toInt()).arg(count());
    if (!name || name->kind() != Node::Kind::String || name->toString().trimmed().isEmpty())
        return Texts::tr("\"name\" is missing or no text");
    const int other = indexOf(name->toString());
    if (other >= 0 && other != index->toInt())
        return Texts::tr("recipe %1 has the name \"%2\" already").arg(other).arg(name->toString());
    Recipe &recipe = recipes_[static_cast<std::size_t>(index->toInt())];
    Node named = *recipe.data;
    named.ensure(u"name")->setString(name->toString());
    named.ensure(u"desc")->setString(request.getString(u"desc"));
    recipe = takeRecipe(named);
    return {};
}

Node PalletStore::summaries() const
{
    Node list;
    list.reset(Node::Kind::List);
    for (const Recipe &recipe : recipes_)
        list.add()->assign(recipe.summary.toNode());
    return list;
}

std::vector<KeptRecord> PalletStore::snapshot() const
{
    std::vector<KeptRecord> records;
    for (const Recipe &recipe : recipes_)
        records.push_back({recipe.summary.name, recipe.data});
    return records;
}

} // namespace controller
