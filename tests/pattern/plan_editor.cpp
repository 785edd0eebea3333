#include "pattern/plan_editor.h"

#include "pattern/plan_recipe.h"

using palx::PatternEditing;
using palx::PatternItem;

namespace {

std::unique_ptr<orba::ModuleObject> recipe(const QVector<PatternItem> &items)
{
    auto stack = std::make_unique<orba::ModuleObject>(QStringLiteral("stack"));
    orba::Node content = oneLayerRecipe(items);
    content.ensure(u"automatic_stacker.min_product_spacing")->setDouble(2);
    stack->copyFrom(content);
    return stack;
}

} // namespace

PlanEditor::PlanEditor(const QVector<PatternItem> &items) : stack(recipe(items)), editing(&scene)
{
    scene.setStack(stack.get());
    scene.setPattern(pattern());
    QObject::connect(&editing, &PatternEditing::edited, &editing,
                     [this] { told_ << QStringLiteral("edited"); });
    QObject::connect(&editing, &PatternEditing::refused, &editing,
                     [this](const QString &why) { told_ << QStringLiteral("refused: ") + why; });
}

QVector<PatternItem> PlanEditor::stored()
{
    return palx::readPatternItems(pattern()->node(), 80, 100);
}

std::string PlanEditor::places()
{
    return placesOf(stored());
}

std::string PlanEditor::told()
{
    const QStringList told = std::exchange(told_, {});
    return told.join(QLatin1String("; ")).toStdString();
}
