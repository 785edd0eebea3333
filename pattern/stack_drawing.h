#pragma once

#include "orba/node.h"
#include "pattern/rules/iso_scene.h"

class QPainter;

namespace palx {

/// A stack drawn as one sees it from above a corner, at any turn and with any number of pieces laid: shaded
/// walls, separator sheets, and in colour what overlaps or reaches over the pallet. Painted by a QPainter alone.
///
/// Lengths are the picture's millimetres (`IsoProjection`), with the stack's axis in the origin. Keeps plain
/// values of the recipe it was given and follows nothing.
class PALX_API StackDrawing
{
public:
    void setStack(const orba::Node &stack);
    /// Clockwise as seen from above.
    void setTurn(double degrees);
    double turn() const { return turn_; }
    /// How many pieces lie there, from 0; at first all.
    void setPieces(int pieces);
    int pieces() const { return pieces_; }
    /// The piece that is marked, wherever it lies; with item -1 the whole layer; none unmarks.
    void setMarked(const Piece &piece) { marked_ = piece; }

    /// All courses, laid or not.
    const QVector<Course> &courses() const { return courses_; }
    /// Around the whole stack at the present turn, and at any turn.
    QRectF bounds() const;
    QRectF turningBounds() const;

    /// The painter is set to the picture's millimetres; `scale` is its pixels per millimetre.
    void paint(QPainter *painter, double scale);
    /// What is seen at a place of the picture as it was painted last; none beside the stack.
    Piece pieceAt(const QPointF &at) const;

private:
    IsoProjection view() const { return IsoProjection(turn_, centre_); }
    void makeFaces(double gapMm);
    void paintMark(QPainter *painter) const;
    bool isMarked(const IsoFace &face) const;

    QVector<Course> courses_; ///< of the whole recipe
    QVector<Course> placed_;
    QVector<IsoFace> faces_;
    QPointF centre_;
    double shortestMm_ = 1; ///< shortest side of a product
    double turn_ = 0;
    int pieces_ = 0;
    Piece marked_;
    double gap_ = 0;
    bool stale_ = true;
};

} // namespace palx
