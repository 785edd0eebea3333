#include "ui/layer_series_dialog.h"

#include "ix/xtheme.h"
#include "pattern/rules/pattern_image.h"
#include "stack/recipe_patterns.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui/recipe_tables.h"
#include "ui/recipe_texts.h"
#include "ui_layer_series_dialog.h"

#include <QEvent>

LayerSeriesDialog::LayerSeriesDialog(orba::ModuleObject *stack, int layer, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::LayerSeriesDialog>()), stack_(stack), layer_(layer)
{
    ui_->setupUi(this);
    ui_->spnCount->setRange(1, palx::kMaxLayers);
    ui_->spnCount->setValue(2);
    ui_->spnSheet->setRange(0, palx::kMaxLayers);
    fill();
    for (QComboBox *combo : {ui_->cmbFirst, ui_->cmbSecond, ui_->cmbWhere})
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &LayerSeriesDialog::showResult);
    for (QSpinBox *spin : {ui_->spnCount, ui_->spnSheet})
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, &LayerSeriesDialog::showResult);
    connect(ui_->btnOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    new KeypadOpener(this);
    setFieldMargins(this);
    showResult();
}

LayerSeriesDialog::~LayerSeriesDialog() = default;

/// Also anew in another language; the choices stay.
void LayerSeriesDialog::fill()
{
    const int first = ui_->cmbFirst->currentIndex();
    const int second = ui_->cmbSecond->currentIndex();
    const int where = ui_->cmbWhere->currentIndex();
    for (QComboBox *combo : {ui_->cmbFirst, ui_->cmbSecond, ui_->cmbWhere})
        combo->clear();
    ui_->spnSheet->setSpecialValueText(tr("none"));
    const QStringList patterns = palx::patternNames(stack_->node());
    for (const QString &name : patterns) {
        ui_->cmbFirst->addItem(shownPattern(name), name);
        ui_->cmbSecond->addItem(shownPattern(name), name);
    }
    const QString images[] = {tr("Mirrored left to right"), tr("Mirrored front to back"),
                              tr("Turned by half")};
    for (int i = 0; i < 3; ++i)
        ui_->cmbSecond->addItem(images[i], i);
    ui_->cmbWhere->addItem(tr("On top"), -1);
    if (layer_ >= 0)
        ui_->cmbWhere->addItem(tr("From layer %1 on, replacing").arg(layer_ + 1), layer_);
    ui_->cmbFirst->setCurrentIndex(std::max(first, 0));
    ui_->cmbSecond->setCurrentIndex(second < 0 ? std::min(1, patterns.size() - 1) : second);
    ui_->cmbWhere->setCurrentIndex(std::max(where, 0));
}

int LayerSeriesDialog::image() const
{
    const QVariant second = ui_->cmbSecond->currentData();
    return second.type() == QVariant::Int ? second.toInt() : -1;
}

palx::LayerSeries LayerSeriesDialog::series() const
{
    palx::LayerSeries series;
    series.patterns << ui_->cmbFirst->currentData().toString();
    if (image() < 0)
        series.patterns << ui_->cmbSecond->currentData().toString();
    series.count = ui_->spnCount->value();
    series.sheetEvery = ui_->spnSheet->value();
    series.from = ui_->cmbWhere->currentData().toInt();
    return series;
}

bool LayerSeriesDialog::lay(orba::ModuleObject *stack) const
{
    return image() < 0 ? palx::laySeries(stack, series())
                       : palx::layImageSeries(stack, series(), palx::PatternImage(image()));
}

/// An image holds as many products as its pattern, so the figures are right before it is made.
void LayerSeriesDialog::showResult()
{
    if (!stack_)
        return;
    const QString problem = palx::seriesProblem(stack_->node(), series());
    QString result = problem;
    if (problem.isEmpty()) {
        orba::Node foreseen = stack_->node();
        foreseen.ensure(u"layers")->assign(palx::seriesLayers(stack_->node(), series()));
        result = recipeTotalsText(foreseen);
    }
    ui_->lblResult->setText(result);
    ix::xtheme::setState(ui_->lblResult,
                         problem.isEmpty() ? ix::xtheme::State::None : ix::xtheme::State::Attention);
    ui_->btnOk->setEnabled(problem.isEmpty());
}

void LayerSeriesDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        if (stack_)
            fill();
        showResult();
    }
    QDialog::changeEvent(event);
}
