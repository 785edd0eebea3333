#include "ui/layers_frame.h"

#include "ix/xtheme.h"
#include "pattern/rules/pattern_image.h"
#include "pattern/stackpatternscene.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"
#include "stack/stack_check.h"
#include "ui/form_style.h"
#include "ui/layer_series_dialog.h"
#include "ui/recipe_texts.h"
#include "ui_layers_frame.h"

#include <QHeaderView>
#include <QMenu>

LayersFrame::LayersFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::LayersFrame>()), scene_(new StackPatternScene(this)),
      layers_(new LayerTableModel(this)), layerBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    ui_->view->showPlan(scene_);
    ui_->stack->setCompact();
    ui_->tblLayers->setModel(layers_);
    setupTable(ui_->tblLayers, LayerTableModel::kPattern, false);
    bindLayerFields();
    connect(ui_->tblLayers->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LayersFrame::showLayer);
    connect(layers_, &QAbstractItemModel::modelReset, this, &LayersFrame::showLayer);
    connect(ui_->stack, &StackPanel::pieceChosen, this, &LayersFrame::showPiece);
    connectButtons();
    makeMenu();
    setStack(nullptr);
}

LayersFrame::~LayersFrame()
{
    ui_->view->setScene(nullptr); // the scene ends before the view
}

void LayersFrame::bindLayerFields()
{
    connect(ui_->cmbPattern, QOverload<int>::of(&QComboBox::activated), this,
            [this] { setPattern(ui_->cmbPattern->currentData().toString()); });
    setupNumberField(ui_->spnOffset, QStringLiteral("h_offset"));
    layerBinder_->bind(ui_->spnOffset, QStringLiteral("h_offset"));
    layerBinder_->setCheck([this](const QString &path, const QVariant &value) {
        return stack() ? palx::fieldProblem(stack()->node(), path, value.toDouble()) : QString();
    });
    connect(layerBinder_, &NodeBinder::edited, this, &LayersFrame::spreadOffset);
    connect(layerBinder_, &NodeBinder::refused, this,
            [this](QWidget *, const QString &reason) { Q_EMIT refused(reason); });
}

void LayersFrame::connectButtons()
{
    connect(ui_->btnAdd, &QPushButton::clicked, this,
            [this] { insert(palx::stackEnd(stack()->node()), usualPattern()); });
    connect(ui_->btnInsert, &QPushButton::clicked, this,
            [this] { insert(layers().value(0), usualPattern()); });
    connect(ui_->btnRemove, &QPushButton::clicked, this, &LayersFrame::removeLayers);
    ui_->btnUp->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Up));
    ui_->btnDown->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Down));
    connect(ui_->btnUp, &QPushButton::clicked, this, [this] { moveLayers(false); });
    connect(ui_->btnDown, &QPushButton::clicked, this, [this] { moveLayers(true); });
    connect(ui_->btnSheet, &QPushButton::clicked, this, [this] { layOn(&palx::insertSheets, layers()); });
    connect(ui_->btnRepeat, &QPushButton::clicked, this, [this] {
        palx::LayerSet all;
        for (int i = 0; i < palx::stackEnd(stack()->node()); ++i)
            all.append(i);
        layOn(&palx::repeatLayers, layers().size() > 1 ? layers() : all);
    });
    connect(ui_->btnPlan, &QPushButton::toggled, this,
            [this](bool plan) { ui_->stkView->setCurrentIndex(plan ? 1 : 0); });
    connect(ui_->btnSeveral, &QPushButton::toggled, this, [this](bool several) {
        ui_->tblLayers->setSelectionMode(several ? QAbstractItemView::MultiSelection
                                                 : QAbstractItemView::SingleSelection);
        if (!several)
            chooseLayer(layer());
    });
}

void LayersFrame::makeMenu()
{
    auto *menu = new QMenu(this);
    actions_ << menu->addAction(QString(), this, &LayersFrame::askSeries);
    actions_.last()->setObjectName(QStringLiteral("actSeries"));
    const char *const names[] = {"actLeftRight", "actFrontBack", "actHalfTurn"};
    for (int image = 0; image < 3; ++image) {
        actions_ << menu->addAction(QString(), this, [this, image] { mirror(image); });
        actions_.last()->setObjectName(QLatin1String(names[image]));
    }
    ui_->btnMore->setMenu(menu);
    retranslate();
}

palx::LayerSet LayersFrame::layers() const
{
    palx::LayerSet chosen;
    for (const QModelIndex &row : ui_->tblLayers->selectionModel()->selectedRows())
        chosen.append(row.row());
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

int LayersFrame::layer() const
{
    const palx::LayerSet chosen = layers();
    const int current = ui_->tblLayers->currentIndex().row();
    return chosen.isEmpty() || chosen.contains(current) ? current : chosen.last();
}

void LayersFrame::chooseLayer(int index)
{
    chooseLayers({index});
}

void LayersFrame::chooseLayers(const palx::LayerSet &layers)
{
    QItemSelection rows;
    for (const int layer : layers)
        rows.select(layers_->index(layer, 0), layers_->index(layer, layers_->columnCount() - 1));
    const QModelIndex last = layers_->index(layers.isEmpty() ? -1 : layers.last(), 0);
    ui_->tblLayers->selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
    ui_->tblLayers->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    if (last.isValid())
        ui_->tblLayers->scrollTo(last);
}

void LayersFrame::stackChanged()
{
    scene_->setStack(stack());
    layers_->setStack(stack());
    ui_->stack->setStack(stack());
}

void LayersFrame::refresh()
{
    palx::LayerSet chosen = layers();
    fillPatterns();
    layers_->refresh();
    const int last = layers_->rowCount() - 1;
    for (int &layer : chosen)
        layer = std::min(layer, last);
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    chooseLayers(chosen.isEmpty() && last >= 0 ? palx::LayerSet{0} : chosen);
    ui_->stack->refresh();
    showWarnings(ui_->lblProblems, stack() ? palx::layerProblems(stack()->node()) : QStringList());
    ui_->lblTotals->setText(stack() ? recipeTotalsText(stack()->node()) : QString());
    showLayer();
}

QString LayersFrame::blockingProblem() const
{
    return stack() && !palx::checkLayersName(stack()->r("layers"))
               ? palx::layerProblems(stack()->node()).value(0)
               : QString();
}

void LayersFrame::fillPatterns()
{
    ui_->cmbPattern->clear();
    for (const QString &name : stack() ? palx::patternNames(stack()->node()) : QStringList())
        ui_->cmbPattern->addItem(shownPattern(name), name);
    for (const QString &name : {palx::kSheetPattern, palx::kEmptyPattern})
        ui_->cmbPattern->addItem(shownPattern(name), name);
}

void LayersFrame::showLayer()
{
    const bool chosen = stack() && layer() >= 0;
    layerBinder_->setRoot(chosen ? stack()->r("layers")->c(layer()) : nullptr);
    const QVariant pattern = layers_->index(layer(), LayerTableModel::kPattern).data(Qt::EditRole);
    ui_->cmbPattern->setCurrentIndex(chosen ? ui_->cmbPattern->findData(pattern) : -1);
    ui_->cmbPattern->setEnabled(chosen);
    scene_->setLayer(std::max(layer(), 0));
    if (ui_->stack->marked().layer != layer()) {
        ui_->stack->markPiece(palx::Piece{layer(), -1});
        ui_->view->markItem(-1);
    }
    const int count = layers().size();
    ui_->lblPattern->setText(count > 1 ? tr("Pattern of %1 layers").arg(count)
                             : chosen  ? tr("Pattern of layer %1").arg(layer() + 1)
                                       : tr("No layer chosen"));
    updateButtons();
}

/// A touch on a box of the stack chooses its layer and marks it on the plan.
void LayersFrame::showPiece(const palx::Piece &piece)
{
    if (!piece.isSet())
        return;
    chooseLayer(piece.layer);
    ui_->stack->markPiece(piece);
    ui_->view->markItem(piece.item);
}

void LayersFrame::updateButtons()
{
    const int count = layers_->rowCount();
    const palx::LayerSet chosen = layers();
    const bool any = stack() && !chosen.isEmpty();
    ui_->btnAdd->setEnabled(stack() && count < palx::kMaxLayers);
    ui_->btnInsert->setEnabled(any && count < palx::kMaxLayers);
    ui_->btnRemove->setEnabled(any);
    ui_->btnUp->setEnabled(any && chosen.last() >= chosen.size());
    ui_->btnDown->setEnabled(any && chosen.first() < count - chosen.size());
    ui_->btnSheet->setEnabled(any);
    ui_->btnRepeat->setEnabled(stack() && count > 0);
    ui_->btnMore->setEnabled(stack() && !palx::patternNames(stack()->node()).isEmpty());
    for (QAction *image : actions_.mid(1))
        image->setEnabled(any);
}

/// What a new layer most likely is: the pattern of the layer two below, as layers mostly alternate.
QString LayersFrame::usualPattern() const
{
    const QVector<palx::LayerFacts> layers = palx::layerFacts(stack()->node());
    const QStringList patterns = palx::patternNames(stack()->node());
    if (layers.size() >= 2)
        return layers[layers.size() - 2].pattern;
    return patterns.value(std::min(layers.size(), patterns.size() - 1));
}

void LayersFrame::setPattern(const QString &pattern)
{
    const palx::LayerSet chosen = layers();
    for (const int layer : chosen)
        layers_->setData(layers_->index(layer, LayerTableModel::kPattern), pattern);
    changed(chosen);
}

/// What was written to one layer goes to the other chosen ones too, as part of the same edit.
void LayersFrame::spreadOffset()
{
    const QVariant value = layerBinder_->root()->c("h_offset")->value();
    for (const int other : layers()) {
        const QString path = QStringLiteral("layers.#%1.h_offset").arg(other);
        stack()->ensure(path);
        stack()->set(this, path, value);
    }
    Q_EMIT edited();
}

void LayersFrame::changed(const palx::LayerSet &layers)
{
    refresh();
    chooseLayers(layers);
    Q_EMIT edited();
}

void LayersFrame::insert(int index, const QString &pattern)
{
    palx::insertLayer(stack(), index, pattern);
    changed({index});
}

void LayersFrame::removeLayers()
{
    const int first = layers().value(0);
    palx::removeLayers(stack(), layers());
    changed({std::min(first, layers_->rowCount() - 1)});
}

void LayersFrame::moveLayers(bool up)
{
    changed(palx::moveLayers(stack(), layers(), up));
}

void LayersFrame::layOn(int (*rule)(orba::ModuleObject *, const palx::LayerSet &),
                        const palx::LayerSet &layers)
{
    const palx::LayerSet chosen = this->layers();
    if (rule(stack(), layers) > 0)
        return changed(chosen);
    Q_EMIT refused(palx::LayerSet(layers).size() + layers_->rowCount() > palx::kMaxLayers
                       ? tr("A recipe holds at most %1 layers.").arg(palx::kMaxLayers)
                       : tr("There is a sheet already, or no box to lay it on."));
}

void LayersFrame::mirror(int image)
{
    if (palx::imageLayers(stack(), layers(), palx::PatternImage(image)) > 0)
        changed(layers());
    else
        Q_EMIT refused(tr("The chosen layers look the same then."));
}

void LayersFrame::askSeries()
{
    auto *dialog = new LayerSeriesDialog(stack(), layer(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        if (stack() && dialog->lay(stack()))
            changed(layers());
    });
    dialog->open();
}

void LayersFrame::retranslate()
{
    ui_->retranslateUi(this);
    const QString texts[] = {tr("Layers in turn..."), tr("Mirror left to right"), tr("Mirror front to back"),
                             tr("Turn by half")};
    for (int i = 0; i < actions_.size(); ++i)
        actions_[i]->setText(texts[i]);
}
