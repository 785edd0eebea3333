#include "render.h"

#include "pattern/recipe_picture.h"
#include "pattern/rules/stack_plan.h"
#include "recipe_commands.h"

#include <QImage>
#include <QSaveFile>

namespace cli {
namespace {

QString quotedNames(const RecipeList &stacks)
{
    QStringList names;
    for (const orba::ModuleObject *stack : stacks)
        names << QStringLiteral("\"%1\"").arg(stack->getString("name"));
    return names.join(QStringLiteral(", "));
}

/// Why the picture cannot be drawn; empty when it can.
QString refusalOf(const RenderOptions &options, const RecipeList &stacks)
{
    if (stacks.isEmpty())
        return QStringLiteral("%1 holds no recipe").arg(options.file);
    if (stacks.size() > 1)
        return QStringLiteral("%1 recipes to draw, choose one with --stack: %2")
            .arg(stacks.size())
            .arg(quotedNames(stacks));
    const int count = palx::readStackPlan(stacks.first()->node()).layers.size();
    if (!options.layer || (*options.layer >= 1 && *options.layer <= count))
        return QString();
    const QString name = stacks.first()->getString("name");
    if (count == 0)
        return QStringLiteral("recipe \"%1\" has no layers").arg(name);
    return QStringLiteral("recipe \"%1\" has no layer %2, only 1 to %3")
        .arg(name)
        .arg(*options.layer)
        .arg(count);
}

bool savePicture(const QImage &picture, const QString &fileName, QString *error)
{
    QSaveFile file(fileName);
    const bool saved = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
    if (!saved)
        *error = QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString());
    return saved;
}

QImage draw(const RenderOptions &options, const orba::Node &stack)
{
    return options.layer ? palx::planPicture(stack, *options.layer - 1, options.size)
                         : palx::stackPicture(stack, options.size);
}

bool isSide(int pixels)
{
    return pixels >= kMinPicture && pixels <= kMaxPicture;
}

} // namespace

int runRender(const RenderOptions &options)
{
    if (!isSide(options.size.width()) || !isSide(options.size.height())) {
        say(QStringLiteral("a picture has %1 to %2 pixels on each side").arg(kMinPicture).arg(kMaxPicture));
        return kWrongUsage;
    }
    Session session(Session::Pages::Without);
    RecipeList stacks;
    if (!openRecipes(session, {options.file, options.stack, Output::Table}, &stacks))
        return kRefused;
    const QString refusal = refusalOf(options, stacks);
    if (!refusal.isEmpty())
        return refuse(refusal);
    QString error;
    return savePicture(draw(options, stacks.first()->node()), options.output, &error) ? kDone : refuse(error);
}

} // namespace cli
