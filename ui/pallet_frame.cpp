#include "ui/pallet_frame.h"

#include "project/rules/run_recovery.h"
#include "stack/recipe_fields.h"
#include "ui_pallet_frame.h"
#include "workstation/plugin_node.h"

namespace {

const char *const kMarginSides[] = {"left", "right", "top", "bottom"};

const orba::Node &presets()
{
    static const orba::Node none;
    const orba::Node *list = palx::pluginNode()->node().child(u"pallet_cfg");
    return list ? *list : none;
}

int specificationOf(const orba::Node &stack)
{
    const QString pallet = QStringLiteral("product_cfg.pallet.");
    const auto number = [&](const char *key) {
        return stack.getDouble(QString(pallet + QLatin1String(key)));
    };
    return palx::palletSpecification(presets(), number("length"), number("width"), number("height"));
}

} // namespace

PalletFrame::PalletFrame(QWidget *parent) : RecipeFrame(parent), ui_(std::make_unique<Ui::PalletFrame>())
{
    ui_->setupUi(this);
    fillCombos();
    bindFields();
    connect(ui_->cmbSpecification, QOverload<int>::of(&QComboBox::activated), this,
            &PalletFrame::choosePreset);
    followTriggers();
    setStack(nullptr);
}

PalletFrame::~PalletFrame() = default;

void PalletFrame::bindFields()
{
    const QString pallet = QStringLiteral("product_cfg.pallet.");
    bindNumber(ui_->spnLength, pallet + QLatin1String("length"));
    bindNumber(ui_->spnWidth, pallet + QLatin1String("width"));
    bindNumber(ui_->spnHeight, pallet + QLatin1String("height"));
    bindNumber(ui_->spnWeight, pallet + QLatin1String("weight"));
    const QString sheet = QStringLiteral("product_cfg.clapboard.");
    binder()->bind(ui_->chkSheet, sheet + QLatin1String("enabled"));
    bindNumber(ui_->spnSheetLength, sheet + QLatin1String("length"));
    bindNumber(ui_->spnSheetWidth, sheet + QLatin1String("width"));
    bindNumber(ui_->spnSheetHeight, sheet + QLatin1String("height"));
    bindNumber(ui_->spnSheetWeight, sheet + QLatin1String("weight"));
    bindNumber(ui_->spnLeft, QStringLiteral("wobj_margin.left"));
    bindNumber(ui_->spnRight, QStringLiteral("wobj_margin.right"));
    bindNumber(ui_->spnTop, QStringLiteral("wobj_margin.top"));
    bindNumber(ui_->spnBottom, QStringLiteral("wobj_margin.bottom"));
    binder()->bind(ui_->cmbPosition, QStringLiteral("pallet_position"));
    binder()->bind(ui_->chkBollard, QStringLiteral("bollard.enabled"));
    bindNumber(ui_->spnBollard, QStringLiteral("bollard.height"));
    binder()->bind(ui_->chkGlobalTool, QStringLiteral("use_global_tool"));
    binder()->bind(ui_->chkGlobalWobj, QStringLiteral("use_global_wobj"));
}

void PalletFrame::followTriggers()
{
    orba::ModuleObject *trigger = palx::triggerNode();
    connect(trigger->c("refresh_margin_data"), &orba::ModuleObject::changed, this,
            [this] { binder()->reload(); });
    connect(trigger->c("refresh_pallet_data"), &orba::ModuleObject::changed, this, [this] {
        binder()->reload();
        refresh();
    });
    connect(m("nexo.cell.program.state"), &orba::ModuleObject::changed, this, &PalletFrame::refresh);
    connect(trigger->c("reset_margin_data"), &orba::ModuleObject::changed, this, &PalletFrame::resetMargins);
}

void PalletFrame::fillCombos()
{
    const QVariant position = ui_->cmbPosition->currentData();
    ui_->cmbPosition->clear();
    ui_->cmbPosition->addItem(tr("Left"), 0);
    ui_->cmbPosition->addItem(tr("Right"), 1);
    ui_->cmbPosition->setCurrentIndex(ui_->cmbPosition->findData(position));
    ui_->cmbSpecification->clear();
    ui_->cmbSpecification->addItem(tr("Own size"));
    for (int i = 0; i < presets().size(); ++i)
        ui_->cmbSpecification->addItem(presets().getString(QStringLiteral("#%1.name").arg(i)));
}

void PalletFrame::stackChanged()
{
    ui_->cmbSpecification->setEnabled(stack() != nullptr);
    fillCombos(); // presets may have come since
    binder()->reload();
}

void PalletFrame::refresh()
{
    const bool open = stack() != nullptr;
    ui_->cmbSpecification->setCurrentIndex(open ? specificationOf(stack()->node()) : -1);
    const bool sheets = open && ui_->chkSheet->isChecked();
    for (QWidget *field :
         {static_cast<QWidget *>(ui_->spnSheetLength), static_cast<QWidget *>(ui_->spnSheetWidth),
          static_cast<QWidget *>(ui_->spnSheetHeight), static_cast<QWidget *>(ui_->spnSheetWeight)})
        field->setEnabled(sheets);
    ui_->spnBollard->setEnabled(open && ui_->chkBollard->isChecked());
    const QString fixed = whyPlaceFixed();
    ui_->cmbPosition->setEnabled(open && fixed.isEmpty());
    QStringList warnings(open ? palx::sizeWarning(stack()->node()) : QString());
    if (!fixed.isEmpty())
        warnings << QStringLiteral("%1: %2").arg(ui_->lblPosition->text(), fixed);
    warnings.removeAll(QString());
    showWarnings(ui_->lblWarning, warnings);
}

/// Programs that run would take other recipes from then on.
QString PalletFrame::whyPlaceFixed() const
{
    return stack() ? palx::whyNotMove(palx::currentRunRecovery(), palx::stacksNode()->node(),
                                      stack()->getString("name"))
                   : QString();
}

void PalletFrame::fieldWritten(const QString &path)
{
    if (path.startsWith(QLatin1String("product_cfg.pallet.")))
        storeSpecification();
}

/// 0, "Own size", leaves the size as it is.
void PalletFrame::choosePreset(int specification)
{
    if (!stack())
        return;
    const QString preset = QStringLiteral("#%1.").arg(specification - 1);
    for (const char *key : {"length", "width", "height"}) {
        const QVariant size = presets().value(QString(preset + QLatin1String(key)));
        const QString path = mName(QStringLiteral("product_cfg.pallet"), QLatin1String(key));
        stack()->ensure(path);
        if (size.isValid())
            stack()->set(nullptr, path, size);
    }
    storeSpecification();
    Q_EMIT edited();
}

void PalletFrame::storeSpecification()
{
    const QString path = QStringLiteral("product_cfg.pallet.specification");
    stack()->ensure(path);
    stack()->set(nullptr, path, specificationOf(stack()->node()));
}

void PalletFrame::resetMargins()
{
    for (const char *side : kMarginSides) {
        if (stack())
            stack()->set(nullptr, mName(QStringLiteral("wobj_margin"), QLatin1String(side)), 0);
    }
}

void PalletFrame::retranslate()
{
    ui_->retranslateUi(this);
    fillCombos();
}
