#include "pattern/rules/iso_scene.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace palx {

namespace {

// Isometric projection: both ground axes fall at 30 degrees.
constexpr double kCos30 = 0.8660254037844386;
constexpr double kSin30 = 0.5;

/// One vertical face of a prism.
struct Wall
{
    QPointF begin, end;
    FaceSide side;
};

/// One prism of a course: what is visible of it whatever lies above.
struct Prism
{
    int outline = 0;
    QVector<Wall> walls;
};

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

double nearness(const QRectF &rect)
{
    return rect.center().x() + rect.center().y();
}

/// Whether `front` may cover `back` on the picture: it lies further along one axis and their views meet.
bool standsBefore(const QRectF &front, const QRectF &back)
{
    const bool beyondAcross = front.left() >= back.right() - kContactMm;
    const bool beyondAlong = front.top() >= back.bottom() - kContactMm;
    if (!beyondAcross && !beyondAlong)
        return false;
    // Boxes beside each other's line of sight do not hide anything of each other.
    return front.left() - front.bottom() < back.right() - back.top() &&
           back.left() - back.bottom() < front.right() - front.top();
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

/// A strip of the gap's width in front of a wall; the wall is hidden when neighbours fill the strip's far
/// edge.
QRectF stripBefore(const QRectF &box, FaceSide side, double gap)
{
    return side == FaceSide::Left ? QRectF(box.left(), box.bottom() + gap / 2, box.width(), gap / 2)
                                  : QRectF(box.right() + gap / 2, box.top(), gap / 2, box.height());
}

void addUprightWalls(const QRectF &box, const QVector<QRectF> &neighbours, double gap, Prism *prism)
{
    if (!isCovered(stripBefore(box, FaceSide::Left, gap), neighbours, 0))
        prism->walls.append({box.bottomLeft(), box.bottomRight(), FaceSide::Left});
    if (!isCovered(stripBefore(box, FaceSide::Right, gap), neighbours, 0))
        prism->walls.append({box.topRight(), box.bottomRight(), FaceSide::Right});
}

void addTurnedWalls(const Corners &outline, Prism *prism)
{
    for (int i = 0; i < 4; ++i) {
        const QPointF begin = outline[i];
        const QPointF end = outline[(i + 1) % 4];
        const QPointF outwards(end.y() - begin.y(), begin.x() - end.x()); // corners go round clockwise
        if (outwards.x() + outwards.y() > 0)
            prism->walls.append({begin, end, outwards.y() > outwards.x() ? FaceSide::Left : FaceSide::Right});
    }
}

QVector<Prism> arrange(const QVector<Corners> &outlines, double gap)
{
    // A box hides its own walls' strips from nobody: strips begin half a gap away and boxes grow by less.
    const QVector<QRectF> neighbours = uprightRects(outlines, gap * 0.49);
    QVector<Prism> prisms;
    for (const int index : backToFront(outlines)) {
        Prism prism;
        prism.outline = index;
        if (isUpright(outlines[index]))
            addUprightWalls(rectOf(outlines[index]), neighbours, gap, &prism);
        else
            addTurnedWalls(outlines[index], &prism);
        prisms.append(prism);
    }
    return prisms;
}

void addWall(const Course &course, const Wall &wall, QVector<IsoFace> *faces)
{
    faces->append({course.kind,
                   wall.side,
                   {isoPoint(wall.begin, course.topMm), isoPoint(wall.end, course.topMm),
                    isoPoint(wall.end, course.bottomMm), isoPoint(wall.begin, course.bottomMm)}});
}

void addTop(const Course &course, const Corners &outline, QVector<IsoFace> *faces)
{
    IsoFace face{course.kind, FaceSide::Top, {}};
    for (int i = 0; i < 4; ++i)
        face.corners[i] = isoPoint(outline[i], course.topMm);
    faces->append(face);
}

void addCourse(const Course &course, const QVector<QRectF> &above, double gap, QVector<IsoFace> *faces)
{
    for (const Prism &prism : arrange(course.outlines, gap)) {
        const Corners &outline = course.outlines[prism.outline];
        if (course.topMm > course.bottomMm) {
            for (const Wall &wall : prism.walls)
                addWall(course, wall, faces);
        }
        if (!isCovered(rectOf(outline), above, 0))
            addTop(course, outline, faces);
    }
}

Corners cornersOf(const QRectF &rect)
{
    return {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
}

/// Runners, blocks and deck, in the proportions of a usual pallet, so that it is told from a product at a
/// glance.
void addPallet(const StackPlan &plan, QVector<Course> *courses)
{
    const QSizeF size = plan.pallet.plan();
    const double height = plan.pallet.height;
    Course runners{SolidKind::Pallet, -height, -height * 0.85, {}};
    Course blocks{SolidKind::Pallet, -height * 0.85, -height * 0.2, {}};
    const double block = std::min(size.width(), size.height()) * 0.14;
    for (const double across : {0.0, 0.5, 1.0}) {
        const double left = (size.width() - block) * across;
        runners.outlines.append(cornersOf(QRectF(left, 0, block, size.height())));
        for (const double along : {0.0, 0.5, 1.0})
            blocks.outlines.append(cornersOf(QRectF(left, (size.height() - block) * along, block, block)));
    }
    *courses << runners << blocks
             << Course{SolidKind::Pallet, -height * 0.2, 0, {cornersOf(QRectF(QPointF(), size))}};
}

Course layerCourse(const orba::Node &stack, const StackPlan &plan, int layer)
{
    Course course;
    course.bottomMm = plan.layers[layer].bottomMm;
    course.topMm = plan.layers[layer].topMm();
    if (plan.layers[layer].kind == LayerKind::Sheet) {
        course.kind = SolidKind::Sheet;
        course.outlines.append(cornersOf(sheetRect(plan.sheet.plan(), plan.pallet.plan())));
        return course;
    }
    for (const PatternItem &item : layerItems(stack, plan, layer))
        course.outlines.append(itemCorners(item));
    return course;
}

} // namespace

QPointF isoPoint(const QPointF &plan, double heightMm)
{
    return QPointF((plan.x() - plan.y()) * kCos30, (plan.x() + plan.y()) * kSin30 - heightMm);
}

QVector<Course> stackCourses(const orba::Node &stack, const StackPlan &plan, int maxProducts)
{
    QVector<Course> courses;
    addPallet(plan, &courses);
    int products = 0;
    for (int i = 0; i < plan.layers.size() && products < maxProducts; ++i) {
        if (!plan.layers[i].isPlaced())
            continue;
        courses.append(layerCourse(stack, plan, i));
        products += courses.last().kind == SolidKind::Product ? courses.last().outlines.size() : 0;
    }
    return courses;
}

QVector<int> backToFront(const QVector<Corners> &outlines)
{
    const int count = outlines.size();
    QVector<QRectF> rects;
    for (const Corners &outline : outlines)
        rects.append(rectOf(outline));
    QVector<QVector<int>> fronts(count);
    QVector<int> waitsFor(count, 0);
    for (int back = 0; back < count; ++back) {
        for (int front = 0; front < count; ++front) {
            if (front == back || !standsBefore(rects[front], rects[back]) ||
                standsBefore(rects[back], rects[front]))
                continue;
            fronts[back].append(front);
            ++waitsFor[front];
        }
    }
    QVector<int> rest(count), order;
    std::iota(rest.begin(), rest.end(), 0);
    std::stable_sort(rest.begin(), rest.end(),
                     [&](int a, int b) { return nearness(rects[a]) < nearness(rects[b]); });
    while (!rest.isEmpty()) {
        // Overlapping boxes can wait for each other in a ring; the farthest of them then goes first.
        auto next = std::find_if(rest.begin(), rest.end(), [&](int i) { return waitsFor[i] <= 0; });
        const int taken =
            next == rest.end() ? rest.takeFirst() : rest.takeAt(static_cast<int>(next - rest.begin()));
        order.append(taken);
        for (const int front : qAsConst(fronts[taken]))
            --waitsFor[front];
    }
    return order;
}

QVector<IsoFace> visibleFaces(const QVector<Course> &courses, double gapMm)
{
    QVector<IsoFace> faces;
    for (int i = 0; i < courses.size(); ++i) {
        QVector<QRectF> above;
        if (i + 1 < courses.size() && std::abs(courses[i + 1].bottomMm - courses[i].topMm) < gapMm)
            above = uprightRects(courses[i + 1].outlines, gapMm / 2);
        addCourse(courses[i], above, gapMm, &faces);
    }
    return faces;
}

QRectF isoBounds(const QVector<Course> &courses)
{
    QRectF bounds;
    for (const Course &course : courses) {
        for (const Corners &outline : course.outlines) {
            for (const QPointF &corner : outline) {
                const QRectF edge(isoPoint(corner, course.topMm), isoPoint(corner, course.bottomMm));
                bounds |=
                    edge.normalized().adjusted(-1, -1, 1, 1); // a rectangle without area would not count
            }
        }
    }
    return bounds;
}

} // namespace palx
