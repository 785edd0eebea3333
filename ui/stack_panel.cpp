#include "ui/stack_panel.h"

#include "ix/xtheme.h"
#include "ui/stack_view.h"
#include "ui_stack_panel.h"

#include <QEvent>
#include <QSignalBlocker>

using ix::xtheme::Glyph;

StackPanel::StackPanel(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::StackPanel>())
{
    ui_->setupUi(this);
    connectButtons();
    connect(ui_->view, &StackView::pieceTouched, this, [this](const palx::Piece &piece) {
        markPiece(piece);
        Q_EMIT pieceChosen(piece);
    });
    setStack(nullptr);
}

StackPanel::~StackPanel() = default;

void StackPanel::connectButtons()
{
    const auto button = [this](QPushButton *pressed, Glyph glyph, auto act) {
        pressed->setIcon(ix::xtheme::icon(glyph));
        connect(pressed, &QPushButton::clicked, this, act);
    };
    StackView *view = ui_->view;
    button(ui_->btnTurnLeft, Glyph::TurnLeft, [view] { view->turnBy(-StackView::kTurnStep); });
    button(ui_->btnTurnRight, Glyph::TurnRight, [view] { view->turnBy(StackView::kTurnStep); });
    button(ui_->btnLarger, Glyph::Add, [view] { view->zoomBy(1.25); });
    button(ui_->btnSmaller, Glyph::Remove, [view] { view->zoomBy(1 / 1.25); });
    const auto layer = [this](bool up) {
        stepTo(palx::stepLayer(ui_->view->drawing().courses(), pieces(), up));
    };
    button(ui_->btnLayerDown, Glyph::Down, [layer] { layer(false); });
    button(ui_->btnLayerUp, Glyph::Up, [layer] { layer(true); });
    button(ui_->btnBoxBack, Glyph::Back, [this] { stepTo(pieces() - 1); });
    button(ui_->btnBoxOn, Glyph::Forward, [this] { stepTo(pieces() + 1); });
    connect(ui_->sldPieces, &QSlider::valueChanged, this, &StackPanel::piecesChanged);
}

StackView *StackPanel::view() const
{
    return ui_->view;
}

void StackPanel::setStack(orba::ModuleObject *stack)
{
    stack_ = stack;
    marked_ = {};
    ui_->view->markPiece(marked_);
    ui_->view->showStack(nullptr);
    refresh();
}

void StackPanel::refresh()
{
    ui_->view->showStack(stack_ ? &stack_->node() : nullptr);
    const palx::StackDrawing &drawing = ui_->view->drawing();
    const QSignalBlocker quiet(ui_->sldPieces);
    ui_->sldPieces->setMaximum(palx::pieceCount(drawing.courses()));
    ui_->sldPieces->setValue(drawing.pieces());
    if (!palx::holdsPiece(drawing.courses(), marked_))
        markPiece({});
    showPlace();
}

void StackPanel::setCompact()
{
    for (QWidget *hidden :
         {ui_->wgtSteps, static_cast<QWidget *>(ui_->btnLarger), static_cast<QWidget *>(ui_->btnSmaller)})
        hidden->hide();
}

int StackPanel::pieces() const
{
    return ui_->sldPieces->value();
}

void StackPanel::setPieces(int pieces)
{
    const QSignalBlocker quiet(ui_->sldPieces);
    ui_->sldPieces->setValue(pieces);
    ui_->view->setPieces(ui_->sldPieces->value());
    showPlace();
}

void StackPanel::stepTo(int pieces)
{
    ui_->sldPieces->setValue(pieces);
}

/// The piece that was laid last is the one to look at.
void StackPanel::piecesChanged()
{
    ui_->view->setPieces(pieces());
    markPiece(palx::pieceAt(ui_->view->drawing().courses(), pieces() - 1));
    showPlace();
    Q_EMIT pieceChosen(marked_);
}

void StackPanel::markPiece(const palx::Piece &piece)
{
    marked_ = piece;
    ui_->view->markPiece(piece);
}

void StackPanel::showPlace()
{
    const QVector<palx::Course> &courses = ui_->view->drawing().courses();
    const palx::Piece last = palx::pieceAt(courses, pieces() - 1);
    const QString count = tr("%1 of %2").arg(pieces()).arg(palx::pieceCount(courses));
    QString where = count;
    if (last.isSet() && last.item < 0)
        where = tr("%1: layer %2, sheet").arg(count).arg(last.layer + 1);
    else if (last.isSet())
        where = tr("%1: layer %2, box %3").arg(count).arg(last.layer + 1).arg(last.item + 1);
    ui_->lblPlace->setText(where);
    ui_->btnLayerDown->setEnabled(pieces() > 0);
    ui_->btnBoxBack->setEnabled(pieces() > 0);
    ui_->btnLayerUp->setEnabled(pieces() < ui_->sldPieces->maximum());
    ui_->btnBoxOn->setEnabled(pieces() < ui_->sldPieces->maximum());
}

void StackPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showPlace();
    }
    QWidget::changeEvent(event);
}
