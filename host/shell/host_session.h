#pragma once

#include "orba/plugin_api.h"
#include "orba/module_object.h"
#include "shell/problem.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace bwaf {
class BModule;
class CenterWidget;
enum class Step;
} // namespace bwaf

namespace host {

class Carrier;
class ControllerLink;
class LogKeeper;
class Store;

/// How to start. Folders are made when missing.
struct PALX_API SessionOptions
{
    QString dataFolder;        ///< store, settings file, logs; empty: no store, no file is written
    QString workspaceFolder;   ///< controller workspace; empty: as the settings say, else in the data folder
    QString language;          ///< "en", "cn", "ru", "jp", "kr"; empty: as the settings say
    std::optional<bool> touch; ///< fields open a keypad; unset: as the settings say
    QStringList pluginFiles;   ///< libraries to load
    QStringList linkedPlugins; ///< names of plug-ins that this program is linked with
    QStringList examples;      ///< files for plug-ins of `pluginFiles` that have no data yet
    /// Makes the way to the controller; empty: the panel has none.
    std::function<std::unique_ptr<Carrier>()> carrier;
    bool pages = true; ///< false stops the life cycle after `afterInit`: no page is made, QtCore is enough
};

/// One run of the panel's framework in a process: settings, store, global nodes, plug-ins, their life cycle.
/// The panel and the command line use it alike; a process may run several sessions one after the other, never
/// two at once.
///
/// What fails is kept as a Problem and told by `problemFound`; the rest goes on. GUI thread only.
class PALX_API HostSession : public QObject
{
    Q_OBJECT

public:
    explicit HostSession(SessionOptions options, QObject *parent = nullptr);
    /// Stops when still running.
    ~HostSession() override;

    /// Runs everything up to `afterSetup` (`afterInit` without pages). True when nothing failed.
    bool start();
    /// The steps `render` and `afterRender`, just before the window is shown.
    void render();
    /// The steps `idle` and `afterIdle`.
    void idle();
    /// Detaches the modules, ends pages and modules, saves and closes the store, ends the trees. Does nothing
    /// twice.
    void stop();
    bool isRunning() const { return running_; }

    const QList<Problem> &problems() const { return problems_; }
    /// The modules that came up, in the order of their plug-ins.
    QList<bwaf::BModule *> modules() const;
    bwaf::BModule *module(const QString &name) const;
    /// Where pages are; made by `start`, null without pages. The panel may place it in its window; `stop`
    /// ends it.
    bwaf::CenterWidget *centerWidget() const;
    const SessionOptions &options() const { return options_; }
    /// Saves now what the store would save in a moment; false when that failed (a Problem says why).
    bool save();

Q_SIGNALS:
    void problemFound(const QString &text);

private:
    void applySettings();
    void dropSettings();
    bool makeFolder(const QString &folder);
    void openStore();
    void closeStore();
    void buildNodes();
    void openLink();
    void closeLink();
    void loadPlugins();
    void loadExamples();
    bwaf::BModule *construct(const QString &name, const QString &where);
    void advance(bwaf::Step last);
    void endModules();
    void report(const Problem &problem);

    SessionOptions options_;
    QList<Problem> problems_;
    QList<QPointer<bwaf::BModule>> modules_;
    QList<const orba::PluginApi *> constructed_; ///< plug-ins from files that made a module
    QPointer<bwaf::CenterWidget> center_;
    std::unique_ptr<Store> store_;
    std::unique_ptr<LogKeeper> logKeeper_;
    std::unique_ptr<ControllerLink> link_;
    bool running_ = false;
};

} // namespace host
