#include "ui/base_sub_page.h"

#include <utility>

BaseSubPage::BaseSubPage(QWidget *page, QWidget *parent) : QWidget(parent), page_(page) {}

SubPageStack::SubPageStack(QWidget *parent) : QStackedWidget(parent), content_(new QWidget)
{
    addWidget(content_);
}

void SubPageStack::registSubPage(const QString &name, Creator creator)
{
    if (!creators_.contains(name))
        creators_.insert(name, std::move(creator));
}

BaseSubPage *SubPageStack::openSubPage(const QString &name)
{
    BaseSubPage *page = pages_.value(name);
    if (!page && creators_.contains(name)) {
        page = creators_.value(name)(this, this);
        pages_.insert(name, page);
        addWidget(page);
        connect(page, &BaseSubPage::backWanted, this, &SubPageStack::closeSubPage);
    }
    if (page)
        setCurrentWidget(page);
    return page;
}
