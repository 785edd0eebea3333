#include "ui/waypoints_frame.h"

#include "stack/put_points.h"
#include "stack/recipe_fields.h"
#include "ui_waypoints_frame.h"
#include "workstation/plugin_node.h"

namespace {

const char *const kOffsets[] = {"enter_x",    "enter_y",   "enter_h", "ready_h",
                                "approach_h", "retract_h", "exit_h"};
const char *const kSharedSettings = "global_tool.#3.waypoint_settings.put";

/// "enter_x" of the left side is shown by "spnLeftEnterX".
QString fieldName(const QString &side, const char *key)
{
    QString name = QStringLiteral("spn") + side;
    for (const QString &word : QString(QLatin1String(key)).split(QLatin1Char('_')))
        name += word.left(1).toUpper() + word.mid(1);
    return name;
}

} // namespace

WaypointsFrame::WaypointsFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::WaypointsFrame>()), offsetBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    bindHeights();
    bindOffsets();
    connectPoints();
    setTitles();
    QAbstractButton *const sides[] = {ui_->btnPut, ui_->btnGet, ui_->btnOffsets};
    for (int side = 0; side < 3; ++side)
        connect(sides[side], &QAbstractButton::clicked, this, [this, side] { showSide(side); });
    connect(palx::triggerNode()->c("refresh_data"), &orba::ModuleObject::changed, this,
            [this] { refresh(); });
    setStack(nullptr);
}

WaypointsFrame::~WaypointsFrame() = default;

void WaypointsFrame::bindHeights()
{
    bindNumber(ui_->spnPutReady, QStringLiteral("put.ready_h"));
    bindNumber(ui_->spnPutApproach, QStringLiteral("put.approach_h"));
    bindNumber(ui_->spnPutRetract, QStringLiteral("put.retract_h"));
    bindNumber(ui_->spnPutExit, QStringLiteral("put.exit_h"));
    bindNumber(ui_->spnGetReady, QStringLiteral("get.ready_h"));
    bindNumber(ui_->spnGetApproach, QStringLiteral("get.approach_h"));
    bindNumber(ui_->spnGetRetract, QStringLiteral("get.retract_h"));
}

void WaypointsFrame::bindOffsets()
{
    for (const QString &side : {QStringLiteral("Left"), QStringLiteral("Right")}) {
        const QString record = side.toLower() + QStringLiteral("_offsets");
        for (const char *key : kOffsets) {
            auto *field = findChild<QDoubleSpinBox *>(fieldName(side, key));
            setupNumberField(field, QLatin1String(key));
            offsetBinder_->bind(field, mName(record, QLatin1String(key)));
        }
    }
    connect(offsetBinder_, &NodeBinder::edited, this, &RecipeFrame::edited);
}

void WaypointsFrame::connectPoints()
{
    for (PointGroup *group : {ui_->grpPutPoint, ui_->grpPutEnter, ui_->grpGetPoint, ui_->grpGetEnter}) {
        connect(group, &PointGroup::edited, this, &RecipeFrame::edited);
        connect(group, &PointGroup::refused, this, &RecipeFrame::refused);
    }
}

void WaypointsFrame::setTitles()
{
    ui_->grpPutPoint->setTitle(tr("Place point"));
    ui_->grpPutEnter->setTitle(tr("Enter point"));
    ui_->grpGetPoint->setTitle(tr("Pick point"));
    ui_->grpGetEnter->setTitle(tr("Enter point"));
}

bool WaypointsFrame::isOnePoint() const
{
    return stack() && palx::isGlobalWObjCalibrationMethodOne(stack());
}

orba::ModuleObject *WaypointsFrame::offsetsRoot() const
{
    if (!stack())
        return nullptr;
    return isOnePoint() ? palx::pluginNode()->r(kSharedSettings) : stack()->r("put");
}

void WaypointsFrame::stackChanged()
{
    orba::ModuleObject *put = stack() ? stack()->r("put") : nullptr;
    orba::ModuleObject *get = stack() ? stack()->r("get") : nullptr;
    ui_->grpPutPoint->setPoint(put, QStringLiteral("put_p"));
    ui_->grpPutEnter->setPoint(put, QStringLiteral("enter_p"));
    ui_->grpGetPoint->setPoint(get, QStringLiteral("get_p"));
    ui_->grpGetEnter->setPoint(get, QStringLiteral("enter_p"));
}

void WaypointsFrame::refresh()
{
    const bool onePoint = isOnePoint();
    const bool globalTool = stack() && stack()->getBool("use_global_tool");
    for (PointGroup *group : {ui_->grpPutPoint, ui_->grpPutEnter, ui_->grpGetPoint, ui_->grpGetEnter})
        group->reload();
    ui_->grpPutPoint->setComputed(onePoint);
    ui_->grpPutEnter->setComputed(onePoint);
    ui_->grpGetPoint->setComputed(globalTool);
    ui_->grpGetEnter->setComputed(globalTool);
    for (QDoubleSpinBox *field : {ui_->spnPutReady, ui_->spnPutApproach, ui_->spnPutRetract, ui_->spnPutExit})
        field->setEnabled(stack() && !onePoint);
    ui_->spnGetApproach->setEnabled(stack() && !globalTool);
    if (offsetBinder_->root() != offsetsRoot())
        offsetBinder_->setRoot(offsetsRoot());
    ui_->lblNote->setText(note(ui_->stkSides->currentIndex()));
}

void WaypointsFrame::showSide(int side)
{
    ui_->stkSides->setCurrentIndex(side);
    refresh();
}

QString WaypointsFrame::note(int side) const
{
    const bool onePoint = isOnePoint();
    if (!stack())
        return QString();
    if (side == 0)
        return onePoint ? tr("The shared work object gives the place points; the heights come from the "
                             "shared offsets.")
                        : tr("The first product of the first layer is placed at the place point's height; "
                             "positions "
                             "come from the pattern.");
    if (side == 1)
        return stack()->getBool("use_global_tool")
                   ? tr("The shared tool gives the pick points and the approach height.")
                   : tr("The robot picks every product at the pick point.");
    return onePoint ? tr("Shared by all recipes on this work object.")
                    : tr("Kept with this recipe for the robot program; the points follow the shared offsets "
                         "of the "
                         "work object calibrated by one point.");
}

void WaypointsFrame::retranslate()
{
    ui_->retranslateUi(this);
    setTitles();
}
