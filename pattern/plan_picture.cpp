#include "pattern/picture_rows.h"
#include "pattern/plan_style.h"
#include "pattern/recipe_picture.h"
#include "pattern/stackpatternscene.h"
#include "stack/recipe_patterns.h"

#include <QPainter>

namespace palx {

QImage planPicture(const orba::Node &stack, int layer, const QSize &pixels)
{
    QImage image = pictureImage(pixels);
    image.fill(QColor::fromRgba(plan_style::kPaper));
    const PictureFrame frame = frameFor(image.size());
    StackPatternScene scene;
    scene.setStack(stack);
    scene.setLayer(layer);
    scene.setTextPixels(frame.textPixels);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.paintPlan(&painter, frame.drawing);
    if (frame.block.isNull())
        return image;
    const LayoutFindings &findings = scene.findings();
    TitleBlock block(&painter, frame);
    block.addRows(layerRows(scene.plan(), layer, scene.shownItems()));
    block.addRows(findingRows(scene.plan(), scene.shownItems(), findings));
    block.addScaleBar(scene.planScale(frame.drawing.size()));
    if (!scene.shownItems().isEmpty())
        block.addLegend(!findings.overlaps.isEmpty(), findings.overhangCount() > 0);
    return image;
}

QImage patternPicture(const orba::Node &stack, const QString &pattern, const QSize &pixels)
{
    constexpr double kTextPixels = 12; // numbers of a list are only looked at beside a full plan
    QImage image = pictureImage(pixels);
    image.fill(QColor::fromRgba(plan_style::kPaper));
    const orba::Node *items = findPattern(stack, pattern);
    PatternScene scene;
    scene.setStack(stack);
    scene.setPattern(items ? *items : orba::Node());
    scene.setTextPixels(kTextPixels);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.paintPlan(&painter, QRectF(image.rect()).adjusted(2, 2, -2, -2));
    return image;
}

} // namespace palx
