#include "ui/keypad.h"

#include "ix/xtheme.h"
#include "nexo/setting_manager.h"
#include "ui/form_style.h"
#include "ui_keypad.h"

#include <QAbstractSpinBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <QSpinBox>

Keypad::Keypad(KeypadRequest request, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::Keypad>()), request_(std::move(request))
{
    ui_->setupUi(this);
    setWindowTitle(request_.title);
    ui_->lblTitle->setText(request_.title);
    ui_->lblUnit->setText(request_.unit);
    ui_->btnSign->setEnabled(request_.minimum < 0);
    ui_->btnPoint->setEnabled(request_.decimals > 0);
    const QString sign = request_.minimum < 0 ? QStringLiteral("-?") : QString();
    const QString fraction =
        request_.decimals > 0 ? QStringLiteral("([.,][0-9]{0,%1})?").arg(request_.decimals) : QString();
    ui_->edtValue->setValidator(new QRegularExpressionValidator(
        QRegularExpression(sign + QStringLiteral("[0-9]*") + fraction), this));
    ui_->edtValue->setMaxLength(16);
    ui_->edtValue->setText(QString::number(request_.value, 'f', request_.decimals));
    ui_->edtValue->selectAll();
    ui_->edtValue->setFocus();
    setFieldMargins(this);
    connectKeys();
    showLimits(false);
}

Keypad::~Keypad() = default;

void Keypad::connectKeys()
{
    constexpr int kDigitPixels = 24;
    QFont digits = font();
    digits.setPixelSize(kDigitPixels);
    ui_->edtValue->setFont(digits);
    for (QPushButton *key : {ui_->btn0, ui_->btn1, ui_->btn2, ui_->btn3, ui_->btn4, ui_->btn5, ui_->btn6,
                             ui_->btn7, ui_->btn8, ui_->btn9, ui_->btnPoint}) {
        key->setFont(digits);
        connect(key, &QPushButton::clicked, this, [this, key] { type(key->text()); });
    }
    connect(ui_->btnSign, &QPushButton::clicked, this, &Keypad::changeSign);
    connect(ui_->btnBack, &QPushButton::clicked, ui_->edtValue, &QLineEdit::backspace);
    connect(ui_->btnClear, &QPushButton::clicked, ui_->edtValue, &QLineEdit::clear);
    connect(ui_->btnOk, &QPushButton::clicked, this, &Keypad::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &Keypad::reject);
    connect(ui_->edtValue, &QLineEdit::textChanged, this, [this] { showLimits(false); });
}

/// `insert` replaces what is selected and keeps to the validator.
void Keypad::type(const QString &text)
{
    ui_->edtValue->insert(text);
}

void Keypad::changeSign()
{
    const QString text = ui_->edtValue->text();
    const bool negative = text.startsWith(QLatin1Char('-'));
    ui_->edtValue->setText(negative ? text.mid(1) : QLatin1Char('-') + text);
}

bool Keypad::parse(double *value) const
{
    bool isNumber = false;
    *value = ui_->edtValue->text().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    return isNumber;
}

double Keypad::value() const
{
    double number = 0;
    return parse(&number) ? number : request_.value;
}

void Keypad::accept()
{
    double number = 0;
    if (parse(&number) && number >= request_.minimum && number <= request_.maximum) {
        QDialog::accept();
        return;
    }
    showLimits(true);
    ui_->edtValue->selectAll();
}

void Keypad::showLimits(bool refused)
{
    const auto text = [this](double limit) { return QString::number(limit, 'g', 10); };
    const QString limits =
        tr("%1 to %2 %3").arg(text(request_.minimum), text(request_.maximum), request_.unit).trimmed();
    ui_->lblLimits->setText(refused ? tr("Not allowed. Enter %1.").arg(limits)
                                    : tr("Allowed: %1").arg(limits));
    ix::xtheme::setState(ui_->lblLimits, refused ? ix::xtheme::State::Attention : ix::xtheme::State::None);
}

void Keypad::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        ui_->lblTitle->setText(request_.title);
        showLimits(false);
    }
    QDialog::changeEvent(event);
}

KeypadOpener::KeypadOpener(QWidget *form) : QObject(form)
{
    for (QAbstractSpinBox *field : form->findChildren<QAbstractSpinBox *>())
        field->findChild<QLineEdit *>()->installEventFilter(this);
}

bool KeypadOpener::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonRelease ||
        !nexo::SettingManager::instance()->getBool(QStringLiteral("touch")))
        return QObject::eventFilter(watched, event);
    auto *field = qobject_cast<QAbstractSpinBox *>(watched->parent());
    if (!field || !field->isEnabled() || field->isReadOnly())
        return QObject::eventFilter(watched, event);
    open(field);
    return true;
}

namespace {

template <typename Spin> void fill(KeypadRequest *request, const Spin *field)
{
    request->minimum = field->minimum();
    request->maximum = field->maximum();
    request->value = field->value();
    request->unit = field->suffix().trimmed();
}

} // namespace

void KeypadOpener::open(QAbstractSpinBox *field)
{
    auto *number = qobject_cast<QDoubleSpinBox *>(field);
    auto *whole = qobject_cast<QSpinBox *>(field);
    if (!number && !whole)
        return;
    KeypadRequest request;
    request.title = field->accessibleName();
    number ? fill(&request, number) : fill(&request, whole);
    request.decimals = number ? number->decimals() : 0;
    auto *keypad = new Keypad(request, field->window());
    keypad->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QAbstractSpinBox> target(field);
    connect(keypad, &QDialog::accepted, field, [=] {
        number ? number->setValue(keypad->value()) : whole->setValue(qRound(keypad->value()));
        if (target)
            Q_EMIT target->editingFinished();
    });
    keypad->open();
}
