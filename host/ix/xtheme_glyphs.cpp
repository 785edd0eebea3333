#include "ix/xtheme.h"

#include <QPainter>
#include <QPolygonF>
#include <QStringList>

namespace ix {
namespace xtheme {

namespace {

constexpr double kGrid = 24.0; // glyphs are drawn on a grid of 24 by 24
constexpr double kStroke = 2.0;

struct Drawing
{
    Glyph glyph;
    const char *strokes; ///< polylines "x,y x,y ..." separated by ";"; "o x,y,radius" is a circle
};

constexpr Drawing kDrawings[] = {
    {Glyph::Add, "12,4 12,20;4,12 20,12"},
    {Glyph::Copy, "8,8 20,8 20,20 8,20 8,8;4,16 4,4 16,4"},
    {Glyph::Delete, "4,7 20,7;9,7 9,4 15,4 15,7;6,7 7,20 17,20 18,7;10,11 10,16;14,11 14,16"},
    {Glyph::Open, "3,19 3,5 9,5 11,8 19,8 19,11;3,19 7,11 22,11 18,19 3,19"},
    {Glyph::Save, "4,4 16,4 20,8 20,20 4,20 4,4;8,4 8,9 15,9 15,4;8,20 8,14 16,14 16,20"},
    {Glyph::Back, "15,4 7,12 15,20"},
    {Glyph::Forward, "9,4 17,12 9,20"},
    {Glyph::Up, "4,15 12,7 20,15"},
    {Glyph::Down, "4,9 12,17 20,9"},
    {Glyph::Check, "4,13 10,19 20,6"},
    {Glyph::Close, "5,5 19,19;19,5 5,19"},
    {Glyph::Warning, "12,3 22,21 2,21 12,3;12,10 12,15;12,17.5 12,18.5"},
    {Glyph::Info, "o 12,12,9;12,11 12,17;12,7 12,8"},
    {Glyph::Home, "3,12 12,4 21,12;6,10 6,20 18,20 18,10"},
    {Glyph::Settings, "4,6 20,6;4,12 20,12;4,18 20,18;o 9,6,2;o 15,12,2;o 7,18,2"},
    {Glyph::Log, "5,3 19,3 19,21 5,21 5,3;8,8 16,8;8,12 16,12;8,16 13,16"},
    {Glyph::Pallet,
     "3,18 21,18;5,18 5,21;12,18 12,21;19,18 19,21;4,10 12,10 12,18 4,18 4,10;12,10 20,10 20,18;"
     "8,3 16,3 16,10 8,10 8,3"},
    {Glyph::Robot, "6,21 18,21;9,21 9,17 15,17 15,21;12,17 7,10 15,5;15,5 19,9;o 7,10,1.5;o 15,5,1.5"},
    {Glyph::Remove, "4,12 20,12"},
    {Glyph::TurnLeft, "6,7 9.5,4.5 14,4.4 17.7,6.8 19.8,11 19,15.5 16,18.8 11.5,20 7,18.3;6,2.5 6,7.3 10.8,7.3"},
    {Glyph::TurnRight, "18,7 14.5,4.5 10,4.4 6.3,6.8 4.2,11 5,15.5 8,18.8 12.5,20 17,18.3;18,2.5 18,7.3 13.2,7.3"},
};

QPointF pointOf(const QStringList &numbers)
{
    return {numbers.value(0).toDouble(), numbers.value(1).toDouble()};
}

void drawStroke(QPainter &painter, const QString &stroke)
{
    QPolygonF line;
    for (const QString &corner : stroke.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList numbers = corner.split(QLatin1Char(','));
        if (numbers.size() == 3)
            painter.drawEllipse(pointOf(numbers), numbers.at(2).toDouble(), numbers.at(2).toDouble());
        else if (numbers.size() == 2)
            line.append(pointOf(numbers));
    }
    painter.drawPolyline(line);
}

const char *strokesOf(Glyph glyph)
{
    for (const Drawing &drawing : kDrawings)
        if (drawing.glyph == glyph)
            return drawing.strokes;
    return "";
}

} // namespace

QPixmap pixmap(Glyph glyph, int size, const QColor &color)
{
    QPixmap result(size, size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kGrid, size / kGrid);
    painter.setPen(QPen(color.isValid() ? color : textColor(State::None), kStroke, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    for (const QString &stroke : QString::fromLatin1(strokesOf(glyph)).split(QLatin1Char(';')))
        drawStroke(painter, stroke);
    return result;
}

QIcon icon(Glyph glyph, const QColor &color)
{
    QIcon result;
    for (const int size : {24, 32, 48}) {
        result.addPixmap(pixmap(glyph, size, color));
        if (!color.isValid()) // on the dark ground of a checked button
            result.addPixmap(pixmap(glyph, size, Qt::white), QIcon::Normal, QIcon::On);
    }
    return result;
}

} // namespace xtheme
} // namespace ix
