#include "ui/layers_frame.h"

#include "ix/xtheme.h"
#include "pattern/stackpatternscene.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_layers.h"
#include "stack/recipe_patterns.h"
#include "stack/stack_check.h"
#include "ui/form_style.h"
#include "ui/recipe_texts.h"
#include "ui_layers_frame.h"

#include <QHeaderView>

namespace {

constexpr int kMaxLayers = 200; // more would be a slip of the finger on "Repeat all"

} // namespace

LayersFrame::LayersFrame(QWidget *parent)
    : RecipeFrame(parent), ui_(std::make_unique<Ui::LayersFrame>()), scene_(new StackPatternScene(this)),
      layers_(new LayerTableModel(this)), layerBinder_(new NodeBinder(this))
{
    ui_->setupUi(this);
    ui_->view->showPlan(scene_);
    ui_->tblLayers->setModel(layers_);
    setupTable(ui_->tblLayers, LayerTableModel::kPattern, false);
    setupNumberField(ui_->spnOffset, QStringLiteral("h_offset"));
    layerBinder_->bind(ui_->cmbPattern, QStringLiteral("pattern"));
    layerBinder_->bind(ui_->spnOffset, QStringLiteral("h_offset"));
    layerBinder_->setCheck([this](const QString &path, const QVariant &value) {
        return stack() && path == QLatin1String("h_offset")
                   ? palx::fieldProblem(stack()->node(), path, value.toDouble())
                   : QString();
    });
    connect(layerBinder_, &NodeBinder::edited, this, &RecipeFrame::edited);
    connect(layerBinder_, &NodeBinder::refused, this,
            [this](QWidget *, const QString &reason) { Q_EMIT refused(reason); });
    connect(ui_->tblLayers->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &LayersFrame::showLayer);
    connect(layers_, &QAbstractItemModel::modelReset, this, &LayersFrame::showLayer);
    connectButtons();
    setStack(nullptr);
}

LayersFrame::~LayersFrame()
{
    ui_->view->setScene(nullptr); // the scene ends before the view
}

void LayersFrame::connectButtons()
{
    connect(ui_->btnAdd, &QPushButton::clicked, this,
            [this] { insert(layers_->rowCount(), usualPattern()); });
    connect(ui_->btnInsert, &QPushButton::clicked, this, [this] { insert(layer(), usualPattern()); });
    connect(ui_->btnRemove, &QPushButton::clicked, this, &LayersFrame::removeLayer);
    ui_->btnUp->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Up));
    ui_->btnDown->setIcon(ix::xtheme::icon(ix::xtheme::Glyph::Down));
    connect(ui_->btnUp, &QPushButton::clicked, this, [this] { moveLayer(-1); });
    connect(ui_->btnDown, &QPushButton::clicked, this, [this] { moveLayer(1); });
    connect(ui_->btnRepeat, &QPushButton::clicked, this, &LayersFrame::repeatAll);
}

int LayersFrame::layer() const
{
    return ui_->tblLayers->currentIndex().row();
}

void LayersFrame::chooseLayer(int index)
{
    ui_->tblLayers->setCurrentIndex(layers_->index(index, 0));
}

void LayersFrame::stackChanged()
{
    scene_->setStack(stack());
    layers_->setStack(stack());
}

void LayersFrame::refresh()
{
    const int selected = layer();
    fillPatterns();
    layers_->refresh();
    chooseLayer(std::min(std::max(selected, 0), layers_->rowCount() - 1));
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
    layerBinder_->reload();
}

void LayersFrame::showLayer()
{
    const bool chosen = stack() && layer() >= 0;
    layerBinder_->setRoot(chosen ? stack()->r("layers")->c(layer()) : nullptr);
    scene_->setLayer(std::max(layer(), 0));
    ui_->lblLayer->setText(chosen ? tr("Layer %1").arg(layer() + 1) : tr("No layer chosen"));
    updateButtons();
}

void LayersFrame::updateButtons()
{
    const int count = layers_->rowCount();
    const bool chosen = stack() && layer() >= 0;
    ui_->btnAdd->setEnabled(stack() && count < kMaxLayers);
    ui_->btnInsert->setEnabled(chosen && count < kMaxLayers);
    ui_->btnRemove->setEnabled(chosen);
    ui_->btnUp->setEnabled(chosen && layer() > 0);
    ui_->btnDown->setEnabled(chosen && layer() + 1 < count);
    ui_->btnRepeat->setEnabled(stack() && count > 0 && count * 2 <= kMaxLayers);
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

void LayersFrame::insert(int index, const QString &pattern)
{
    palx::insertLayer(stack(), index, pattern);
    refresh();
    chooseLayer(index);
    Q_EMIT edited();
}

void LayersFrame::removeLayer()
{
    palx::removeLayer(stack(), layer());
    refresh();
    Q_EMIT edited();
}

void LayersFrame::moveLayer(int by)
{
    const int target = layer() + by;
    if (!palx::moveLayer(stack(), layer(), target))
        return;
    refresh();
    chooseLayer(target);
    Q_EMIT edited();
}

/// Lays the whole sequence once more on top.
void LayersFrame::repeatAll()
{
    const orba::Node layers = *stack()->node().find(u"layers");
    for (int i = 0; i < layers.size(); ++i)
        palx::insertLayer(stack(), -1, layers.getString(QStringLiteral("#%1.pattern").arg(i)),
                          layers.getDouble(QStringLiteral("#%1.h_offset").arg(i)));
    refresh();
    Q_EMIT edited();
}

void LayersFrame::retranslate()
{
    ui_->retranslateUi(this);
}
