#pragma once

#include "console.h"
#include "shell/host_session.h"

#include <QTemporaryDir>
#include <QVector>

namespace cli {

/// A record that the plug-in published to the operator's log.
struct LogRecord
{
    QString level; ///< "error" or "warning"
    QString text;
};

/// The plug-in in this process, brought up by the host's session as in the panel. Without a data folder
/// nothing is stored and no file is written; the workspace is a temporary folder. Nothing of an installed
/// panel is read or changed.
class Session
{
public:
    enum class Pages { Without, With };
    explicit Session(Pages pages, const QString &language = QString(), const QString &dataFolder = QString());
    /// On the folders and with the controller of the options; the plug-in and the language are filled in.
    explicit Session(host::SessionOptions options);

    /// False when the plug-in did not come up; every problem has then been said.
    bool start();
    /// The records published since the last call, oldest first.
    QVector<LogRecord> takeLog();

    host::HostSession &host() { return host_; }
    ConsolePresenter &presenter() { return presenter_; }

private:
    host::SessionOptions options(Pages pages, const QString &language, const QString &dataFolder) const;
    static host::SessionOptions completed(host::SessionOptions options);
    void keepRecord(const QVariant &json);

    QTemporaryDir folder_;
    ConsolePresenter presenter_;
    QVector<LogRecord> log_;
    host::HostSession host_;
};

} // namespace cli
