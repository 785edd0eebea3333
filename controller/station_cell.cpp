// The station's part in running programs: what it hands to the desk of the cell, and what it takes from there.

#include "controller/station.h"
#include "controller/texts.h"

#include <QDir>

namespace controller {

using orba::Node;

ProjectInUse Station::projectInUse()
{
    const QString folder = projectFolder();
    return {projects_.current(), QDir(folder).exists() ? folder : QString(), project().find(Projects::kLists[0]),
            &projects_.variableList()};
}

void Station::restoreCell(const Node &kept)
{
    cell::Cell &cell = desk_.runner().cell();
    useActiveTool();
    cell.world().way() = cell::Way(robot_.joints());
    cell.world().restore(kept, [&cell](const QString &recipe) { return cell.plan(recipe); });
    keptCell_ = cell.world().keptVersion();
}

/// What keeps the operator from moving the robot by hand; empty when nothing does.
QString Station::programBlockade() const
{
    if (desk_.runner().state() == Runner::State::Running)
        return Texts::tr("a program runs; pause it first");
    return desk_.runner().cell().world().way().isMoving() ? Texts::tr("the robot is braking") : QString();
}

/// Recipes without a tool of their own are for the one that is active.
void Station::useActiveTool()
{
    Toolsets::Frames frames;
    QString why;
    if (tools_.frames(tools_.active(), &frames, &why))
        desk_.runner().cell().setSharedTool(frames.tool);
}

/// Something was asked of the cell: its answer finds the tree as it is then.
void Station::followCell()
{
    if (desk_.takePowerCut())
        afterPowerCut();
    followRobot();
    changed_ = true;
    publishAll();
}

/// The arm stands where programs brought it.
void Station::followRobot()
{
    if (!robot_.isMoving())
        robot_.standAt(desk_.runner().cell().world().way().joints());
}

/// As at a start: variables that are not persistent have their first values again.
void Station::afterPowerCut()
{
    robot_.stop(QString());
    Node &list = projects_.variableList();
    list.assign(projects_.variables().kept(list));
    desk_.variablesChanged(list);
}

void Station::simulate(double seconds)
{
    desk_.runner().advance(seconds);
    followRobot();
}

void Station::publishAll()
{
    publishRobot();
    publishCellNodes();
}

void Station::publishCellNodes()
{
    sinceCellPublished_ = 0;
    changed_ = desk_.flushVariables(&projects_.variableList()) || changed_;
    const std::uint64_t kept = desk_.runner().cell().world().keptVersion();
    changed_ = changed_ || std::exchange(keptCell_, kept) != kept;
    desk_.publish(tree_.find(u"nexo.cell"), projects_.current());
    for (const CellDesk::Notice &told : desk_.takeNotices())
        notice(told.level, told.text);
}

} // namespace controller
