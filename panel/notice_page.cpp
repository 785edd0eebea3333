#include "panel/notice_page.h"

#include "ix/xtheme.h"
#include "panel/level_look.h"

#include <QLabel>
#include <QTime>
#include <QVBoxLayout>

namespace panel {

NoticePage::NoticePage(QWidget *parent)
    : QWidget(parent), title_(new QLabel(this)), list_(new QListWidget(this))
{
    setObjectName(QStringLiteral("noticePage"));
    title_->setObjectName(QStringLiteral("noticeTitle"));
    ix::xtheme::setRole(title_, QStringLiteral("title"));
    list_->setObjectName(QStringLiteral("noticeList"));
    list_->setWordWrap(true);
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    list_->setFocusPolicy(Qt::NoFocus);
    auto *column = new QVBoxLayout(this);
    column->addWidget(title_);
    column->addWidget(list_);
    retranslate();
}

void NoticePage::retranslate()
{
    title_->setText(tr("Log"));
    title_->setAccessibleName(title_->text());
    list_->setAccessibleName(title_->text());
}

void NoticePage::add(const QString &level, const QString &text)
{
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    list_->insertItem(
        0, new QListWidgetItem(levelIcon(level, false), QStringLiteral("%1   %2").arg(time, text)));
    while (list_->count() > kMaxNotices)
        delete list_->takeItem(list_->count() - 1);
}

} // namespace panel
