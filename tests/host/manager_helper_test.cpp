#include "nexo/manager_helper.h"
#include "nexo/setting_manager.h"
#include "support/stderr_capture.h"
#include "support/test_support.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSignalSpy>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

const QString kLanguage = QStringLiteral("language");

/// Counts the language changes that reach a window.
class Window : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

QString word()
{
    return QCoreApplication::translate("FrameTest", "pallet");
}

void chooseLanguage(const QString &language)
{
    nexo::SettingManager::instance()->setOverride(kLanguage, language);
}

} // namespace

TEST(ManagerHelper, WithoutAPresenterPrintsAndRefusesWhatCanBeRefused)
{
    StderrCapture console;
    auto *helper = nexo::ManagerHelper::instance();
    EXPECT_FALSE(helper->execMsgOk(QStringLiteral("Delete"), QStringLiteral("Really?")));
    EXPECT_TRUE(helper->execMsgOk(QStringLiteral("Done"), QStringLiteral("Fine."), QStringLiteral("_")));
    helper->throwLog(nullptr, QStringLiteral("warning"), QStringLiteral("low"));
    EXPECT_EQ(console.take(), "Delete: Really?\nDone: Fine.\nwarning: low\n");
}

TEST(ManagerHelper, TranslationsOfAnAliasFollowTheLanguage)
{
    Window window;
    auto *helper = nexo::ManagerHelper::instance();
    QSignalSpy registered(helper, &nexo::ManagerHelper::qrcAliasRegistered);
    chooseLanguage(QStringLiteral("ru"));
    helper->registQrcAlias(QStringLiteral("frame_test"));
    helper->registQrcAlias(QStringLiteral("frame_test"));
    EXPECT_EQ(registered.size(), 1);
    EXPECT_EQ(word(), QString::fromUtf8("поддон"));
    EXPECT_TRUE(waitUntil([&] { return window.changes > 0; }));

    chooseLanguage(QStringLiteral("cn")); // has no file: the texts of the sources
    EXPECT_EQ(word(), QStringLiteral("pallet"));
    chooseLanguage(QStringLiteral("ru"));
    EXPECT_EQ(word(), QString::fromUtf8("поддон"));
    chooseLanguage(QString());
    EXPECT_EQ(word(), QStringLiteral("pallet"));
}

TEST(ManagerHelper, AnUnreadableTranslationIsTold)
{
    ScriptedPresenter presenter;
    chooseLanguage(QStringLiteral("kr"));
    nexo::ManagerHelper::instance()->registQrcAlias(QStringLiteral("frame_test"));
    EXPECT_EQ(
        presenter.notices.join(QLatin1Char('|')),
        QStringLiteral("warning: The translation :/frame_test/language/frame_test_kr.qm cannot be read."));
    chooseLanguage(QString());
}
