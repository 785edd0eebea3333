#include "workstation/hidden_project.h"

#include "orba/files.h"
#include "orba/module_manager.h"
#include "workstation/config_log.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "workstation/workspace.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace palx {

namespace {

using orba::FormatError;
using orba::ModuleManager;
using orba::ModuleObject;
using orba::Node;

HiddenProject *keeper = nullptr;

/// A part of the plugin node and where it is kept.
struct Part {
    const char *key;
    const char *file; ///< without suffix
    Node::Kind kind;
    bool xmlOnly;
};
constexpr Part kParts[] = {{"projects", "var", Node::Kind::Map, true},
                           {"global_tool", "tool", Node::Kind::List, false},
                           {"global_wobj", "wobj", Node::Kind::List, false}};

const Part &partOf(const char *key)
{
    for (const Part &part : kParts)
        if (qstrcmp(part.key, key) == 0)
            return part;
    return kParts[0];
}

bool usesJson(const Part &part)
{
    return !part.xmlOnly && checkNexoVersion(QStringLiteral("2.3"));
}

QString fileName(const Part &part, bool json)
{
    return QStringLiteral("%1.%2").arg(QLatin1String(part.file), QLatin1String(json ? "json" : "xml"));
}

bool read(const QString &file, bool json, Node *node, FormatError *error)
{
    return json ? ModuleManager::readFromJson(file, node, error) : ModuleManager::readFromXmlFile(file, node, error);
}

QString text(const char *source)
{
    return QCoreApplication::translate("palx", source);
}

} // namespace

HiddenProject::HiddenProject(QObject *parent) : QObject(parent)
{
    keeper = this;
    connect(m("nexo.r.id"), &ModuleObject::changed, this, &HiddenProject::followRobot);
    followRobot();
    // Any page may edit tools and records, and none has to remember to save: the parts are small, so they are compared
    // whenever the event loop has done its work.
    if (auto *dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &HiddenProject::saveIfChanged);
}

HiddenProject::~HiddenProject()
{
    save();
    if (keeper == this)
        keeper = nullptr;
}

HiddenProject *HiddenProject::current()
{
    return keeper;
}

QString HiddenProject::folder()
{
    const QString robot = robotFolder();
    return robot.isEmpty() ? QString() : QDir(robot).filePath(hidden_project_name);
}

void HiddenProject::followRobot()
{
    const QString found = folder();
    if (found.isEmpty() || found == folder_)
        return;
    folder_ = found;
    known_.clear();
    failed_.clear();
    load();
}

void HiddenProject::load()
{
    for (const Part &part : kParts)
        loadPart(part.key);
    triggerNode()->c("refresh_data")->trigger();
    save();
}

void HiddenProject::loadPart(const char *key)
{
    const Part &part = partOf(key);
    ModuleObject *target = pluginNode()->c(key);
    // The form of the running version first; the other one stems from before a change of the controller's software.
    for (const bool json : {usesJson(part), !usesJson(part)}) {
        if (json && part.xmlOnly)
            continue;
        const QString file = QDir(folder_).filePath(fileName(part, json));
        if (!QFileInfo::exists(file))
            continue;
        Node content;
        FormatError error;
        if (read(file, json, &content, &error) && content.kind() == part.kind) {
            if (content != target->node())
                target->copyFrom(content);
            if (json == usesJson(part))
                known_[key] = content;
            return;
        }
        const QString why = error.isSet() ? error.text() : text(QT_TRANSLATE_NOOP("palx", "it holds something else"));
        const QString aside = orba::setAside(file);
        recordCfgLog(text(QT_TRANSLATE_NOOP("palx", "%1 cannot be read and was kept as %2: %3"))
                         .arg(file, aside.isEmpty() ? file : QFileInfo(aside).fileName(), why),
                     true);
    }
}

void HiddenProject::save()
{
    if (folder_.isEmpty())
        return;
    for (const Part &part : kParts)
        savePart(part.key);
}

void HiddenProject::saveIfChanged()
{
    if (folder_.isEmpty() || pluginNode()->isEmptyMobj())
        return;
    for (const Part &part : kParts) {
        // What could not be written is tried again after the next change and at the end, not all the time.
        const Node *now = pluginNode()->node().child(orba::Path(part.key));
        const auto failed = failed_.find(part.key);
        if (now && (failed == failed_.end() || failed->second != *now))
            savePart(part.key);
    }
}

void HiddenProject::savePart(const char *key)
{
    const Part &part = partOf(key);
    const Node *now = pluginNode()->node().child(orba::Path(key));
    const auto known = known_.find(key);
    if (!now || (known != known_.end() && known->second == *now))
        return;
    const bool json = usesJson(part);
    const QString file = QDir(folder_).filePath(fileName(part, json));
    FormatError error;
    if (!QDir().mkpath(folder_))
        error.what = text(QT_TRANSLATE_NOOP("palx", "the folder cannot be made"));
    else if (json)
        ModuleManager::writeToJson(*now, file, &error);
    else
        ModuleManager::writeToXmlFile(*now, file, &error);
    if (!error.isSet()) {
        known_[key] = *now;
        failed_.erase(key);
        return;
    }
    const bool isNews = failed_.count(key) == 0;
    failed_[key] = *now;
    if (isNews) {
        recordCfgLog(text(QT_TRANSLATE_NOOP("palx", "%1 cannot be written: %2. The panel keeps the data; make room or "
                                                    "give access, then change them once more"))
                         .arg(file, error.what),
                     true);
    }
}

void saveDataToHiddenProject()
{
    if (keeper)
        keeper->save();
}

} // namespace palx
