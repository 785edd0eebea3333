// Writes the recipes of the folder examples/ again:  make_examples TEMPLATE FOLDER
// TEMPLATE is the plug-in's JSON template.

#include "recipe_parts.h"

#include "orba/module_manager.h"

#include <QCoreApplication>
#include <QTextStream>

using examples::Recipe;

namespace {

const QVector<bool> kFourRows{false, true, true, true};
const QVector<bool> kFourRowsBack{true, true, true, false};

QStringList alternating(const QString &first, const QString &second, int count)
{
    QStringList layers;
    for (int i = 0; i < count; ++i)
        layers.append(i % 2 == 0 ? first : second);
    return layers;
}

/// Laid from the corner that lies furthest from the conveyor towards the one where boxes come in.
void layTowardsConveyor(Recipe *recipe)
{
    const bool right = recipe->palletPosition == 1;
    recipe->laying.fromFarLength = right;
    recipe->laying.fromFarWidth = true;
    recipe->laying.direction = right ? QStringLiteral("BottomRight") : QStringLiteral("TopRight");
}

/// A sheet above every second layer, none on top.
QStringList withSheets(const QStringList &layers)
{
    QStringList result;
    for (int i = 0; i < layers.size(); ++i) {
        if (i > 0 && i % 2 == 0)
            result.append(QStringLiteral("clapboard"));
        result.append(layers.at(i));
    }
    return result;
}

Recipe interlocked()
{
    Recipe recipe;
    recipe.name = QStringLiteral("Interlocked 1200x800");
    recipe.desc =
        QStringLiteral("Boxes 390x260x200 in alternating layers of nine, a sheet every second layer");
    recipe.product = {390, 260, 200, 6.5};
    recipe.palletPreset = 4;
    recipe.patterns = {{QStringLiteral("A"), kFourRows}, {QStringLiteral("B"), kFourRowsBack}};
    recipe.layers = withSheets(alternating(QStringLiteral("A"), QStringLiteral("B"), 8));
    recipe.sheetHeight = 3;
    layTowardsConveyor(&recipe);
    return recipe;
}

Recipe lineSide(bool right)
{
    Recipe recipe;
    recipe.name = right ? QStringLiteral("Line right") : QStringLiteral("Line left");
    recipe.desc = QStringLiteral("Boxes 330x240x220 on the %1 pallet of the line")
                      .arg(right ? QStringLiteral("right") : QStringLiteral("left"));
    recipe.product = {330, 240, 220, 8};
    recipe.palletPreset = 5;
    recipe.patterns = {{QStringLiteral("A"), {false, false, true, true}},
                       {QStringLiteral("B"), {true, true, false, false}}};
    recipe.layers = alternating(QStringLiteral("A"), QStringLiteral("B"), 6);
    recipe.palletPosition = right ? 1 : 0;
    layTowardsConveyor(&recipe);
    return recipe;
}

/// Eight layers of ten boxes: the upper ones need the lift column.
Recipe liftSide(bool right)
{
    Recipe recipe;
    recipe.name = right ? QStringLiteral("Lift right") : QStringLiteral("Lift left");
    recipe.desc = QStringLiteral("Boxes 400x240x200, eight layers of ten on the %1 pallet; the robot stands on a lift column")
                      .arg(right ? QStringLiteral("right") : QStringLiteral("left"));
    recipe.product = {400, 240, 200, 7};
    recipe.palletPreset = 5;
    recipe.patterns = {{QStringLiteral("A"), {false, false, true}}, {QStringLiteral("B"), {true, false, false}}};
    recipe.layers = alternating(QStringLiteral("A"), QStringLiteral("B"), 8);
    recipe.palletPosition = right ? 1 : 0;
    layTowardsConveyor(&recipe);
    return recipe;
}

Recipe cellSide(bool right)
{
    Recipe recipe;
    recipe.name = right ? QStringLiteral("Cell right") : QStringLiteral("Cell left");
    recipe.desc = QStringLiteral("Boxes 380x260x180 with the cell's tool and one taught point per pallet");
    recipe.product = {380, 260, 180, 5.5};
    recipe.palletPreset = 4;
    recipe.patterns = {{QStringLiteral("A"), kFourRows}, {QStringLiteral("B"), kFourRowsBack}};
    recipe.layers = alternating(QStringLiteral("A"), QStringLiteral("B"), 5);
    recipe.laying.fromFarLength = true;
    recipe.laying.fromFarWidth = right;
    recipe.laying.direction = right ? QStringLiteral("TopLeft") : QStringLiteral("TopRight");
    recipe.laying.offset = 100;
    recipe.palletPosition = right ? 1 : 0;
    return recipe;
}

Recipe large()
{
    Recipe recipe;
    recipe.name = QStringLiteral("Large 20x100");
    recipe.desc = QStringLiteral("Twenty layers of a hundred small boxes");
    recipe.product = {115, 95, 60, 0.4};
    recipe.palletPreset = 5;
    recipe.patterns = {{QStringLiteral("A"), QVector<bool>(10, false)}};
    recipe.layers = QVector<QString>(20, QStringLiteral("A")).toList();
    recipe.gap = 2;
    layTowardsConveyor(&recipe);
    return recipe;
}

/// The exchange file of recipes that bring their own tool and pallet frame.
orba::Node exchangeFile(const orba::Node &pluginTemplate, const QVector<Recipe> &recipes)
{
    orba::Node list(orba::Name(u"temp_list"));
    list.reset(orba::Node::Kind::List);
    list.add(orba::Name(u"default"))->assign(*pluginTemplate.child(u"default"));
    for (const Recipe &recipe : recipes) {
        orba::Node stack = examples::makeStack(pluginTemplate, recipe);
        examples::teachOwnCell(stack, recipe);
        list.add()->assign(stack);
    }
    return list;
}

/// A whole plugin node whose recipes use the global tool and the global work objects.
orba::Node globalCell(const orba::Node &pluginTemplate)
{
    orba::Node plugin = pluginTemplate;
    for (bool right : {false, true}) {
        orba::Node stack = examples::makeStack(pluginTemplate, cellSide(right));
        examples::fill(stack, {{"use_global_tool", true}, {"use_global_wobj", true}});
        plugin.child(u"stacks")->add()->assign(stack);
    }
    examples::teachGlobalCell(plugin);
    return plugin;
}

bool write(const orba::Node &pluginTemplate, const QString &folder, orba::FormatError *error)
{
    const QVector<QPair<QString, QVector<Recipe>>> files{
        {QStringLiteral("interlocked-1200x800"), {interlocked()}},
        {QStringLiteral("line-left"), {lineSide(false)}},
        {QStringLiteral("line-right"), {lineSide(true)}},
        {QStringLiteral("lift-pair"), {liftSide(false), liftSide(true)}},
        {QStringLiteral("large-20x100"), {large()}}};
    for (const auto &file : files) {
        const QString path = folder + QLatin1Char('/') + file.first + QStringLiteral(".xml");
        if (!orba::ModuleManager::writeToXmlFile(exchangeFile(pluginTemplate, file.second), path, error))
            return false;
    }
    return orba::ModuleManager::writeToJson(globalCell(pluginTemplate),
                                            folder + QStringLiteral("/global-cell.json"), error);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: make_examples TEMPLATE FOLDER\n";
        return 2;
    }
    orba::Node pluginTemplate;
    orba::FormatError error;
    if (!orba::ModuleManager::readFromJson(arguments.at(1), &pluginTemplate, &error) ||
        !write(pluginTemplate, arguments.at(2), &error)) {
        QTextStream(stderr) << "make_examples: " << error.text() << '\n';
        return 1;
    }
    return 0;
}
