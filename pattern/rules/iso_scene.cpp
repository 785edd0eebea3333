#include "pattern/rules/iso_scene.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace palx {

namespace {

// Isometric projection: both ground axes fall at 30 degrees.
constexpr double kCos30 = 0.8660254037844386;
constexpr double kSin30 = 0.5;
constexpr double kFacing = 1e-9; // a wall that looks this little to the viewer is seen edge on

/// One vertical face of a prism.
struct Wall
{
    QPointF begin, end;
    QPointF outwards; ///< on the plan
};

/// One prism of a course: what is visible of it whatever lies above.
struct Prism
{
    int outline = 0;
    QVector<Wall> walls;
};

double dot(const QPointF &a, const QPointF &b)
{
    return QPointF::dotProduct(a, b);
}

QRectF rectOf(const Corners &outline)
{
    double left = outline[0].x(), right = left, top = outline[0].y(), bottom = top;
    for (const QPointF &corner : outline) {
        left = std::min(left, corner.x());
        right = std::max(right, corner.x());
        top = std::min(top, corner.y());
        bottom = std::max(bottom, corner.y());
    }
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

bool isUpright(const Corners &outline)
{
    const QPointF side = outline[1] - outline[0];
    return std::min(std::abs(side.x()), std::abs(side.y())) < kContactMm;
}

/// Whether rectangles cover `rest` wholly, beginning with the `from`-th of them.
bool isCovered(const QRectF &rest, const QVector<QRectF> &covers, int from)
{
    if (rest.width() <= 0 || rest.height() <= 0)
        return true;
    while (from < covers.size() && !covers[from].intersects(rest))
        ++from;
    if (from == covers.size())
        return false;
    const QRectF cut = covers[from] & rest;
    return isCovered(QRectF(rest.topLeft(), QPointF(rest.right(), cut.top())), covers, from + 1) &&
           isCovered(QRectF(QPointF(rest.left(), cut.bottom()), rest.bottomRight()), covers, from + 1) &&
           isCovered(QRectF(QPointF(rest.left(), cut.top()), QPointF(cut.left(), cut.bottom())), covers,
                     from + 1) &&
           isCovered(QRectF(QPointF(cut.right(), cut.top()), QPointF(rest.right(), cut.bottom())), covers,
                     from + 1);
}

QVector<QRectF> uprightRects(const QVector<Corners> &outlines, double grow)
{
    QVector<QRectF> rects;
    for (const Corners &outline : outlines) {
        if (isUpright(outline))
            rects.append(rectOf(outline).adjusted(-grow, -grow, grow, grow));
    }
    return rects;
}

Corners cornersOf(const QRectF &rect)
{
    return {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
}

/// The strip of the gap's width in front of an edge, counted from the upper one clockwise, without its nearer
/// half; the wall is hidden when neighbours fill the strip.
QRectF stripBefore(const QRectF &box, int edge, double gap)
{
    switch (edge) {
    case 0:
        return QRectF(box.left(), box.top() - gap, box.width(), gap / 2);
    case 1:
        return QRectF(box.right() + gap / 2, box.top(), gap / 2, box.height());
    case 2:
        return QRectF(box.left(), box.bottom() + gap / 2, box.width(), gap / 2);
    default:
        return QRectF(box.left() - gap, box.top(), gap / 2, box.height());
    }
}

Wall wallAt(const Corners &outline, int edge)
{
    return {outline[edge], outline[(edge + 1) % 4], outwardsOf(outline, edge)};
}

QVector<Wall> facingWalls(const Corners &outline, const QPointF &viewer)
{
    QVector<Wall> walls;
    for (int edge = 0; edge < 4; ++edge) {
        const Wall wall = wallAt(outline, edge);
        if (dot(wall.outwards, viewer) > kFacing)
            walls.append(wall);
    }
    return walls;
}

/// The walls of an upright box that are seen beside its neighbours.
QVector<Wall> openWalls(const QRectF &box, const QVector<QRectF> &neighbours, double gap,
                        const QPointF &viewer)
{
    QVector<Wall> walls;
    for (int edge = 0; edge < 4; ++edge) {
        const Wall wall = wallAt(cornersOf(box), edge);
        if (dot(wall.outwards, viewer) > kFacing && !isCovered(stripBefore(box, edge, gap), neighbours, 0))
            walls.append(wall);
    }
    return walls;
}

/// What a course is arranged under.
struct Roof
{
    QVector<Corners> outlines; ///< of the course that lies on it; empty when none does
    double gap = 0;            ///< below it a gap this wide cannot be looked into either
};

/// Numbers of the boxes that have neighbours on all sides and others above: nothing of them is seen, also
/// where the gaps around them are a few pixels wide.
QVector<bool> enclosed(const QVector<Corners> &outlines, const Roof &roof)
{
    QVector<bool> hidden(outlines.size(), false);
    if (roof.outlines.isEmpty())
        return hidden;
    const QVector<QRectF> neighbours = uprightRects(outlines, roof.gap * 0.49);
    const QVector<QRectF> above = uprightRects(roof.outlines, roof.gap / 2);
    for (int i = 0; i < outlines.size(); ++i) {
        const QRectF box = rectOf(outlines[i]);
        bool shut = isUpright(outlines[i]) && isCovered(box, above, 0);
        for (int edge = 0; edge < 4 && shut; ++edge)
            shut = isCovered(stripBefore(box, edge, roof.gap), neighbours, 0);
        hidden[i] = shut;
    }
    return hidden;
}

QVector<Prism> arrange(const QVector<Corners> &outlines, const Roof &roof, double gap,
                       const IsoProjection &view)
{
    // A box hides its own walls' strips from nobody: strips begin half a gap away and boxes grow by less.
    const QVector<QRectF> neighbours = uprightRects(outlines, gap * 0.49);
    const QVector<bool> hidden = enclosed(outlines, roof);
    const QPointF viewer = view.towardsViewer();
    QVector<Prism> prisms;
    for (const int index : backToFront(outlines, view)) {
        const Corners &outline = outlines[index];
        if (hidden[index])
            prisms.append(Prism{index, {}});
        else if (isUpright(outline))
            prisms.append({index, openWalls(rectOf(outline), neighbours, gap, viewer)});
        else
            prisms.append({index, facingWalls(outline, viewer)});
    }
    return prisms;
}

IsoFace wallFace(const Course &course, const Wall &wall, const IsoProjection &view)
{
    const QPointF seen = view.turnedVector(wall.outwards);
    const double length = std::hypot(seen.x(), seen.y());
    IsoFace face;
    face.kind = course.kind;
    face.side = seen.y() > seen.x() ? FaceSide::Left : FaceSide::Right;
    face.light = std::clamp((1 + (seen.y() - seen.x()) / length) / 2, 0.0, 1.0);
    face.corners = {view.point(wall.begin, course.topMm), view.point(wall.end, course.topMm),
                    view.point(wall.end, course.bottomMm), view.point(wall.begin, course.bottomMm)};
    return face;
}

IsoFace topFace(const Course &course, const Corners &outline, const IsoProjection &view)
{
    IsoFace face;
    face.kind = course.kind;
    for (int i = 0; i < 4; ++i)
        face.corners[i] = view.point(outline[i], course.topMm);
    return face;
}

/// What the courses of one picture share: layers of one pattern under another are arranged alike.
class Arranger
{
public:
    Arranger(double gap, const IsoProjection &view) : gap_(gap), view_(view) {}

    const QVector<Prism> &prisms(const QVector<Corners> &outlines, const Roof &roof)
    {
        for (const Known &known : known_) {
            if (known.outlines == outlines && known.roof.outlines == roof.outlines &&
                known.roof.gap == roof.gap)
                return known.prisms;
        }
        known_.append({outlines, roof, arrange(outlines, roof, gap_, view_)});
        return known_.last().prisms;
    }

private:
    struct Known
    {
        QVector<Corners> outlines;
        Roof roof;
        QVector<Prism> prisms;
    };
    double gap_;
    IsoProjection view_;
    QList<Known> known_; // a list, so that what was handed out stays
};

/// How wide a gap between boxes below another course may be until one looks into it: not as deep as the other
/// course is high, and in any case narrow on the picture.
Roof roofOver(const QVector<Course> &courses, int index, double gap)
{
    constexpr double kFewPixels = 4;
    if (index + 1 >= courses.size() || std::abs(courses[index + 1].bottomMm - courses[index].topMm) >= gap)
        return {};
    const Course &next = courses[index + 1];
    return {next.outlines, std::max(gap, std::min((next.topMm - next.bottomMm) / 2, gap * kFewPixels))};
}

void addPrism(const Course &course, const Prism &prism, bool coveredTop, const IsoProjection &view,
              int number, QVector<IsoFace> *faces)
{
    const int begin = faces->size();
    if (course.topMm > course.bottomMm) {
        for (const Wall &wall : prism.walls)
            faces->append(wallFace(course, wall, view));
    }
    if (!coveredTop)
        faces->append(topFace(course, course.outlines[prism.outline], view));
    for (int i = begin; i < faces->size(); ++i) {
        (*faces)[i].course = number;
        (*faces)[i].outline = prism.outline;
    }
}

} // namespace

IsoProjection::IsoProjection(double turnDeg, const QPointF &centre)
    : cos_(std::cos(qDegreesToRadians(turnDeg))), sin_(std::sin(qDegreesToRadians(turnDeg))), centre_(centre)
{
}

QPointF IsoProjection::turnedVector(const QPointF &plan) const
{
    return QPointF(plan.x() * cos_ - plan.y() * sin_, plan.x() * sin_ + plan.y() * cos_);
}

QPointF IsoProjection::point(const QPointF &plan, double heightMm) const
{
    const QPointF at = turnedVector(plan - centre_);
    return QPointF((at.x() - at.y()) * kCos30, (at.x() + at.y()) * kSin30 - heightMm);
}

QPointF IsoProjection::towardsViewer() const
{
    return QPointF(cos_ + sin_, cos_ - sin_); // (1, 1) turned back
}

QVector<IsoFace> visibleFaces(const QVector<Course> &courses, double gapMm, const IsoProjection &view)
{
    QVector<IsoFace> faces;
    Arranger arranger(gapMm, view);
    for (int i = 0; i < courses.size(); ++i) {
        const Roof roof = roofOver(courses, i, gapMm);
        const bool underOpenSky = roofOver(courses, i + 1, gapMm).outlines.isEmpty();
        const QVector<QRectF> above = uprightRects(roof.outlines, (underOpenSky ? gapMm : roof.gap) / 2);
        for (const Prism &prism : arranger.prisms(courses[i].outlines, roof)) {
            const bool covered = isCovered(rectOf(courses[i].outlines[prism.outline]), above, 0);
            addPrism(courses[i], prism, covered, view, i, &faces);
        }
    }
    return faces;
}

QVector<IsoFace> facesOf(const Course &course, int outline, const IsoProjection &view)
{
    QVector<IsoFace> faces;
    const Prism prism{outline, facingWalls(course.outlines[outline], view.towardsViewer())};
    addPrism(course, prism, false, view, 0, &faces);
    return faces;
}

QRectF isoBounds(const QVector<Course> &courses, const IsoProjection &view)
{
    QRectF bounds;
    for (const Course &course : courses) {
        for (const Corners &outline : course.outlines) {
            for (const QPointF &corner : outline) {
                const QRectF edge(view.point(corner, course.topMm), view.point(corner, course.bottomMm));
                bounds |=
                    edge.normalized().adjusted(-1, -1, 1, 1); // a rectangle without area would not count
            }
        }
    }
    return bounds;
}

QRectF turningBounds(const QVector<Course> &courses, const QPointF &centre)
{
    double radius = 1;
    double top = 1;
    double bottom = 0;
    for (const Course &course : courses) {
        top = std::max(top, course.topMm);
        bottom = std::min(bottom, course.bottomMm);
        for (const Corners &outline : course.outlines) {
            for (const QPointF &corner : outline)
                radius = std::max(radius, std::hypot(corner.x() - centre.x(), corner.y() - centre.y()));
        }
    }
    const double across = radius * M_SQRT2 * kCos30;
    const double down = radius * M_SQRT2 * kSin30;
    return QRectF(QPointF(-across, -down - top), QPointF(across, down - bottom));
}

} // namespace palx
