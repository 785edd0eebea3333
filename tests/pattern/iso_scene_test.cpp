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

/// What one really sees at a point of the picture: the side of the nearest box on the line of sight, 0 for
/// none, -1 when an edge is too near to tell.
int sideSeenAt(const QPointF &at, const QVector<Course> &courses)
{
    constexpr double margin = 1.5;
    const double across = at.x() / std::sqrt(3.0);
    double best = -1e9;
    int seen = 0;
    for (const Course &course : courses) {
        for (const Corners &outline : course.outlines) {
            // On the line of sight x = z + at.y + across and y = z + at.y - across.
            const double limits[3] = {course.topMm, outline[2].x() - at.y() - across,
                                      outline[2].y() - at.y() + across};
            const double enter = std::max(
                {course.bottomMm, outline[0].x() - at.y() - across, outline[0].y() - at.y() + across});
            const int nearest = static_cast<int>(std::min_element(limits, limits + 3) - limits);
            if (limits[nearest] < enter - margin)
                continue;
            const bool doubtful = std::abs(limits[nearest] - best) < margin ||
                                  limits[nearest] < enter + margin ||
                                  std::abs(limits[(nearest + 1) % 3] - limits[nearest]) < margin ||
                                  std::abs(limits[(nearest + 2) % 3] - limits[nearest]) < margin;
            if (limits[nearest] > best - margin)
                seen = doubtful ? -1 : limits[nearest] > best ? nearest + 1 : seen;
            best = std::max(best, limits[nearest]);
        }
    }
    return seen;
}

/// Paints faces as 1 (top), 2 (right), 3 (left): the codes of `sideSeenAt`.
QImage paintCodes(const QVector<IsoFace> &faces, const QRectF &bounds)
{
    QImage image(bounds.size().toSize(), QImage::Format_RGB32);
    image.fill(QColor(0, 0, 0));
    QPainter painter(&image);
    painter.translate(-bounds.topLeft());
    painter.setPen(Qt::NoPen);
    for (const IsoFace &face : faces) {
        painter.setBrush(QColor(face.side == FaceSide::Top ? 1 : face.side == FaceSide::Right ? 2 : 3, 0, 0));
        painter.drawPolygon(face.corners.data(), 4);
    }
    return image;
}

} // namespace

TEST(IsoScene, FarBoxesComeBeforeThoseInFrontOfThem)
{
    // A long box in the back row and a short one before its near end: by their middles the order would be
    // wrong.
    const QVector<Corners> rows{box(0, 0, 1000, 100), box(0, 100, 100, 100)};
    EXPECT_EQ(palx::backToFront(rows), (QVector<int>{0, 1}));
    const QVector<Corners> swapped{rows[1], rows[0]};
    EXPECT_EQ(palx::backToFront(swapped), (QVector<int>{1, 0}));
    const QVector<Corners> pinwheel{box(0, 0, 300, 400), box(300, 0, 400, 300), box(400, 300, 300, 400),
                                    box(0, 400, 400, 300)};
    const QVector<int> order = palx::backToFront(pinwheel);
    EXPECT_EQ(order.first(), 0);
    EXPECT_EQ(order.last(), 2);
}

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

TEST(IsoScene, PictureAgreesWithTheLinesOfSight)
{
    for (unsigned seed = 1; seed <= 12; ++seed) {
        std::mt19937 random(seed);
        QVector<Course> courses;
        for (int level = 0; level < 3; ++level) {
            courses.append({SolidKind::Product, level * 120.0, level * 120.0 + 120, {}});
            cut(QRectF(0, 0, 500 - 60 * level, 700), 4, random, &courses.last().outlines);
        }
        const QRectF bounds = palx::isoBounds(courses).toAlignedRect();
        const QImage image = paintCodes(palx::visibleFaces(courses, 0.5), bounds);
        int compared = 0;
        int wrong = 0;
        for (int y = 2; y < image.height(); y += 5) {
            for (int x = 2; x < image.width(); x += 5) {
                const int seen = sideSeenAt(bounds.topLeft() + QPointF(x + 0.5, y + 0.5), courses);
                compared += seen >= 0 ? 1 : 0;
                wrong += seen >= 0 && seen != qRed(image.pixel(x, y)) ? 1 : 0;
            }
        }
        EXPECT_GT(compared, 10000) << seed;
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

TEST(IsoScene, TurnedBoxesShowTheirNearSides)
{
    Course course{SolidKind::Product, 0, 100, {palx::itemCorners(planItem(0, 0, 100, 100, 45))}};
    const QVector<IsoFace> faces = palx::visibleFaces({course}, 1);
    EXPECT_EQ(count(faces, FaceSide::Top), 1);
    EXPECT_GE(faces.size(), 2);
    for (const IsoFace &face : faces) {
        if (face.side != FaceSide::Top) {
            EXPECT_GE(face.corners[0].y() + face.corners[1].y(), -200 - 1e-9) << "a far side was drawn";
        }
    }
}
