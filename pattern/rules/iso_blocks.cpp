#include "pattern/rules/iso_blocks.h"

#include "pattern/rules/iso_sorting.h"

#include <algorithm>

namespace palx {

namespace {

enum class Place {
    Apart,     ///< neither can hide anything of the other
    Before,    ///< the second is painted after the first
    Behind,    ///< the first is painted after the second
    Entangled, ///< no plane parts them
};

int byHeight(const IsoBlock &a, const IsoBlock &b)
{
    if (b.bottomMm > a.topMm - kContactMm)
        return 1;
    return a.bottomMm > b.topMm - kContactMm ? -1 : 0;
}

/// What lies above and behind, or below and before, neither hides nor is hidden.
Place placeOf(const IsoBlock &a, const IsoBlock &b, const QPointF &viewer)
{
    if (areBeside(a.outline, b.outline, viewer))
        return Place::Apart;
    const int height = byHeight(a, b);
    const int plan = nearer(a.outline, b.outline, viewer);
    if (height == 0 && plan == 0)
        return Place::Entangled;
    if (height * plan < 0)
        return Place::Apart;
    return height + plan > 0 ? Place::Before : Place::Behind;
}

/// The smallest upright block around all parts.
IsoBlock boundsOf(const IsoGroup &group)
{
    IsoBlock all = group.first().block;
    QRectF rect(all.outline[0], QSizeF(0, 0));
    for (const IsoPart &part : group) {
        all.bottomMm = std::min(all.bottomMm, part.block.bottomMm);
        all.topMm = std::max(all.topMm, part.block.topMm);
        for (const QPointF &corner : part.block.outline)
            rect.setCoords(std::min(rect.left(), corner.x()), std::min(rect.top(), corner.y()),
                           std::max(rect.right(), corner.x()), std::max(rect.bottom(), corner.y()));
    }
    if (group.size() > 1)
        all.outline = {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()};
    return all;
}

/// Before the first part that may hide something of it.
void putAmong(IsoGroup *group, const IsoPart &part, const QPointF &viewer)
{
    const auto at = std::find_if(group->begin(), group->end(), [&](const IsoPart &other) {
        return placeOf(part.block, other.block, viewer) == Place::Before;
    });
    group->insert(at, part);
}

/// Single blocks that nothing parts from a stack become parts of it.
QVector<IsoGroup> disentangled(const QVector<IsoGroup> &groups, const QPointF &viewer)
{
    QVector<IsoGroup> result;
    QVector<IsoBlock> stacks;
    for (const IsoGroup &group : groups) {
        if (group.size() < 2)
            continue;
        result.append(group);
        stacks.append(boundsOf(group));
    }
    for (const IsoGroup &single : groups) {
        if (single.size() != 1)
            continue;
        const auto inside = std::find_if(stacks.begin(), stacks.end(), [&](const IsoBlock &stack) {
            return placeOf(stack, single.first().block, viewer) == Place::Entangled;
        });
        if (inside == stacks.end())
            result.append(single);
        else
            putAmong(&result[static_cast<int>(inside - stacks.begin())], single.first(), viewer);
    }
    return result;
}

} // namespace

IsoPart blockPart(const IsoBlock &block, const IsoProjection &view, int look)
{
    Course course;
    course.bottomMm = block.bottomMm;
    course.topMm = block.topMm;
    course.outlines = {block.outline};
    return {block, facesOf(course, 0, view), look};
}

IsoGroup stackGroup(const QVector<Course> &courses, double gapMm, const IsoProjection &view)
{
    IsoGroup group;
    const IsoFace *last = nullptr;
    const QVector<IsoFace> faces = visibleFaces(courses, gapMm, view);
    for (const IsoFace &face : faces) {
        const Course &course = courses[face.course];
        if (!last || last->course != face.course || last->outline != face.outline)
            group.append({{course.outlines[face.outline], course.bottomMm, course.topMm}, {}, face.course});
        group.last().faces.append(face);
        last = &face;
    }
    return group;
}

IsoGroup arrangeGroups(const QVector<IsoGroup> &groups, const IsoProjection &view)
{
    const QPointF viewer = view.towardsViewer();
    const QVector<IsoGroup> all = disentangled(groups, viewer);
    QVector<IsoBlock> bounds;
    QVector<Corners> outlines;
    for (const IsoGroup &group : all) {
        bounds.append(boundsOf(group));
        outlines.append(bounds.last().outline);
    }
    QVector<QVector<int>> fronts(all.size());
    for (int a = 0; a < all.size(); ++a) {
        for (int b = a + 1; b < all.size(); ++b) {
            const Place place = placeOf(bounds[a], bounds[b], viewer);
            if (place == Place::Before || place == Place::Behind)
                fronts[place == Place::Before ? a : b].append(place == Place::Before ? b : a);
        }
    }
    IsoGroup parts;
    for (const int next : coveredFirst(fronts, byDistance(outlines, viewer)))
        parts += all[next];
    return parts;
}

} // namespace palx
