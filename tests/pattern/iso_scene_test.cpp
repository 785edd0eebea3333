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

/// The number (from 1) of the box that the line of sight through a point of the picture meets first, 0 for none.
int boxSeenAt(const QPointF &at, const QVector<Course> &courses, const palx::IsoProjection &view)
{
    // The point of the floor below the picture's point; the line rises from there, towards the viewer.
    const QPointF zero = view.point(QPointF(), 0);
    const QPointF right = view.point(QPointF(1, 0), 0) - zero;
    const QPointF down = view.point(QPointF(0, 1), 0) - zero;
    const double area = right.x() * down.y() - right.y() * down.x();
    const QPointF off = at - zero;
    const QPointF floor((off.x() * down.y() - off.y() * down.x()) / area,
                        (right.x() * off.y() - right.y() * off.x()) / area);
    double highest = -1e9;
    int seen = 0;
    int number = 0;
    for (const Course &course : courses) {
        for (const Corners &outline : course.outlines) {
            ++number;
            double enter = course.bottomMm;
            double leave = course.topMm;
            for (int edge = 0; edge < 4; ++edge) {
                const QPointF outwards = palx::outwardsOf(outline, edge);
                const double rise = QPointF::dotProduct(view.towardsViewer(), outwards);
                const double height = QPointF::dotProduct(outline[edge] - floor, outwards) / rise;
                rise > 0 ? leave = std::min(leave, height) : enter = std::max(enter, height);
            }
            if (leave > enter && leave > highest) {
                highest = leave;
                seen = number;
            }
        }
    }
    return seen;
}

/// The same, -1 when an edge is too near to tell.
int boxClearlySeenAt(const QPointF &at, const QVector<Course> &courses, const palx::IsoProjection &view)
{
    const int seen = boxSeenAt(at, courses, view);
    for (const QPointF &aside : {QPointF(3, 0), QPointF(-3, 0), QPointF(0, 3), QPointF(0, -3)}) {
        if (boxSeenAt(at + aside, courses, view) != seen)
            return -1;
    }
    return seen;
}

/// Paints faces in the numbers of their boxes.
QImage paintNumbers(const QVector<IsoFace> &faces, const QVector<Course> &courses, const QRectF &bounds)
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
        painter.setBrush(QColor::fromRgb(QRgb(1 + before[face.course] + face.outline)));
        painter.drawPolygon(face.corners.data(), 4);
    }
    return image;
}

/// Three levels of rows of touching boxes of all proportions, now and then with one left out; each level turned a
/// little more where `turnedBy` says so.
QVector<Course> someStack(unsigned seed, int turnedBy)
{
    std::mt19937 random(seed);
    QVector<Course> courses;
    for (int level = 0; level < 3; ++level) {
        courses.append({SolidKind::Product, level * 120.0, level * 120.0 + 120, {}});
        QVector<Corners> &outlines = courses.last().outlines;
        for (int y = 0, depth = 0; y < 650; y += depth) {
            depth = 50 + int(random() % 200);
            for (int x = 0, width = 0; x < 450 - 60 * level; x += width) {
                width = 30 + int(random() % 250);
                if (random() % 6 != 0)
                    outlines.append(box(x, y, width, depth));
            }
        }
        for (Corners &outline : outlines) {
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
        const QVector<Course> courses = someStack(seed, seed % 3 == 0 ? 17 : 0);
        const palx::IsoProjection view(seed <= 2 ? 0 : 23.0 * seed, QPointF(200, 300));
        const QRectF bounds = palx::isoBounds(courses, view).toAlignedRect();
        const QImage image = paintNumbers(palx::visibleFaces(courses, 0.5, view), courses, bounds);
        int compared = 0;
        int wrong = 0;
        for (int y = 2; y < image.height(); y += 11) {
            for (int x = 2; x < image.width(); x += 11) {
                const int seen =
                    boxClearlySeenAt(bounds.topLeft() + QPointF(x + 0.5, y + 0.5), courses, view);
                compared += seen >= 0 ? 1 : 0;
                wrong += seen >= 0 && seen != int(image.pixel(x, y) & 0xffffff) ? 1 : 0;
            }
        }
        EXPECT_GT(compared, 3000) << seed;
        EXPECT_EQ(wrong, 0) << "of " << compared << " points, seed " << seed;
    }
}

TEST(IsoScene, TurningKeepsTheStackInItsBounds)
{
    const QVector<Course> courses = someStack(5, 0);
    const QPointF centre(250, 350);
    const QRectF round = palx::turningBounds(courses, centre).adjusted(-1, -1, 1, 1);
    for (int turn = 0; turn < 360; turn += 30)
        EXPECT_TRUE(round.contains(palx::isoBounds(courses, palx::IsoProjection(turn, centre)))) << turn;
}

TEST(IsoScene, CoursesFollowThePlacedLayers)
{
    const orba::Node stack = planRecipe();
    const QVector<Course> courses = palx::stackCourses(stack, palx::readStackPlan(stack), 1000);
    QVector<double> bottoms;
    Corners sheet; // lies in the middle of the pallet
    for (const Course &course : courses) {
        if (course.kind != SolidKind::Pallet)
            bottoms.append(course.bottomMm);
        if (course.kind == SolidKind::Sheet)
            sheet = course.outlines[0];
    }
    EXPECT_EQ(bottoms, (QVector<double>{0, 202, 205, 410, 610}));
    EXPECT_EQ(courses.first().bottomMm, -144);
    EXPECT_EQ(sheet[0], QPointF(10, 10));
    EXPECT_EQ(sheet[2], QPointF(790, 1190));
    const auto few = palx::stackCourses(stack, palx::readStackPlan(stack), 2);
    EXPECT_EQ(few.last().topMm, 200) << "the limit must end the stack, not tear holes into it";
}
