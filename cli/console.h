#pragma once

#include "nexo/manager_helper.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

namespace cli {

/// What a command tells the caller of the program.
enum ExitCode { kDone = 0, kRefused = 1, kWrongUsage = 2 };

/// One line on standard error, "palx: " before it.
void say(const QString &text);
/// Writes a result to standard output; says why when that fails (a full disk, for instance).
bool putResult(const QByteArray &text);
/// Says why and returns kRefused.
int refuse(const QString &reason);

bool resultGoesToTerminal();

/// A line on standard error that is rewritten while long work goes on; silent when standard error is no
/// terminal.
class Progress
{
public:
    Progress();
    ~Progress();
    /// Shows "what: done of total"; cheap enough for every step of a loop.
    void show(const QString &what, int done, int total);
    void clear();

private:
    bool terminal_;
    bool shown_ = false;
    QElapsedTimer sinceShown_;
};

/// The host's messages on standard error. Questions are answered with a refusal: nobody is there to ask, unless the command
/// itself is the answer.
class ConsolePresenter : public nexo::MessagePresenter
{
public:
    ConsolePresenter();
    ~ConsolePresenter() override;
    bool ask(const nexo::Message &message) override;
    void notify(const QString &level, const QString &text) override;
    /// Notices are left out while a command prints the same texts as its result.
    void setQuiet(bool quiet) { quiet_ = quiet; }
    /// Questions are accepted, and not printed.
    void setAccepting(bool accepting) { accepting_ = accepting; }

private:
    bool quiet_ = false;
    bool accepting_ = false;
};

} // namespace cli
