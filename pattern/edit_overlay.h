#pragma once

#include "pattern/rules/edit_findings.h"
#include "pattern/rules/edit_snap.h"

class QPainter;

/// What stands over a plan while it is edited. Painters are set to the plan's millimetres; lines and text keep
/// their size in pixels.
namespace palx {

/// Heavy outlines around the selected products.
void paintSelection(QPainter *painter, const QVector<PatternItem> &items, const Selection &selection);
/// The lines that a dragged product has snapped to, with the distance.
void paintGuides(QPainter *painter, const QVector<SnapGuide> &guides);
/// The gaps around a dragged product, in millimetres.
void paintSideGaps(QPainter *painter, const QVector<SideGap> &gaps);
void paintFrame(QPainter *painter, const QRectF &frame);
/// The ways of products that hit others: the swept area, and a cross where it hits. `only`: the ways of these
/// products; empty: of all.
void paintBlockedWays(QPainter *painter, const QVector<PatternItem> &items, const EditFindings &findings,
                      const ApproachFrame &frame, const Selection &only);
/// How narrow gaps are that are too narrow, between the two products.
void paintNarrowGaps(QPainter *painter, const QVector<PatternItem> &items, const QVector<NarrowGap> &gaps);

/// The way of the product at `place` of the placing order; those that come after it are veiled.
void paintStep(QPainter *painter, const QVector<PatternItem> &items, int place, const ApproachFrame &frame);

} // namespace palx
