#include "ui/incoming_frame.h"

#include "ui_incoming_frame.h"

using orba::ModuleObject;

IncomingFrame::IncomingFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::IncomingFrame>()), sharedBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    fillCombos();
    bindFields();
    for (PointGroup *group : {ui_->grpPick, ui_->grpEnter}) {
        connect(group, &PointGroup::edited, this, &RecipeFrame::edited);
        connect(group, &PointGroup::refused, this, &RecipeFrame::refused);
    }
    setStack(nullptr);
}

IncomingFrame::~IncomingFrame() = default;

void IncomingFrame::bindFields()
{
    const QString settings = QStringLiteral("#2.incoming_settings.");
    sharedBinder_->bind(ui_->cmbOrigin, settings + QLatin1String("origin_position"));
    sharedBinder_->bind(ui_->cmbProduct, settings + QLatin1String("incoming_product_direction"));
    sharedBinder_->bind(ui_->cmbLine, settings + QLatin1String("incoming_conveyor_line_direction"));
    const struct
    {
        QDoubleSpinBox *field;
        const char *key;
    } numbers[] = {{ui_->spnEnterX, "enter_x"},
                   {ui_->spnEnterY, "enter_y"},
                   {ui_->spnEnterH, "enter_h"},
                   {ui_->spnApproachH, "approach_h"}};
    for (const auto &number : numbers) {
        setupNumberField(number.field, QLatin1String(number.key));
        sharedBinder_->bind(number.field,
                            QStringLiteral("#3.waypoint_settings.get.") + QLatin1String(number.key));
    }
    connect(sharedBinder_, &NodeBinder::edited, this, &RecipeFrame::edited);
}

void IncomingFrame::fillCombos()
{
    const struct
    {
        QComboBox *combo;
        QString texts[2]; ///< of 0 and 1
    } choices[] = {{ui_->cmbOrigin, {tr("Left"), tr("Right")}},
                   {ui_->cmbProduct, {tr("Lengthwise"), tr("Crosswise")}},
                   {ui_->cmbLine, {tr("Along X"), tr("Along Y")}}};
    for (const auto &choice : choices) {
        choice.combo->clear();
        for (int value : {0, 1})
            choice.combo->addItem(choice.texts[value], value);
    }
}

void IncomingFrame::refresh()
{
    const bool isShared = stack() && stack()->getBool("use_global_tool");
    ModuleObject *tools = isShared ? stack()->p(1)->c("global_tool") : nullptr;
    if (sharedBinder_->root() != tools)
        sharedBinder_->setRoot(tools);
    ui_->crdLine->setVisible(isShared);
    ui_->crdEnter->setVisible(isShared);
    ui_->grpEnter->setVisible(!isShared);
    isShared ? showCorner(tools->cmobj(2)->c("incoming_settings")) : showOwnPoints();
}

void IncomingFrame::showCorner(ModuleObject *incoming)
{
    const bool isLeft = incoming->getInt("origin_position") == 0;
    ui_->grpPick->setTitle(tr("Corner"));
    ui_->grpPick->setPoint(incoming,
                           isLeft ? QStringLiteral("bottom_left_node") : QStringLiteral("bottom_right_node"));
    ui_->lblNote->setText(
        tr("Used by all recipes with \"Shared tool\". Touch the corner at the conveyor's end that "
           "products lie in with the tool; the pick point is the middle of the product."));
}

void IncomingFrame::showOwnPoints()
{
    ModuleObject *get = stack() ? stack()->c("get") : nullptr;
    ui_->grpPick->setTitle(tr("Pick point"));
    ui_->grpEnter->setTitle(tr("Enter point"));
    ui_->grpPick->setPoint(get, QStringLiteral("get_p"));
    ui_->grpEnter->setPoint(get, QStringLiteral("enter_p"));
    ui_->lblNote->setText(stack() ? tr("The robot picks every product at the pick point.") : QString());
}

void IncomingFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillCombos();
    sharedBinder_->reload();
}
