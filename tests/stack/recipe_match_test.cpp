#include "stack/recipe_match.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

using host::RecipeSummary;
using orba::Node;
using palx::RecipeMatch;
using palx::RecipePlace;

namespace {

/// Recipes whose only products are placed at these heights: "A1 B2.5".
Node recipes(const char *text)
{
    Node list = nodeFromJson("[]");
    for (const QString &word : QString(text).split(' ', Qt::SkipEmptyParts))
        *list.add() = nodeFromJson(QStringLiteral(R"({"name": "%1", "desc": "", "get": {}, "points": {"put":
            [[{"put_p": {"trans": [0, 0, %2]}}]]}})")
                                       .arg(word.left(1), word.mid(1))
                                       .toUtf8());
    return list;
}

std::vector<RecipeSummary> summaries(const Node &list)
{
    std::vector<RecipeSummary> result;
    for (int i = 0; i < list.size(); ++i)
        result.push_back(host::summaryOf(*list.at(i)));
    return result;
}

QStringList texts(const std::vector<RecipeMatch> &matches)
{
    const char *const names[] = {"same", "moved", "other", "missing", "extra"};
    QStringList lines;
    for (const RecipeMatch &match : matches)
        lines.append(QStringLiteral("%1 %2 %3 %4")
                         .arg(match.name, QLatin1String(names[static_cast<int>(match.place)]))
                         .arg(match.panelIndex)
                         .arg(match.controllerIndex));
    return lines;
}

} // namespace

TEST(RecipeMatch, NamesWhatDiffersBetweenTheTwoSides)
{
    const struct
    {
        const char *panel, *controller;
        QStringList matches;
        int differing;
    } cases[] = {
        {"A1", "A1.5", {"A other 0 0"}, 1},
        {"A1 B2", "A1", {"A same 0 0", "B missing 1 -1"}, 1},
        {"A1", "B1", {"A missing 0 -1", "B extra -1 0"}, 2},
        {"A1 B2", "B2 A1", {"A moved 0 1", "B moved 1 0"}, 2},
        {"A1 A1", "A1", {"A same 0 0", "A missing 1 -1"}, 1},
    };
    for (const auto &each : cases) {
        const auto matches =
            palx::matchRecipes(summaries(recipes(each.panel)), summaries(recipes(each.controller)));
        EXPECT_EQ(texts(matches), each.matches) << each.panel;
        EXPECT_EQ(palx::countDiffering(matches), each.differing) << each.panel;
    }
}

TEST(RecipeMatch, ADescriptionAndSettingsAreNoPoints)
{
    Node panel = recipes("A1");
    const auto told = summaries(panel);
    panel.at(0)->ensure(u"desc")->setString("small");
    panel.at(0)->ensure(u"product_cfg.product.length")->setInt(7);
    EXPECT_EQ(palx::countDiffering(palx::matchRecipes(summaries(panel), told)), 0);
    panel.at(0)->ensure(u"get.get_p.trans.#0")->setDouble(1);
    EXPECT_EQ(palx::countDiffering(palx::matchRecipes(summaries(panel), told)), 1);
}

TEST(RecipeMatch, RefusesWhatIsNoListOfRecipes)
{
    const char *answers[] = {"7", "[null]", R"([{"name": 7, "checksum": 1}])",
                             R"([{"name": "A", "checksum": -1}])",
                             R"([{"name": "A", "checksum": 1}, {"name": "B"}])"};
    for (const char *answer : answers) {
        std::vector<RecipeSummary> told(3);
        EXPECT_FALSE(palx::readSummaries(nodeFromJson(answer), &told)) << answer;
        EXPECT_TRUE(told.empty()) << answer;
    }
}
