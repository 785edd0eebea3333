#include "panel/cell_drawing.h"

#include "controller/arm.h"
#include "ix/xtheme.h"
#include "pattern/iso_paint.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace panel {

using palx::Corners;
using palx::Course;
using palx::IsoBlock;
using palx::IsoGroup;
using palx::IsoPart;
using palx::SolidKind;

namespace {

constexpr double kSameHeight = 5;    // [mm] products of one layer may rest at slightly different heights
constexpr double kColumnEdge = 500;  // [mm] of the lift column and the robot's foot
constexpr double kFoot = 400;        // [mm] above the robot's base
constexpr double kArmTop = 1850;     // [mm] where the arm mostly is
constexpr double kBeltLength = 1600; // [mm]
constexpr double kBeltHeight = 120;  // [mm]
constexpr double kBeaconEdge = 90;   // [mm]
constexpr double kMast = 700;        // [mm] below the lamps
constexpr double kLinkEdge = 140;    // [mm] of the robot's arm
constexpr int kLinkParts = 16;       // blocks that a link of the arm is drawn with

/// How blocks are coloured; parts of stacks carry the place of their course, all others one of these.
enum Look {
    kProduct = -1,
    kBelt = -2,
    kColumnLook = -3,
    kArm = -4,
    kTool = -5,
    kCarried = -6,
    kMastLook = -7,
    kLamp = -8
};

struct Colours
{
    QRgb top, line;
};

/// Lamps: red, yellow, green; off, then on.
constexpr QRgb kLamps[3][2] = {{0xff8c6a68, 0xffe02020}, {0xff8f8468, 0xfff0b000}, {0xff687f6d, 0xff20b040}};

Colours coloursOf(int look)
{
    switch (look) {
    case kBelt:
        return {0xffa4abb2, 0xff4d565e};
    case kColumnLook:
        return {0xff8a939b, 0xff3d464e};
    case kArm:
        return {0xffc8ced3, 0xff565f67};
    case kTool:
        return {0xff7d868e, 0xff3d464e};
    case kCarried:
        return {0xffb3cbe6, 0xff1c5fb0};
    case kMastLook:
        return {0xff9aa1a8, 0xff565f67};
    default:
        break;
    }
    if (look <= kLamp) {
        const int lamp = kLamp - look;
        return {kLamps[lamp / 2][lamp % 2], 0xff3d464e};
    }
    return {palx::kProductTop, palx::kProductLine};
}

/// On the plan the robot looks up: x of the cell is up, y to the left.
QPointF onPlan(double x, double y)
{
    return QPointF(-y, -x);
}

Corners outlineOf(const CellBlock &block)
{
    const double turn = block.turn * 3.141592653589793 / 180;
    const auto corner = [&](double along, double across) {
        const double l = along * block.length / 2;
        const double w = across * block.width / 2;
        return onPlan(block.x + l * std::cos(turn) - w * std::sin(turn),
                      block.y + l * std::sin(turn) + w * std::cos(turn));
    };
    return {corner(1, 1), corner(1, -1), corner(-1, -1), corner(-1, 1)};
}

IsoBlock isoBlock(const CellBlock &block)
{
    return {outlineOf(block), block.bottom(), block.top()};
}

CellBlock cube(double x, double y, double bottom, double edge, double height)
{
    return {x, y, bottom + height / 2, 0, edge, edge, height};
}

/// The conveyor comes from the side that is farther from the robot.
CellBlock upTheBelt(CellBlock block, double mm)
{
    const double turn = block.turn * 3.141592653589793 / 180;
    const double way = block.x * std::cos(turn) + block.y * std::sin(turn) < 0 ? -mm : mm;
    block.x += way * std::cos(turn);
    block.y += way * std::sin(turn);
    return block;
}

/// The belt under the product at the stop.
CellBlock beltAt(const CellBlock &stop)
{
    CellBlock belt = upTheBelt(stop, (kBeltLength - stop.length) / 2);
    belt.length = kBeltLength;
    belt.width = stop.width + 80;
    belt.z = stop.bottom() - kBeltHeight / 2;
    belt.height = kBeltHeight;
    return belt;
}

/// Consecutive blocks at one height are one course.
void addCourses(const QVector<CellBlock> &blocks, SolidKind kind, QVector<Course> *courses)
{
    for (const CellBlock &block : blocks) {
        Course *last = courses->isEmpty() ? nullptr : &courses->last();
        if (!last || last->kind != kind || std::abs(last->bottomMm - block.bottom()) > kSameHeight ||
            std::abs(last->topMm - block.top()) > kSameHeight) {
            courses->append(Course{kind, block.bottom(), block.top(), {}, courses->size(), {}});
            last = &courses->last();
        }
        last->outlines.append(outlineOf(block));
    }
}

QVector<Course> coursesOf(const CellPallet &pallet)
{
    QVector<Course> courses;
    if (!pallet.pallet.isThere())
        return courses;
    addCourses({pallet.pallet}, SolidKind::Pallet, &courses);
    addCourses(pallet.boxes, SolidKind::Product, &courses);
    addCourses(pallet.sheets, SolidKind::Sheet, &courses);
    std::stable_sort(courses.begin(), courses.end(),
                     [](const Course &a, const Course &b) { return a.bottomMm < b.bottomMm; });
    return courses;
}

/// Foot, shoulder, elbow, wrist and flange of the robot [mm in the cell].
QVector<controller::Vector> armKnees(const controller::Joints &joints, double column)
{
    using controller::Vector;
    using namespace controller::arm;
    controller::Pose pose = controller::Pose::Identity();
    QVector<Vector> knees{Vector(0, 0, column + kFoot)};
    const auto link = [&](double angle, const Vector &axis, const Vector &step) {
        pose.rotate(Eigen::AngleAxisd(angle, axis)).translate(step);
        knees.append(pose.translation() * 1000 + Vector(0, 0, column));
    };
    link(joints[0], Vector::UnitZ(), Vector(kShoulderAhead, 0, kShoulderHeight));
    link(joints[1], Vector::UnitY(), Vector(0, 0, kUpperArm));
    link(joints[2], Vector::UnitY(), Vector(kForearm, 0, 0));
    pose.rotate(Eigen::AngleAxisd(joints[3], Vector::UnitX()));
    link(joints[4], Vector::UnitY(), Vector(kFlange, 0, 0));
    return knees;
}

Colours coloursOf(const Course &course)
{
    switch (course.kind) {
    case SolidKind::Pallet:
        return {palx::kPalletTop, palx::kPalletLine};
    case SolidKind::Sheet:
        return {palx::kSheetTop, palx::kSheetLine};
    case SolidKind::Product:
        break;
    }
    return {palx::kProductTop, palx::kProductLine};
}

} // namespace

// ---------------------------------------------------------------- what is drawn

void CellDrawing::setScene(const CellScene &scene)
{
    for (std::size_t side = 0; side < 2; ++side) {
        const bool isOther = !(scene.pallets[side] == scene_.pallets[side]);
        scene_.pallets[side] = scene.pallets[side];
        if (isOther)
            readStack(side);
    }
    scene_ = scene;
    rememberBelt();
    widenBounds();
}

void CellDrawing::readStack(std::size_t side)
{
    stacks_[side].courses = coursesOf(scene_.pallets[side]);
    stacks_[side].isStale = true;
}

void CellDrawing::setTurn(double degrees)
{
    turn_ = degrees;
    for (Stack &stack : stacks_)
        stack.isStale = true;
}

void CellDrawing::rememberBelt()
{
    if (scene_.waiting.isThere())
        stop_ = scene_.waiting;
}

double CellDrawing::floor() const
{
    double lowest = 0;
    for (const CellPallet &pallet : scene_.pallets)
        if (pallet.pallet.isThere())
            lowest = std::min(lowest, pallet.pallet.bottom());
    return lowest;
}

/// What stands in the cell only becomes more, so that the picture does not jump; the moving arm has its reach above.
void CellDrawing::widenBounds()
{
    QRectF plan = plan_;
    const auto add = [&](const CellBlock &block) {
        if (!block.isThere())
            return;
        for (const QPointF &corner : outlineOf(block))
            plan |= QRectF(corner - QPointF(1, 1), QSizeF(2, 2));
        top_ = std::max(top_, block.top());
    };
    add(cube(0, 0, floor(), kColumnEdge, kFoot));
    add(stop_.isThere() ? beltAt(stop_) : CellBlock());
    for (const CellPallet &pallet : scene_.pallets) {
        add(pallet.pallet);
        if (!pallet.boxes.isEmpty())
            add(pallet.boxes.last());
    }
    if (plan == plan_)
        return;
    plan_ = plan;
    for (Stack &stack : stacks_)
        stack.isStale = true; // seen about another middle
}

QRectF CellDrawing::bounds() const
{
    const Corners outline{plan_.topLeft(), plan_.topRight(), plan_.bottomRight(), plan_.bottomLeft()};
    const Corners robot = outlineOf(cube(0, 0, 0, 2 * kColumnEdge, 1));
    return palx::isoBounds({Course{SolidKind::Product, floor(), std::max(top_, 0.0), {outline}, -1, {}},
                            Course{SolidKind::Product, floor(), kArmTop, {robot}, -1, {}}},
                           view());
}

// ---------------------------------------------------------------- groups

void CellDrawing::addStacks(QVector<IsoGroup> *groups, double gapMm)
{
    int first = 0;
    for (Stack &stack : stacks_) {
        if (stack.isStale || gapMm != gap_) {
            stack.group = palx::stackGroup(stack.courses, gapMm, view());
            stack.isStale = false;
        }
        IsoGroup group = stack.group;
        for (IsoPart &part : group)
            part.look += first;
        first += stack.courses.size();
        if (!group.isEmpty())
            groups->append(group);
    }
    gap_ = gapMm;
}

void CellDrawing::addConveyor(QVector<IsoGroup> *groups) const
{
    if (!stop_.isThere())
        return;
    groups->append({blockPart(isoBlock(beltAt(stop_)), view(), kBelt)});
    const double ahead = scene_.waiting.isThere() ? 0 : scene_.ahead;
    if (ahead < kBeltLength - stop_.length)
        groups->append({blockPart(isoBlock(upTheBelt(stop_, ahead)), view(), kProduct)});
}

void CellDrawing::addRobot(QVector<IsoGroup> *groups) const
{
    const double top = scene_.column + kFoot;
    groups->append(
        {blockPart(isoBlock(cube(0, 0, floor(), kColumnEdge, top - floor())), view(), kColumnLook)});
    const CellBlock &carried = scene_.carried;
    if (carried.isThere())
        groups->append({blockPart(isoBlock(carried), view(), kCarried)});
    const QVector<controller::Vector> knees = armKnees(scene_.joints, scene_.column);
    for (int i = 0; i + 1 < knees.size(); ++i) {
        for (int part = 0; part < kLinkParts; ++part) {
            const controller::Vector at = knees[i] + (knees[i + 1] - knees[i]) * ((part + 0.5) / kLinkParts);
            groups->append({blockPart(
                isoBlock(cube(at.x(), at.y(), at.z() - kLinkEdge / 2, kLinkEdge, kLinkEdge)), view(), kArm)});
        }
    }
    if (carried.isThere()) {
        const double height = std::max(40.0, knees.last().z() - carried.top());
        groups->append(
            {blockPart(isoBlock(cube(carried.x, carried.y, carried.top(), 200, height)), view(), kTool)});
    }
}

/// Beside the pallets, away from the robot.
void CellDrawing::addBeacons(QVector<IsoGroup> *groups) const
{
    for (const CellPallet &side : scene_.pallets) {
        const CellBlock &pallet = side.pallet;
        if (!pallet.isThere())
            continue;
        const double reach = std::hypot(pallet.length, pallet.width) / 2 + 150;
        const double away = std::hypot(pallet.x, pallet.y);
        const double x = pallet.x + (away > 0 ? pallet.x / away * reach : reach);
        const double y = pallet.y + (away > 0 ? pallet.y / away * reach : 0);
        double at = pallet.bottom();
        groups->append({blockPart(isoBlock(cube(x, y, at, kBeaconEdge / 2, kMast)), view(), kMastLook)});
        at += kMast;
        for (int lamp = 2; lamp >= 0; --lamp, at += kBeaconEdge) {
            const bool on = side.beacon[static_cast<std::size_t>(lamp)];
            groups->append({blockPart(isoBlock(cube(x, y, at, kBeaconEdge, kBeaconEdge)), view(),
                                      kLamp - 2 * lamp - (on ? 1 : 0))});
        }
    }
}

// ---------------------------------------------------------------- painting

void CellDrawing::paint(QPainter *painter, double scale)
{
    if (scale <= 0)
        return;
    QVector<IsoGroup> groups;
    addStacks(&groups, 1 / scale);
    addConveyor(&groups);
    addRobot(&groups);
    addBeacons(&groups);
    const QVector<Course> courses = stacks_[0].courses + stacks_[1].courses;
    const QRectF seen = palx::shownPart(*painter);
    const double opacity = palx::lineOpacity(150, scale);
    const IsoGroup parts = palx::arrangeGroups(groups, view());
    for (const IsoPart &part : parts) {
        const bool isStack = part.look >= 0;
        const Colours colours = isStack ? coloursOf(courses[part.look]) : coloursOf(part.look);
        const bool isSecond = isStack && courses[part.look].layer % 2 == 1;
        QColor line = QColor::fromRgba(colours.line);
        line.setAlphaF(part.look == kArm ? 0 : opacity);
        for (const palx::IsoFace &face : part.faces)
            if (seen.intersects(palx::boundsOf(face)))
                palx::paintFace(painter, face, palx::shaded(colours.top, face, isSecond), line);
    }
}

} // namespace panel
