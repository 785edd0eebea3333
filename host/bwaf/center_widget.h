#pragma once

#include "orba/export.h"

#include <QString>
#include <QStringList>
#include <QWidget>

class QStackedLayout;

namespace bwaf {

/// The panel's centre: shows one of its pages, found by their keys ("palx_workstation.home_page").
class PALX_API CenterWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CenterWidget(QWidget *parent = nullptr);
    ~CenterWidget() override;

    /// Takes the widget over as a child. False, and nothing happens, for a null widget, an empty key or a key
    /// that is taken. The first page becomes the current one. A page whose widget ends elsewhere is
    /// forgotten.
    bool addPage(QWidget *page, const QString &key);
    /// In the order of adding.
    QStringList pageKeys() const;
    QWidget *page(const QString &key) const;
    QString currentPage() const;
    /// Shows a page; false, and nothing changes, for an unknown key.
    bool setCurrentPage(const QString &key);
    /// Ends every page.
    void clearPages();

Q_SIGNALS:
    /// Another page is shown; empty when there is none left.
    void currentPageChanged(const QString &key);

private:
    void forget(int index);
    void announce();

    struct Page
    {
        QString key;
        QWidget *widget;
    };
    QStackedLayout *stack_;
    QList<Page> pages_; // in the order of the pages in stack_
    QString announced_;
};

} // namespace bwaf
