#include "ui/long_work.h"

#include "ui/long_work_dialog.h"
#include "ui/page_fixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <atomic>

namespace {

using palx::Progress;
using palx::WorkEnd;
using Runner = WorkEnd (*)(QWidget *, const QString &, const palx::Work &, int);

constexpr Runner kWays[] = {&palx::runInSlices, &palx::runInThread};
constexpr int kBoundMs = 10000;
const QString kTitle = QStringLiteral("Export");

LongWorkDialog *shownDialog()
{
    return qobject_cast<LongWorkDialog *>(QApplication::activeModalWidget());
}

/// Works until it is told to stop; gives up after the bound.
bool workUntil(Progress *progress, const std::function<bool()> &isEnough)
{
    QElapsedTimer bound;
    bound.start();
    while (!isEnough() && !bound.hasExpired(kBoundMs))
        progress->step(3, 8, "паллета 3");
    return isEnough();
}

/// Acts once on the dialog, as soon as there is one that can be acted on.
struct Operator
{
    explicit Operator(const std::function<bool(LongWorkDialog *)> &act)
    {
        QObject::connect(&timer, &QTimer::timeout, [this, act] {
            LongWorkDialog *dialog = shownDialog();
            if (dialog && !hasActed)
                hasActed = act(dialog);
        });
        timer.start(1);
    }
    QTimer timer;
    std::atomic<bool> hasActed{false};
};

} // namespace

TEST(LongWork, ShowsHowFarItIsAndRunsToItsEnd)
{
    for (const Runner run : kWays) {
        QWidget page;
        QString shown;
        QThread *where = nullptr;
        Operator looker([&](LongWorkDialog *dialog) {
            const auto *bar = partOf<QProgressBar>(*dialog, "barDone");
            shown = QStringLiteral("%1: %2 of %3")
                        .arg(partOf<QLabel>(*dialog, "lblStep")->text())
                        .arg(bar->value())
                        .arg(bar->maximum());
            return bar->maximum() > 0; // something is told
        });
        const WorkEnd end = run(
            &page, kTitle,
            [&](Progress &progress) {
                EXPECT_TRUE(workUntil(&progress, [&] { return bool(looker.hasActed); }));
                EXPECT_TRUE(progress.enterLastPart());
                where = QThread::currentThread();
            },
            0);
        EXPECT_EQ(end, WorkEnd::Finished);
        EXPECT_EQ(shown, "паллета 3: 3 of 8");
        EXPECT_EQ(where == page.thread(), run == kWays[0]);
        EXPECT_EQ(page.findChild<LongWorkDialog *>(), nullptr);
    }
}

TEST(LongWork, IsCancelledByTheButtonAndByClosing)
{
    const std::function<bool(LongWorkDialog *)> ways[] = {
        [](LongWorkDialog *dialog) {
            partOf<QPushButton>(*dialog, "btnCancel")->click();
            return true;
        },
        [](LongWorkDialog *dialog) { return dialog->close(), true; }};
    for (const auto &way : ways)
        for (const Runner run : kWays) {
            QWidget page;
            Operator canceller(way);
            bool mayFinish = true;
            const WorkEnd end = run(
                &page, kTitle,
                [&](Progress &progress) {
                    EXPECT_TRUE(workUntil(&progress, [&] { return progress.isCancelled(); }));
                    mayFinish = progress.enterLastPart();
                },
                0);
            EXPECT_EQ(end, WorkEnd::Cancelled);
            EXPECT_FALSE(mayFinish);
        }
}

TEST(LongWork, TheLastPartCannotBeCancelled)
{
    for (const Runner run : kWays) {
        QWidget page;
        bool couldCancel = true;
        std::atomic<bool> isLast{false};
        Operator late([&](LongWorkDialog *dialog) {
            if (!isLast)
                return false;
            dialog->reject();
            couldCancel = partOf<QPushButton>(*dialog, "btnCancel")->isEnabled();
            return true;
        });
        const WorkEnd end = run(
            &page, kTitle,
            [&](Progress &progress) {
                EXPECT_TRUE(progress.enterLastPart());
                isLast = true;
                EXPECT_TRUE(workUntil(&progress, [&] { return bool(late.hasActed); }));
                EXPECT_FALSE(progress.isCancelled());
            },
            0);
        EXPECT_EQ(end, WorkEnd::Finished);
        EXPECT_FALSE(couldCancel);
    }
}

TEST(LongWork, ThePageMayEndMeanwhile)
{
    for (const Runner run : kWays) {
        auto *page = new QWidget;
        std::atomic<bool> isGone{false};
        QTimer remover;
        QObject::connect(&remover, &QTimer::timeout, [&] {
            if (isGone || !shownDialog())
                return;
            delete page;
            isGone = true;
        });
        remover.start(1);
        const WorkEnd end = run(
            page, kTitle, [&](Progress &progress) { workUntil(&progress, [&] { return bool(isGone); }); }, 0);
        EXPECT_EQ(end, WorkEnd::Finished);
    }
}
