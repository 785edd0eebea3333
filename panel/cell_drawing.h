#pragma once

#include "panel/cell_scene.h"
#include "pattern/rules/iso_blocks.h"

class QPainter;

namespace panel {

/// The cell as one sees it from above a corner, at any turn: both pallets with what lies there, conveyor, robot on its
/// column, what it carries, and the beacons. Painted by a QPainter alone, millimetres of the picture, with the middle of
/// the cell in the origin.
class CellDrawing
{
public:
    void setScene(const CellScene &scene);
    const CellScene &scene() const { return scene_; }
    /// Clockwise as seen from above.
    void setTurn(double degrees);
    /// Around everything that was ever shown, at the present turn; so the picture does not jump.
    QRectF bounds() const;

    /// The painter is set to the picture's millimetres; `scale` is its pixels per millimetre.
    void paint(QPainter *painter, double scale);

private:
    struct Stack
    {
        QVector<palx::Course> courses;
        palx::IsoGroup group;
        bool isStale = true;
    };
    palx::IsoProjection view() const { return palx::IsoProjection(turn_, plan_.center()); }
    void readStack(std::size_t side);
    void rememberBelt();
    void widenBounds();
    double floor() const;
    void addStacks(QVector<palx::IsoGroup> *groups, double gapMm);
    void addConveyor(QVector<palx::IsoGroup> *groups) const;
    void addRobot(QVector<palx::IsoGroup> *groups) const;
    void addBeacons(QVector<palx::IsoGroup> *groups) const;

    CellScene scene_;
    std::array<Stack, 2> stacks_;
    CellBlock stop_;                    ///< where products wait, also while none does
    QRectF plan_{-250, -250, 500, 500}; ///< everything that was ever shown
    double top_ = 0;
    double turn_ = 0;
    double gap_ = 0;
};

} // namespace panel
