#include "project/rules/project_variables.h"

#include "orba/module_manager.h"
#include "project/rules/project_messages.h"
#include "project/rules/project_place.h"
#include "project/rules/project_record.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_log.h"

#include <QVector>

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

#define PALX_TEXT(text) QT_TRANSLATE_NOOP("palx::ProjectText", text)
/// Of each side: the name ends with the side's letter, %1 is the side.
constexpr Row kSideRows[] = {
    {"palletIndex", PALX_TEXT("%1 recipe index"), "int", "0", true},
    {"palletCount", PALX_TEXT("%1 pallet count"), "int", "0", true},
    {"palletTotalCount", PALX_TEXT("%1 pallet total count"), "int", "0", true},
    {"currentLayer", PALX_TEXT("%1 current layer"), "int", "1", true},
    {"layerCount", PALX_TEXT("%1 current layer count"), "int", "1", true},
    {"totalPallets", PALX_TEXT("%1 total pallets"), "int", "0", true},
    {"totalPiledCount", PALX_TEXT("%1 total piled count"), "int", "0", true},
    {"cycleTime", PALX_TEXT("%1 cycle time"), "double", "0.0", true},
    {"boxHeight", PALX_TEXT("%1 box height"), "int", "300", true},
};
constexpr Row kEnableRows[] = {
    {"enableStackL", PALX_TEXT("Enable left-side stacking"), "bool", "false", true},
    {"enableStackR", PALX_TEXT("Enable right-side stacking"), "bool", "false", true},
};
constexpr Row kCellRows[] = {
    {"palletStatus", PALX_TEXT("Left: 1, Right: 2"), "int", "0", true},
    {"flagL", PALX_TEXT("Left full flag"), "int", "0", true},
    {"flagR", PALX_TEXT("Right full flag"), "int", "0", true},
    {"flagL1", "", "int", "0", true},
    {"flagR1", "", "int", "0", true},
    {"rise", PALX_TEXT("Lifting column state, 1 up, 0 down"), "int", "1", true},
    {"use_rise", PALX_TEXT("Using lifting column"), "int", "0", true},
    {"SetZ", PALX_TEXT("Stacking maximum height"), "int", "700", true},
    {"MaxZ", PALX_TEXT("Maximum height reachable by the robot in the stacking scene"), "int", "1000", true},
    {"grabbing", PALX_TEXT("Gripping materials"), "bool", "false", true},
    {"Margin", PALX_TEXT("StandBy Point Margin"), "int", "400", true},
    {"liftHeight", PALX_TEXT("Lift height"), "int", "550", true},
    {"clock0", PALX_TEXT("calculate time"), "clock", "", false},
    {"boxheight", PALX_TEXT("box height"), "int", "300", false},
    {"flagLL", "", "bool", "false", false},
    {"flagRR", "", "bool", "false", false},
    {"flag", "", "bool", "false", false},
    {"BHOME", PALX_TEXT("current pos"), "robtarget",
     "p:{{0,0,0},{0,0,0,0},0}{cfg 0,0,0,0,0,0,0,0}{EJ 0,0,0,0,0,0}", false},
};
#undef PALX_TEXT

Variable variable(const Row &row)
{
    const QString description = *row.description ? ProjectText::tr(row.description) : QString();
    return {QLatin1String(row.name), description, QLatin1String(row.type), QLatin1String(row.value),
            row.isPersistent};
}

/// In the order in which they are created.
QVector<Variable> variables()
{
    QVector<Variable> all;
    for (const Row &row : kEnableRows)
        all.append(variable(row));
    const struct
    {
        QChar letter;
        QString side;
    } sides[] = {{QLatin1Char('L'), ProjectText::tr("Left side")},
                 {QLatin1Char('R'), ProjectText::tr("Right side")}};
    for (const auto &each : sides) {
        for (const Row &row : kSideRows) {
            all.append(variable(row));
            all.last().name += each.letter;
            all.last().description = all.last().description.arg(each.side);
        }
    }
    for (const Row &row : kCellRows)
        all.append(variable(row));
    return all;
}

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
    const Node &list = std::as_const(variableList()->node());
    for (int i = 0; i < list.size(); ++i)
        if (list.at(i) && list.at(i)->getString(u"name") == name)
            return true;
    return false;
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
    for (const Variable &variable : variables())
        isMonitored = create(variable) || isMonitored;
    if (isMonitored) // once for all of them: every file is written to the disk at once
        writeMonitored();
}

bool writeVariables()
{
    if (!isVersion23())
        return true;
    Node content;
    content.ensureChild(Name(u"version"))->setString(QStringLiteral("0.2"));
    content.ensureChild(Name(u"variables"))->assign(variableList()->node());
    const QString file = getFileName(QStringLiteral("var.json"), QString());
    return reportUnlessWritten(orba::ModuleManager::writeToJson(content, file), file);
}

} // namespace palx
