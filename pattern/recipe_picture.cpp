#include "pattern/recipe_picture.h"

#include "pattern/picture_rows.h"
#include "pattern/plan_style.h"
#include "pattern/stack_drawing.h"

#include <QPainter>

#include <algorithm>

namespace palx {

namespace {

/// The picture fits its rectangle at the turn that it has, whatever is laid.
void paintStack(QPainter *painter, const QRectF &target, StackDrawing *drawing)
{
    const QRectF bounds = drawing->bounds();
    const double scale = std::min(target.width() / bounds.width(), target.height() / bounds.height());
    if (scale <= 0)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(target.center());
    painter->scale(scale, scale);
    painter->translate(-bounds.center());
    drawing->paint(painter, scale);
    painter->restore();
}

QRectF padded(const QRectF &rect, double pad)
{
    return rect.adjusted(pad, pad, -pad, -pad);
}

} // namespace

QImage recipePicture(const orba::Node &stack, const QSize &pixels)
{
    QImage image = pictureImage(pixels);
    StackDrawing drawing;
    drawing.setStack(stack);
    QPainter painter(&image);
    paintStack(&painter, padded(image.rect(), 2), &drawing);
    return image;
}

QImage stackPicture(const orba::Node &stack, const QSize &pixels, const StackLook &look)
{
    QImage image = pictureImage(pixels);
    image.fill(QColor::fromRgba(plan_style::kPaper));
    const PictureFrame frame = frameFor(image.size());
    const StackPlan plan = readStackPlan(stack);
    StackDrawing drawing;
    drawing.setStack(stack);
    drawing.setTurn(look.turnDeg);
    if (look.pieces >= 0)
        drawing.setPieces(look.pieces);
    QPainter painter(&image);
    paintStack(&painter, padded(frame.drawing, frame.textPixels * 1.5), &drawing);
    if (!frame.block.isNull())
        TitleBlock(&painter, frame).addRows(stackRows(stack, plan));
    return image;
}

} // namespace palx
