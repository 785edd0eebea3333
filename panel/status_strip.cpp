#include "panel/status_strip.h"

#include "nexo/setting_manager.h"
#include "orba/module_object.h"
#include "panel/controller_look.h"
#include "panel/level_look.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTime>

namespace panel {

namespace {

constexpr int kClockMs = 1000;
constexpr int kIconSize = 24;
constexpr int kControllerWidth = 188; // as wide as the navigator above it

struct Language
{
    const char *key;
    const char *title; ///< in its own language, so that it is found in any
};

constexpr Language kLanguages[] = {{"en", "English"},
                                   {"cn", "\xe4\xb8\xad\xe6\x96\x87"},
                                   {"ru", "\xd0\xa0\xd1\x83\xd1\x81\xd1\x81\xd0\xba\xd0\xb8\xd0\xb9"},
                                   {"jp", "\xe6\x97\xa5\xe6\x9c\xac\xe8\xaa\x9e"},
                                   {"kr", "\xed\x95\x9c\xea\xb5\xad\xec\x96\xb4"}};

} // namespace

StatusStrip::StatusStrip(QWidget *parent)
    : QFrame(parent), controller_(new QPushButton(this)), notice_(new QPushButton(this)),
      language_(new QComboBox(this)), time_(new QLabel(this))
{
    setObjectName(QStringLiteral("statusStrip"));
    controller_->setObjectName(QStringLiteral("controllerState"));
    controller_->setIconSize({kIconSize, kIconSize});
    controller_->setMinimumWidth(kControllerWidth); // more where a language needs it
    notice_->setObjectName(QStringLiteral("lastNotice"));
    notice_->setSizePolicy(QSizePolicy::Ignored,
                           QSizePolicy::Fixed); // a long notice must not widen the window
    language_->setObjectName(QStringLiteral("languageChoice"));
    time_->setObjectName(QStringLiteral("clock"));
    auto *row = new QHBoxLayout(this);
    row->addWidget(controller_);
    row->addWidget(notice_, 1);
    row->addWidget(language_);
    row->addWidget(time_);
    fillLanguages();
    followNodes(controllerPaths(), this, [this] { showController(); });
    retranslate();
    connect(controller_, &QPushButton::clicked, this, &StatusStrip::controllerWanted);
    connect(notice_, &QPushButton::clicked, this, &StatusStrip::noticesWanted);
    connect(&clock_, &QTimer::timeout, this, &StatusStrip::showTime);
    clock_.start(kClockMs);
    showTime();
}

void StatusStrip::retranslate()
{
    controller_->setAccessibleName(tr("Controller"));
    notice_->setAccessibleName(tr("Last notice"));
    language_->setAccessibleName(tr("Language"));
    time_->setAccessibleName(tr("Time"));
    showController();
}

void StatusStrip::showController()
{
    const ControllerLook look = controllerLook();
    controller_->setText(look.text);
    controller_->setIcon(ix::xtheme::icon(look.glyph, ix::xtheme::textColor(look.state)));
    ix::xtheme::setState(controller_, look.state);
}

void StatusStrip::showTime()
{
    const QString now = QTime::currentTime().toString(QStringLiteral("HH:mm"));
    if (time_->text() != now)
        time_->setText(now);
}

void StatusStrip::fillLanguages()
{
    const auto *settings = nexo::SettingManager::instance();
    for (const Language &language : kLanguages)
        language_->addItem(QString::fromUtf8(language.title), QLatin1String(language.key));
    language_->setCurrentIndex(
        qMax(0, language_->findData(settings->getStr(QStringLiteral("language"), QStringLiteral("en")))));
    connect(language_, QOverload<int>::of(&QComboBox::activated), this, &StatusStrip::chooseLanguage);
}

void StatusStrip::chooseLanguage(int index)
{
    auto *settings = nexo::SettingManager::instance();
    settings->setStr(QStringLiteral("language"), language_->itemData(index).toString());
    settings->setOverride(
        QStringLiteral("language"), // the operator's choice wins over the command line and environment
        language_->itemData(index).toString());
}

void StatusStrip::showNotice(const QString &level, const QString &text)
{
    noticeText_ = text.simplified();
    notice_->setIcon(levelIcon(level, true));
    ix::xtheme::setState(notice_, levelState(level));
    elideNotice();
}

void StatusStrip::elideNotice()
{
    const int room = notice_->width() - notice_->iconSize().width() - 6 * ix::xtheme::kGap;
    notice_->setText(notice_->fontMetrics().elidedText(noticeText_, Qt::ElideRight, qMax(0, room)));
}

void StatusStrip::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elideNotice();
}

} // namespace panel
