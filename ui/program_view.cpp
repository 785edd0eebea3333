#include "ui/program_view.h"

#include "ix/xtheme.h"
#include "ui/form_style.h"

#include <QEvent>
#include <QFile>
#include <QPainter>
#include <QTextBlock>

namespace {

constexpr int kGap = 8; // between the numbers and what is beside them [px]

QFont programFont()
{
    QFont font(QStringLiteral("DejaVu Sans Mono")); // with the panel's own text font in one family
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(ix::xtheme::kTextPixels);
    return font;
}

} // namespace

ProgramView::ProgramView(QWidget *parent) : QPlainTextEdit(parent), numbers_(new QWidget(this))
{
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setFont(programFont());
    setTabStopDistance(4 * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    numbers_->setFont(font());
    numbers_->installEventFilter(this);
    setTouchScrolling(this);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &ProgramView::layOutNumbers);
    connect(this, &QPlainTextEdit::updateRequest, numbers_, QOverload<>::of(&QWidget::update));
    layOutNumbers();
}

bool ProgramView::showFile(const QString &name)
{
    QFile file(name);
    const bool isOpen = !name.isEmpty() && file.open(QIODevice::ReadOnly);
    const QByteArray text = isOpen ? file.read(kMostBytes) : QByteArray();
    setPlainText(QString::fromUtf8(text));
    return isOpen && file.error() == QFileDevice::NoError;
}

void ProgramView::layOutNumbers()
{
    const QString widest(QString::number(std::max(100, blockCount())).size(), QLatin1Char('9'));
    const int width = fontMetrics().horizontalAdvance(widest) + 2 * kGap;
    setViewportMargins(width, 0, 0, 0);
    const QRect inside = contentsRect();
    numbers_->setGeometry(inside.x(), inside.y(), width, inside.height());
}

void ProgramView::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    layOutNumbers();
}

bool ProgramView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == numbers_ && event->type() == QEvent::Paint)
        paintNumbers();
    return QPlainTextEdit::eventFilter(watched, event);
}

void ProgramView::paintNumbers()
{
    QPainter painter(numbers_);
    painter.fillRect(numbers_->rect(), palette().color(QPalette::AlternateBase));
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    for (QTextBlock line = firstVisibleBlock(); line.isValid(); line = line.next()) {
        const QRectF place = blockBoundingGeometry(line).translated(contentOffset());
        if (place.top() > numbers_->height())
            return;
        painter.drawText(QRectF(0, place.top(), numbers_->width() - kGap, place.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(line.blockNumber() + 1));
    }
}
