#include "controller/saver.h"

namespace controller {

Saver::Saver(Station *station) : station_(station), keeper_(station->keeper())
{
    if (keeper_)
        thread_ = std::thread([this] { run(); });
}

Saver::~Saver()
{
    snapshots_.close();
    if (thread_.joinable())
        thread_.join();
}

void Saver::run()
{
    StateSnapshot snapshot;
    while (snapshots_.pop(&snapshot)) {
        QString why;
        keeper_->save(snapshot, &why);
        snapshot = StateSnapshot(); // old recipes are freed here and not held until the next one comes
        results_.push(why);
    }
}

void Saver::takeResults(Clock::time_point now)
{
    QString why;
    while (results_.tryPop(&why)) {
        isWriting_ = false;
        station_->snapshotWritten(why);
        isDue_ = station_->isChanged();
        due_ = now + (why.isEmpty() ? kDelay : kRetry);
    }
}

void Saver::look(Clock::time_point now)
{
    takeResults(now);
    if (!isDue_ && station_->isChanged()) {
        isDue_ = true;
        due_ = now + kDelay;
    }
    if (!isDue_ || isWriting_ || now < due_)
        return;
    isDue_ = false;
    isWriting_ = true;
    snapshots_.push(station_->takeSnapshot());
}

void Saver::finish()
{
    snapshots_.close();
    if (thread_.joinable())
        thread_.join();
    takeResults(Clock::now());
    station_->save();
}

} // namespace controller
