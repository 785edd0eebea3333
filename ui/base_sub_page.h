#pragma once

#include "orba/export.h"

#include <QHash>
#include <QStackedWidget>

#include <functional>

/// A page that opens in the place of one of the plug-in's two pages and has a way back.
class PALX_API BaseSubPage : public QWidget
{
    Q_OBJECT

public:
    /// `page` is the page that it opens from; dialogs stand over its window.
    BaseSubPage(QWidget *page, QWidget *parent);

    /// What it is called on screen.
    virtual QString title() const = 0;
    QWidget *page() const { return page_; }

Q_SIGNALS:
    void backWanted();

private:
    QWidget *page_;
};

/// One of the plug-in's pages: its own content, and sub-pages, which are made when they are first opened.
class PALX_API SubPageStack : public QStackedWidget
{
    Q_OBJECT

public:
    /// Makes a sub-page for this page, as a child of a widget.
    using Creator = std::function<BaseSubPage *(QWidget *page, QWidget *parent)>;

    explicit SubPageStack(QWidget *parent = nullptr);

    /// What is shown while no sub-page is open.
    QWidget *content() const { return content_; }
    /// A name is registered once; the first creator stays.
    void registSubPage(const QString &name, Creator creator);
    /// Shows the sub-page of that name; null, and nothing changes, when none is registered.
    BaseSubPage *openSubPage(const QString &name);
    /// The sub-page of that name if it was opened before, or null.
    BaseSubPage *subPage(const QString &name) const { return pages_.value(name); }
    void closeSubPage() { setCurrentWidget(content_); }

private:
    QWidget *content_;
    QHash<QString, Creator> creators_;
    QHash<QString, BaseSubPage *> pages_;
};
