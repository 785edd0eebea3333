#include "ui/page_scroll.h"

#include "ui/form_style.h"

#include <QScrollBar>

PageScroll::PageScroll(QWidget *page)
{
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // as high as there is room
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(page);
    setTouchScrolling(this);
    // With the bar beside it the page wants the same width as before.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &QWidget::updateGeometry);
}

QSize PageScroll::minimumSizeHint() const
{
    constexpr int kLowest = 100; // some of the page is always seen
    return QSize(hint(widget()->minimumSizeHint()).width(), kLowest);
}

/// The bar beside the page takes no room from it.
QSize PageScroll::hint(const QSize &page) const
{
    const bool bar = verticalScrollBar()->maximum() > 0;
    return page + QSize(bar ? verticalScrollBar()->sizeHint().width() : 0, 0);
}
