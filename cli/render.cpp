#include "render.h"

#include "pattern/recipe_picture.h"
#include "pattern/rules/stack_courses.h"
#include "recipe_commands.h"

#include <QImage>
#include <QSaveFile>

#include <limits>

namespace cli {
namespace {

QString quotedNames(const RecipeList &stacks)
{
    QStringList names;
    for (const orba::ModuleObject *stack : stacks)
        names << QStringLiteral("\"%1\"").arg(stack->getString("name"));
    return names.join(QStringLiteral(", "));
}

QString layerRefusal(const orba::Node &stack, int layer)
{
    const int count = palx::readStackPlan(stack).layers.size();
    if (layer >= 1 && layer <= count)
        return QString();
    const QString name = stack.getString(u"name");
    if (count == 0)
        return QStringLiteral("recipe \"%1\" has no layers").arg(name);
    return QStringLiteral("recipe \"%1\" has no layer %2, only 1 to %3").arg(name).arg(layer).arg(count);
}

QString piecesRefusal(const orba::Node &stack, int pieces)
{
    const int count = palx::pieceCount(
        palx::stackCourses(stack, palx::readStackPlan(stack), std::numeric_limits<int>::max()));
    return pieces <= count ? QString()
                           : QStringLiteral("recipe \"%1\" has %2 products and sheets, not %3")
                                 .arg(stack.getString(u"name"))
                                 .arg(count)
                                 .arg(pieces);
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
    const orba::Node &stack = stacks.first()->node();
    return options.layer ? layerRefusal(stack, *options.layer)
                         : piecesRefusal(stack, options.pieces.value_or(0));
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
    return options.layer
               ? palx::planPicture(stack, *options.layer - 1, options.size)
               : palx::stackPicture(stack, options.size, {options.turn, options.pieces.value_or(-1)});
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
