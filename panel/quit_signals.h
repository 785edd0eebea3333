#pragma once

#include <QObject>

class QSocketNotifier;

namespace panel {

/// Turns SIGTERM and SIGINT into `QCoreApplication::quit()`, also out of an open dialog, so that what started and
/// ended by a service manager is saved like what the operator closes. One at a time per process; the former
/// treatment of the signals comes back with its end.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;
    /// False when the system gave no pipe; the signals then end the program at once.
    bool works() const { return notifier_ != nullptr; }
    /// Whether a signal came; one that comes before the main loop runs does not stop that loop.
    bool came() const { return came_; }

private:
    bool came_ = false;
    QSocketNotifier *notifier_ = nullptr;
};

} // namespace panel
