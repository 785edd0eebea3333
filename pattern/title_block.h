#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QVector>

class QPainter;

/// The block of figures beside a drawing. Everything here is in pixels.
namespace palx {

/// One entry of a title block. An entry without a label is a sentence (a finding) and may take several lines.
struct TitleRow
{
    QString label;
    QString value;
    QRgb color = 0; ///< 0: ink
};

/// Where drawing and title block go on a picture: side by side when it is wide, one above the other when it
/// is high. A picture too small for both has no block (a null rectangle).
struct PictureFrame
{
    QRectF drawing;
    QRectF block;
    double textPixels = 16;
};
PictureFrame frameFor(const QSizeF &pixels);

/// Draws a title block from its top down. What does not fit any more is left out, so the chief entries come
/// first.
class TitleBlock
{
public:
    TitleBlock(QPainter *painter, const PictureFrame &frame);

    /// Entries one below the other, or side by side in a flat block. Values that are too long lose their
    /// middle.
    void addRows(const QVector<TitleRow> &rows);
    /// A bar of a round length.
    void addScaleBar(double pixelsPerMm);
    /// What the marks of a plan mean.
    void addLegend(bool overlaps, bool overhangs);

private:
    using Sample = void (*)(QPainter *painter, const QRectF &box);

    bool fits(double height) const;
    double columnWidth() const;
    void nextCell(double height);
    void addRow(const TitleRow &row);
    void addSentence(const TitleRow &row);
    void addSample(Sample sample, const QString &text);

    QPainter *painter_;
    PictureFrame frame_;
    QPointF cursor_;
    int columns_ = 1;
    double rowHeight_ = 0;
};

} // namespace palx
