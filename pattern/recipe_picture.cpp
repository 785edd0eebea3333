#include "pattern/recipe_picture.h"

#include "pattern/picture_rows.h"
#include "pattern/plan_style.h"
#include "pattern/rules/iso_scene.h"

#include <QPainter>

#include <algorithm>

namespace palx {

namespace {

constexpr int kMaxPictureProducts =
    20000; // far over any pallet; a foreign file must not hold up a list of recipes

struct SolidLook
{
    QRgb top, left, right, line;
};

/// Light falls from above and from the left.
SolidLook lookOf(SolidKind kind)
{
    switch (kind) {
    case SolidKind::Pallet:
        return {0xffc3bdb1, 0xffa29b8d, 0xff867f72, 0xff5a554b};
    case SolidKind::Sheet:
        return {0xfff3f4f6, 0xffd6dade, 0xffbcc2c8, 0xff6b747d};
    case SolidKind::Product:
        break;
    }
    return {0xffe9e6df, 0xffcbc6bb, 0xffaaa497, 0xff4a4841};
}

QRgb fillOf(const IsoFace &face)
{
    const SolidLook look = lookOf(face.kind);
    return face.side == FaceSide::Top ? look.top : face.side == FaceSide::Left ? look.left : look.right;
}

/// Lines fade where products are only a few pixels large; else a small picture would be all lines.
double lineOpacity(const StackPlan &plan, double scale)
{
    const double shortest =
        std::min({plan.product.length, plan.product.width, std::max(plan.product.height, 1.0)});
    return std::clamp(shortest * scale / 10, 0.15, 0.9);
}

void paintFaces(QPainter *painter, const QVector<IsoFace> &faces, double opacity)
{
    for (const IsoFace &face : faces) {
        QColor line = QColor::fromRgba(lookOf(face.kind).line);
        line.setAlphaF(opacity);
        QPen pen(line, 1);
        pen.setCosmetic(true);
        pen.setJoinStyle(Qt::RoundJoin);
        painter->setPen(pen);
        painter->setBrush(QColor::fromRgba(fillOf(face)));
        painter->drawConvexPolygon(face.corners.data(), static_cast<int>(face.corners.size()));
    }
}

void paintStack(QPainter *painter, const QRectF &target, const orba::Node &stack, const StackPlan &plan)
{
    const QVector<Course> courses = stackCourses(stack, plan, kMaxPictureProducts);
    const QRectF bounds = isoBounds(courses);
    const double scale = std::min(target.width() / bounds.width(), target.height() / bounds.height());
    if (scale <= 0)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(target.center());
    painter->scale(scale, scale);
    painter->translate(-bounds.center());
    paintFaces(painter, visibleFaces(courses, 1 / scale), lineOpacity(plan, scale));
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
    QPainter painter(&image);
    paintStack(&painter, padded(image.rect(), 2), stack, readStackPlan(stack));
    return image;
}

QImage stackPicture(const orba::Node &stack, const QSize &pixels)
{
    QImage image = pictureImage(pixels);
    image.fill(QColor::fromRgba(plan_style::kPaper));
    const PictureFrame frame = frameFor(image.size());
    const StackPlan plan = readStackPlan(stack);
    QPainter painter(&image);
    paintStack(&painter, padded(frame.drawing, frame.textPixels * 1.5), stack, plan);
    if (!frame.block.isNull())
        TitleBlock(&painter, frame).addRows(stackRows(stack, plan));
    return image;
}

} // namespace palx
