#pragma once

#include "orba/export.h"

#include <QScrollArea>

/// Lets one page of a form scroll up and down by itself where it is too high for the panel; it is never narrower
/// than its page needs. A mouse wheel moves the page, never the value of a field that comes under the pointer meanwhile.
class PALX_API PageScroll : public QScrollArea
{
    Q_OBJECT

public:
    /// Owns the page.
    explicit PageScroll(QWidget *page);

    QSize sizeHint() const override { return hint(widget()->sizeHint()); }
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QSize hint(const QSize &page) const;
};
