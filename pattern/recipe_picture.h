#pragma once

#include "orba/node.h"

#include <QImage>

/// Pictures of recipes. They need a QGuiApplication (plans a QApplication) and never fail: a recipe that
/// lacks something gets a picture that says so. `pixels` is bounded to 1..16384 on each side.
namespace palx {

/// The whole stack seen from a corner, on a transparent ground, for lists of recipes.
PALX_API QImage recipePicture(const orba::Node &stack, const QSize &pixels);
/// From where a stack is seen, and how much of it is laid.
struct StackLook
{
    double turnDeg = 0; ///< the stack turned clockwise, seen from above
    int pieces = -1;    ///< products and separator sheets; -1 for all
};
/// The stack with a block of figures of the whole recipe beside it, on paper.
PALX_API QImage stackPicture(const orba::Node &stack, const QSize &pixels, const StackLook &look = {});
/// The plan of a layer (from 0) to scale, with a title block.
PALX_API QImage planPicture(const orba::Node &stack, int layer, const QSize &pixels);
/// The plan of a pattern alone, on paper, for lists of patterns.
PALX_API QImage patternPicture(const orba::Node &stack, const QString &pattern, const QSize &pixels);

} // namespace palx
