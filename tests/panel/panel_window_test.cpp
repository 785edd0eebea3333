#include "bwaf/bmodule.h"
#include "fixtures.h"
#include "ix/xtheme.h"
#include "nexo/setting_manager.h"
#include "panel/log_page.h"
#include "panel/message_dialog.h"
#include "panel/panel_window.h"
#include "shell/host_session.h"
#include "support/test_support.h"

#include <QApplication>
#include <QLabel>
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
    EXPECT_EQ(openPage(), kSamplePage);
    auto *sample = child<QPushButton>("nav.sample_plugin.page");
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
    EXPECT_EQ(m("quill.log.list")->getString("#0.title"), session->problems().first().text());
    QStringList shown;
    for (const QLabel *label : window->findChildren<QLabel *>(QStringLiteral("problemText")))
        shown.append(label->text());
    EXPECT_TRUE(shown.contains(fixtureFile("no_entry"))) << shown.join(QLatin1Char('|'));
    EXPECT_TRUE(shown.filter(QStringLiteral("orba_plugin_api")).size() == 1) << shown.join(QLatin1Char('|'));
}

TEST_F(PanelWindowTest, NoticesReachTheStripAndTheLog)
{
    nexo::ManagerHelper::instance()->throwLog(nullptr, QStringLiteral("warning"), QStringLiteral("early"));
    start({fixtureFile("good_plugin")});
    window->show();
    auto *strip = child<QPushButton>("lastNotice");
    EXPECT_EQ(strip->text(), QStringLiteral("early"));
    nexo::ManagerHelper::instance()->throwLog(nullptr, QStringLiteral("warning"), QStringLiteral("passing"));
    m("quill.log.current")
        ->set(nullptr, "", QStringLiteral(R"({"level":"error","title":"The box is lost"})"));
    QCoreApplication::processEvents();
    EXPECT_EQ(window->log()->count(), 2);
    EXPECT_EQ(strip->text(), QStringLiteral("The box is lost"));
    EXPECT_EQ(strip->property("state").toString(), QStringLiteral("fault"));
    QTest::mouseClick(strip, Qt::LeftButton);
    EXPECT_EQ(openPage(), QStringLiteral("panel.notices"));
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
    qApp->setStyleSheet(QString());
}
