#include "ui/plan_view.h"

#include "pattern/patternscene.h"
#include "pattern/plan_style.h"

#include <QMouseEvent>
#include <QPolygonF>

namespace {

QPolygonF outlineOf(const palx::PatternItem &item)
{
    QPolygonF outline;
    for (const QPointF &corner : palx::itemCorners(item))
        outline << corner;
    return outline;
}

} // namespace

PlanView::PlanView(QWidget *parent) : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setInteractive(false);
    // Dimensions are drawn at pixel size over the whole plan, so a part of the view is never up to date
    // alone.
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
}

void PlanView::showPlan(PatternScene *scene)
{
    plan_ = scene;
    setScene(scene);
    connect(scene, &PatternScene::planChanged, this, &PlanView::fit);
    fit();
}

void PlanView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    fit();
}

void PlanView::fit()
{
    if (!plan_ || viewport()->width() < 2 || viewport()->height() < 2)
        return;
    const QRectF rect = plan_->viewRect(viewport()->size());
    setSceneRect(rect);
    fitInView(rect, Qt::KeepAspectRatio);
}

void PlanView::markItem(int item)
{
    marked_ = item;
    viewport()->update();
}

/// The product that is placed last lies on top where products overlap.
void PlanView::mousePressEvent(QMouseEvent *event)
{
    const QPointF at = mapToScene(event->pos());
    const QVector<palx::PatternItem> items = plan_ ? plan_->shownItems() : QVector<palx::PatternItem>();
    for (int i = items.size() - 1; i >= 0; --i) {
        if (outlineOf(items[i]).containsPoint(at, Qt::OddEvenFill)) {
            Q_EMIT itemTouched(i);
            return;
        }
    }
}

void PlanView::drawForeground(QPainter *painter, const QRectF &rect)
{
    QGraphicsView::drawForeground(painter, rect);
    if (!plan_ || marked_ < 0 || marked_ >= plan_->shownItems().size())
        return;
    constexpr int kMarkPixels = 5; // heavier than any line of the plan
    QPen pen(QColor::fromRgba(palx::plan_style::kSelection), kMarkPixels);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawPolygon(outlineOf(plan_->shownItems().at(marked_)));
}
