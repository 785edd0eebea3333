#include "bwaf/bmodule.h"
#include "fixtures.h"
#include "ix/xtheme.h"
#include "nexo/setting_manager.h"
#include "panel/message_dialog.h"
#include "panel/notice_page.h"
#include "panel/panel_window.h"
#include "shell/host_session.h"
#include "support/test_support.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

const QString kSamplePage = QStringLiteral("sample_plugin.page");

class PanelWindowTest : public ::testing::Test
{
protected:
    void start(const QStringList &plugins)
    {
        host::SessionOptions options;
        options.dataFolder = folder.path();
        options.pluginFiles = plugins;
        session = std::make_unique<host::HostSession>(options);
        session->start();
        window = std::make_unique<panel::PanelWindow>(session.get(), &presenter);
    }
    void TearDown() override
    {
        window.reset();
        session.reset();
    }
    template <typename T> T *child(const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString openPage() const { return session->centerWidget()->currentPage(); }

    QTemporaryDir folder;
    panel::PanelPresenter presenter;
    std::unique_ptr<host::HostSession> session;
    std::unique_ptr<panel::PanelWindow> window;
};

/// Answers the dialog that is about to open by a click, and returns the texts that it showed.
void answerDialog(const char *button, QStringList *shown)
{
    QTimer::singleShot(0, qApp, [button, shown] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        for (const char *name : {"messageTitle", "messageText"})
            shown->append(dialog->findChild<QLabel *>(QLatin1String(name))->text());
        if (auto *found = dialog->findChild<QPushButton *>(QLatin1String(button)))
            QTest::mouseClick(found, Qt::LeftButton);
        else
            dialog->close();
    });
}

} // namespace

TEST_F(PanelWindowTest, OpensTheFirstEntrysPageAndSwitchesByTheNavigator)
{
    start({fixtureFile("good_plugin")});
    EXPECT_EQ(window->size(), QSize(1280, 800));
    EXPECT_EQ(openPage(), kSamplePage);
    auto *sample = child<QPushButton>("nav.sample_plugin.page");
    EXPECT_EQ(sample->text(), QStringLiteral("Sample"));
    EXPECT_TRUE(sample->isChecked());
    QTest::mouseClick(child<QPushButton>("nav.panel.notices"), Qt::LeftButton);
    EXPECT_EQ(openPage(), QStringLiteral("panel.notices"));
    EXPECT_FALSE(sample->isChecked());
    QTest::mouseClick(sample, Qt::LeftButton);
    EXPECT_EQ(openPage(), kSamplePage);
    EXPECT_EQ(window->findChild<QWidget *>(QStringLiteral("problemPage")), nullptr);
}

TEST_F(PanelWindowTest, ShowsWhyAPluginDidNotLoad)
{
    start({fixtureFile("no_entry")});
    EXPECT_EQ(openPage(), QStringLiteral("panel.problems"));
    QStringList shown;
    for (const QLabel *label : window->findChildren<QLabel *>(QStringLiteral("problemText")))
        shown.append(label->text());
    EXPECT_TRUE(shown.contains(fixtureFile("no_entry"))) << shown.join(QLatin1Char('|'));
    EXPECT_TRUE(shown.filter(QStringLiteral("orba_plugin_api")).size() == 1) << shown.join(QLatin1Char('|'));
}

TEST_F(PanelWindowTest, NoticesReachTheStripAndTheLogAlsoFromBeforeTheWindow)
{
    nexo::ManagerHelper::instance()->throwLog(nullptr, QStringLiteral("warning"), QStringLiteral("early"));
    start({fixtureFile("good_plugin")});
    EXPECT_EQ(window->notices()->count(), 1);
    m("quill.log.current")
        ->set(nullptr, "", QStringLiteral(R"({"level":"error","title":"The box is lost"})"));
    EXPECT_EQ(window->notices()->count(), 2);
    auto *list = child<QListWidget>("noticeList");
    EXPECT_TRUE(list->item(0)->text().endsWith(QStringLiteral("The box is lost")));
    EXPECT_TRUE(list->item(1)->text().endsWith(QStringLiteral("early")));
    window->show();
    auto *strip = child<QPushButton>("lastNotice");
    EXPECT_EQ(strip->text(), QStringLiteral("The box is lost"));
    EXPECT_EQ(strip->property("state").toString(), QStringLiteral("fault"));
    QTest::mouseClick(strip, Qt::LeftButton);
    EXPECT_EQ(openPage(), QStringLiteral("panel.notices"));
}

TEST_F(PanelWindowTest, TheLogKeepsTheNewestNotices)
{
    panel::NoticePage page;
    for (int i = 0; i < panel::NoticePage::kMaxNotices + 2; ++i)
        page.add(QStringLiteral("info"), QString::number(i));
    EXPECT_EQ(page.count(), panel::NoticePage::kMaxNotices);
    const auto *list = page.findChild<QListWidget *>(QStringLiteral("noticeList"));
    EXPECT_TRUE(list->item(0)->text().endsWith(QStringLiteral(" 501")));
    EXPECT_TRUE(list->item(list->count() - 1)->text().endsWith(QStringLiteral(" 2")));
}

TEST_F(PanelWindowTest, TheStripFollowsTheController)
{
    start({});
    auto *state = child<QLabel>("controllerState");
    EXPECT_EQ(state->property("state").toString(), QStringLiteral("stopped"));
    m("nexo.r")->set(nullptr, "connected", true);
    EXPECT_EQ(state->property("state").toString(), QStringLiteral("running"));
    m("nexo.r")->set(nullptr, "version", QStringLiteral("2.4.1"));
    EXPECT_TRUE(state->text().contains(QStringLiteral("2.4.1"))) << state->text();
}

TEST_F(PanelWindowTest, TheLanguageChoiceIsKeptAsASetting)
{
    start({});
    auto *choice = child<QComboBox>("languageChoice");
    EXPECT_EQ(choice->count(), 5);
    EXPECT_EQ(choice->currentData().toString(), QStringLiteral("en"));
    choice->setCurrentIndex(choice->findData(QStringLiteral("kr")));
    Q_EMIT choice->activated(choice->currentIndex());
    EXPECT_EQ(nexo::SettingManager::instance()->getStr(QStringLiteral("language")), QStringLiteral("kr"));
}

TEST_F(PanelWindowTest, DialogsAnswerByTheirButtons)
{
    ix::xtheme::apply(qApp);
    start({});
    auto *helper = nexo::ManagerHelper::instance();
    const struct
    {
        const char *rejectText;
        const char *button;
        bool accepted;
    } cases[] = {{"", "messageAccept", true},
                 {"", "messageReject", false},
                 {"", "none: closed", false},
                 {"_", "messageAccept", true},
                 {"_", "none: closed", true}};
    for (const auto &each : cases) {
        QStringList shown;
        answerDialog(each.button, &shown);
        EXPECT_EQ(helper->execMsgOk(QStringLiteral("Delete"), QStringLiteral("<b>A</b>?"),
                                    QLatin1String(each.rejectText)),
                  each.accepted)
            << each.button;
        EXPECT_EQ(shown, QStringList({QStringLiteral("Delete"), QStringLiteral("<b>A</b>?")}));
    }
    const panel::MessageDialog unrefusable({QStringLiteral("T"), QStringLiteral("t"), QString()});
    EXPECT_EQ(unrefusable.findChildren<QPushButton *>().size(), 1);
    qApp->setStyleSheet(QString());
}

TEST_F(PanelWindowTest, ClosesWhenEverythingIsSaved)
{
    start({fixtureFile("good_plugin")});
    window->show();
    EXPECT_TRUE(window->close());
}

TEST_F(PanelWindowTest, ItsTextsFollowTheLanguageThatTheOperatorChooses)
{
    start({fixtureFile("good_plugin"), fixtureFile("no_entry")});
    auto *choice = child<QComboBox>("languageChoice");
    const struct
    {
        const char *key, *title, *category, *log, *problems, *controller, *problemTitle;
    } languages[] = {
        {"ru", "Панель робота", "Пакеты", "Журнал", "Проблемы", "Нет контроллера",
         "Панель запустилась не полностью"},
        {"cn", "机器人面板", "工艺包", "日志", "问题", "无控制器", "面板未完全启动"},
        {"jp", "ロボットパネル", "パッケージ", "ログ", "問題", "コントローラなし",
         "パネルは完全には起動しませんでした"},
        {"kr", "로봇 패널", "패키지", "로그", "문제", "컨트롤러 없음", "패널이 완전히 시작되지 않았습니다"},
        {"en", "Robot panel", "Packages", "Log", "Problems", "No controller",
         "The panel did not start completely"}};
    for (const auto &language : languages) {
        Q_EMIT choice->activated(choice->findData(QLatin1String(language.key)));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // what the navigator gave up
        EXPECT_EQ(window->windowTitle(), QString::fromUtf8(language.title));
        EXPECT_EQ(child<QWidget>("navigator")->findChild<QLabel *>()->text(),
                  QString::fromUtf8(language.category));
        EXPECT_EQ(child<QPushButton>("nav.panel.notices")->text(), QString::fromUtf8(language.log));
        EXPECT_EQ(child<QPushButton>("nav.panel.problems")->accessibleName(),
                  QString::fromUtf8(language.problems));
        EXPECT_EQ(child<QLabel>("noticeTitle")->text(), QString::fromUtf8(language.log));
        EXPECT_EQ(child<QLabel>("controllerState")->text(), QString::fromUtf8(language.controller));
        EXPECT_EQ(child<QWidget>("problemPage")->findChild<QLabel *>("problemText")->text(),
                  QString::fromUtf8(language.problemTitle));
    }
}

TEST_F(PanelWindowTest, TheNavigatorIsAsWideAsItsTitlesNeed)
{
    start({fixtureFile("good_plugin")});
    window->show();
    auto *navigator = child<QWidget>("navigator");
    const int usual = navigator->width();
    m("ix.nav")->cmobj(0)->set(nullptr, "title", QStringLiteral("A title with two words"), true);
    QCoreApplication::sendPostedEvents();
    const auto *button = child<QPushButton>("nav.sample_plugin.page");
    EXPECT_GT(navigator->width(), usual);
    EXPECT_GE(button->width(), button->sizeHint().width());
    m("ix.nav")->cmobj(0)->set(nullptr, "title", QString(200, QLatin1Char('x')), true);
    EXPECT_LT(navigator->width(), 300);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // what the navigator gave up
    const auto *cut = child<QPushButton>("nav.sample_plugin.page");
    EXPECT_LE(cut->sizeHint().width(), navigator->width());
    EXPECT_TRUE(cut->text().endsWith(QChar(0x2026)));
    EXPECT_EQ(cut->accessibleName(), QString(200, QLatin1Char('x')));
    m("ix.nav")->cmobj(0)->set(nullptr, "title", QStringLiteral("Sample"), true);
    EXPECT_EQ(navigator->width(), usual);
}
