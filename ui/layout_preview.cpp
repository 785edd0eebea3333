#include "ui/layout_preview.h"

#include "ix/xtheme.h"
#include "pattern/patternscene.h"

#include <QPainter>

namespace {

constexpr int kInset = 10; ///< of everything, so that the frame of the chosen one covers nothing
constexpr int kGap = 6;
constexpr int kTick = 28;
constexpr double kRadius = 8;

/// Draws a text at an end of the rectangle and takes its height off.
void paintText(QPainter *painter, QRect *rest, const QString &text, Qt::Edge edge)
{
    const QRect needed = painter->boundingRect(*rest, Qt::TextWordWrap | Qt::AlignHCenter, text);
    QRect target = *rest;
    if (edge == Qt::TopEdge) {
        target.setHeight(needed.height());
        rest->setTop(target.bottom() + kGap);
    } else {
        target.setTop(rest->bottom() - needed.height());
        rest->setBottom(target.top() - kGap);
    }
    painter->drawText(target, Qt::TextWordWrap | Qt::AlignHCenter, text);
}

} // namespace

LayoutPreview::LayoutPreview(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LayoutPreview::setScene(PatternScene *scene)
{
    scene_ = scene;
    connect(scene, &PatternScene::planChanged, this, &LayoutPreview::forgetPlan);
    forgetPlan();
}

void LayoutPreview::setTexts(const QString &name, const QString &facts, const QString &warning)
{
    setText(name);
    facts_ = facts;
    warning_ = warning;
    setAccessibleName(QStringList({name, facts, warning}).join(QLatin1String(". ")));
    update();
}

QSize LayoutPreview::sizeHint() const
{
    return QSize(220, 260);
}

void LayoutPreview::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    forgetPlan();
}

void LayoutPreview::forgetPlan()
{
    plan_ = QPixmap();
    update();
}

/// Drawn once for every size and content: touches and focus repaint the card.
const QPixmap &LayoutPreview::plan(const QSize &size)
{
    if (plan_.size() == size)
        return plan_;
    scene_->plan(); // what is due to be read anew would end the picture that is being drawn
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    scene_->paintPlan(&painter, QRectF(QPointF(), size));
    painter.end();
    plan_ = drawn;
    return plan_;
}

void LayoutPreview::paintFrame(QPainter *painter) const
{
    const bool chosen = isChecked();
    const int line = chosen ? 4 : 1;
    const QColor colour = palette().color(chosen || hasFocus() ? QPalette::Highlight : QPalette::Mid);
    painter->setPen(QPen(colour, line, hasFocus() && !chosen ? Qt::DashLine : Qt::SolidLine));
    painter->setBrush(palette().color(isDown() ? QPalette::Mid : QPalette::Base));
    const double half = line / 2.0;
    painter->drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kRadius, kRadius);
    if (chosen)
        painter->drawPixmap(width() - kTick - kInset, kInset,
                            ix::xtheme::pixmap(ix::xtheme::Glyph::Check, kTick, colour));
}

void LayoutPreview::paintTexts(QPainter *painter, QRect *rest) const
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter->setPen(palette().color(group, QPalette::Text));
    QFont bold = font();
    bold.setBold(true);
    painter->setFont(bold);
    QRect title = *rest;
    title.adjust(kTick, 0, -kTick, 0); // room for the tick
    paintText(painter, &title, text(), Qt::TopEdge);
    rest->setTop(qMax(title.top(), rest->top() + kTick + kGap));
    painter->setFont(font());
    if (!warning_.isEmpty()) {
        const QRect before = *rest;
        QRect measured = *rest;
        painter->save();
        painter->setPen(Qt::NoPen);
        painter->setBrush(ix::xtheme::color(ix::xtheme::State::Attention));
        const QRect needed = painter->boundingRect(before, Qt::TextWordWrap | Qt::AlignHCenter, warning_);
        measured.setTop(before.bottom() - needed.height() - kGap);
        painter->drawRoundedRect(measured, kRadius, kRadius);
        painter->restore();
        painter->setPen(ix::xtheme::textColor(ix::xtheme::State::Attention));
        rest->setBottom(rest->bottom() - kGap / 2);
        paintText(painter, rest, warning_, Qt::BottomEdge);
        painter->setPen(palette().color(group, QPalette::Text));
    }
    paintText(painter, rest, facts_, Qt::BottomEdge);
}

void LayoutPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(&painter);
    QRect rest = rect().adjusted(kInset, kInset, -kInset, -kInset);
    paintTexts(&painter, &rest);
    if (!scene_ || rest.width() < 2 || rest.height() < 2)
        return;
    constexpr double kFaded = 0.4;
    painter.setOpacity(isEnabled() ? 1 : kFaded);
    painter.drawPixmap(rest.topLeft(), plan(rest.size()));
}
