#pragma once

#include "pattern/rules/auto_layout.h"

#include <QRectF>

#include <random>

/// Cases for the tests of automatic layouts.

palx::LayoutInput layoutInput(double length, double width, double palletLength, double palletWidth,
                              double spacing = 0, double topBottom = 0, double leftRight = 0);
/// Product and pallet of usual shapes in tenths of a millimetre, half of them with spacing and margins.
palx::LayoutInput randomInput(std::mt19937 &random);
/// Says which case failed.
QString layoutCase(const palx::LayoutInput &input, int kind);
/// The area inside the margins.
QRectF roomOf(const palx::LayoutInput &input);
/// "1: 98 198.5 0" for number, place and turn of each item.
QStringList places(const QVector<palx::PatternItem> &items);
