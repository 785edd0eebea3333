#include "stack/recipe_match.h"

#include <QHash>

#include <algorithm>

namespace palx {

using host::RecipeSummary;
using orba::Node;

namespace {

bool isWholeNumber(const Node *node)
{
    return node && node->kind() == Node::Kind::Int && node->toInt() >= 0;
}

bool readSummary(const Node &entry, RecipeSummary *summary)
{
    const Node *name = entry.child(QStringView(u"name"));
    const Node *checksum = entry.child(QStringView(u"checksum"));
    if (!name || name->kind() != Node::Kind::String || !isWholeNumber(checksum))
        return false;
    summary->name = name->toString();
    summary->desc = entry.getString(u"desc");
    summary->layers = static_cast<int>(entry.getInt(u"layers"));
    summary->products = static_cast<int>(entry.getInt(u"products"));
    summary->checksum = static_cast<std::uint32_t>(checksum->toInt());
    return true;
}

RecipePlace placeOf(const RecipeMatch &match)
{
    if (match.controllerIndex < 0)
        return RecipePlace::Missing;
    const RecipeSummary &ours = match.panel;
    const RecipeSummary &theirs = match.controller;
    if (ours.checksum != theirs.checksum || ours.layers != theirs.layers || ours.products != theirs.products)
        return RecipePlace::Other;
    return match.panelIndex == match.controllerIndex ? RecipePlace::Same : RecipePlace::Moved;
}

} // namespace

bool readSummaries(const Node &answer, std::vector<RecipeSummary> *told)
{
    told->clear();
    bool isGood = answer.isContainer();
    for (int i = 0; isGood && i < answer.size(); ++i) {
        const Node *entry = answer.at(i);
        RecipeSummary summary;
        isGood = entry && readSummary(*entry, &summary);
        told->push_back(summary);
    }
    if (!isGood)
        told->clear();
    return isGood;
}

std::vector<RecipeMatch> matchRecipes(const std::vector<RecipeSummary> &panel,
                                      const std::vector<RecipeSummary> &told)
{
    std::vector<RecipeMatch> matches;
    QHash<QString, int> left; // on the controller, by name
    for (int i = static_cast<int>(told.size()) - 1; i >= 0; --i)
        left.insert(told[static_cast<std::size_t>(i)].name, i);
    for (const RecipeSummary &summary : panel) {
        RecipeMatch match;
        match.panel = summary;
        match.name = summary.name;
        match.panelIndex = static_cast<int>(matches.size());
        const auto found = left.find(match.name);
        if (found != left.end()) {
            match.controllerIndex = *found;
            match.controller = told[static_cast<std::size_t>(*found)];
            left.erase(found);
        }
        match.place = placeOf(match);
        matches.push_back(match);
    }
    for (int i = 0; i < static_cast<int>(told.size()); ++i) {
        const RecipeSummary &summary = told[static_cast<std::size_t>(i)];
        if (left.value(summary.name, -1) == i)
            matches.push_back({summary.name, RecipePlace::Extra, RecipeSummary(), summary, -1, i});
    }
    return matches;
}

bool wouldMove(const std::vector<RecipeMatch> &matches)
{
    return std::any_of(matches.begin(), matches.end(), [](const RecipeMatch &match) {
        return match.controllerIndex >= 0 && match.controllerIndex != match.panelIndex;
    });
}

int countDiffering(const std::vector<RecipeMatch> &matches)
{
    return static_cast<int>(std::count_if(matches.begin(), matches.end(), [](const RecipeMatch &match) {
        return match.place != RecipePlace::Same;
    }));
}

} // namespace palx
