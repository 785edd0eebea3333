#include "ui/pattern_template_dialog.h"

#include "nexo/manager_helper.h"
#include "nexo/setting_manager.h"
#include "pattern/generated_items.h"
#include "pattern/patternscene.h"
#include "stack/recipe_fields.h"
#include "ui/form_style.h"
#include "ui/keypad.h"
#include "ui_pattern_template_dialog.h"

#include <QEvent>
#include <QPixmap>

using palx::TemplateKind;

PatternTemplateDialog::PatternTemplateDialog(orba::ModuleObject *stack, PatternScene *scene, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::PatternTemplateDialog>()), stack_(stack), scene_(scene)
{
    ui_->setupUi(this);
    const QList<QSpinBox *> spins{ui_->spnNumX,    ui_->spnNumY,    ui_->spnNumY1,  ui_->spnNumY2,
                                  ui_->spnOffsetX, ui_->spnOffsetY, ui_->spnSpaceX, ui_->spnSpaceY};
    for (int i = 0; i < spins.size(); ++i)
        fields_.append({palx::templateFields()[i], spins[i]});
    fillKinds();
    loadCfg();
    patternChanged();
    connect(ui_->cmbTemplate, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PatternTemplateDialog::patternChanged);
    for (const QSpinBox *spin : findChildren<QSpinBox *>())
        connect(spin, &QSpinBox::editingFinished, this, &PatternTemplateDialog::saveCfg);
    connect(ui_->btnConfirm, &QPushButton::clicked, this, &PatternTemplateDialog::confirm);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &PatternTemplateDialog::reject);
    connect(stack, &QObject::destroyed, this, &PatternTemplateDialog::reject);
    connect(scene, &QObject::destroyed, this, &PatternTemplateDialog::reject);
    setFieldMargins(this);
    new KeypadOpener(this);
}

PatternTemplateDialog::~PatternTemplateDialog() = default;

void PatternTemplateDialog::fillKinds()
{
    const QStringList texts{tr("Overlap"), tr("Cross"), tr("Clip")};
    for (int i = 0; i < texts.size(); ++i) {
        if (i == ui_->cmbTemplate->count())
            ui_->cmbTemplate->addItem(QString(), palx::templateWords().at(i));
        ui_->cmbTemplate->setItemText(i, texts.at(i));
    }
}

/// A stored number beyond a field's range is shown as it is, because it is the one that is checked.
void PatternTemplateDialog::loadCfg()
{
    if (!stack_)
        return;
    ui_->cmbTemplate->setCurrentIndex(
        ui_->cmbTemplate->findData(stack_->getString(palx::templatePath("type"))));
    const palx::TemplateNumbers numbers = palx::readTemplateNumbers(stack_->node());
    for (const Field &field : fields_) {
        const palx::FieldSpec *spec = palx::fieldSpec(palx::templatePath(field.spec.key));
        const int number = numbers.*field.spec.number;
        field.spin->setRange(qMin(number, int(spec->minimum)), qMax(number, int(spec->maximum)));
        field.spin->setValue(number);
    }
}

void PatternTemplateDialog::saveCfg()
{
    if (!stack_)
        return;
    saveKind();
    for (const Field &field : fields_) {
        const QString path = palx::templatePath(field.spec.key);
        stack_->ensure(path);
        stack_->set(this, path, qint64(field.spin->value()));
    }
}

/// A stored kind that is none of ours stays until one is chosen.
void PatternTemplateDialog::saveKind()
{
    if (!stack_ || ui_->cmbTemplate->currentIndex() < 0)
        return;
    const QString path = palx::templatePath("type");
    stack_->ensure(path);
    stack_->set(this, path, ui_->cmbTemplate->currentData());
}

void PatternTemplateDialog::patternChanged()
{
    showFields();
    showImage();
    saveKind();
}

void PatternTemplateDialog::showFields()
{
    const int kind = ui_->cmbTemplate->currentIndex();
    const auto show = [](bool shown, std::initializer_list<QWidget *> widgets) {
        for (QWidget *widget : widgets)
            widget->setVisible(shown);
    };
    show(kind != int(TemplateKind::Clip), {ui_->lblX, ui_->spnNumX});
    show(kind == int(TemplateKind::Overlap), {ui_->lblY, ui_->spnNumY});
    show(kind == int(TemplateKind::Cross), {ui_->lblY1, ui_->spnNumY1, ui_->lblY2, ui_->spnNumY2});
}

void PatternTemplateDialog::showImage()
{
    const QString language = nexo::SettingManager::instance()->getStr(QStringLiteral("language"));
    const QString word = ui_->cmbTemplate->currentData().toString();
    ui_->wgtImage->setPixmap(QPixmap(palx::templateImage(word, language)));
}

QString PatternTemplateDialog::checkTemplate()
{
    return stack_ && scene_ ? palx::checkTemplate(stack_->node(), scene_->getWobjCount()) : QString();
}

bool PatternTemplateDialog::addTemplate()
{
    if (!stack_ || !scene_)
        return false;
    const QString problem = checkTemplate();
    if (!problem.isEmpty()) {
        nexo::ManagerHelper::instance()->execMsgOk(tr("warning"), problem, QStringLiteral("_"));
        return false;
    }
    palx::TemplateNumbers numbers;
    for (const Field &field : fields_)
        numbers.*field.spec.number = field.spin->value();
    const int kind = ui_->cmbTemplate->currentIndex();
    if (kind >= 0)
        palx::addGeneratedItems(scene_, palx::templateItems(stack_->node(), static_cast<TemplateKind>(kind),
                                                            numbers, scene_->getWobjCount()));
    return true;
}

void PatternTemplateDialog::confirm()
{
    if (addTemplate())
        accept();
}

void PatternTemplateDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        fillKinds();
        showImage();
    }
    QDialog::changeEvent(event);
}
