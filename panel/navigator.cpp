#include "panel/navigator.h"

#include "ix/xtheme.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QLayoutItem>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace panel {

namespace {

constexpr int kWidth = 188;
constexpr int kMaxWidth = 232; // wider, and a panel of 1024 pixels has too little left for the pages
constexpr int kMaxText = 150;  // what the icon and the margins leave of it
constexpr int kIconSize = 28;
const char *const kPageProperty = "page";

QString categoryTitle(const QString &category)
{
    return category == QLatin1String("robot.pack") ? Navigator::tr("Packages") : category;
}

QIcon entryIcon(const NavigatorEntry &entry)
{
    using namespace ix::xtheme;
    if (entry.icon.isEmpty())
        return icon(Glyph::Pallet);
    QIcon picture(tinted(entry.icon, textColor(State::None)));
    picture.addPixmap(tinted(entry.icon, Qt::white), QIcon::Normal, QIcon::On);
    return picture;
}

/// A title that is too long for the widest navigator ends in dots; its accessible name is whole.
void showTitle(QPushButton *button, const QString &title)
{
    button->ensurePolished(); // for the font
    button->setText(button->fontMetrics().elidedText(title, Qt::ElideRight, kMaxText));
    button->setAccessibleName(title);
}

/// Removes a layout's widgets; they may be in the middle of their own signal.
void emptyLayout(QLayout *layout)
{
    while (QLayoutItem *item = layout->takeAt(0)) {
        if (QWidget *widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
}

} // namespace

QVector<NavigatorEntry> navigatorEntries(const orba::Node &list)
{
    QVector<NavigatorEntry> entries;
    QStringList categories;
    for (int i = 0; i < list.size(); ++i) {
        const orba::Node *node = list.at(i);
        NavigatorEntry entry{node->getString(u"title"), node->getString(u"category"),
                             node->getString(u"icon"), node->getString(u"nav"), node->getInt(u"order", -1)};
        if (!categories.contains(entry.category))
            categories.append(entry.category);
        entries.append(entry);
    }
    const auto place = [&categories](const NavigatorEntry &entry) {
        const qint64 order = entry.order < 0 ? std::numeric_limits<qint64>::max() : entry.order;
        return std::make_pair(categories.indexOf(entry.category), order);
    };
    std::stable_sort(
        entries.begin(), entries.end(),
        [&place](const NavigatorEntry &a, const NavigatorEntry &b) { return place(a) < place(b); });
    return entries;
}

Navigator::Navigator(orba::ModuleObject *list, QWidget *parent)
    : QWidget(parent), list_(list), entryLayout_(new QVBoxLayout), ownLayout_(new QVBoxLayout),
      group_(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("navigator"));
    setAccessibleName(tr("Navigator"));
    auto *column = new QVBoxLayout(this);
    column->addLayout(entryLayout_);
    column->addStretch();
    column->addLayout(ownLayout_);
    connect(list, &orba::ModuleObject::structureChanged, this, &Navigator::follow);
    follow();
}

/// Entries come and go, and what a module sets on its entry shows at once.
void Navigator::follow()
{
    for (orba::ModuleObject *entry : list_->cmobjs())
        for (orba::ModuleObject *field : entry->cmobjs())
            connect(field, &orba::ModuleObject::changed, this, &Navigator::rebuild, Qt::UniqueConnection);
    rebuild();
}

void Navigator::rebuild()
{
    emptyLayout(entryLayout_);
    const QVector<NavigatorEntry> entries = navigatorEntries(list_->node());
    QString category;
    for (const NavigatorEntry &entry : entries) {
        if (entry.category != category && !entry.category.isEmpty()) {
            auto *heading = new QLabel(categoryTitle(entry.category), this);
            ix::xtheme::setRole(heading, QStringLiteral("hint"));
            entryLayout_->addWidget(heading);
        }
        category = entry.category;
        entryLayout_->addWidget(makeButton(entry, entryIcon(entry)));
    }
    setCurrentPage(currentPage_);
    fitWidth();
}

/// As wide as the longest title needs, within limits.
void Navigator::fitWidth()
{
    int widest = 0;
    for (const QBoxLayout *column : {entryLayout_, ownLayout_})
        for (int i = 0; i < column->count(); ++i)
            widest = qMax(widest, column->itemAt(i)->widget()->sizeHint().width());
    const QMargins margins = layout()->contentsMargins();
    setFixedWidth(qBound(kWidth, widest + margins.left() + margins.right(), kMaxWidth));
}

QAbstractButton *Navigator::makeButton(const NavigatorEntry &entry, const QIcon &icon)
{
    auto *button = new QPushButton(icon, QString(), this);
    button->setObjectName(QStringLiteral("nav.") + entry.page);
    button->setProperty(kPageProperty, entry.page);
    button->setIconSize({kIconSize, kIconSize});
    button->setCheckable(true);
    button->setEnabled(!entry.page.isEmpty());
    ix::xtheme::setRole(button, QStringLiteral("nav"));
    showTitle(button, entry.title);
    group_->addButton(button);
    connect(button, &QPushButton::clicked, this, [this, page = entry.page] { Q_EMIT pageChosen(page); });
    return button;
}

void Navigator::addOwnEntry(const NavigatorEntry &entry, const QIcon &icon)
{
    ownLayout_->addWidget(makeButton(entry, icon));
    fitWidth();
}

void Navigator::setOwnTitle(const QString &page, const QString &title)
{
    for (int i = 0; i < ownLayout_->count(); ++i) {
        QWidget *button = ownLayout_->itemAt(i)->widget();
        if (button->property(kPageProperty).toString() != page)
            continue;
        showTitle(static_cast<QPushButton *>(button), title);
    }
    fitWidth();
}

void Navigator::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setAccessibleName(tr("Navigator"));
    if (list_)
        rebuild(); // for the headings; titles of entries are their modules' business
}

QString Navigator::firstPage() const
{
    if (!list_)
        return {};
    for (const NavigatorEntry &entry : navigatorEntries(list_->node()))
        if (!entry.page.isEmpty())
            return entry.page;
    return {};
}

void Navigator::setCurrentPage(const QString &key)
{
    currentPage_ = key;
    for (QAbstractButton *button : group_->buttons())
        if (button->property(kPageProperty).toString() == key)
            button->setChecked(true);
}

} // namespace panel
