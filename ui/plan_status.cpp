#include "ui/plan_status.h"

#include "ix/xtheme.h"
#include "ui/pattern_view.h"

#include <QCoreApplication>
#include <QLabel>

using ix::xtheme::State;

namespace {

struct StatusText
{
    Q_DECLARE_TR_FUNCTIONS(StatusText)
};

QString shownMm(double mm)
{
    return QString::number(mm, 'g', 8);
}

QString chosenText(const PatternView &view)
{
    const auto &items = view.editing()->items();
    const palx::Selection &chosen = view.editing()->selection();
    if (view.dragTool()->isDragging()) {
        const QPointF shift = view.dragTool()->snap().shift;
        return StatusText::tr("Moved by x %1, y %2 mm").arg(shownMm(shift.x()), shownMm(shift.y()));
    }
    if (chosen.isEmpty())
        return StatusText::tr("No product chosen");
    if (chosen.size() > 1) {
        const QRectF area = palx::selectionBounds(items, chosen);
        return StatusText::tr("%1 products, %2 x %3 mm")
            .arg(chosen.size())
            .arg(shownMm(area.width()), shownMm(area.height()));
    }
    const palx::PatternItem &item = items[chosen.first()];
    return StatusText::tr("Product %1: x %2, y %3 mm, %4\u00b0")
        .arg(chosen.first() + 1)
        .arg(shownMm(item.x), shownMm(item.y))
        .arg(item.r);
}

QString problemText(const QVector<palx::PatternProblem> &problems)
{
    if (problems.size() < 2)
        return problems.isEmpty() ? QString() : problems.first().text;
    return StatusText::tr("(1 of %1) %2").arg(problems.size()).arg(problems.first().text);
}

} // namespace

void showPlanStatus(QLabel *label, const PatternView &view, const QVector<palx::PatternProblem> &problems)
{
    QStringList lines{chosenText(view)};
    if (!problems.isEmpty())
        lines << problemText(problems);
    label->setToolTip(lines.join(QLatin1Char('\n')));
    if (label->wordWrap() != problems.isEmpty()) // two lines in any case
        label->setWordWrap(problems.isEmpty());
    const int room = label->width() - 2 * label->margin() - 4;
    for (QString &line : lines)
        line = problems.isEmpty() ? line : label->fontMetrics().elidedText(line, Qt::ElideRight, room);
    label->setText(lines.join(QLatin1Char('\n')));
    ix::xtheme::setState(label, problems.isEmpty() ? State::None : State::Attention);
}
