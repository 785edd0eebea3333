#include "recipe_commands.h"

#include "points_output.h"
#include "stack/way_points.h"

namespace cli {

int runPoints(const RecipeRequest &request)
{
    Session session(Session::Pages::Without);
    RecipeList stacks;
    if (!openRecipes(session, request, &stacks))
        return kRefused;
    Progress progress;
    for (int i = 0; i < stacks.size(); ++i) {
        palx::genStackWayPoints(stacks.at(i));
        progress.show(QStringLiteral("points"), i + 1, stacks.size());
    }
    progress.clear();
    QString error;
    const QByteArray text =
        request.output == Output::Json ? pointsJson(stacks, session.takeLog(), &error) : pointsTable(stacks);
    if (!error.isEmpty())
        return refuse(request.file + QStringLiteral(": ") + error);
    return putResult(text) ? kDone : kRefused;
}

} // namespace cli
