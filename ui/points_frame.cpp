#include "ui/points_frame.h"

#include "ix/xtheme.h"
#include "nexo/manager_helper.h"
#include "stack/recipe_layers.h"
#include "stack/recipe_points.h"
#include "stack/way_points.h"
#include "ui/form_style.h"
#include "ui/move_to_point.h"
#include "ui_points_frame.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>

using ix::xtheme::State;

PointsFrame::PointsFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::PointsFrame>()), points_(new PointTableModel(this))
{
    ui_->setupUi(this);
    ui_->tblPoints->setModel(points_);
    setupTable(ui_->tblPoints, -1, true);
    QHeaderView *header = ui_->tblPoints->horizontalHeader();
    header->setResizeContentsPrecision(0); // by the rows in sight: there may be tens of thousands
    for (const int words : {0, 1, 2})      // layer, item, kind; the numbers share the rest
        header->setSectionResizeMode(words, QHeaderView::ResizeToContents);
    fillPoints();
    connect(ui_->btnGenerate, &QPushButton::clicked, this, &PointsFrame::generate);
    connect(ui_->btnCopy, &QPushButton::clicked, this, &PointsFrame::copyTable);
    connect(ui_->cmbLayer, QOverload<int>::of(&QComboBox::activated), this, &PointsFrame::filter);
    connect(ui_->cmbPoint, QOverload<int>::of(&QComboBox::activated), this, &PointsFrame::filter);
    connect(ui_->btnMove, &QPushButton::clicked, this, [this] { palx::moveToPoint(chosenPoint(), this); });
    connect(ui_->tblPoints->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PointsFrame::showChoice);
    setStack(nullptr);
}

PointsFrame::~PointsFrame() = default;

void PointsFrame::stackChanged()
{
    points_->setStack(stack());
    ui_->cmbLayer->clear(); // the choice belongs to the recipe
}

void PointsFrame::refresh()
{
    if (!isVisible() && stack())
        return; // comparing thousands of points is left until they are looked at
    fillLayers();
    filter();
    showState();
    ui_->btnGenerate->setEnabled(stack() != nullptr);
}

/// Keeps the choice while the layer is there.
void PointsFrame::fillLayers()
{
    const QVariant chosen = ui_->cmbLayer->currentData();
    ui_->cmbLayer->clear();
    ui_->cmbLayer->addItem(tr("All layers"), PointTableModel::kAll);
    ui_->cmbLayer->addItem(tr("Pick side"), PointTableModel::kPickSide);
    for (int i = 0; i < points_->layerCount(); ++i)
        ui_->cmbLayer->addItem(tr("Layer %1").arg(i + 1), i);
    ui_->cmbLayer->setCurrentIndex(std::max(0, ui_->cmbLayer->findData(chosen)));
}

void PointsFrame::fillPoints()
{
    const QVariant chosen = ui_->cmbPoint->currentData();
    ui_->cmbPoint->clear();
    ui_->cmbPoint->addItem(tr("All points"), QString());
    for (const QString &key : PointTableModel::putPoints() + QStringList(QStringLiteral("get_p")))
        ui_->cmbPoint->addItem(PointTableModel::pointTitle(key), key);
    ui_->cmbPoint->setCurrentIndex(std::max(0, ui_->cmbPoint->findData(chosen)));
}

void PointsFrame::filter()
{
    points_->setFilter(ui_->cmbLayer->count() > 0 ? ui_->cmbLayer->currentData().toInt()
                                                  : PointTableModel::kAll,
                       ui_->cmbPoint->currentData().toString());
    showCount();
    ui_->btnCopy->setEnabled(points_->rowCount() > 0);
    showChoice();
}

/// The point of the selected row; the empty node without one.
orba::ModuleObject *PointsFrame::chosenPoint() const
{
    const QModelIndexList rows = ui_->tblPoints->selectionModel()->selectedRows();
    const QString path = rows.isEmpty() ? QString() : points_->pointPath(rows.first().row());
    return path.isEmpty() || !stack() ? emptyMobj() : stack()->r(path);
}

void PointsFrame::showChoice()
{
    ui_->btnMove->setEnabled(palx::isTaught(&chosenPoint()->node()));
}

void PointsFrame::showCount()
{
    ui_->lblCount->setText(tr("Points: %1").arg(points_->rowCount()));
}

void PointsFrame::generate()
{
    if (!stack())
        return;
    palx::genPointsAndSaveToRC(stack(), true);
    Q_EMIT edited(); // generation also writes heights and drops empty layers
    refresh();
}

void PointsFrame::showState()
{
    if (!stack()) {
        ui_->lblState->clear();
        ix::xtheme::setState(ui_->lblState, State::None);
        return;
    }
    QStringList texts;
    const palx::PointsState state = palx::pointsState(stack()->node());
    if (state == palx::PointsState::None)
        texts << tr("No points have been generated yet.");
    else if (state == palx::PointsState::Outdated)
        texts << tr("The recipe or the shared settings were changed: generate the points again.");
    texts += palx::layerProblems(stack()->node());
    texts += palx::untaughtPoints(stack()->node(), palx::pluginNodeOf(stack()->node()));
    texts += palx::lowWaypoints(stack()->node(), palx::pluginNodeOf(stack()->node()));
    const bool good = texts.isEmpty();
    showWarnings(ui_->lblState, good ? QStringList{tr("The points are up to date.")} : texts);
    ix::xtheme::setState(ui_->lblState, good ? State::None : State::Attention);
}

void PointsFrame::copyTable()
{
    QGuiApplication::clipboard()->setText(points_->toText());
    nexo::ManagerHelper::instance()->throwLog(this, QStringLiteral("info"),
                                              tr("Points copied: %1").arg(points_->rowCount()));
}

void PointsFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillPoints();
    showCount();
}
