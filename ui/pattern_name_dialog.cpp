#include "ui/pattern_name_dialog.h"

#include "nexo/manager_helper.h"
#include "stack/recipe_patterns.h"
#include "ui/form_style.h"
#include "ui_pattern_name_dialog.h"

#include <QEvent>
#include <QRegularExpressionValidator>

PatternNameDialog::PatternNameDialog(orba::ModuleObject *patterns, const QString &currentPattern,
                                     QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::PatternNameDialog>()), patterns_(patterns),
      current_(currentPattern)
{
    ui_->setupUi(this);
    const QRegularExpression letters(QStringLiteral("^[A-Za-z0-9_-]+$"));
    ui_->edtName->setValidator(new QRegularExpressionValidator(letters, this));
    ui_->edtName->setText(palx::firstFreeLetter(patterns->node()));
    ui_->edtName->selectAll();
    ui_->chbClone->setEnabled(patterns->node().child(QStringView(current_)) != nullptr);
    connect(ui_->btnOk, &QPushButton::clicked, this, &PatternNameDialog::work);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &PatternNameDialog::reject);
    connect(patterns, &QObject::destroyed, this, &PatternNameDialog::reject);
    setFieldMargins(this);
}

PatternNameDialog::~PatternNameDialog() = default;

bool PatternNameDialog::isClone() const
{
    return ui_->chbClone->isChecked();
}

void PatternNameDialog::work()
{
    if (!patterns_)
        return;
    const QString name = ui_->edtName->text();
    const QString problem = palx::newPatternProblem(patterns_->node(), name);
    if (!problem.isEmpty()) {
        nexo::ManagerHelper::instance()->execMsgOk(tr("warning"), problem, QStringLiteral("_"));
        return;
    }
    palx::createPattern(patterns_, name, isClone() ? current_ : QString());
    name_ = name;
    Q_EMIT patternAdded(name);
    accept();
}

void PatternNameDialog::showTitle()
{
    setWindowTitle(titleText());
    ui_->lblTitle->setText(titleText());
    ui_->chbClone->setText(tr("Clone of pattern %1").arg(current_));
}

void PatternNameDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showTitle();
    }
    QDialog::changeEvent(event);
}

NewPatternDialog::NewPatternDialog(orba::ModuleObject *patterns, const QString &currentPattern,
                                   QWidget *parent)
    : PatternNameDialog(patterns, currentPattern, parent)
{
    showTitle();
}

QString NewPatternDialog::titleText() const
{
    return tr("New pattern");
}

AddPatternDialog::AddPatternDialog(orba::ModuleObject *patterns, const QString &currentPattern,
                                   QWidget *parent)
    : PatternNameDialog(patterns, currentPattern, parent)
{
    showTitle();
}

QString AddPatternDialog::titleText() const
{
    return tr("First pattern");
}
