// Draws the pictures of the pattern templates again:  make_template_images FOLDER
// "overlap.png" has Chinese captions, "overlap_en.png" English ones; the same for "cross" and "clip".

#include "pattern/rules/item_geometry.h"
#include "pattern/rules/pattern_template.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>

using palx::PatternItem;
using palx::TemplateKind;
using palx::TemplateNumbers;

namespace {

constexpr QSize kImage(440, 400);
constexpr QRectF kPallet(104, 44, 296, 346); ///< in the picture; one millimetre is one pixel
constexpr int kTextPixels = 16;
constexpr double kArrow = 7;
const QColor kLine(0x1f, 0x23, 0x26);
const QColor kProduct(0xd9, 0xb3, 0x82);
const QColor kDeck(0xee, 0xef, 0xf0);
const QColor kMark(0x1c, 0x5f, 0xb0);

struct Captions
{
    QString number, offset, space; ///< "%1" is the axis
};

/// What the picture shows: a small pattern with wide gaps, so that each of them can be named.
struct Subject
{
    TemplateKind kind;
    double length, width;
    TemplateNumbers numbers;
};

const Subject kSubjects[] = {
    {TemplateKind::Overlap, 76, 62, {3, 3, 0, 0, 34, 40, 14, 14}},
    {TemplateKind::Cross, 92, 62, {3, 0, 3, 2, 30, 40, 14, 14}},
    {TemplateKind::Clip, 136, 78, {0, 0, 0, 0, 40, 40, 22, 22}},
};

QVector<PatternItem> itemsOf(const Subject &subject)
{
    orba::Node stack;
    stack.ensure(u"product_cfg.product.length")->setDouble(subject.length);
    stack.ensure(u"product_cfg.product.width")->setDouble(subject.width);
    return palx::templateItems(stack, subject.kind, subject.numbers, 0);
}

class Picture
{
public:
    Picture(const Subject &subject, const Captions &captions, const QString &family)
        : subject_(subject), captions_(captions), items_(itemsOf(subject)),
          image_(kImage, QImage::Format_ARGB32), painter_(&image_)
    {
        image_.fill(Qt::transparent);
        painter_.setRenderHint(QPainter::Antialiasing);
        QFont font(family);
        font.setPixelSize(kTextPixels);
        painter_.setFont(font);
    }

    QImage draw()
    {
        drawPallet();
        drawItems();
        drawOffsets();
        drawSpaces();
        if (subject_.kind != TemplateKind::Clip)
            drawNumbers();
        painter_.end();
        return image_;
    }

private:
    QRectF place(int item) const { return palx::itemBounds(items_[item]).translated(kPallet.topLeft()); }
    /// The first item of the row after the first one.
    int secondRow() const
    {
        if (subject_.kind == TemplateKind::Clip)
            return 3;
        return subject_.kind == TemplateKind::Overlap ? subject_.numbers.numY : subject_.numbers.numY1;
    }

    void drawPallet()
    {
        painter_.setPen(QPen(kLine, 2));
        painter_.setBrush(kDeck);
        painter_.drawRect(kPallet);
        const QPointF corner = kPallet.topLeft();
        arrow(corner, corner + QPointF(0, 58), false);
        arrow(corner, corner + QPointF(58, 0), false);
        text(QRectF(corner.x() + 62, corner.y() + 2, 20, 20), QStringLiteral("Y"), Qt::AlignLeft);
        text(QRectF(corner.x() + 4, corner.y() + 60, 20, 20), QStringLiteral("X"), Qt::AlignLeft);
    }

    void drawItems()
    {
        for (int i = 0; i < items_.size(); ++i) {
            painter_.setPen(QPen(kLine, 1.5));
            painter_.setBrush(kProduct);
            painter_.drawRect(place(i));
            if (subject_.kind == TemplateKind::Clip)
                text(place(i), QString::number(i + 1), Qt::AlignCenter);
        }
    }

    /// From the pallet's edges to the first product; the captions stand outside.
    void drawOffsets()
    {
        const QRectF first = place(0);
        arrow(QPointF(kPallet.left(), first.bottom() - 12), QPointF(first.left(), first.bottom() - 12), true);
        arrow(QPointF(first.right() - 10, kPallet.top()), QPointF(first.right() - 10, first.top()), true);
        caption(captions_.offset, u'Y', QPointF(kPallet.left() + 4, first.bottom() - 12));
        caption(captions_.offset, u'X', QPointF(first.right() - 10, kPallet.top() + 4));
    }

    void drawSpaces()
    {
        const QRectF first = place(0);
        const QRectF beside = place(1);
        const QRectF below = place(secondRow());
        const double y = first.top() + 14;
        arrow(QPointF(first.right(), y), QPointF(beside.left(), y), true);
        caption(captions_.space, u'Y', QPointF((first.right() + beside.left()) / 2 + 66, kPallet.top() + 4));
        painter_.setPen(QPen(kMark, 1, Qt::DotLine));
        painter_.drawLine(QPointF((first.right() + beside.left()) / 2 + 34, kPallet.top()),
                          QPointF((first.right() + beside.left()) / 2, y));
        const double x = first.left() + 12;
        arrow(QPointF(x, first.bottom()), QPointF(x, below.top()), true);
        const double middle = (first.bottom() + below.top()) / 2;
        caption(captions_.space, u'X', QPointF(kPallet.left() + 4, middle + 34));
        painter_.setPen(QPen(kMark, 1, Qt::DotLine));
        painter_.drawLine(QPointF(kPallet.left(), middle + 30), QPointF(x, middle));
    }

    /// Along the rows, and beside them.
    void drawNumbers()
    {
        const bool cross = subject_.kind == TemplateKind::Cross;
        drawRowNumber(0, secondRow() - 1, cross ? QStringLiteral("Y1") : QStringLiteral("Y"));
        if (cross)
            drawRowNumber(secondRow(), secondRow() + subject_.numbers.numY2 - 1, QStringLiteral("Y2"));
        const QRectF all = palx::itemsBounds(items_).translated(kPallet.topLeft());
        const double x = all.right() + 18;
        arrow(QPointF(x, all.top()), QPointF(x, all.bottom()), true);
        painter_.save();
        painter_.translate(x, all.center().y() + 30);
        painter_.rotate(-90);
        chip(QPointF(), captions_.number.arg(QLatin1Char('X')));
        painter_.restore();
    }

    void drawRowNumber(int first, int last, const QString &axis)
    {
        const QPointF from(place(first).left(), place(first).center().y() + 4);
        const QPointF to(place(last).right(), from.y());
        arrow(from, to, true);
        chip((from + to) / 2, captions_.number.arg(axis));
    }

    void arrow(const QPointF &from, const QPointF &to, bool both)
    {
        painter_.setPen(QPen(kMark, 2));
        painter_.drawLine(from, to);
        const QPointF along = (to - from) / QLineF(from, to).length() * kArrow;
        const QPointF aside(-along.y() * 0.5, along.x() * 0.5);
        painter_.drawPolyline(QPolygonF({to - along + aside, to, to - along - aside}));
        if (both)
            painter_.drawPolyline(QPolygonF({from + along + aside, from, from + along - aside}));
    }

    void text(const QRectF &rect, const QString &text, int alignment)
    {
        painter_.setPen(kLine);
        painter_.drawText(rect, alignment, text);
    }

    /// Outside the pallet, beside the edge that the point lies at.
    void caption(const QString &pattern, QChar axis, const QPointF &at)
    {
        const QString words = pattern.arg(axis);
        if (at.y() < kPallet.top() + 10)
            text(QRectF(at.x() - 60, 4, 120, 34), words, Qt::AlignHCenter | Qt::AlignBottom);
        else
            text(QRectF(0, at.y() - 12, kPallet.left() - 6, 24), words, Qt::AlignRight | Qt::AlignVCenter);
    }

    /// A caption on a ground of its own.
    void chip(const QPointF &centre, const QString &words)
    {
        const QSizeF size = painter_.fontMetrics().size(Qt::TextSingleLine, words) + QSizeF(10, 2);
        const QRectF rect(centre - QPointF(size.width() / 2, size.height() / 2), size);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(Qt::white);
        painter_.drawRoundedRect(rect, 4, 4);
        text(rect, words, Qt::AlignCenter);
    }

    Subject subject_;
    Captions captions_;
    QVector<PatternItem> items_;
    QImage image_;
    QPainter painter_;
};

int fail(const QString &reason)
{
    QTextStream(stderr) << reason << '\n';
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return fail(QStringLiteral("usage: make_template_images FOLDER"));
    const Captions english{QStringLiteral("%1 number"), QStringLiteral("%1 offset"),
                           QStringLiteral("%1 space")};
    const Captions chinese{QStringLiteral("%1 \u6570\u91cf"), QStringLiteral("%1 \u504f\u79fb"),
                           QStringLiteral("%1 \u95f4\u8ddd")};
    for (const Subject &subject : kSubjects) {
        const QString word = palx::templateWords().at(int(subject.kind));
        for (const QString &language : {QStringLiteral("cn"), QStringLiteral("en")}) {
            const bool isChinese = language == QLatin1String("cn");
            const QString family =
                isChinese ? QStringLiteral("WenQuanYi Micro Hei") : QStringLiteral("DejaVu Sans");
            const QString resource = palx::templateImage(word, language);
            const QString file =
                QString::fromLocal8Bit(argv[1]) + resource.mid(resource.lastIndexOf(QLatin1Char('/')));
            if (!Picture(subject, isChinese ? chinese : english, family).draw().save(file))
                return fail(file + QStringLiteral(": cannot be written"));
        }
    }
    return 0;
}
