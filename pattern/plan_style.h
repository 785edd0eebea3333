#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPolygonF>

/// Colours and pens of plans and pictures of recipes: grey, with red and amber only for what needs attention.
/// Lines and text are sized in pixels whatever the painter's scale, so a plan reads alike in a view, a
/// preview and a file.
namespace palx {
namespace plan_style {

// Grounds and lines
constexpr QRgb kPaper = 0xfff4f5f6;
constexpr QRgb kInk = 0xff20272e;
constexpr QRgb kQuietInk = 0xff5b6670;
constexpr QRgb kDimension = 0xff3d4852;
constexpr QRgb kPalletFill = 0xffd9d5cd;
constexpr QRgb kPalletBoard = 0xffcdc8be;
constexpr QRgb kPalletLine = 0xff7f7a70;
constexpr QRgb kSheetFill = 0xffe9ebee;
constexpr QRgb kItemFill = 0xfffbfcfc;
constexpr QRgb kItemTurnedFill =
    0xffe3e8ec; // turned items differ in brightness, which also shows without colour
constexpr QRgb kLabelSide = 0xff4a5763;
constexpr QRgb kGhost = 0xff8b96a1;
/// The one blue: what the operator has in hand.
constexpr QRgb kSelection = 0xff1c5fb0;
constexpr QRgb kSelectionFill = 0xffb3cbe6;
// States
constexpr QRgb kFault = 0xffc0211f;
constexpr QRgb kFaultFill = 0xfffbdcda;
constexpr QRgb kAttention = 0xffb26a00;
constexpr QRgb kAttentionFill = 0xfffdeccb;

/// A line of a width in pixels.
QPen pen(QRgb color, double pixels, Qt::PenStyle style = Qt::SolidLine);
/// Device pixels per millimetre of a painter that is set to millimetres.
double pixelsPerMm(const QPainter &painter);
QFont font(double pixels, bool bold = false);

/// Sets a painter to pixels with its origin at a point given in its present units, until the end of the
/// scope.
class PixelScope
{
public:
    PixelScope(QPainter *painter, const QPointF &origin);
    ~PixelScope() { painter_->restore(); }
    PixelScope(const PixelScope &) = delete;
    PixelScope &operator=(const PixelScope &) = delete;

private:
    QPainter *painter_;
};

/// Text around a point (pixels), with a rim in the colour of the paper where it crosses lines.
void drawText(QPainter *painter, const QPointF &at, const QString &text, Qt::Alignment alignment,
              bool rim = false);
/// A line with an arrow head at its end (pixels).
void drawArrow(QPainter *painter, const QPointF &from, const QPointF &to, double head, bool filled = true);

/// Fills a convex shape, given in the painter's units, with slanting lines (pixels); `cross` adds those of
/// the other slant.
void drawHatch(QPainter *painter, const QPolygonF &shape, QRgb color, bool cross);

/// Millimetres as operators read them: without needless decimals.
QString millimetres(double mm);

} // namespace plan_style
} // namespace palx
