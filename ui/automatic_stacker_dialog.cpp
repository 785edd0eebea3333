#include "ui/automatic_stacker_dialog.h"

#include "nexo/manager_helper.h"
#include "pattern/generated_items.h"
#include "pattern/patternscene.h"
#include "stack/recipe_fields.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui/layout_preview.h"
#include "ui/recipe_frame.h"
#include "ui_automatic_stacker_dialog.h"

#include <QButtonGroup>
#include <QEvent>

#include <algorithm>

namespace {

constexpr auto kCrisscross = int(palx::StackingPattern::OneRowRotation);
constexpr double kShareOfWindow = 0.96; // plans want all the room there is
const QString kTopBottom = QStringLiteral("automatic_stacker.top_bottom_margin");
const QString kLeftRight = QStringLiteral("automatic_stacker.left_right_margin");
const QString kSpacing = QStringLiteral("automatic_stacker.min_product_spacing");

double worstReach(const palx::Overhang &overhang)
{
    return std::max({overhang.left, overhang.top, overhang.right, overhang.bottom});
}

/// What the operator should know before choosing the layout; empty as a rule.
QString layoutWarning(PatternScene *scene, const palx::AutoLayout &layout)
{
    const QString problem = palx::layoutProblem(layout);
    if (!problem.isEmpty())
        return problem;
    const double reach = worstReach(scene->findings().worst);
    return reach > 0 ? AutomaticStackerDialog::tr("%1 mm over the pallet's edge").arg(reach, 0, 'f', 1)
                     : QString();
}

} // namespace

AutomaticStackerDialog::AutomaticStackerDialog(orba::ModuleObject *stack, PatternScene *scene,
                                               QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::AutomaticStackerDialog>()), stack_(stack), scene_(scene),
      choice_(new QButtonGroup(this))
{
    ui_->setupUi(this);
    initScenes();
    bindFields();
    connect(ui_->btnConfirm, &QPushButton::clicked, this, &AutomaticStackerDialog::work);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &AutomaticStackerDialog::reject);
    connect(stack, &QObject::destroyed, this, &AutomaticStackerDialog::reject);
    connect(scene, &QObject::destroyed, this, &AutomaticStackerDialog::reject);
    setFieldMargins(this);
    new KeypadOpener(this);
    if (parent)
        resize(parent->window()->size() * kShareOfWindow);
    generate();
}

AutomaticStackerDialog::~AutomaticStackerDialog() = default;

/// Ranges and units of the fields.
void AutomaticStackerDialog::setupFields()
{
    setupNumberField(ui_->spnTopBottomMargin, kTopBottom);
    setupNumberField(ui_->spnLeftRightMargin, kLeftRight);
    setupNumberField(ui_->spnMinProductSpacing, kSpacing);
}

void AutomaticStackerDialog::bindFields()
{
    setupFields();
    binder_.bind(ui_->spnTopBottomMargin, kTopBottom);
    binder_.bind(ui_->spnLeftRightMargin, kLeftRight);
    binder_.bind(ui_->spnMinProductSpacing, kSpacing);
    binder_.setRoot(stack_);
    connect(&binder_, &NodeBinder::edited, this, &AutomaticStackerDialog::generate);
}

void AutomaticStackerDialog::initScenes()
{
    previews_ = {ui_->btnLayout0, ui_->btnLayout1, ui_->btnLayout2,
                 ui_->btnLayout3, ui_->btnLayout4, ui_->btnLayout5};
    for (int i = 0; i < kPreviews; ++i) {
        auto *scene = new PatternScene(this);
        scene->setStack(stack_);
        previews_[i]->setScene(scene);
        choice_->addButton(previews_[i], i);
    }
    connect(choice_, &QButtonGroup::idClicked, this, &AutomaticStackerDialog::onGraphViewSelected);
}

void AutomaticStackerDialog::generate()
{
    if (!stack_)
        return;
    const palx::LayoutInput input = palx::readLayoutInput(stack_->node());
    for (int i = 0; i < kPreviews; ++i)
        showLayout(i, input);
    for (int i = palx::kLayoutKinds; i < kPreviews; ++i)
        previews_[i]->setEnabled(false);
    if (selected_ >= 0 && !previews_[selected_]->isEnabled())
        onGraphViewSelected(-1);
}

void AutomaticStackerDialog::showLayout(int index, const palx::LayoutInput &input)
{
    LayoutPreview *preview = previews_[index];
    const palx::AutoLayout layout = palx::generateLayout(input, palx::StackingPattern(index));
    preview->scene()->clearItems();
    palx::addGeneratedItems(preview->scene(), layout.items);
    const bool isMatrix = index == kCrisscross && layout.turnedRows == 0 && layout.count > 0;
    const int share = qRound(100 * palx::areaUsed(input, layout.count));
    const QString facts = layout.count == 0 ? tr("Nothing fits")
                          : isMatrix        ? tr("No turned row fits")
                                            : tr("Boxes: %1, area: %2 %").arg(layout.count).arg(share);
    preview->setTexts(palx::layoutName(palx::StackingPattern(index)), facts,
                      layoutWarning(preview->scene(), layout));
    preview->setEnabled(layout.count > 0 && !isMatrix);
    preview->setVisible(index < palx::kLayoutKinds || layout.count > 0);
}

/// -1: none is chosen.
void AutomaticStackerDialog::onGraphViewSelected(int index)
{
    selected_ = index;
    choice_->setExclusive(false); // so that none can be chosen
    for (int i = 0; i < kPreviews; ++i)
        previews_[i]->setChecked(i == index);
    choice_->setExclusive(true);
}

bool AutomaticStackerDialog::isEffective(int index) const
{
    return index >= 0 && index < kPreviews && previews_[index]->isEnabled();
}

palx::AutoLayout AutomaticStackerDialog::chosenLayout() const
{
    return palx::generateLayout(palx::readLayoutInput(stack_->node()), palx::StackingPattern(selected_));
}

bool AutomaticStackerDialog::mayOverwrite()
{
    return scene_->getWobjCount() == 0 ||
           nexo::ManagerHelper::instance()->execMsgOk(
               tr("warning"), tr("Confirm whether to overwrite the current stack type?"));
}

void AutomaticStackerDialog::work()
{
    if (!stack_ || !scene_)
        return;
    auto *messages = nexo::ManagerHelper::instance();
    if (!isEffective(selected_)) {
        messages->throwLog(this, QStringLiteral("warning"), tr("Please select an effective stack type!"));
        return;
    }
    const palx::AutoLayout layout = chosenLayout();
    const QString problem = palx::layoutProblem(layout);
    if (!problem.isEmpty()) {
        messages->execMsgOk(tr("warning"), problem, QStringLiteral("_"));
        return;
    }
    if (!mayOverwrite() || !scene_)
        return;
    scene_->clearItems();
    palx::addGeneratedItems(scene_, layout.items);
    accept();
}

void AutomaticStackerDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setupFields();
        binder_.reload();
        generate();
    }
    QDialog::changeEvent(event);
}
