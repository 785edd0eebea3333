#include "pattern/rules/stack_courses.h"

#include <QHash>

#include <algorithm>

namespace palx {

namespace {

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

/// What a pattern puts into a layer; layers of one pattern share it.
struct PatternPart
{
    QVector<Corners> outlines;
    QVector<Flaw> flaws;
};

PatternPart patternPart(const QVector<PatternItem> &items, const QSizeF &pallet)
{
    const LayoutFindings findings = judgeLayout(items, pallet);
    PatternPart part;
    for (int i = 0; i < items.size(); ++i) {
        part.outlines.append(itemCorners(items[i]));
        part.flaws.append(findings.overlapping[i]       ? Flaw::Overlap
                          : findings.overhangs[i].any() ? Flaw::Overhang
                                                        : Flaw::None);
    }
    return part;
}

void fillSheet(const StackPlan &plan, Course *course)
{
    const QRectF rect = sheetRect(plan.sheet.plan(), plan.pallet.plan());
    course->kind = SolidKind::Sheet;
    course->outlines.append(cornersOf(rect));
    course->flaws.append(overhangOf(rect, plan.pallet.plan()).any() ? Flaw::Overhang : Flaw::None);
}

int piecesOf(const Course &course)
{
    return course.layer < 0 ? 0 : course.outlines.size();
}

} // namespace

QVector<Course> stackCourses(const orba::Node &stack, const StackPlan &plan, int maxProducts)
{
    QVector<Course> courses;
    QHash<QString, PatternPart> parts;
    addPallet(plan, &courses);
    int products = 0;
    for (int i = 0; i < plan.layers.size() && products < maxProducts; ++i) {
        const LayerPlan &layer = plan.layers[i];
        if (!layer.isPlaced())
            continue;
        Course course{SolidKind::Product, layer.bottomMm, layer.topMm(), {}, i, {}};
        if (layer.kind == LayerKind::Sheet) {
            fillSheet(plan, &course);
        } else {
            if (!parts.contains(layer.pattern))
                parts.insert(layer.pattern, patternPart(layerItems(stack, plan, i), plan.pallet.plan()));
            course.outlines = parts[layer.pattern].outlines;
            course.flaws = parts[layer.pattern].flaws;
            products += course.outlines.size();
        }
        courses.append(course);
    }
    return courses;
}

int pieceCount(const QVector<Course> &courses)
{
    int count = 0;
    for (const Course &course : courses)
        count += piecesOf(course);
    return count;
}

Piece pieceAt(const QVector<Course> &courses, int n)
{
    for (const Course &course : courses) {
        if (n >= 0 && n < piecesOf(course))
            return {course.layer, course.kind == SolidKind::Sheet ? -1 : n};
        n -= piecesOf(course);
    }
    return {};
}

int numberOf(const QVector<Course> &courses, const Piece &piece)
{
    int before = 0;
    for (const Course &course : courses) {
        const int item = course.kind == SolidKind::Sheet && piece.item == -1 ? 0 : piece.item;
        if (course.layer >= 0 && course.layer == piece.layer)
            return item >= 0 && item < piecesOf(course) ? before + item : -1;
        before += piecesOf(course);
    }
    return -1;
}

bool holdsPiece(const QVector<Course> &courses, const Piece &piece)
{
    return std::any_of(courses.begin(), courses.end(), [&piece](const Course &course) {
        return piece.isSet() && course.layer == piece.layer && piece.item < course.outlines.size();
    });
}

QVector<Course> firstPieces(const QVector<Course> &courses, int pieces)
{
    QVector<Course> placed;
    for (const Course &course : courses) {
        const int count = piecesOf(course);
        if (course.layer >= 0 && pieces <= 0)
            break;
        placed.append(course);
        if (pieces < count) {
            placed.last().outlines = course.outlines.mid(0, pieces);
            placed.last().flaws = course.flaws.mid(0, pieces);
        }
        pieces -= count;
    }
    return placed;
}

int stepLayer(const QVector<Course> &courses, int pieces, bool up)
{
    int below = 0; // the last end of a layer that lies below `pieces`
    int end = 0;
    for (const Course &course : courses) {
        end += piecesOf(course);
        if (end > pieces && up)
            return end;
        if (end < pieces)
            below = end;
    }
    return up ? end : below;
}

} // namespace palx
