#include "shell/host_session.h"

#include "bwaf/bmodule.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "core/log_keeper.h"
#include "core/store.h"
#include "nexo/manager_helper.h"
#include "nexo/setting_manager.h"
#include "orba/tree_registry.h"
#include "shell/center_provider.h"
#include "shell/life_cycle.h"
#include "shell/plugin_loader.h"

#include <QDir>
#include <QFileInfo>
#include <QThreadPool>

namespace host {

namespace {

// Trees, settings and the centre widget are the process's own, so two sessions at once would share them
// unknowingly.
const HostSession *runningSession = nullptr;

// What the start of the panel may cost at most for a controller that is slow to answer.
constexpr int kFirstStateMs = 500;

const QString kDataKey = QStringLiteral("data");
const QString kWorkspaceKey = QStringLiteral("workspace");
const QString kLanguageKey = QStringLiteral("language");
const QString kTouchKey = QStringLiteral("touch");

QString given(const QString &text)
{
    return text.isEmpty() ? QString() : text; // a null text leaves the setting to the lower layers
}

QString absolute(const QString &folder)
{
    return folder.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

} // namespace

HostSession::HostSession(SessionOptions options, QObject *parent)
    : QObject(parent), options_(std::move(options))
{
    options_.dataFolder = absolute(options_.dataFolder);
    options_.workspaceFolder = absolute(options_.workspaceFolder);
}

HostSession::~HostSession()
{
    stop();
}

void HostSession::report(const Problem &problem)
{
    problems_.append(problem);
    Q_EMIT problemFound(problem.text());
}

bool HostSession::start()
{
    if (runningSession) {
        report({tr("The panel cannot start"), QString(), tr("another session runs in this process")});
        return false;
    }
    runningSession = this;
    running_ = true;
    applySettings();
    openStore();
    buildNodes();
    openLink();
    if (options_.pages) {
        center_ = new bwaf::CenterWidget;
        setCenterWidget(center_);
    }
    loadPlugins();
    advance(bwaf::Step::AfterInit);
    loadExamples();
    if (options_.pages)
        advance(bwaf::Step::AfterSetup);
    return problems_.isEmpty();
}

void HostSession::advance(bwaf::Step last)
{
    bwaf::LifeCycle::advance(modules(), last);
}

void HostSession::render()
{
    if (running_ && options_.pages)
        advance(bwaf::Step::AfterRender);
}

void HostSession::idle()
{
    if (running_ && options_.pages)
        advance(bwaf::Step::AfterIdle);
}

void HostSession::stop()
{
    if (!running_)
        return;
    running_ = false;
    endModules();
    closeLink();
    logKeeper_.reset();
    closeStore();
    orba::TreeRegistry &registry = orba::TreeRegistry::instance();
    while (registry.root().size() > 0)
        registry.removeModule(registry.root().at(0)->name().toString());
    dropSettings();
    runningSession = nullptr;
}

/// Pages end before the modules they call, modules before the trees they listen to.
void HostSession::endModules()
{
    bwaf::LifeCycle::detach(modules());
    if (center_)
        center_->clearPages();
    while (!modules_.isEmpty())
        if (bwaf::BModule *last = modules_.takeLast())
            bwaf::LifeCycle::end(last);
    setCenterWidget(nullptr);
    delete center_.data();
}

// ---------------------------------------------------------------- settings and folders

void HostSession::applySettings()
{
    auto *settings = nexo::SettingManager::instance();
    settings->setOverride(kDataKey, options_.dataFolder.isNull() ? QStringLiteral("") : options_.dataFolder);
    settings->setOverride(kWorkspaceKey, given(options_.workspaceFolder));
    settings->setOverride(kLanguageKey, given(options_.language));
    nexo::ManagerHelper::instance()->registQrcAlias(QStringLiteral("palx_host")); // before the first text
    if (options_.touch)
        settings->setOverride(kTouchKey, *options_.touch ? QStringLiteral("true") : QStringLiteral("false"));
    if (makeFolder(options_.dataFolder)) {
        QString error;
        if (!settings->useFile(QDir(options_.dataFolder).filePath(QStringLiteral("settings.json")), &error))
            report({error, QString(), QString()});
        QString workspace = settings->getStr(kWorkspaceKey);
        if (workspace.isEmpty())
            workspace = QStringLiteral("workspace");
        if (QDir::isRelativePath(workspace)) // wherever the panel was started
            settings->setOverride(kWorkspaceKey, QDir(options_.dataFolder).absoluteFilePath(workspace));
    }
    makeFolder(settings->getStr(kWorkspaceKey));
}

void HostSession::dropSettings()
{
    for (const QString &key : {kDataKey, kWorkspaceKey, kLanguageKey, kTouchKey})
        nexo::SettingManager::instance()->setOverride(key, QString());
    nexo::SettingManager::instance()->useFile(QString());
}

/// False without a folder; one that cannot be made is reported.
bool HostSession::makeFolder(const QString &folder)
{
    if (folder.isEmpty())
        return false;
    if (QDir().mkpath(folder))
        return true;
    report({tr("A folder cannot be made"), folder, tr("nothing is stored there")});
    return false;
}

// ---------------------------------------------------------------- store and trees

void HostSession::openStore()
{
    if (options_.dataFolder.isEmpty())
        return;
    store_ = std::make_unique<Store>();
    connect(store_.get(), &Store::problem, this, [this](const QString &text) {
        report({text, QString(), QString()});
    });
    QString error;
    if (store_->open(options_.dataFolder, &error))
        return;
    report({tr("The stored data cannot be used"), options_.dataFolder, error});
    store_.reset();
}

bool HostSession::save()
{
    const int told = problems_.size();
    QString error;
    if (!store_ || store_->save(&error))
        return true;
    if (problems_.size() ==
        told) // the store tells a lasting trouble only once, whoever asks must hear it again
        report({tr("The data cannot be saved"), options_.dataFolder, error});
    return false;
}

void HostSession::closeStore()
{
    save();
    store_.reset();
}

void HostSession::buildNodes()
{
    QString error;
    if (!buildGlobalNodes(&error)) {
        report({tr("The panel's own nodes cannot be built"), QString(), error});
        return;
    }
    logKeeper_ = std::make_unique<LogKeeper>();
    if (store_) // the folder is this session's alone
        logKeeper_->keepIn(QDir(options_.dataFolder).filePath(QStringLiteral("log/records.jsonl")));
}

// ---------------------------------------------------------------- controller

/// The robot's name is then known before plug-ins are constructed, if it can be known.
void HostSession::openLink()
{
    if (!options_.carrier || !logKeeper_)
        return;
    link_ = std::make_unique<ControllerLink>(options_.carrier());
    link_->open();
    link_->waitForState(kFirstStateMs);
}

/// What other threads still send goes out first; it lives in the trees that end next.
void HostSession::closeLink()
{
    QThreadPool::globalInstance()->waitForDone();
    link_.reset();
}

// ---------------------------------------------------------------- plug-ins

void HostSession::loadPlugins()
{
    for (const QString &name : qAsConst(options_.linkedPlugins)) {
        QString why;
        if (isRegistered(name, &why))
            construct(name, name);
        else
            report({tr("The plug-in cannot be used"), name, why});
    }
    for (const QString &file : qAsConst(options_.pluginFiles)) {
        Problem problem;
        const orba::PluginApi *api = loadPlugin(file, &problem);
        if (!api)
            report(problem);
        else if (construct(QString::fromUtf8(api->name), file))
            constructed_.append(api);
    }
}

/// When the modules have read what there is for their robot, which would else replace the examples' part of it.
void HostSession::loadExamples()
{
    for (const orba::PluginApi *api : qAsConst(constructed_))
        if (api->loadExamples && !options_.examples.isEmpty())
            for (const QString &failed : api->loadExamples(options_.examples))
                report({failed, QString(), QString()});
}

bwaf::BModule *HostSession::construct(const QString &name, const QString &where)
{
    if (module(name)) {
        report({tr("The plug-in is left out"), where, tr("a module \"%1\" is there already").arg(name)});
        return nullptr;
    }
    bwaf::BModule *made = bfactory().create(name, this);
    if (made)
        modules_.append(made);
    else
        report({tr("The plug-in cannot be used"), where, tr("its factory made no module \"%1\"").arg(name)});
    return made;
}

QList<bwaf::BModule *> HostSession::modules() const
{
    QList<bwaf::BModule *> list;
    for (const QPointer<bwaf::BModule> &module : modules_)
        if (module)
            list.append(module);
    return list;
}

bwaf::BModule *HostSession::module(const QString &name) const
{
    for (const QPointer<bwaf::BModule> &module : modules_)
        if (module && module->name() == name)
            return module;
    return nullptr;
}

bwaf::CenterWidget *HostSession::centerWidget() const
{
    return center_;
}

} // namespace host
