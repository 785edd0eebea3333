#include "project/rules/project_variables.h"

#include "orba/module_manager.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_log.h"
#include "workstation/plugin_node.h"

#include <QFile>

namespace palx {

using orba::ModuleObject;
using orba::Name;
using orba::Node;

namespace {

struct Variable
{
    QString name;
    QString description;
    QString type;
    QString value;
    bool isPersistent;
};

struct Row
{
    const char *name;
    const char *description;
    const char *type;
    const char *value;
    bool isPersistent;
};

/// In the order in which they are created.
constexpr Row kRows[] = {
    {"enableStackL", QT_TRANSLATE_NOOP("palx::ProjectText", "Enable left-side stacking"), "bool", "false",
     true},
    {"enableStackR", QT_TRANSLATE_NOOP("palx::ProjectText", "Enable right-side stacking"), "bool", "false",
     true},
    {"palletIndexL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side recipe index"), "int", "0", true},
    {"palletCountL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side pallet count"), "int", "0", true},
    {"palletTotalCountL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side pallet total count"), "int", "0",
     true},
    {"currentLayerL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side current layer"), "int", "1", true},
    {"layerCountL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side current layer count"), "int", "1",
     true},
    {"totalPalletsL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side total pallets"), "int", "0", true},
    {"totalPiledCountL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side total piled count"), "int", "0",
     true},
    {"cycleTimeL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side cycle time"), "double", "0.0", true},
    {"boxHeightL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left side box height"), "int", "300", true},
    {"palletIndexR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side recipe index"), "int", "0", true},
    {"palletCountR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side pallet count"), "int", "0", true},
    {"palletTotalCountR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side pallet total count"), "int", "0",
     true},
    {"currentLayerR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side current layer"), "int", "1", true},
    {"layerCountR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side current layer count"), "int", "1",
     true},
    {"totalPalletsR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side total pallets"), "int", "0", true},
    {"totalPiledCountR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side total piled count"), "int", "0",
     true},
    {"cycleTimeR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side cycle time"), "double", "0.0", true},
    {"boxHeightR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right side box height"), "int", "300", true},
    {"palletStatus", QT_TRANSLATE_NOOP("palx::ProjectText", "Left: 1, Right: 2"), "int", "0", true},
    {"flagL", QT_TRANSLATE_NOOP("palx::ProjectText", "Left full flag"), "int", "0", true},
    {"flagR", QT_TRANSLATE_NOOP("palx::ProjectText", "Right full flag"), "int", "0", true},
    {"flagL1", "", "int", "0", true},
    {"flagR1", "", "int", "0", true},
    {"rise", QT_TRANSLATE_NOOP("palx::ProjectText", "Lifting column state, 1 up, 0 down"), "int", "1", true},
    {"use_rise", QT_TRANSLATE_NOOP("palx::ProjectText", "Using lifting column"), "int", "0", true},
    {"SetZ", QT_TRANSLATE_NOOP("palx::ProjectText", "Stacking maximum height"), "int", "700", true},
    {"MaxZ",
     QT_TRANSLATE_NOOP("palx::ProjectText", "Maximum height reachable by the robot in the stacking scene"),
     "int", "1000", true},
    {"grabbing", QT_TRANSLATE_NOOP("palx::ProjectText", "Gripping materials"), "bool", "false", true},
    {"Margin", QT_TRANSLATE_NOOP("palx::ProjectText", "StandBy Point Margin"), "int", "400", true},
    {"liftHeight", QT_TRANSLATE_NOOP("palx::ProjectText", "Lift height"), "int", "550", true},
    {"clock0", QT_TRANSLATE_NOOP("palx::ProjectText", "calculate time"), "clock", "", false},
    {"boxheight", QT_TRANSLATE_NOOP("palx::ProjectText", "box height"), "int", "300", false},
    {"flagLL", "", "bool", "false", false},
    {"flagRR", "", "bool", "false", false},
    {"flag", "", "bool", "false", false},
    {"BHOME", QT_TRANSLATE_NOOP("palx::ProjectText", "current pos"), "robtarget",
     "p:{{0,0,0},{0,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}", false},
};

ModuleObject *variableList()
{
    return m("quill.project.var._list");
}

ModuleObject *monitorList()
{
    return m("quill.project.var_monitor._list");
}

bool isVersion23()
{
    return checkNexoVersion(QStringLiteral("2.3"));
}

Node newVariable(const Variable &variable, int index)
{
    Node node;
    if (isVersion23())
        node.ensureChild(Name(u"id"))->setInt(index);
    node.ensureChild(Name(u"name"))->setString(variable.name);
    node.ensureChild(Name(u"description"))->setString(variable.description);
    node.ensureChild(Name(u"type"))->setString(variable.type);
    node.ensureChild(Name(u"pers"))
        ->setString(variable.isPersistent ? QStringLiteral("true") : QStringLiteral("false"));
    const qint64 scalar[] = {0, 0, 0};
    node.ensureChild(Name(u"d"))->setInts(scalar, 3);
    node.ensure(u"value.[0][0][0]")->setString(variable.value);
    return node;
}

/// The template of a monitored variable stands beside the list or in it.
Node newMonitored(const Variable &variable)
{
    const ModuleObject *inside = monitorList()->c("default");
    Node node = (inside->isEmptyMobj() ? m("quill.project.var_monitor.default") : inside)->node();
    node.ensure(u"name")->setString(variable.name);
    node.ensure(u"description")->setString(variable.description);
    node.ensure(u"type")->setString(variable.type);
    return node;
}

bool reportUnlessWritten(bool isWritten, const QString &file)
{
    return isWritten || reportProject("error", ProjectText::tr("Cannot write to file: %1").arg(file));
}

void writeMonitored()
{
    const QString file = getFileName(QStringLiteral("var_monitor.json"), QString());
    reportUnlessWritten(orba::ModuleManager::writeToJson(monitorList()->node(), file), file);
}

/// Returns whether something is monitored that was not before.
bool create(const Variable &variable)
{
    if (checkVarExists(variable.name))
        return false;
    variableList()->addUnnamed()->copyFrom(newVariable(variable, variableList()->cmobjCount() - 1));
    if (!variable.isPersistent || !isVersion23())
        return false;
    monitorList()->addUnnamed()->copyFrom(newMonitored(variable));
    return true;
}

} // namespace

bool checkVarExists(const QString &name)
{
    return recordOfName(std::as_const(variableList()->node()), name) != nullptr;
}

void createVar(const QString &name, const QString &description, const QString &type, const QString &value)
{
    create({name, description, type, value, false});
}

void createPERSVar(const QString &name, const QString &description, const QString &type, const QString &value)
{
    if (create({name, description, type, value, true}))
        writeMonitored();
}

void createProjectVariables()
{
    if (currentProjectRecord().isNull())
        return;
    writePluginLog(QStringLiteral("Create variables for project:") + currentProject());
    bool isMonitored = false;
    for (const Row &row : kRows) {
        const Variable variable{QLatin1String(row.name), QLatin1String(row.description),
                                QLatin1String(row.type), QLatin1String(row.value), row.isPersistent};
        isMonitored = create(variable) || isMonitored;
    }
    if (isMonitored) // once for all of them: every file is written to the disk at once
        writeMonitored();
}

QString shownDescription(const QString &description)
{
    return description.isEmpty() ? description : ProjectText::tr(description.toUtf8().constData());
}

bool writeVariables()
{
    if (!isVersion23())
        return true;
    Node content;
    content.ensureChild(Name(u"version"))->setString(QStringLiteral("0.2"));
    content.ensureChild(Name(u"variables"))->assign(variableList()->node());
    if (!QFile::exists(getFileName(QStringLiteral("var_monitor.json"), QString())))
        writeMonitored(); // an edited project keeps its variables in a new folder
    const QString file = getFileName(QStringLiteral("var.json"), QString());
    return reportUnlessWritten(orba::ModuleManager::writeToJson(content, file), file);
}

} // namespace palx
