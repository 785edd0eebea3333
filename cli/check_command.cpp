#include "recipe_commands.h"

#include "recipe_review.h"
#include "stack/stack_check.h"

namespace cli {
namespace {

/// Runs one check that repairs; what it logs is a repair, or a refusal when there is nothing to repair.
template <typename Check>
void runRepairs(Session &session, orba::ModuleObject *stack, const char *part, Check check,
                RecipeReview *review)
{
    const bool nothingThere = stack->r(part)->isNull();
    check(stack);
    for (const LogRecord &record : session.takeLog())
        (nothingThere ? review->refusals : review->repairs).append(record.text);
}

RecipeReview reviewRecipe(Session &session, orba::ModuleObject *stack)
{
    RecipeReview review;
    review.name = stack->getString("name");
    using Check = bool (*)(orba::ModuleObject *); // of the two overloads the one that logs through handles
    runRepairs(session, stack, "product_cfg.product", Check(palx::checkProductPara), &review);
    // Wizards never reach the pallet's check through the combined one; here it is asked for.
    runRepairs(session, stack, "product_cfg.pallet", Check(palx::checkPalletPara), &review);
    if (!palx::checkLayersName(stack->r("layers")))
        review.refusals.append(QStringLiteral("A layer with a pattern follows an \"empty\" layer."));
    review.warnings = recipeWarnings(stack);
    return review;
}

} // namespace

int runCheck(const RecipeRequest &request)
{
    Session session(Session::Pages::Without);
    RecipeList stacks;
    if (!openRecipes(session, request, &stacks))
        return kRefused;
    session.presenter().setQuiet(true); // the records are the result
    QVector<RecipeReview> reviews;
    bool refused = false;
    for (orba::ModuleObject *stack : stacks) {
        reviews.append(reviewRecipe(session, stack));
        refused = refused || !reviews.last().refusals.isEmpty();
    }
    const QByteArray text = request.output == Output::Json ? reviewsJson(reviews) : reviewsText(reviews);
    return putResult(text) && !refused ? kDone : kRefused;
}

} // namespace cli
