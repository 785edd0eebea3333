#include "pattern/title_block.h"

#include "pattern/plan_style.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

using namespace plan_style;

struct TitleText
{
    Q_DECLARE_TR_FUNCTIONS(TitleText)
};

constexpr double kSmallestText = 9; // pixels
constexpr double kLargestText = 24;
constexpr double kLabelShare = 0.8; // height of labels against values
constexpr double kColumn = 14;      // narrowest column against text height: "1200 x 800 x 144 mm" fits in
constexpr double kLine = 1.3;       // line pitch against text height

/// The longest of 1, 2, 5, 10, 20, ... millimetres that fits.
double roundLength(double roomMm)
{
    const double decade = std::pow(10, std::floor(std::log10(roomMm)));
    for (const double step : {5.0, 2.0}) {
        if (step * decade <= roomMm)
            return step * decade;
    }
    return decade;
}

void drawLabelSample(QPainter *painter, const QRectF &box)
{
    painter->setPen(QPen(QColor::fromRgba(kInk), 1));
    painter->setBrush(QColor::fromRgba(kItemFill));
    painter->drawRect(box);
    painter->fillRect(QRectF(box.left() + box.width() * 0.2, box.top() + 2, box.width() * 0.6, 2),
                      QColor::fromRgba(kLabelSide));
}

void drawArrowSample(QPainter *painter, const QRectF &box)
{
    painter->setPen(QPen(QColor::fromRgba(kDimension), 1.6));
    drawArrow(painter, QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()), 7);
}

void drawGhostSample(QPainter *painter, const QRectF &box)
{
    painter->setPen(pen(kGhost, 1, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box);
}

void drawFlawSample(QPainter *painter, const QRectF &box, QRgb fill, QRgb line, bool cross)
{
    painter->fillRect(box, QColor::fromRgba(fill));
    drawHatch(painter, QPolygonF(box), line, cross);
    painter->setPen(QPen(QColor::fromRgba(line), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box);
}

void drawOverlapSample(QPainter *painter, const QRectF &box)
{
    drawFlawSample(painter, box, kFaultFill, kFault, true);
}

void drawOverhangSample(QPainter *painter, const QRectF &box)
{
    drawFlawSample(painter, box, kAttentionFill, kAttention, false);
}

PictureFrame wideFrame(const QSizeF &pixels, double text)
{
    const double pad = text * 0.75;
    const double width = std::clamp(pixels.width() * 0.3, 12 * text, 20 * text);
    PictureFrame frame;
    frame.block = QRectF(pixels.width() - width, pad, width - pad, pixels.height() - 2 * pad);
    frame.drawing = QRectF(0, 0, pixels.width() - width, pixels.height());
    return frame;
}

PictureFrame highFrame(const QSizeF &pixels, double text)
{
    const double pad = text * 0.75;
    const double height = std::min(pixels.height() * 0.4, 17 * text);
    PictureFrame frame;
    frame.block = QRectF(pad, pixels.height() - height, pixels.width() - 2 * pad, height - pad);
    frame.drawing = QRectF(0, 0, pixels.width(), pixels.height() - height);
    return frame;
}

} // namespace

PictureFrame frameFor(const QSizeF &pixels)
{
    const double shorter = std::min(pixels.width(), pixels.height());
    const double text = std::clamp(shorter / 50, kSmallestText, kLargestText);
    PictureFrame frame;
    frame.drawing = QRectF(QPointF(), pixels);
    if (shorter >= 16 * text)
        frame = pixels.width() >= pixels.height() ? wideFrame(pixels, text) : highFrame(pixels, text);
    frame.textPixels = text;
    return frame;
}

TitleBlock::TitleBlock(QPainter *painter, const PictureFrame &frame)
    : painter_(painter), frame_(frame), cursor_(frame.block.topLeft())
{
    columns_ = std::max(1, static_cast<int>(frame.block.width() / (kColumn * frame.textPixels)));
    if (frame.block.isNull())
        return;
    painter->setPen(QPen(QColor::fromRgba(kPalletLine), 1));
    const double pad = frame.textPixels * 0.5;
    if (frame.block.left() > frame.drawing.right() - 1)
        painter->drawLine(frame.block.topLeft() - QPointF(pad, 0),
                          frame.block.bottomLeft() - QPointF(pad, 0));
    else
        painter->drawLine(frame.block.topLeft() - QPointF(0, pad), frame.block.topRight() - QPointF(0, pad));
}

bool TitleBlock::fits(double height) const
{
    return cursor_.y() + height <= frame_.block.bottom() + 1;
}

double TitleBlock::columnWidth() const
{
    return frame_.block.width() / columns_;
}

/// Goes to the next column, or to the first one of the next line.
void TitleBlock::nextCell(double height)
{
    rowHeight_ = std::max(rowHeight_, height);
    cursor_.rx() += columnWidth();
    if (cursor_.x() + columnWidth() * 0.5 < frame_.block.right())
        return;
    cursor_ = QPointF(frame_.block.left(), cursor_.y() + rowHeight_);
    rowHeight_ = 0;
}

void TitleBlock::addRows(const QVector<TitleRow> &rows)
{
    for (const TitleRow &row : rows)
        row.label.isEmpty() ? addSentence(row) : addRow(row);
}

void TitleBlock::addRow(const TitleRow &row)
{
    const double text = frame_.textPixels;
    const double label = std::max(text * kLabelShare, kSmallestText - 1);
    const double height = label * kLine + text * kLine + text * 0.2;
    if (!fits(height))
        return;
    const double room = columnWidth() - text * 0.4;
    painter_->setFont(font(label));
    painter_->setPen(QColor::fromRgba(kQuietInk));
    drawText(painter_, cursor_, row.label, Qt::AlignLeft | Qt::AlignTop);
    painter_->setFont(font(text, true));
    painter_->setPen(QColor::fromRgba(row.color ? row.color : kInk));
    const QString value = QFontMetricsF(painter_->font()).elidedText(row.value, Qt::ElideMiddle, room);
    drawText(painter_, cursor_ + QPointF(0, label * kLine), value, Qt::AlignLeft | Qt::AlignTop);
    nextCell(height);
}

void TitleBlock::addSentence(const TitleRow &row)
{
    if (cursor_.x() > frame_.block.left())
        cursor_ = QPointF(frame_.block.left(), cursor_.y() + std::exchange(rowHeight_, 0));
    const double text = frame_.textPixels;
    painter_->setFont(font(text, true));
    const QRectF room(cursor_, QSizeF(frame_.block.width(), 6 * text * kLine));
    const QRectF words = painter_->boundingRect(room, Qt::TextWordWrap, row.value);
    if (!fits(words.height()))
        return;
    painter_->setPen(QColor::fromRgba(row.color ? row.color : kInk));
    painter_->drawText(room, Qt::TextWordWrap, row.value);
    cursor_.ry() += words.height() + text * 0.3;
}

void TitleBlock::addScaleBar(double pixelsPerMm)
{
    const double text = frame_.textPixels;
    const double length = roundLength(columnWidth() * 0.6 / pixelsPerMm);
    const double width = length * pixelsPerMm;
    const double height = text * kLine + text * 0.9;
    if (!fits(height))
        return;
    const QPointF begin = cursor_ + QPointF(0, text * 0.6);
    painter_->setPen(QPen(QColor::fromRgba(kInk), 1));
    painter_->setBrush(QColor::fromRgba(kItemFill));
    painter_->drawRect(QRectF(begin, QSizeF(width, text * 0.3)));
    painter_->fillRect(QRectF(begin, QSizeF(width / 2, text * 0.3)), QColor::fromRgba(kInk));
    painter_->setFont(font(std::max(text * kLabelShare, kSmallestText - 1)));
    const QString scale = TitleText::tr("%1 mm, 1 px = %2 mm")
                              .arg(millimetres(length), QString::number(1 / pixelsPerMm, 'f', 2));
    drawText(painter_, begin + QPointF(0, text * 0.4), scale, Qt::AlignLeft | Qt::AlignTop);
    nextCell(height);
}

void TitleBlock::addLegend(bool overlaps, bool overhangs)
{
    if (overlaps)
        addSample(drawOverlapSample, TitleText::tr("overlap"));
    if (overhangs)
        addSample(drawOverhangSample, TitleText::tr("over the pallet"));
    addSample(drawLabelSample, TitleText::tr("label side"));
    addSample(drawArrowSample, TitleText::tr("approach, to scale"));
    addSample(drawGhostSample, TitleText::tr("layer below"));
}

void TitleBlock::addSample(Sample sample, const QString &text)
{
    const double size = std::max(frame_.textPixels * kLabelShare, kSmallestText - 1);
    const double height = size * 1.6;
    if (!fits(height))
        return;
    sample(painter_, QRectF(cursor_ + QPointF(1, size * 0.15), QSizeF(size * 1.8, size * 1.1)));
    painter_->setFont(font(size));
    painter_->setPen(QColor::fromRgba(kQuietInk));
    drawText(painter_, cursor_ + QPointF(size * 2.5, size * 0.1), text, Qt::AlignLeft | Qt::AlignTop);
    nextCell(height);
}

} // namespace palx
