#include "demo.h"

#include "pattern/recipe_picture.h"
#include "recipe_commands.h"
#include "recipe_review.h"
#include "screenshots.h"
#include "simulation_run.h"
#include "stack/recipe_layers.h"
#include "stack/stack_check.h"
#include "stack/way_points.h"
#include "workstation/plugin_node.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

namespace cli {
namespace {

const QSize kPicture(1280, 800);

/// Tells one step as a line of the result.
bool tell(const QString &text)
{
    return putResult(text.toUtf8() + '\n');
}

double milliseconds(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

bool readRecipes(const QString &examples)
{
    QString error;
    for (const QString &file : exampleFiles(examples, &error)) {
        const int before = palx::stacksNode()->cmobjCount();
        if (!loadRecipes(file))
            return false;
        const RecipeList all = palx::stacksNode()->cmobjs();
        for (int i = before; i < all.size(); ++i) {
            const palx::RecipeTotals totals = palx::recipeTotals(all.at(i)->node());
            tell(QStringLiteral("read   %1: \"%2\", %3 layers and %4 sheets, %5 products, %6 mm high")
                     .arg(QFileInfo(file).fileName(), all.at(i)->getString("name"))
                     .arg(totals.layers)
                     .arg(totals.sheets)
                     .arg(totals.products)
                     .arg(totals.heightMm));
        }
    }
    if (!error.isEmpty())
        say(error);
    return error.isEmpty();
}

bool checkRecipes(const RecipeList &stacks)
{
    int findings = 0;
    for (orba::ModuleObject *stack : stacks) {
        palx::checkProductPara(stack);
        palx::checkPalletPara(stack);
        const QStringList warnings = recipeWarnings(stack);
        for (const QString &warning : warnings)
            say(stack->getString("name") + QStringLiteral(": ") + warning);
        findings += warnings.size() + (palx::checkLayersName(stack->r("layers")) ? 0 : 1);
    }
    return tell(QStringLiteral("check  %1 recipes, %2 findings").arg(stacks.size()).arg(findings));
}

bool makePoints(const RecipeList &stacks)
{
    QElapsedTimer clock;
    clock.start();
    Progress progress;
    for (int i = 0; i < stacks.size(); ++i) {
        palx::genStackWayPoints(stacks.at(i));
        progress.show(QStringLiteral("points"), i + 1, stacks.size());
    }
    const double spent = milliseconds(clock);
    int products = 0;
    for (const orba::ModuleObject *stack : stacks) {
        const orba::Node *put = stack->node().find(u"points.put");
        for (int i = 0; put && i < put->size(); ++i)
            products += put->at(i)->size();
    }
    progress.clear();
    return tell(QStringLiteral("points %1 products with six points each in %2 ms")
                    .arg(products)
                    .arg(spent, 0, 'f', 1));
}

/// "Line left" becomes "line-left".
QString fileStem(const orba::ModuleObject *stack)
{
    return stack->getString("name").toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

bool drawRecipes(const RecipeList &stacks, const QDir &folder)
{
    Progress progress;
    for (int i = 0; i < stacks.size(); ++i) {
        const orba::Node &stack = stacks.at(i)->node();
        const QString stem = folder.filePath(fileStem(stacks.at(i)));
        progress.show(QStringLiteral("pictures"), i + 1, stacks.size());
        if (!palx::stackPicture(stack, kPicture).save(stem + QStringLiteral("-stack.png")) ||
            !palx::planPicture(stack, 0, kPicture).save(stem + QStringLiteral("-layer-1.png"))) {
            say(QStringLiteral("cannot write pictures to ") + folder.path());
            return false;
        }
    }
    progress.clear();
    return tell(QStringLiteral("draw   %1 pictures").arg(2 * stacks.size()));
}

/// What a panel would find in its store after the next start.
bool readBack(const QString &data, const orba::Node &expected)
{
    QElapsedTimer clock;
    clock.start();
    Session session(Session::Pages::Without, QString(), data);
    if (!session.start())
        return false;
    const double spent = milliseconds(clock);
    if (palx::stacksNode()->node() != expected) {
        say(QStringLiteral("the store gave back other recipes than it was given"));
        return false;
    }
    return tell(QStringLiteral("store  read back after a restart in %1 ms, equal").arg(spent, 0, 'f', 1));
}

bool throughTheStore(const QString &examples, const QDir &folder)
{
    const QTemporaryDir data;
    orba::Node kept;
    {
        Session session(Session::Pages::Without, QString(), data.path());
        if (!session.start() || !readRecipes(examples))
            return false;
        const RecipeList stacks = palx::stacksNode()->cmobjs();
        if (!checkRecipes(stacks) || !makePoints(stacks) || !drawRecipes(stacks, folder))
            return false;
        QElapsedTimer clock;
        clock.start();
        if (!session.host().save())
            return false;
        tell(QStringLiteral("store  saved, points included, in %1 ms").arg(milliseconds(clock), 0, 'f', 1));
        kept = palx::stacksNode()->node();
    }
    return readBack(data.path(), kept);
}

/// Fills both pallets of a cell with a lift column, as `palx simulate` does.
bool inTheCell(const QString &examples)
{
    SimulateRequest request;
    request.recipes.file = QDir(examples).filePath(QStringLiteral("lift-pair.xml"));
    request.withLift = true;
    SimulationProject project;
    SimulationResult result;
    if (!project.make(request))
        return false;
    tell(QStringLiteral("cell   a project for both pallets of %1, with tasks, programs and variables")
             .arg(QFileInfo(request.recipes.file).fileName()));
    const bool isRun = runSimulation(project, request, &result);
    for (const auto &violation : std::as_const(result.violations))
        say(QString::fromStdString(violation.what));
    return tell(QStringLiteral(
                    "cell   %1 of %2 products on %3 full pallets, %4 violations, at most %5 mm from their "
                    "put points; %6 s of the cell in %7 s")
                    .arg(result.boxes)
                    .arg(result.expected)
                    .arg(result.pallets)
                    .arg(result.violations.size())
                    .arg(result.maxErrorMm, 0, 'f', 3)
                    .arg(result.seconds, 0, 'f', 0)
                    .arg(result.wallSeconds, 0, 'f', 2)) &&
           isRun && result.isGood();
}

} // namespace

int runDemo(const QString &folder, const QString &examples)
{
    if (!QDir().mkpath(folder))
        return refuse(folder + QStringLiteral(": the folder cannot be made"));
    if (!throughTheStore(examples, QDir(folder)) || !inTheCell(examples))
        return kRefused;
    const int code = runScreenshots({folder, QStringLiteral("en"), kPicture, examples});
    if (code == kDone)
        tell(QStringLiteral("done   the pictures are in ") + QDir(folder).absolutePath());
    return code;
}

} // namespace cli
