#include "ui/layout_preview.h"

#include "ix/xtheme.h"
#include "pattern/patternscene.h"

#include <QPainter>

namespace {

constexpr int kInset = 10; ///< of everything, so that the frame of the chosen one covers nothing
constexpr int kGap = 6;
constexpr int kTick = 28;
constexpr double kRadius = 8;

constexpr int kFlags = Qt::TextWordWrap | Qt::AlignHCenter;

/// Draws a text at the lower end of the rectangle and takes its height off.
void paintBelow(QPainter *painter, QRect *rest, const QString &text)
{
    QRect target = *rest;
    target.setTop(rest->bottom() - painter->boundingRect(*rest, kFlags, text).height());
    painter->drawText(target, kFlags, text);
    rest->setBottom(target.top() - kGap);
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
    title.setHeight(2 *
                    painter->fontMetrics().lineSpacing()); // the same for all, so that plans stand in a row
    rest->setTop(title.bottom() + kGap);
    title.adjust(kTick, 0, -kTick, 0); // room for the tick
    painter->drawText(title, Qt::TextWordWrap | Qt::AlignCenter, text());
    painter->setFont(font());
    if (!warning_.isEmpty())
        paintWarning(painter, rest);
    painter->setPen(palette().color(group, QPalette::Text));
    paintBelow(painter, rest, facts_);
}

void LayoutPreview::paintWarning(QPainter *painter, QRect *rest) const
{
    QRect ground = *rest;
    ground.setTop(rest->bottom() - painter->boundingRect(*rest, kFlags, warning_).height() - kGap);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ix::xtheme::color(ix::xtheme::State::Attention));
    painter->drawRoundedRect(ground, kRadius, kRadius);
    painter->setPen(ix::xtheme::textColor(ix::xtheme::State::Attention));
    rest->setBottom(rest->bottom() - kGap / 2);
    paintBelow(painter, rest, warning_);
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
