#include "exchange_command.h"

#include "orba/module_manager.h"
#include "project/rules/recipe_places.h"
#include "workstation/file_sync.h"
#include "workstation/plugin_node.h"
#include "workstation/progress.h"
#include "workstation/recipe_transfer.h"

#include <QFileInfo>

namespace cli {
namespace {

using orba::Node;
using palx::ImportStep;

/// Shown on the terminal; nobody is there to cancel.
class ShownProgress : public palx::Progress
{
public:
    void step(int done, int total, const QString &text) override { line_.show(text, done, total); }
    bool isCancelled() override { return false; }
    bool enterLastPart() override { return true; }

private:
    cli::Progress line_;
};

QByteArray json(const Node &result)
{
    return orba::ModuleManager::toJson(result, false);
}

// ---------------------------------------------------------------- export

/// A mark for every recipe that is wanted; false, with the reason said, when a name is none.
bool choose(const Node &list, const QStringList &names, std::vector<bool> *ticked)
{
    QStringList missing = names;
    QStringList known;
    for (const int child : palx::recipeIndexes(list)) {
        const QString name = list.at(child)->getString(u"name");
        known.append(QLatin1Char('"') + name + QLatin1Char('"'));
        ticked->push_back(names.isEmpty() || names.contains(name));
        missing.removeAll(name);
    }
    if (!missing.isEmpty())
        say(QStringLiteral("no recipe is called \"%1\"; there are: %2")
                .arg(missing.first(),
                     known.isEmpty() ? QStringLiteral("none") : known.join(QStringLiteral(", "))));
    return missing.isEmpty();
}

bool printExport(const Node &tempList, const QString &file, Output output)
{
    Node result;
    result.ensure(u"file")->setString(file);
    result.ensure(u"bytes")->setInt(QFileInfo(file).size());
    Node *recipes = result.ensure(u"recipes");
    recipes->reset(Node::Kind::List);
    QString table;
    for (const int child : palx::recipeIndexes(tempList)) {
        const QString name = tempList.at(child)->getString(u"name");
        recipes->add()->setString(name);
        table += name + QLatin1Char('\n');
    }
    return putResult(output == Output::Json ? json(result) : table.toUtf8());
}

// ---------------------------------------------------------------- import

QString outcome(const ImportStep &step)
{
    switch (step.arrival) {
    case ImportStep::Unticked:
        break;
    case ImportStep::New:
        return QStringLiteral("new");
    case ImportStep::Renamed:
        return QStringLiteral("renamed");
    case ImportStep::Replacing:
        return QStringLiteral("replaced");
    case ImportStep::Skipped:
        return QStringLiteral("skipped");
    case ImportStep::Overtaken:
        return QStringLiteral("overtaken");
    }
    return QString();
}

Node describe(const palx::ExchangeFile &read, const std::vector<ImportStep> &steps)
{
    Node recipes;
    recipes.reset(Node::Kind::List);
    const std::vector<int> children = palx::recipeIndexes(read.content);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        Node *recipe = recipes.add();
        recipe->ensure(u"recipe")->setString(read.content.at(children[i])->getString(u"name"));
        recipe->ensure(u"outcome")->setString(outcome(steps[i]));
        recipe->ensure(u"name")->setString(steps[i].name);
        recipe->ensure(u"place")->setInt(steps[i].place + 1);
        Node *added = recipe->ensure(u"from_template");
        added->reset(Node::Kind::List);
        for (const QString &key : read.added[i])
            added->add()->setString(key);
    }
    return recipes;
}

bool printImport(const Node &recipes, const QString &file, Output output)
{
    if (output == Output::Json) {
        Node result;
        result.ensure(u"file")->setString(file);
        result.ensure(u"recipes")->assign(recipes);
        return putResult(json(result));
    }
    QString table;
    for (int i = 0; i < recipes.size(); ++i) {
        const Node &recipe = *recipes.at(i);
        const QString name = recipe.getString(u"name");
        table += QStringLiteral("%1  %2%3\n")
                     .arg(recipe.getString(u"recipe"), recipe.getString(u"outcome"),
                          name.isEmpty() ? QString() : QStringLiteral("  %1").arg(name));
    }
    return putResult(table.toUtf8());
}

Node templateStack()
{
    const Node *found = palx::templateStackOf(palx::stacksNode()->node(), palx::pluginNode()->node());
    return found ? *found : Node();
}

} // namespace

int runExport(const ExportRequest &request)
{
    const auto session = openPanel(request.places);
    std::vector<bool> ticked;
    if (!session || !choose(palx::stacksNode()->node(), request.names, &ticked))
        return kRefused;
    const Node prototype = templateStack();
    const Node tempList = palx::makeTempList(palx::stacksNode()->node(), &prototype, ticked);
    const QString file = palx::exchangeFileName(QFileInfo(request.file).absoluteFilePath());
    palx::WrittenFile written;
    {
        ShownProgress progress;
        written = palx::writeExchangeFile(tempList, file, progress);
    }
    if (!written.isDone())
        return refuse(written.error);
    QString trouble;
    const bool isSynced = palx::syncFileSystem(file, &trouble);
    palx::finishExport(file, isSynced);
    if (!isSynced)
        say(trouble);
    return settlePanel(session.get()) && isSynced && printExport(tempList, file, request.output) ? kDone
                                                                                                 : kRefused;
}

int runImport(const ImportRequest &request)
{
    const auto session = openPanel(request.places);
    if (!session)
        return kRefused;
    const QString file = QFileInfo(request.file).absoluteFilePath();
    ShownProgress progress;
    const palx::ExchangeFile read = palx::readExchangeFile(file, templateStack(), progress);
    if (!read.error.isEmpty())
        return refuse(read.error);
    const std::vector<bool> all(palx::recipeIndexes(read.content).size(), true);
    const std::vector<ImportStep> steps =
        palx::planImport(palx::stacksNode()->node(), read.content, all, request.onClash);
    const QString problem =
        palx::whyNotImport(palx::currentRunRecovery(), palx::stacksNode()->node(), steps);
    if (!problem.isEmpty())
        return refuse(problem);
    const Node recipes = describe(read, steps);
    const palx::KeptRecipes kept;
    palx::importRecipes(palx::stacksNode(), read.content, all, request.onClash, progress);
    palx::finishImport();
    kept.follow();
    return settlePanel(session.get()) && printImport(recipes, file, request.output) ? kDone : kRefused;
}

} // namespace cli
