#pragma once

#include "orba/export.h"

#include <QScrollArea>

/// Lets one page of a form scroll up and down by itself where it is too high for the panel; it is never narrower
/// than its page needs.
class PALX_API PageScroll : public QScrollArea
{
    Q_OBJECT

public:
    /// Owns the page.
    explicit PageScroll(QWidget *page);

    QSize sizeHint() const override { return hint(widget()->sizeHint()); }
    QSize minimumSizeHint() const override;

private:
    QSize hint(const QSize &page) const;
};
