#include "ui/edit_icons.h"

#include "ix/xtheme.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QToolTip>

namespace {

constexpr double kGrid = 24; // symbols are drawn on a grid of 24 by 24
constexpr double kStroke = 1.8;

/// Figures separated by ";": "x,y x,y ..." a line, "b x,y,w,h" a box, "f x,y,w,h" a filled box,
/// "a x,y,r,from,sweep" an arc in degrees, "d x,y x,y ..." a dashed line.
struct Drawing
{
    EditIcon icon;
    const char *figures;
};

constexpr Drawing kDrawings[] = {
    {EditIcon::All, "f 4,4,7,7;f 13,4,7,7;f 4,13,7,7;f 13,13,7,7"},
    {EditIcon::Several, "f 3,3,8,8;f 13,13,8,8;17,3 17,10;13.5,6.5 20.5,6.5;b 3,13,8,8"},
    {EditIcon::Pan, "12,2 12,22;2,12 22,12;9,5 12,2 15,5;9,19 12,22 15,19;5,9 2,12 5,15;19,9 22,12 19,15"},
    {EditIcon::Snap, "d 12,2 12,22;f 13.5,7,8,10;b 2,7,8.5,10"},
    {EditIcon::Add, "b 3,9,12,12;18,2 18,10;14,6 22,6"},
    {EditIcon::Copy, "b 8,8,12,12;4,16 4,4 16,4"},
    {EditIcon::Paste, "b 4,4,16,17;f 9,2,6,4;8,11 16,11;8,15 16,15"},
    {EditIcon::Remove, "4,7 20,7;9,7 9,4 15,4 15,7;6,7 7,20 17,20 18,7;10,11 10,16;14,11 14,16"},
    {EditIcon::TurnLeft, "a 12,13,8,90,-250;12,1 8,5 12,9"},
    {EditIcon::TurnRight, "a 12,13,8,90,250;12,1 16,5 12,9"},
    {EditIcon::TurnBy, "4,20 21,20;4,20 17,6;a 4,20,10,0,47"},
    {EditIcon::TurnPattern,
     "b 3,8,8,8;f 13,8,8,8;a 12,8,6,20,140;a 12,16,6,200,140;15,3.5 18,6 18.5,2;9,20.5 6,18 5.5,22"},
    {EditIcon::Left, "21,12 4,12;10,6 4,12 10,18"},
    {EditIcon::Right, "3,12 20,12;14,6 20,12 14,18"},
    {EditIcon::Up, "12,21 12,4;6,10 12,4 18,10"},
    {EditIcon::Down, "12,3 12,20;6,14 12,20 18,14"},
    {EditIcon::MirrorAcross, "d 12,2 12,22;9,5 9,19 2,19 9,5;f 15,5,1,14;15,5 15,19 22,19 15,5"},
    {EditIcon::MirrorAlong, "d 2,12 22,12;5,9 19,9 19,2 5,9;5,15 19,15 19,22 5,15"},
    {EditIcon::AlignLeft, "3,2 3,22;f 5,5,15,5;f 5,14,9,5"},
    {EditIcon::AlignCentreAcross, "12,2 12,22;f 4,5,16,5;f 7,14,10,5"},
    {EditIcon::AlignRight, "21,2 21,22;f 4,5,15,5;f 10,14,9,5"},
    {EditIcon::AlignTop, "2,3 22,3;f 5,5,5,15;f 14,5,5,9"},
    {EditIcon::AlignCentreAlong, "2,12 22,12;f 5,4,5,16;f 14,7,5,10"},
    {EditIcon::AlignBottom, "2,21 22,21;f 5,4,5,15;f 14,10,5,9"},
    {EditIcon::SpaceAcross, "2,2 2,22;22,2 22,22;f 5,6,4,12;f 15,6,4,12;d 9,12 15,12"},
    {EditIcon::SpaceAlong, "2,2 22,2;2,22 22,22;f 6,5,12,4;f 6,15,12,4;d 12,9 12,15"},
    {EditIcon::ZoomIn, "a 10,10,7,0,360;15,15 22,22;10,6.5 10,13.5;6.5,10 13.5,10"},
    {EditIcon::ZoomOut, "a 10,10,7,0,360;15,15 22,22;6.5,10 13.5,10"},
    {EditIcon::ZoomFit, "2,8 2,2 8,2;16,2 22,2 22,8;22,16 22,22 16,22;8,22 2,22 2,16;b 7,7,10,10"},
};

QVector<double> numbersOf(const QString &text)
{
    QVector<double> numbers;
    for (const QString &number : text.split(QLatin1Char(',')))
        numbers << number.toDouble();
    numbers.resize(5);
    return numbers;
}

void drawLine(QPainter *painter, const QStringList &points, Qt::PenStyle style)
{
    QPolygonF line;
    for (const QString &point : points)
        line << QPointF(numbersOf(point)[0], numbersOf(point)[1]);
    QPen pen = painter->pen();
    painter->save();
    pen.setStyle(style);
    painter->setPen(pen);
    painter->drawPolyline(line);
    painter->restore();
}

void drawFigure(QPainter *painter, const QString &figure)
{
    QStringList words = figure.split(QLatin1Char(' '));
    const QString kind = words.first().contains(QLatin1Char(',')) ? QString() : words.takeFirst();
    const QVector<double> n = numbersOf(words.first());
    if (kind == QLatin1String("b"))
        painter->drawRect(QRectF(n[0], n[1], n[2], n[3]));
    else if (kind == QLatin1String("f"))
        painter->fillRect(QRectF(n[0], n[1], n[2], n[3]), painter->pen().color());
    else if (kind == QLatin1String("a"))
        painter->drawArc(QRectF(n[0] - n[2], n[1] - n[2], 2 * n[2], 2 * n[2]),
                         qRound(-16 * (n[3] + n[4]) + 16 * 180), qRound(16 * n[4]));
    else
        drawLine(painter, words, kind == QLatin1String("d") ? Qt::DotLine : Qt::SolidLine);
}

QPixmap drawn(const char *figures, int size, const QColor &color)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kGrid, size / kGrid);
    painter.setPen(QPen(color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QString &figure : QString::fromLatin1(figures).split(QLatin1Char(';')))
        drawFigure(&painter, figure);
    return pixmap;
}

} // namespace

QIcon editIcon(EditIcon icon)
{
    QIcon result;
    for (const Drawing &drawing : kDrawings) {
        if (drawing.icon != icon)
            continue;
        for (const int size : {24, 32, 48}) {
            result.addPixmap(drawn(drawing.figures, size, ix::xtheme::textColor(ix::xtheme::State::None)));
            result.addPixmap(drawn(drawing.figures, size, Qt::white), QIcon::Normal, QIcon::On);
        }
    }
    return result;
}

void setupTool(QAbstractButton *button)
{
    button->setFocusPolicy(Qt::TabFocus);
    QObject::connect(button, &QAbstractButton::pressed, button, [button] {
        QToolTip::showText(button->mapToGlobal(QPoint(0, -button->height())), button->toolTip(), button);
    });
}
