#include "pattern/rules/iso_scene.h"

#include "pattern/plan_recipe.h"
#include "support/test_support.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using palx::Corners;
using palx::Course;
using palx::FaceSide;
using palx::IsoFace;
using palx::SolidKind;

namespace {

Corners box(double left, double top, double width, double height)
{
    return {QPointF(left, top), QPointF(left + width, top), QPointF(left + width, top + height),
            QPointF(left, top + height)};
}

int count(const QVector<IsoFace> &faces, FaceSide side)
{
    int number = 0;
    for (const IsoFace &face : faces)
        number += face.side == side ? 1 : 0;
    return number;
}

/// Cuts a rectangle into boxes again and again, now and then leaving one out: touching boxes of all
/// proportions.
void cut(const QRectF &rect, int depth, std::mt19937 &random, QVector<Corners> *boxes)
{
    const double share = 0.25 + 0.5 * (random() % 1000) / 1000.0;
    if (depth == 0 || std::max(rect.width(), rect.height()) < 60) {
        if (random() % 6 != 0)
            boxes->append(box(rect.left(), rect.top(), rect.width(), rect.height()));
    } else if (random() % 2) {
        const double at = std::round(rect.width() * share);
        cut(QRectF(rect.left(), rect.top(), at, rect.height()), depth - 1, random, boxes);
        cut(QRectF(rect.left() + at, rect.top(), rect.width() - at, rect.height()), depth - 1, random, boxes);
    } else {
        const double at = std::round(rect.height() * share);
        cut(QRectF(rect.left(), rect.top(), rect.width(), at), depth - 1, random, boxes);
        cut(QRectF(rect.left(), rect.top() + at, rect.width(), rect.height() - at), depth - 1, random, boxes);
    }
}

/// The part of a line on which a linear function stays below a limit.
struct Clip
{
    double enter = -1e9, leave = 1e9;
    int entered = 0, left = 0; ///< which limit it was, from 1
    /// Keeps where `at` + `slope` * t <= `limit`.
    void keep(double at, double slope, double limit, int which)
    {
        if (std::abs(slope) < 1e-12) {
            if (at > limit)
                leave = -1e9;
            return;
        }
        const double t = (limit - at) / slope;
        if (slope > 0 && t < leave) {
            leave = t;
            left = which;
        } else if (slope < 0 && t > enter) {
            enter = t;
            entered = which;
        }
    }
};

/// What one really sees at a point of the picture: the face of the nearest box on the line of sight as its
/// number (from 1, faces of a box in turn: top, edges), 0 for none, -1 when an edge is too near to tell.
int faceSeenAt(const QPointF &at, const QVector<Course> &courses, const palx::IsoProjection &view)
{
    constexpr double margin = 2.5;
    // The point of the floor below the picture's point; the line rises along t, towards the viewer.
    const QPointF zero = view.point(QPointF(), 0);
    const QPointF right = view.point(QPointF(1, 0), 0) - zero;
    const QPointF down = view.point(QPointF(0, 1), 0) - zero;
    const double area = right.x() * down.y() - right.y() * down.x();
    const QPointF off = at - zero;
    const QPointF floor((off.x() * down.y() - off.y() * down.x()) / area,
                        (right.x() * off.y() - right.y() * off.x()) / area);
    const QPointF viewer = view.towardsViewer();
    double best = -1e9;
    int seen = 0;
    int number = 0;
    for (const Course &course : courses) {
        for (const Corners &outline : course.outlines) {
            Clip clip;
            clip.keep(0, 1, course.topMm, 1);
            clip.keep(0, -1, -course.bottomMm, 6);
            double second = 1e9; // how clearly the line leaves through one face only
            for (int edge = 0; edge < 4; ++edge) {
                QPointF normal = palx::outwardsOf(outline, edge);
                normal /= std::hypot(normal.x(), normal.y());
                const double limit = QPointF::dotProduct(outline[edge], normal);
                clip.keep(QPointF::dotProduct(floor, normal), QPointF::dotProduct(viewer, normal), limit,
                          2 + edge);
            }
            for (int edge = 0; edge < 4; ++edge) {
                QPointF normal = palx::outwardsOf(outline, edge);
                normal /= std::hypot(normal.x(), normal.y());
                const double gone = QPointF::dotProduct(floor + viewer * clip.leave - outline[edge], normal);
                if (clip.left != 2 + edge)
                    second = std::min(second, std::abs(gone));
            }
            if (clip.left != 1)
                second = std::min(second, std::abs(course.topMm - clip.leave));
            second = std::min(second, std::abs(clip.leave - course.bottomMm));
            const bool near = clip.leave > clip.enter - margin;
            if (near &&
                (second < margin || clip.leave < clip.enter + margin || std::abs(clip.leave - best) < margin))
                seen = clip.leave > best - margin ? -1 : seen;
            else if (near && clip.leave > best)
                seen = 1 + number * 5 + clip.left - 1;
            if (near)
                best = std::max(best, clip.leave);
            ++number;
        }
    }
    return seen;
}

/// Which edge of its outline a wall stands on.
int edgeOf(const IsoFace &face, const Corners &outline, const palx::IsoProjection &view, double topMm)
{
    for (int edge = 0; edge < 4; ++edge) {
        const QPointF middle = view.point((outline[edge] + outline[(edge + 1) % 4]) / 2, topMm);
        const QPointF off = (face.corners[0] + face.corners[1]) / 2 - middle;
        if (std::hypot(off.x(), off.y()) < 1e-6)
            return edge;
    }
    ADD_FAILURE() << "a wall that stands on no edge";
    return 0;
}

/// Paints faces in the numbers of `faceSeenAt`.
QImage paintNumbers(const QVector<IsoFace> &faces, const QVector<Course> &courses,
                    const palx::IsoProjection &view, const QRectF &bounds)
{
    QVector<int> before{0};
    for (const Course &course : courses)
        before.append(before.last() + course.outlines.size());
    QImage image(bounds.size().toSize(), QImage::Format_RGB32);
    image.fill(QColor(0, 0, 0));
    QPainter painter(&image);
    painter.translate(-bounds.topLeft());
    painter.setPen(Qt::NoPen);
    for (const IsoFace &face : faces) {
        const Course &course = courses[face.course];
        const int box = before[face.course] + face.outline;
        const int part = face.side == FaceSide::Top
                             ? 0
                             : 1 + edgeOf(face, course.outlines[face.outline], view, course.topMm);
        painter.setBrush(QColor::fromRgb(QRgb(1 + box * 5 + part)));
        painter.drawPolygon(face.corners.data(), 4);
    }
    return image;
}

/// Boxes cut from rectangles in three levels, each level turned a little where `turnedBy` says so.
QVector<Course> cutStack(unsigned seed, int turnedBy)
{
    std::mt19937 random(seed);
    QVector<Course> courses;
    for (int level = 0; level < 3; ++level) {
        courses.append({SolidKind::Product, level * 120.0, level * 120.0 + 120, {}});
        cut(QRectF(0, 0, 500 - 60 * level, 700), 4, random, &courses.last().outlines);
        for (Corners &outline : courses.last().outlines) {
            for (QPointF &corner : outline)
                corner = palx::turned(corner, turnedBy * level);
        }
    }
    return courses;
}

} // namespace

TEST(IsoScene, OverlappingBoxesStillGetAnOrder)
{
    QVector<Corners> heap;
    for (int i = 0; i < 50; ++i)
        heap.append(box(i % 7 * 20, i % 5 * 30, 200, 90));
    QVector<int> order = palx::backToFront(heap);
    std::sort(order.begin(), order.end());
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(order[i], i);
}

TEST(IsoScene, HiddenFacesAreLeftOut)
{
    Course course{SolidKind::Product, 0, 100, {}};
    for (int i = 0; i < 100; ++i)
        course.outlines.append(box(i % 10 * 81, i / 10 * 121, 80, 120));
    const QVector<IsoFace> single = palx::visibleFaces({course}, 2);
    EXPECT_EQ(count(single, FaceSide::Top), 100);
    EXPECT_EQ(count(single, FaceSide::Left), 10);
    EXPECT_EQ(count(single, FaceSide::Right), 10);
    // With pixels smaller than the gaps of a millimetre one looks into them.
    EXPECT_EQ(palx::visibleFaces({course}, 0.5).size(), 300);

    Course upper = course;
    upper.bottomMm = 100;
    upper.topMm = 200;
    EXPECT_EQ(count(palx::visibleFaces({course, upper}, 2), FaceSide::Top), 100);
    upper.bottomMm = 150; // lifted off: the lower one can be seen below it
    EXPECT_EQ(count(palx::visibleFaces({course, upper}, 2), FaceSide::Top), 200);
}

TEST(IsoScene, PictureAgreesWithTheLinesOfSightAtAnyTurn)
{
    for (unsigned seed = 1; seed <= 6; ++seed) {
        const QVector<Course> courses = cutStack(seed, seed % 3 == 0 ? 17 : 0);
        const palx::IsoProjection view(seed <= 2 ? 0 : 23.0 * seed, QPointF(200, 300));
        const QRectF bounds = palx::isoBounds(courses, view).toAlignedRect();
        const QImage image = paintNumbers(palx::visibleFaces(courses, 0.5, view), courses, view, bounds);
        int compared = 0;
        int wrong = 0;
        for (int y = 2; y < image.height(); y += 11) {
            for (int x = 2; x < image.width(); x += 11) {
                const int seen = faceSeenAt(bounds.topLeft() + QPointF(x + 0.5, y + 0.5), courses, view);
                compared += seen >= 0 ? 1 : 0;
                wrong += seen >= 0 && seen != int(image.pixel(x, y) & 0xffffff) ? 1 : 0;
            }
        }
        EXPECT_GT(compared, 3000) << seed;
        EXPECT_EQ(wrong, 0) << "of " << compared << " points, seed " << seed;
    }
}

TEST(IsoScene, CoursesFollowThePlacedLayers)
{
    const orba::Node stack = planRecipe();
    const QVector<Course> courses = palx::stackCourses(stack, palx::readStackPlan(stack), 1000);
    QVector<double> bottoms;
    for (const Course &course : courses) {
        if (course.kind != SolidKind::Pallet)
            bottoms.append(course.bottomMm);
    }
    EXPECT_EQ(bottoms, (QVector<double>{0, 202, 205, 410, 610}));
    EXPECT_EQ(courses.first().bottomMm, -144);
    const auto few = palx::stackCourses(stack, palx::readStackPlan(stack), 2);
    EXPECT_EQ(few.last().topMm, 200) << "the limit must end the stack, not tear holes into it";
}

TEST(IsoScene, PiecesAreCountedAsTheyAreLaid)
{
    // Two products, a sheet, one turned product, two products; then a layer whose pattern is missing.
    const orba::Node stack = planRecipe();
    const QVector<Course> courses = palx::stackCourses(stack, palx::readStackPlan(stack), 1000);
    const palx::Piece pieces[] = {{0, 0}, {0, 1}, {1, -1}, {2, 0}, {4, 0}, {4, 1}};
    ASSERT_EQ(palx::pieceCount(courses), 6);
    for (int n = 0; n < 6; ++n) {
        EXPECT_EQ(palx::pieceAt(courses, n), pieces[n]) << n;
        EXPECT_EQ(palx::numberOf(courses, pieces[n]), n);
    }
    for (const int n : {-1, 6, 100})
        EXPECT_FALSE(palx::pieceAt(courses, n).isSet()) << n;
    for (const palx::Piece &none : {palx::Piece{0, 2}, palx::Piece{3, 0}, palx::Piece{9, 0}})
        EXPECT_EQ(palx::numberOf(courses, none), -1) << none.layer;
}

TEST(IsoScene, LayersAreSteppedThroughWhole)
{
    const orba::Node stack = planRecipe();
    const QVector<Course> courses = palx::stackCourses(stack, palx::readStackPlan(stack), 1000);
    const struct
    {
        int from, up, down;
    } cases[] = {{0, 2, 0}, {1, 2, 0}, {2, 3, 0}, {3, 4, 2}, {4, 6, 3}, {5, 6, 4}, {6, 6, 4}};
    for (const auto &c : cases) {
        EXPECT_EQ(palx::stepLayer(courses, c.from, true), c.up) << c.from;
        EXPECT_EQ(palx::stepLayer(courses, c.from, false), c.down) << c.from;
    }
}
