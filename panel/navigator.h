#pragma once

#include "orba/module_object.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QVBoxLayout;

namespace panel {

/// An entry of the navigator's list, as the panel shows it.
struct NavigatorEntry
{
    QString title;
    QString category;
    QString icon;
    QString page; ///< key of the page in the centre widget; empty when there is none yet
    qint64 order = -1;
};

/// The entries grouped by category, categories in the order in which they first appear; in a category by
/// order, those without one (-1) last, equal ones as they were registered.
QVector<NavigatorEntry> navigatorEntries(const orba::Node &list);

/// The column of buttons that open pages. Follows the list of entries.
class Navigator : public QWidget
{
    Q_OBJECT

public:
    /// `list` holds the registered entries and may end before the navigator does.
    explicit Navigator(orba::ModuleObject *list, QWidget *parent = nullptr);

    /// A button of the panel's own, below the registered entries.
    void addOwnEntry(const NavigatorEntry &entry, const QIcon &icon);
    /// Key of the first entry that has a page; empty when there is none.
    QString firstPage() const;
    /// Shows which page is open.
    void setCurrentPage(const QString &key);
    /// Renames the button of one of the panel's own pages.
    void setOwnTitle(const QString &page, const QString &title);

Q_SIGNALS:
    void pageChosen(const QString &key);

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow();
    void rebuild();
    void fitWidth();
    QAbstractButton *makeButton(const NavigatorEntry &entry, const QIcon &icon);

    QPointer<orba::ModuleObject> list_;
    QVBoxLayout *entryLayout_;
    QVBoxLayout *ownLayout_;
    QButtonGroup *group_;
    QString currentPage_;
};

} // namespace panel
