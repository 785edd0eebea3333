#include "stack/recipe_match.h"

#include "support/test_support.h"

#include <gtest/gtest.h>

using host::RecipeSummary;
using palx::RecipeMatch;
using palx::RecipePlace;

namespace {

/// Of recipes whose only products are placed at these heights: "A1 B2.5".
std::vector<RecipeSummary> summaries(const char *text)
{
    std::vector<RecipeSummary> result;
    for (const QString &word : QString(text).split(' ', Qt::SkipEmptyParts))
        result.push_back(host::summaryOf(nodeFromJson(
            QStringLiteral(
                R"({"name": "%1", "get": {}, "points": {"put": [[{"put_p": {"trans": [0, 0, %2]}}]]}})")
                .arg(word.left(1), word.mid(1))
                .toUtf8())));
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
        const auto matches = palx::matchRecipes(summaries(each.panel), summaries(each.controller));
        EXPECT_EQ(texts(matches), each.matches) << each.panel;
        EXPECT_EQ(palx::countDiffering(matches), each.differing) << each.panel;
    }
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
