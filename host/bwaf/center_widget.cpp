#include "bwaf/center_widget.h"

#include <QStackedLayout>

namespace bwaf {

CenterWidget::CenterWidget(QWidget *parent) : QWidget(parent), stack_(new QStackedLayout(this))
{
    setObjectName(QStringLiteral("centerWidget"));
    connect(stack_, &QStackedLayout::widgetRemoved, this, &CenterWidget::forget);
    connect(stack_, &QStackedLayout::currentChanged, this, &CenterWidget::announce);
}

CenterWidget::~CenterWidget()
{
    stack_->disconnect(this);
}

bool CenterWidget::addPage(QWidget *page, const QString &key)
{
    if (!page || key.isEmpty() || this->page(key))
        return false;
    pages_.append({key, page}); // first, because the stack announces its first page at once
    stack_->addWidget(page);
    return true;
}

QStringList CenterWidget::pageKeys() const
{
    QStringList keys;
    for (const Page &page : pages_)
        keys.append(page.key);
    return keys;
}

QWidget *CenterWidget::page(const QString &key) const
{
    for (const Page &page : pages_)
        if (page.key == key)
            return page.widget;
    return nullptr;
}

QString CenterWidget::currentPage() const
{
    const QWidget *shown = stack_->currentWidget();
    for (const Page &page : pages_)
        if (page.widget == shown)
            return page.key;
    return {};
}

bool CenterWidget::setCurrentPage(const QString &key)
{
    QWidget *wanted = page(key);
    if (!wanted)
        return false;
    stack_->setCurrentWidget(wanted);
    return true;
}

void CenterWidget::clearPages()
{
    while (!pages_.isEmpty())
        delete pages_.constLast().widget; // leaves the stack, which calls forget
}

void CenterWidget::forget(int index)
{
    pages_.removeAt(index);
}

void CenterWidget::announce()
{
    const QString key = currentPage();
    if (key == announced_)
        return;
    announced_ = key;
    Q_EMIT currentPageChanged(key);
}

} // namespace bwaf
