#include "ui/long_work.h"

#include "ui/long_work_dialog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMutex>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

namespace palx {

namespace {

/// The cancel button and the work meet here; both sides may be on different threads.
class CancelState
{
public:
    /// The operator's wish; false when it comes too late.
    bool ask()
    {
        int running = kRunning;
        return state_.compare_exchange_strong(running, kCancelled) || running == kCancelled;
    }
    bool isCancelled() { return state_ == kCancelled && (wasTold_ = true); }
    bool close()
    {
        int running = kRunning;
        return state_.compare_exchange_strong(running, kLastPart) || !isCancelled();
    }
    bool isOpen() const { return state_ == kRunning; }
    WorkEnd end() const { return wasTold_ ? WorkEnd::Cancelled : WorkEnd::Finished; }

private:
    enum { kRunning, kCancelled, kLastPart };
    std::atomic<int> state_{kRunning};
    std::atomic<bool> wasTold_{false};
};

/// The dialog of one run. It is the parent's child and may end with it.
class WorkWindow
{
public:
    WorkWindow(QWidget *parent, const QString &title, CancelState *state)
        : dialog_(new LongWorkDialog(title, parent)), state_(state)
    {
        QObject::connect(dialog_, &LongWorkDialog::cancelWanted, dialog_, [this] {
            state_->ask();
            showState();
        });
    }
    ~WorkWindow() { delete dialog_; }
    void show()
    {
        if (dialog_)
            dialog_->show();
    }
    bool isShown() const { return dialog_ && dialog_->isVisible(); }
    void showStep(int done, int total, const QString &text)
    {
        if (!dialog_)
            return;
        dialog_->showStep(done, total, text);
        showState();
    }

private:
    void showState() { dialog_->setCanCancel(state_->isOpen()); }

    QPointer<LongWorkDialog> dialog_;
    CancelState *state_;
};

class SlicedWork : public Progress
{
public:
    SlicedWork(QWidget *parent, const QString &title, int showAfterMs)
        : window_(parent, title, &state_), showAfterMs_(showAfterMs)
    {
        sinceStart_.start();
        sinceAnswer_.start();
    }
    void step(int done, int total, const QString &text) override
    {
        constexpr int kAnswerEveryMs = 30;
        const bool comesUp = !window_.isShown() && sinceStart_.hasExpired(showAfterMs_);
        if (!comesUp && !sinceAnswer_.hasExpired(kAnswerEveryMs))
            return;
        if (comesUp)
            window_.show();
        window_.showStep(done, total, text);
        // What is touched before the dialog is there waits, and the dialog then keeps it from the page.
        QCoreApplication::processEvents(window_.isShown() ? QEventLoop::AllEvents
                                                          : QEventLoop::ExcludeUserInputEvents);
        sinceAnswer_.restart();
    }
    bool isCancelled() override { return state_.isCancelled(); }
    bool enterLastPart() override { return state_.close(); }
    WorkEnd end() const { return state_.end(); }

private:
    CancelState state_;
    WorkWindow window_;
    int showAfterMs_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceAnswer_;
};

/// The side of the working thread: what it tells is fetched by the GUI thread.
class ThreadProgress : public Progress
{
public:
    explicit ThreadProgress(CancelState *state) : state_(state) {}
    void step(int done, int total, const QString &text) override
    {
        const QMutexLocker locker(&mutex_);
        done_ = done;
        total_ = total;
        text_ = text;
    }
    bool isCancelled() override { return state_->isCancelled(); }
    bool enterLastPart() override { return state_->close(); }
    void showIn(WorkWindow *window)
    {
        const QMutexLocker locker(&mutex_);
        window->showStep(done_, total_, text_);
    }

private:
    CancelState *state_;
    QMutex mutex_;
    int done_ = 0;
    int total_ = 0;
    QString text_;
};

/// Until the loop is left or the time is over.
void wait(QEventLoop *loop, int showAfterMs)
{
    QTimer::singleShot(showAfterMs, loop, [loop] { loop->exit(1); });
    loop->exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

WorkEnd runInSlices(QWidget *parent, const QString &title, const Work &work, int showAfterMs)
{
    SlicedWork progress(parent, title, showAfterMs);
    work(progress);
    return progress.end();
}

WorkEnd runInThread(QWidget *parent, const QString &title, const Work &work, int showAfterMs)
{
    constexpr int kShowEveryMs = 50;
    CancelState state;
    ThreadProgress progress(&state);
    const std::unique_ptr<QThread> thread(QThread::create([&] { work(progress); }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    wait(&loop, showAfterMs);
    if (!thread->isFinished()) {
        WorkWindow window(parent, title, &state);
        QTimer refresh;
        QObject::connect(&refresh, &QTimer::timeout, [&] { progress.showIn(&window); });
        refresh.start(kShowEveryMs);
        progress.showIn(&window);
        window.show();
        loop.exec();
    }
    if (!thread->isFinished())
        state.ask(); // the program is to end
    thread->wait();
    return state.end();
}

} // namespace palx
