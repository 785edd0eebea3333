#include "ui/pallet_place_frame.h"

#include "ix/xtheme.h"
#include "stack/place_frame.h"
#include "stack/point_frame.h"
#include "stack/recipe_points.h"
#include "ui_pallet_place_frame.h"

using ix::xtheme::State;
using orba::ModuleObject;

namespace {

constexpr double kMmPerM = 1000.0;
constexpr double kDegPerRad = 57.29577951308232;
enum Method { ThreePoints = 0, OnePoint = 1 };

} // namespace

PalletPlaceFrame::PalletPlaceFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::PalletPlaceFrame>()), sharedBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    fillCombos();
    setTitles();
    bindFields();
    for (PointGroup *group : findChildren<PointGroup *>()) {
        connect(group, &PointGroup::edited, this, &RecipeFrame::edited);
        connect(group, &PointGroup::refused, this, &RecipeFrame::refused);
    }
    connect(ui_->cmbTowards, QOverload<int>::of(&QComboBox::activated), this,
            &PalletPlaceFrame::chooseTowards);
    connect(ui_->btnOnePoint, &QPushButton::clicked, this, &PalletPlaceFrame::calibrateByOnePoint);
    setStack(nullptr);
}

PalletPlaceFrame::~PalletPlaceFrame() = default;

void PalletPlaceFrame::bindFields()
{
    binder()->bind(ui_->cmbMethod, QStringLiteral("calibrate.calibration_method"));
    bindNumber(ui_->spnShiftX, QStringLiteral("calibrate.wobj_x"));
    bindNumber(ui_->spnShiftY, QStringLiteral("calibrate.wobj_y"));
    setupNumberField(ui_->spnBoxLength, QStringLiteral("load.length"));
    setupNumberField(ui_->spnBoxWidth, QStringLiteral("load.width"));
    sharedBinder_->bind(ui_->spnBoxLength, QStringLiteral("global_tool.#0.load.length"));
    sharedBinder_->bind(ui_->spnBoxWidth, QStringLiteral("global_tool.#0.load.width"));
    connect(sharedBinder_, &NodeBinder::edited, this, &RecipeFrame::edited);
}

void PalletPlaceFrame::fillCombos()
{
    ui_->cmbMethod->clear();
    ui_->cmbMethod->addItem(tr("Three points"), int(ThreePoints));
    ui_->cmbMethod->addItem(tr("One point"), int(OnePoint));
    ui_->cmbTowards->clear();
    ui_->cmbTowards->addItem(tr("Against the robot's X"), 0);
    ui_->cmbTowards->addItem(tr("Along the robot's X"), 1);
}

void PalletPlaceFrame::setTitles()
{
    ui_->grpOrigin->setTitle(tr("Origin"));
    ui_->grpOnX->setTitle(tr("Point on X"));
    ui_->grpInPlane->setTitle(tr("Point towards Y"));
    ui_->grpLeft->setTitle(tr("Origin, left"));
    ui_->grpRight->setTitle(tr("Origin, right"));
}

/// The plugin node while the recipe uses the shared work objects, or null.
ModuleObject *PalletPlaceFrame::shared() const
{
    return stack() && stack()->getBool("use_global_wobj") ? stack()->p(1) : nullptr;
}

void PalletPlaceFrame::stackChanged()
{
    ModuleObject *own = stack() ? stack()->c("calibrate") : nullptr;
    ui_->grpOrigin->setPoint(own, QStringLiteral("p1"));
    ui_->grpOnX->setPoint(own, QStringLiteral("p2"));
    ui_->grpInPlane->setPoint(own, QStringLiteral("p3"));
}

void PalletPlaceFrame::refresh()
{
    if (sharedBinder_->root() != shared())
        sharedBinder_->setRoot(shared());
    ui_->stkKind->setCurrentWidget(shared() ? ui_->pagShared : ui_->pagOwn);
    shared() ? refreshShared() : refreshOwn();
}

void PalletPlaceFrame::refreshOwn()
{
    const bool isOnePoint = stack() && stack()->getInt("calibrate.calibration_method") == OnePoint;
    ui_->cmbMethod->setCurrentIndex(isOnePoint ? OnePoint : ThreePoints); // old recipes lack the key
    ui_->grpOnX->setVisible(!isOnePoint);
    ui_->grpInPlane->setVisible(!isOnePoint);
    for (PointGroup *group : {ui_->grpOrigin, ui_->grpOnX, ui_->grpInPlane})
        group->reload();
    ui_->lblNote->setText(
        isOnePoint ? tr("Touch the pallet's origin with the tool: its axes run as the robot's.")
                   : tr("Touch the points with the tool: the origin, one along the pallet's length, one "
                        "across it."));
    showFrame();
}

void PalletPlaceFrame::showFrame()
{
    const orba::Node empty;
    const orba::Node &recipe = stack() ? stack()->node() : empty;
    const ix::calc::Calibration found = palx::palletFrame(recipe);
    ix::xtheme::setState(ui_->lblResult, found.ok() ? State::None : State::Attention);
    if (!stack())
        return ui_->lblResult->clear();
    if (!palx::hasPalletFrame(recipe))
        return ui_->lblResult->setText(tr("Not calibrated: the positions count from the robot's foot."));
    if (!found.ok())
        return ui_->lblResult->setText(found.error);
    const ix::calc::Vector origin = found.frame.translation() * kMmPerM;
    const QString text = tr("Origin at X %1, Y %2, Z %3 mm, turned by %4\u00b0.")
                             .arg(origin.x(), 0, 'f', 1)
                             .arg(origin.y(), 0, 'f', 1)
                             .arg(origin.z(), 0, 'f', 1)
                             .arg(ix::calc::angles(found.frame.linear()).z() * kDegPerRad, 0, 'f', 2);
    const bool isOfTool = !palx::isTaught(recipe.find(u"calibrate.p1"));
    ui_->lblResult->setText(isOfTool ? text + QLatin1Char(' ') + tr("It comes from the recipe's tool record.")
                                     : text);
}

void PalletPlaceFrame::refreshShared()
{
    ModuleObject *wobjs = shared()->c("global_wobj");
    ui_->grpLeft->setPoint(wobjs->cmobj(0), QStringLiteral("left_origin_point"));
    ui_->grpRight->setPoint(wobjs->cmobj(1), QStringLiteral("right_origin_point"));
    const palx::PalletSide side = palx::palletSideOf(stack()->node(), shared()->node());
    ui_->cmbTowards->setCurrentIndex(side.isMixed() ? -1 : ui_->cmbTowards->findData(side.towards[0]));
    const bool isOnePoint = palx::isOnePointCalibrated(stack()->node(), shared()->node());
    ui_->btnOnePoint->setVisible(!isOnePoint);
    if (!isOnePoint)
        ui_->lblNote->setText(
            tr("The shared work objects are not in use: they have to be calibrated by one point."));
    else if (side.isMixed())
        ui_->lblNote->setText(tr("Choose how both pallets lie: they have to lie alike."));
    else
        ui_->lblNote->setText(tr("Shared by all recipes on these work objects. Hold a box in the pallet's "
                                 "inner corner, from which "
                                 "it lies as chosen here, and teach it."));
}

void PalletPlaceFrame::chooseTowards()
{
    writeBoth(QStringLiteral("towards"), ui_->cmbTowards->currentData().toInt());
}

void PalletPlaceFrame::calibrateByOnePoint()
{
    writeBoth(QStringLiteral("calibration_method"), OnePoint);
}

/// Generation takes both pallets alike.
void PalletPlaceFrame::writeBoth(const QString &key, int value)
{
    if (!shared())
        return;
    for (int side : {0, 1}) {
        ModuleObject *wobj = shared()->c("global_wobj")->cmobj(side);
        wobj->ensure(key)->set(nullptr, "", value);
    }
    Q_EMIT edited();
}

void PalletPlaceFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillCombos();
    setTitles();
    sharedBinder_->reload();
}
