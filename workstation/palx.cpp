#include "workstation/palx.h"

#include "ix/paths.h"
#include "ix/xnav.h"
#include "nexo/manager_helper.h"
#include "stack/recipe_file.h"
#include "ui/stackhomepage.h"
#include "ui/stacksetuppage.h"
#include "workstation/hidden_project.h"
#include "workstation/plugin_log.h"
#include "workstation/plugin_node.h"

#include <QEvent>

namespace {

constexpr int kVersionNumber = 11;
const char *const kMajor = "2";
const char *const kMinor = "0";

// Runs while the library is loaded; the host finds the plug-in through these.
const bool registered = [] {
    const QString name = palx::getPluginName();
    bfactory().regist(name, [](QObject *parent) -> bwaf::BModule * { return new Palx(parent); });
    return orba::pluginManager().regist(name, [] { return kVersionNumber; });
}();

QString pageKey(const char *page)
{
    return mName(palx::getPluginName(), QLatin1String(page));
}

/// For a panel that is looked at for the first time: an empty store gets the recipes of those files. Tools and work objects that
/// the robot has already stay.
QStringList loadExamples(const QStringList &files)
{
    if (palx::stacksNode()->cmobjCount() > 0)
        return QStringList();
    orba::Node kept;
    for (const char *key : {"global_tool", "global_wobj"})
        if (const orba::ModuleObject *own = palx::pluginNode()->c(key); own->cmobjCount() > 0)
            kept.add(orba::Name(QString::fromLatin1(key)))->assign(own->node());
    const QStringList failed = palx::loadRecipeFiles(palx::pluginNode(), files);
    for (int i = 0; i < kept.size(); ++i)
        palx::pluginNode()->c(kept.at(i)->name().toString())->copyFrom(*kept.at(i));
    return failed;
}

/// Follows a change of language, which reaches the page that it watches: the navigator's entry is data that no widget
/// translates. The entry ends with the module, and so does this.
class EntryTitle : public QObject
{
    Q_OBJECT

public:
    EntryTitle(Palx *module, orba::ModuleObject *entry) : QObject(module), entry_(entry) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            entry_->set(parent(), "title", Palx::tr("W-Palletizing"), true);
        return QObject::eventFilter(watched, event);
    }

private:
    orba::ModuleObject *entry_;
};

} // namespace

extern "C" const orba::PluginApi *orba_plugin_api()
{
    static const orba::PluginApi entry{orba::kPluginAbi, "palx_workstation", &loadExamples};
    return &entry;
}

namespace palx_workstation {

QString version()
{
    const int number = orba::pluginManager().create(palx::getPluginName());
    return mName(QLatin1String(kMajor), QLatin1String(kMinor), QString::number(number - 1));
}

const orba::PluginApi *api()
{
    return orba_plugin_api();
}

} // namespace palx_workstation

Palx::Palx(QObject *parent) : bwaf::BModule(parent)
{
    const QString name = palx::getPluginName();
    palx::writePluginLog(name + QStringLiteral(" v ") + palx_workstation::version());
    nexo::ManagerHelper::instance()->registQrcAlias(name);
    bindMobjJson(name, ix::templatePath(name, name), true);
    mobj()->set(this, "version", palx_workstation::version(), true);
}

Palx::~Palx() = default;

QString Palx::name() const
{
    return palx::getPluginName();
}

void Palx::init()
{
    auto *entry = ix::xnav::registerPage(this, tr("W-Palletizing"), QStringLiteral("robot.pack"), QString());
    entry->set(this, "nav", pageKey("home_page"), true);
    entry->set(this, "key", QStringLiteral("pallet_workstation, maduo_workstation"), true);
    new EntryTitle(this, entry);
    new palx::HiddenProject(this);
}

void Palx::setup()
{
    bwaf::CenterWidget *center = instantiatedCenterWidget(this);
    auto *homePage = new StackHomePage(center, this);
    auto *setupPage = new StackSetupPage(center, this);
    connect(homePage, &StackHomePage::reFreshPageDate, setupPage, &StackSetupPage::pageDateRefresh);
    addSubmodule(homePage);
    addSubmodule(setupPage);
    homePage->wgt()->installEventFilter(findChild<EntryTitle *>());
    center->addPage(homePage->wgt(), pageKey("home_page"));
    center->addPage(setupPage->wgt(), pageKey("setup_page"));
}

#include "palx.moc"
