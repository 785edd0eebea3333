#include "ui/edit_tools.h"

#include "ui/edit_icons.h"
#include "ui/pattern_view.h"
#include "ui_edit_tools.h"

#include <QEvent>
#include <QLabel>

using palx::Alignment;
using palx::PatternEditing;
using palx::PlanAxis;

namespace {

constexpr double kFineMm = 1;
constexpr double kCoarseMm = 10;
constexpr int kIconPixels = 30;
constexpr double kZoomStep = 1.5;

} // namespace

EditTools::EditTools(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::EditTools>())
{
    ui_->setupUi(this);
    showIcons();
    showStep();
}

EditTools::~EditTools() = default;

void EditTools::showIcons()
{
    const struct
    {
        QAbstractButton *button;
        EditIcon icon;
    } buttons[] = {{ui_->btnSelectAll, EditIcon::All},
                   {ui_->btnSeveral, EditIcon::Several},
                   {ui_->btnPan, EditIcon::Pan},
                   {ui_->btnSnap, EditIcon::Snap},
                   {ui_->btnAddItem, EditIcon::Add},
                   {ui_->btnCopyItems, EditIcon::Copy},
                   {ui_->btnPasteItems, EditIcon::Paste},
                   {ui_->btnRemoveItem, EditIcon::Remove},
                   {ui_->btnTurnLeft, EditIcon::TurnLeft},
                   {ui_->btnTurnRight, EditIcon::TurnRight},
                   {ui_->btnNudgeLeft, EditIcon::Left},
                   {ui_->btnNudgeRight, EditIcon::Right},
                   {ui_->btnNudgeUp, EditIcon::Up},
                   {ui_->btnNudgeDown, EditIcon::Down},
                   {ui_->btnMirrorAcross, EditIcon::MirrorAcross},
                   {ui_->btnMirrorAlong, EditIcon::MirrorAlong},
                   {ui_->btnTurnPattern, EditIcon::TurnPattern},
                   {ui_->btnTurnBy, EditIcon::TurnBy},
                   {ui_->btnAlignLeft, EditIcon::AlignLeft},
                   {ui_->btnAlignCentreAcross, EditIcon::AlignCentreAcross},
                   {ui_->btnAlignRight, EditIcon::AlignRight},
                   {ui_->btnSpaceAcross, EditIcon::SpaceAcross},
                   {ui_->btnAlignTop, EditIcon::AlignTop},
                   {ui_->btnAlignCentreAlong, EditIcon::AlignCentreAlong},
                   {ui_->btnAlignBottom, EditIcon::AlignBottom},
                   {ui_->btnSpaceAlong, EditIcon::SpaceAlong},
                   {ui_->btnZoomIn, EditIcon::ZoomIn},
                   {ui_->btnZoomOut, EditIcon::ZoomOut}};
    for (const auto &entry : buttons) {
        entry.button->setIcon(editIcon(entry.icon));
        entry.button->setIconSize(QSize(kIconPixels, kIconPixels));
        setupTool(entry.button);
    }
}

void EditTools::attach(PatternView *view)
{
    view_ = view;
    connectSwitches();
    connectMoves();
    connectTurns();
    connectAlignments();
    connectClipboard();
    connect(view->editing(), &PatternEditing::selectionChanged, this, &EditTools::updateButtons);
    connect(view->editing()->scene(), &PatternScene::planChanged, this, &EditTools::updateButtons);
    updateButtons();
}

void EditTools::connectSwitches()
{
    connect(ui_->btnSeveral, &QPushButton::toggled, view_, &PatternView::setAdding);
    connect(ui_->btnPan, &QPushButton::toggled, view_, &PatternView::setPanning);
    connect(ui_->btnSnap, &QPushButton::toggled, view_,
            [this](bool on) { view_->dragTool()->setSnapping(on); });
    connect(ui_->btnStep, &QPushButton::toggled, this, &EditTools::showStep);
    connect(ui_->btnZoomIn, &QPushButton::clicked, view_, [this] { view_->zoomBy(kZoomStep); });
    connect(ui_->btnZoomOut, &QPushButton::clicked, view_, [this] { view_->zoomBy(1 / kZoomStep); });
}

void EditTools::connectMoves()
{
    const struct
    {
        QAbstractButton *button;
        QPointF way;
    } buttons[] = {{ui_->btnNudgeLeft, {-1, 0}},
                   {ui_->btnNudgeRight, {1, 0}},
                   {ui_->btnNudgeUp, {0, -1}},
                   {ui_->btnNudgeDown, {0, 1}}};
    for (const auto &entry : buttons) {
        const QPointF way = entry.way;
        connect(entry.button, &QPushButton::clicked, view_,
                [this, way] { view_->editing()->move(way * stepMm()); });
    }
}

void EditTools::connectTurns()
{
    PatternEditing *editing = view_->editing();
    connect(ui_->btnTurnLeft, &QPushButton::clicked, editing, [editing] { editing->turn(-90); });
    connect(ui_->btnTurnRight, &QPushButton::clicked, editing, [editing] { editing->turn(90); });
    connect(ui_->btnTurnBy, &QPushButton::clicked, editing,
            [this, editing] { editing->turn(ui_->spnAngle->value()); });
    connect(ui_->btnMirrorAcross, &QPushButton::clicked, editing,
            [editing] { editing->mirror(PlanAxis::Across); });
    connect(ui_->btnMirrorAlong, &QPushButton::clicked, editing,
            [editing] { editing->mirror(PlanAxis::Along); });
    connect(ui_->btnTurnPattern, &QPushButton::clicked, editing, &PatternEditing::turnPattern);
}

void EditTools::connectAlignments()
{
    PatternEditing *editing = view_->editing();
    const struct
    {
        QAbstractButton *button;
        Alignment alignment;
    } buttons[] = {{ui_->btnAlignLeft, Alignment::Left},
                   {ui_->btnAlignCentreAcross, Alignment::CentreAcross},
                   {ui_->btnAlignRight, Alignment::Right},
                   {ui_->btnAlignTop, Alignment::Top},
                   {ui_->btnAlignCentreAlong, Alignment::CentreAlong},
                   {ui_->btnAlignBottom, Alignment::Bottom}};
    for (const auto &entry : buttons) {
        const Alignment alignment = entry.alignment;
        connect(entry.button, &QPushButton::clicked, editing,
                [editing, alignment] { editing->align(alignment); });
    }
    connect(ui_->btnSpaceAcross, &QPushButton::clicked, editing,
            [editing] { editing->distribute(PlanAxis::Across); });
    connect(ui_->btnSpaceAlong, &QPushButton::clicked, editing,
            [editing] { editing->distribute(PlanAxis::Along); });
}

void EditTools::connectClipboard()
{
    PatternEditing *editing = view_->editing();
    connect(ui_->btnSelectAll, &QPushButton::clicked, editing, &PatternEditing::selectAll);
    connect(ui_->btnAddItem, &QPushButton::clicked, this, &EditTools::addWanted);
    connect(ui_->btnCopyItems, &QPushButton::clicked, editing, &PatternEditing::copy);
    connect(ui_->btnPasteItems, &QPushButton::clicked, editing, &PatternEditing::paste);
    connect(ui_->btnRemoveItem, &QPushButton::clicked, editing, &PatternEditing::remove);
}

double EditTools::stepMm() const
{
    return ui_->btnStep->isChecked() ? kCoarseMm : kFineMm;
}

void EditTools::showStep()
{
    ui_->btnStep->setText(tr("%1 mm").arg(stepMm()));
}

void EditTools::updateButtons()
{
    const PatternEditing *editing = view_->editing();
    const bool chosen = editing->canEdit() && !editing->selection().isEmpty();
    for (QWidget *button :
         {ui_->btnCopyItems, ui_->btnRemoveItem, ui_->btnTurnLeft, ui_->btnTurnRight, ui_->btnTurnBy,
          ui_->btnNudgeLeft, ui_->btnNudgeRight, ui_->btnNudgeUp, ui_->btnNudgeDown, ui_->btnAlignLeft,
          ui_->btnAlignCentreAcross, ui_->btnAlignRight, ui_->btnAlignTop, ui_->btnAlignCentreAlong,
          ui_->btnAlignBottom})
        button->setEnabled(chosen);
    for (QWidget *button : {ui_->btnSpaceAcross, ui_->btnSpaceAlong})
        button->setEnabled(chosen && editing->selection().size() >= 3);
    const bool any = editing->canEdit() && !editing->items().isEmpty();
    for (QWidget *button :
         {ui_->btnSelectAll, ui_->btnMirrorAcross, ui_->btnMirrorAlong, ui_->btnTurnPattern})
        button->setEnabled(any);
    ui_->btnAddItem->setEnabled(editing->canEdit());
    ui_->btnPasteItems->setEnabled(editing->canPaste());
}

/// On a low panel the buttons need the room of their captions.
void EditTools::showCaptions()
{
    const QList<QLabel *> captions = findChildren<QLabel *>();
    int needed = 0;
    for (int row = 0; row < ui_->layout1->rowCount(); ++row)
        needed += ui_->layout1->verticalSpacing();
    needed += captions.size() * (captions.first()->sizeHint().height() + ui_->btnStep->sizeHint().height());
    for (QLabel *caption : captions)
        caption->setVisible(height() >= needed);
}

void EditTools::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showCaptions();
}

void EditTools::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showStep();
    }
    QWidget::changeEvent(event);
}
