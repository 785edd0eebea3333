#include "ui/recipe_frame.h"

#include "ix/xtheme.h"
#include "stack/recipe_fields.h"
#include "stack/recipe_patterns.h"
#include "ui/recipe_tables.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLabel>
#include <QSpinBox>

RecipeFrame::RecipeFrame(QWidget *parent) : QWidget(parent)
{
    binder_.setCheck([this](const QString &path, const QVariant &value) {
        const bool number = value.userType() == QMetaType::Double || value.userType() == QMetaType::LongLong;
        return stack_ && number ? palx::fieldProblem(stack_->node(), path, value.toDouble()) : QString();
    });
    connect(&binder_, &NodeBinder::edited, this, [this](QWidget *, const QString &path) {
        fieldWritten(path);
        Q_EMIT edited();
    });
    connect(&binder_, &NodeBinder::refused, this,
            [this](QWidget *, const QString &reason) { Q_EMIT refused(reason); });
}

RecipeFrame::~RecipeFrame() = default;

void RecipeFrame::setStack(orba::ModuleObject *stack)
{
    stack_ = stack && !stack->isEmptyMobj() ? stack : nullptr;
    binder_.setRoot(stack_);
    stackChanged();
    refresh();
}

void RecipeFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        binder_.reload();
        refresh();
    }
    QWidget::changeEvent(event);
}

void RecipeFrame::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

namespace {

QString shownSuffix(const palx::FieldSpec *spec)
{
    return spec ? palx::unitSuffix(spec->unit) : QString();
}

} // namespace

void setupNumberField(QDoubleSpinBox *field, const QString &specPath)
{
    const palx::FieldSpec *spec = palx::fieldSpec(specPath);
    Q_ASSERT(spec);
    field->setDecimals(spec->decimals);
    field->setRange(spec->minimum, spec->maximum);
    field->setSuffix(shownSuffix(spec));
    field->setLocale(QLocale::c()); // a point, as on the keypad, in every language
}

void setupNumberField(QSpinBox *field, const QString &specPath)
{
    const palx::FieldSpec *spec = palx::fieldSpec(specPath);
    Q_ASSERT(spec);
    field->setRange(qRound(spec->minimum), qRound(spec->maximum));
    field->setSuffix(shownSuffix(spec));
}

void fillDirections(QComboBox *combo)
{
    const QVariant chosen = combo->currentData();
    combo->clear();
    for (const QString &name : palx::directionNames())
        combo->addItem(shownDirection(name), name);
    combo->setCurrentIndex(combo->findData(chosen));
}

void showWarning(QLabel *label, const QString &text)
{
    label->setText(text);
    ix::xtheme::setState(label, ix::xtheme::State::Attention);
    label->setVisible(!text.isEmpty());
}

void showWarnings(QLabel *label, const QStringList &texts)
{
    constexpr int kShown = 3; // the rest would push the form off the page
    QStringList lines = texts.mid(0, kShown);
    if (texts.size() > kShown)
        lines << RecipeFrame::tr("%n more", nullptr, texts.size() - kShown);
    showWarning(label, lines.join(QLatin1Char('\n')));
    label->setToolTip(texts.join(QLatin1Char('\n')));
}
