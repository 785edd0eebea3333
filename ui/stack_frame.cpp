#include "ui/stack_frame.h"

#include "pattern/stackpatternscene.h"
#include "stack/recipe_layers.h"
#include "ui/recipe_texts.h"
#include "ui_stack_frame.h"

#include <algorithm>

StackFrame::StackFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::StackFrame>()), scene_(new StackPatternScene(this))
{
    ui_->setupUi(this);
    ui_->view->showPlan(scene_);
    connect(ui_->stack, &StackPanel::pieceChosen, this, &StackFrame::showPiece);
    connect(ui_->view, &PlanView::itemTouched, this, [this](int item) {
        const palx::Piece piece{scene_->layer(), item};
        ui_->stack->markPiece(piece);
        showPiece(piece);
    });
    setStack(nullptr);
}

StackFrame::~StackFrame()
{
    ui_->view->setScene(nullptr); // the scene ends before the view
}

void StackFrame::stackChanged()
{
    scene_->setStack(stack());
    scene_->setLayer(0);
    ui_->stack->setStack(stack());
}

void StackFrame::refresh()
{
    ui_->stack->refresh();
    showWarnings(ui_->lblProblems, stack() ? palx::layerProblems(stack()->node()) : QStringList());
    ui_->lblTotals->setText(stack() ? recipeTotalsText(stack()->node()) : QString());
    showPiece(ui_->stack->marked());
}

/// Without a piece the plan stays at its layer.
void StackFrame::showPiece(const palx::Piece &piece)
{
    if (piece.isSet())
        scene_->setLayer(piece.layer);
    ui_->view->markItem(piece.item);
    ui_->lblLayer->setText(stack() ? tr("Layer %1").arg(scene_->layer() + 1) : QString());
}

void StackFrame::retranslate()
{
    ui_->retranslateUi(this);
}
