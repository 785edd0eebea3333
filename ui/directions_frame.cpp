#include "ui/directions_frame.h"

#include "pattern/pattern_editing.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_patterns.h"
#include "ui/edit_icons.h"
#include "ui/pattern_problems.h"
#include "ui/recipe_tables.h"
#include "ui_directions_frame.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

using palx::PatternEditing;

namespace {

/// From the side of a square towards its middle.
QIcon arrowIcon(const QPoint &side)
{
    constexpr int kPixels = 32;
    QIcon icon;
    for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
        const QPixmap up = editIcon(EditIcon::Up).pixmap(QSize(kPixels, kPixels), QIcon::Normal, state);
        QPixmap turned(up.size());
        turned.fill(Qt::transparent);
        QPainter painter(&turned);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(QRectF(turned.rect()).center());
        painter.rotate(qRadiansToDegrees(std::atan2(-side.y(), -side.x())) + 90); // the picture points up
        painter.drawPixmap(-QRectF(turned.rect()).center(), up);
        icon.addPixmap(turned, QIcon::Normal, state);
    }
    return icon;
}

} // namespace

DirectionsFrame::DirectionsFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::DirectionsFrame>()), scene_(new PatternScene(this)),
      itemBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    ui_->view->showPlan(scene_);
    ui_->view->setLocked(true);
    ui_->problems->attach(ui_->view);
    bindOffsets();
    connectPad();
    connectEditing();
    setStack(nullptr);
}

DirectionsFrame::~DirectionsFrame()
{
    delete ui_->view; // before the scene that it shows
}

PatternEditing *DirectionsFrame::editing() const
{
    return ui_->view->editing();
}

void DirectionsFrame::bindOffsets()
{
    const std::pair<QDoubleSpinBox *, const char *> fields[] = {
        {ui_->spnDx, "dx"}, {ui_->spnDy, "dy"}, {ui_->spnDz, "dz"}};
    for (const auto &[field, key] : fields) {
        setupNumberField(field, QLatin1String(key));
        itemBinder_->bind(field, QLatin1String(key));
    }
    itemBinder_->setCheck([this](const QString &path, const QVariant &value) {
        return stack() ? palx::fieldProblem(stack()->node(), path, value.toDouble()) : QString();
    });
    connect(itemBinder_, &NodeBinder::edited, this,
            [this](QWidget *, const QString &path) { spreadOffset(path); });
    connect(itemBinder_, &NodeBinder::refused, this,
            [this](QWidget *, const QString &reason) { Q_EMIT refused(reason); });
}

void DirectionsFrame::connectPad()
{
    pad_ = {{ui_->btnTopLeft, {-1, -1}},   {ui_->btnTop, {0, -1}},   {ui_->btnTopRight, {1, -1}},
            {ui_->btnLeft, {-1, 0}},       {ui_->btnAbove, {0, 0}},  {ui_->btnRight, {1, 0}},
            {ui_->btnBottomLeft, {-1, 1}}, {ui_->btnBottom, {0, 1}}, {ui_->btnBottomRight, {1, 1}}};
    for (const Side &entry : qAsConst(pad_)) {
        if (!entry.side.isNull())
            entry.button->setIcon(arrowIcon(entry.side));
        entry.button->setIconSize(QSize(28, 28));
        connect(entry.button, &QAbstractButton::clicked, this, [this, side = entry.side] {
            palx::FeedingEdit edit;
            edit.direction = palx::directionFrom(side, scene_->rules().frame);
            editing()->feed(edit);
            showPad(); // also when nothing was changed: the press has checked another button
        });
    }
}

void DirectionsFrame::connectEditing()
{
    connect(editing(), &PatternEditing::edited, this, [this] {
        showChoice();
        Q_EMIT edited();
    });
    connect(editing(), &PatternEditing::refused, this, &RecipeFrame::refused);
    connect(editing(), &PatternEditing::selectionChanged, this, &DirectionsFrame::showChoice);
    connect(scene_, &PatternScene::planChanged, this, &DirectionsFrame::showProblems);
    connect(ui_->cmbPattern, QOverload<int>::of(&QComboBox::activated), this, &DirectionsFrame::showPattern);
    connect(ui_->btnPropose, &QPushButton::clicked, editing(), &PatternEditing::proposeSides);
    connect(ui_->btnAll, &QPushButton::clicked, editing(), &PatternEditing::selectAll);
    connect(ui_->btnSeveral, &QPushButton::toggled, ui_->view, &PatternView::setAdding);
}

QString DirectionsFrame::pattern() const
{
    return ui_->cmbPattern->currentData().toString();
}

void DirectionsFrame::choosePattern(const QString &name)
{
    ui_->cmbPattern->setCurrentIndex(ui_->cmbPattern->findData(name));
    showPattern();
}

palx::Selection DirectionsFrame::meant() const
{
    palx::Selection meant = editing()->selection();
    for (int i = 0; editing()->selection().isEmpty() && i < editing()->items().size(); ++i)
        meant.append(i);
    return meant;
}

void DirectionsFrame::stackChanged()
{
    scene_->setStack(stack());
    ui_->cmbPattern->clear(); // the choice belongs to the recipe
    shownPattern_.clear();
}

void DirectionsFrame::refresh()
{
    fillPatterns();
    showPattern();
}

/// Keeps the choice while the pattern is there.
void DirectionsFrame::fillPatterns()
{
    const QString chosen = pattern();
    ui_->cmbPattern->clear();
    for (const QString &name : stack() ? palx::patternNames(stack()->node()) : QStringList())
        ui_->cmbPattern->addItem(shownPattern(name), name);
    const int last = ui_->cmbPattern->count() - 1;
    ui_->cmbPattern->setCurrentIndex(std::min(last, std::max(0, ui_->cmbPattern->findData(chosen))));
}

void DirectionsFrame::showPattern()
{
    const bool another = pattern() != shownPattern_;
    shownPattern_ = pattern();
    scene_->setPattern(stack() ? stack()->r("patterns")->c(pattern()) : nullptr);
    if (another)
        editing()->select({});
    showChoice();
    showProblems();
}

void DirectionsFrame::showChoice()
{
    const palx::Selection products = meant();
    const int chosen = editing()->selection().size();
    itemBinder_->setRoot(
        stack() && !products.isEmpty() ? stack()->r("patterns")->c(pattern())->c(products.last()) : nullptr);
    ui_->lblChoice->setText(products.isEmpty() ? tr("No products")
                            : chosen == 0      ? tr("All products")
                            : chosen == 1      ? tr("Product %1").arg(products.first() + 1)
                                               : tr("%1 products chosen").arg(chosen));
    for (const Side &entry : qAsConst(pad_))
        entry.button->setEnabled(!products.isEmpty());
    for (QWidget *button : {ui_->btnPropose, ui_->btnAll, ui_->btnSeveral})
        button->setEnabled(!products.isEmpty());
    showPad();
}

/// The side that all of the products have in common is down.
void DirectionsFrame::showPad()
{
    const palx::Selection products = meant();
    const auto comesFrom = [this](int item, const QPoint &side) {
        return palx::sideOf(editing()->items().at(item), scene_->rules().frame) == side;
    };
    for (const Side &entry : qAsConst(pad_)) {
        const bool common =
            !products.isEmpty() && std::all_of(products.begin(), products.end(),
                                               [&](int item) { return comesFrom(item, entry.side); });
        entry.button->setChecked(common);
    }
    const bool one = editing()->selection().size() == 1;
    ui_->lblDirection->setText(one ? shownDirection(editing()->items().at(products.first()).directionText)
                                   : QString());
}

void DirectionsFrame::showProblems()
{
    ui_->problems->showProblems(palx::problemsOf(scene_->shownItems(), scene_->checks(), scene_->rules()));
}

/// What was written to one product goes to the others too, as part of the same edit.
void DirectionsFrame::spreadOffset(const QString &path)
{
    const double value = itemBinder_->root()->getDouble(path);
    palx::FeedingEdit edit;
    (path == QLatin1String("dx") ? edit.dx : path == QLatin1String("dy") ? edit.dy : edit.dz) = value;
    editing()->feed(edit);
    Q_EMIT edited();
}

void DirectionsFrame::retranslate()
{
    ui_->retranslateUi(this);
}
