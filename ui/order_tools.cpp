#include "ui/order_tools.h"

#include "ix/xtheme.h"
#include "ui/edit_icons.h"
#include "ui/pattern_view.h"
#include "ui/recipe_tables.h"
#include "ui_order_tools.h"

#include <QHideEvent>

using palx::OrderTool;
using palx::PatternEditing;
using palx::PlanAxis;
using palx::PlanCorner;

OrderTools::OrderTools(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::OrderTools>())
{
    ui_->setupUi(this);
    fillCorners();
    ui_->btnUpItem->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Up));
    ui_->btnDownItem->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Down));
    ui_->btnStepBack->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Back));
    ui_->btnStepOn->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Forward));
    for (QAbstractButton *button : findChildren<QAbstractButton *>())
        setupTool(button);
}

OrderTools::~OrderTools() = default;

void OrderTools::fillCorners()
{
    const int chosen = std::max(ui_->cmbCorner->currentIndex(), 0);
    ui_->cmbCorner->clear();
    ui_->cmbCorner->addItems({tr("Top left"), tr("Top right"), tr("Bottom left"), tr("Bottom right")});
    ui_->cmbCorner->setCurrentIndex(chosen);
}

void OrderTools::attach(PatternView *view)
{
    view_ = view;
    PatternEditing *editing = view->editing();
    connectOrders();
    connect(ui_->btnTap, &QPushButton::clicked, this, &OrderTools::tapping);
    connect(view->orderTool(), &OrderTool::changed, this, &OrderTools::updateButtons);
    connect(ui_->btnSides, &QPushButton::clicked, editing, &PatternEditing::proposeSides);
    connect(ui_->btnWays, &QPushButton::toggled, view, &PatternView::setWaysShown);
    connect(ui_->btnUpItem, &QPushButton::clicked, this, [this] { movePlace(-1); });
    connect(ui_->btnDownItem, &QPushButton::clicked, this, [this] { movePlace(1); });
    connect(ui_->btnStepBack, &QPushButton::clicked, this, [this] { step(-1); });
    connect(ui_->btnStepOn, &QPushButton::clicked, this, [this] { step(1); });
    connect(editing, &PatternEditing::selectionChanged, this, &OrderTools::updateButtons);
    connect(editing->scene(), &PatternScene::planChanged, this, &OrderTools::updateButtons);
    updateButtons();
}

void OrderTools::connectOrders()
{
    PatternEditing *editing = view_->editing();
    const auto corner = [this] { return static_cast<PlanCorner>(ui_->cmbCorner->currentIndex()); };
    connect(ui_->btnRows, &QPushButton::clicked, editing, [editing, corner] {
        editing->reorder(palx::orderByRows(editing->items(), corner(), PlanAxis::Across));
    });
    connect(ui_->btnColumns, &QPushButton::clicked, editing, [editing, corner] {
        editing->reorder(palx::orderByRows(editing->items(), corner(), PlanAxis::Along));
    });
    connect(ui_->btnOutward, &QPushButton::clicked, editing,
            [editing, corner] { editing->reorder(palx::orderFromCorner(editing->items(), corner())); });
}

void OrderTools::tapping(bool on)
{
    on ? view_->orderTool()->start() : view_->orderTool()->finish();
    updateButtons();
}

/// The one product that is chosen, or -1.
int OrderTools::only() const
{
    const palx::Selection &chosen = view_->editing()->selection();
    return chosen.size() == 1 && !view_->orderTool()->isActive() ? chosen.first() : -1;
}

void OrderTools::movePlace(int by)
{
    const int from = only();
    const int count = view_->editing()->items().size();
    if (from < 0 || from + by < 0 || from + by >= count)
        return;
    QVector<int> order = palx::orderByTaps(count, {});
    order.move(from, from + by);
    view_->editing()->reorder(order);
}

/// Shows the plan as it is when the next product, or the one before, comes to its place.
void OrderTools::step(int by)
{
    const int count = view_->editing()->items().size();
    const int from = view_->step() < 0 && by < 0 ? count : view_->step();
    const int to = from + by;
    view_->setStep(to >= 0 && to < count ? to : -1);
    view_->editing()->select(view_->step() < 0 ? palx::Selection() : palx::Selection{view_->step()});
    updateButtons();
}

void OrderTools::updateButtons()
{
    const PatternEditing *editing = view_->editing();
    const bool tapping = view_->orderTool()->isActive();
    const bool several = editing->canEdit() && editing->items().size() > 1;
    ui_->btnTap->setChecked(tapping);
    ui_->btnTap->setEnabled(several);
    for (QWidget *button : {ui_->btnRows, ui_->btnColumns, ui_->btnOutward})
        button->setEnabled(several && !tapping);
    ui_->btnSides->setEnabled(editing->canEdit() && !editing->items().isEmpty() && !tapping);
    ui_->btnUpItem->setEnabled(only() > 0);
    ui_->btnDownItem->setEnabled(only() >= 0 && only() + 1 < editing->items().size());
    for (QWidget *button : {ui_->btnStepBack, ui_->btnStepOn})
        button->setEnabled(!editing->items().isEmpty() && !tapping);
    showStep();
}

void OrderTools::showStep()
{
    const auto &items = view_->editing()->items();
    if (view_->orderTool()->isActive()) {
        ui_->lblStep->setText(
            tr("Tap product %1 of %2").arg(view_->orderTool()->tapped() + 1).arg(items.size()));
        return;
    }
    const int step = view_->step();
    ui_->lblStep->setText(step < 0 || step >= items.size()
                              ? tr("Walk through the placing")
                              : tr("%1 of %2: %3")
                                    .arg(step + 1)
                                    .arg(items.size())
                                    .arg(shownDirection(items[step].directionText)));
}

/// A walk ends when its buttons go out of sight.
void OrderTools::hideEvent(QHideEvent *event)
{
    if (view_ && !event->spontaneous()) {
        view_->orderTool()->finish();
        view_->setStep(-1);
    }
    QWidget::hideEvent(event);
}

void OrderTools::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        fillCorners();
        if (view_)
            updateButtons();
    }
    QWidget::changeEvent(event);
}
