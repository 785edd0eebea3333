#pragma once

#include "pattern/rules/iso_scene.h"

#include <QColor>

class QPainter;

/// How faces of blocks look on isometric pictures: shaded by their side, with thin lines.
namespace palx {

constexpr QRgb kPalletTop = 0xffc3bdb1, kPalletLine = 0xff5a554b;
constexpr QRgb kSheetTop = 0xffd3dce4, kSheetLine = 0xff6b747d;
constexpr QRgb kProductTop = 0xffe9e6df, kProductLine = 0xff4a4841;

/// The colour of a face whose top would have that one. Every second layer is a little darker, so that layers can be
/// counted.
QColor shaded(QRgb top, const IsoFace &face, bool isSecondLayer);
/// Lines fade where things are only a few pixels large; else a small picture would be all lines.
double lineOpacity(double shortestMm, double pixelsPerMm);
/// What fits onto the painter's device, in its units.
QRectF shownPart(const QPainter &painter);
/// With a pixel around it.
QRectF boundsOf(const IsoFace &face);
/// `line` may be transparent.
void paintFace(QPainter *painter, const IsoFace &face, const QColor &ground, const QColor &line);

} // namespace palx
