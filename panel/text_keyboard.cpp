#include "panel/text_keyboard.h"

#include "nexo/setting_manager.h"
#include "ui_text_keyboard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QValidator>

#include <algorithm>

namespace panel {

namespace {

constexpr int kRows = 4;

struct Layer
{
    const char *id;
    const char16_t *title;
    const char16_t *rows[kRows];
};

constexpr int kLatin = 0;
constexpr int kCyrillic = 1;
constexpr Layer kLayers[] = {
    {"Latin", u"ABC", {u"1234567890", u"qwertyuiop", u"asdfghjkl-", u"zxcvbnm_.,"}},
    {"Cyrillic", u"АБВ", {u"1234567890ъ", u"йцукенгшщзх", u"фывапролджэ", u"ячсмитьбюё-"}},
    {"Marked", u"ÄÉÑ", {u"1234567890", u"äöüßàâáãåæ", u"çñéèêëíîïì", u"óòôõøœúùûý"}},
    {"Signs", u"#+=", {u"1234567890", u"()[]{}<>°µ", u"+-*/=%&#@$", u"!?.,;:'\"_|"}},
};

/// As it stands on the key and is typed; a letter that has no single upper case stays.
QString shifted(const QString &letter, bool isUpper)
{
    const QString upper = letter.toUpper();
    return isUpper && upper.size() == letter.size() ? upper : letter;
}

/// The first letter decides; without one the language of the panel.
int layerFor(const QString &text)
{
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    const bool isCyrillic =
        first != text.end()
            ? first->script() == QChar::Script_Cyrillic
            : nexo::SettingManager::instance()->getStr(QStringLiteral("language")) == QLatin1String("ru");
    return isCyrillic ? kCyrillic : kLatin;
}

void styleKey(QPushButton *key, const QString &name, const QString &spoken)
{
    constexpr int kKeySize = 60;
    constexpr int kWideKey = 96;
    constexpr int kPixels = 22;
    QFont font = key->font();
    font.setPixelSize(kPixels);
    key->setFont(font);
    key->setObjectName(name);
    key->setAccessibleName(spoken);
    key->setMinimumSize(key->text().size() > 1 ? kWideKey : kKeySize, kKeySize);
    key->setFocusPolicy(Qt::NoFocus); // which the text keeps
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

} // namespace

TextKeyboard::TextKeyboard(const QLineEdit &field, QWidget *parent)
    : QDialog(parent), ui_(std::make_unique<Ui::TextKeyboard>())
{
    ui_->setupUi(this);
    const QString title = field.accessibleName().isEmpty() ? field.placeholderText() : field.accessibleName();
    if (!title.isEmpty())
        ui_->lblTitle->setText(title);
    setWindowTitle(ui_->lblTitle->text());
    ui_->edtText->setMaxLength(field.maxLength());
    ui_->edtText->setValidator(field.validator());
    ui_->edtText->setEchoMode(field.echoMode());
    ui_->edtText->setText(field.text());
    ui_->edtText->setTextMargins(6, 0, 6, 0);
    ui_->edtText->setFocus();
    addLayerKeys();
    for (QPushButton *key :
         {ui_->btnShift, ui_->btnLeft, ui_->btnRight, ui_->btnBack, ui_->btnSpace, ui_->btnClear})
        styleKey(key, key->objectName(), key->accessibleName());
    connect(ui_->btnShift, &QPushButton::clicked, this, [this] {
        setShift(shift_ == Shift::Off ? Shift::Once : shift_ == Shift::Once ? Shift::Held : Shift::Off);
    });
    connect(ui_->btnSpace, &QPushButton::clicked, this, [this] { press(QStringLiteral(" ")); });
    connect(ui_->btnBack, &QPushButton::clicked, ui_->edtText, &QLineEdit::backspace);
    connect(ui_->btnClear, &QPushButton::clicked, ui_->edtText, &QLineEdit::clear);
    connect(ui_->btnLeft, &QPushButton::clicked, this, [this] { ui_->edtText->cursorBackward(false); });
    connect(ui_->btnRight, &QPushButton::clicked, this, [this] { ui_->edtText->cursorForward(false); });
    connect(ui_->btnOk, &QPushButton::clicked, this, &TextKeyboard::accept);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &TextKeyboard::reject);
}

TextKeyboard::~TextKeyboard() = default;

/// A dialog that comes up selects what is in its field; here the first key is to go on with the text.
void TextKeyboard::setVisible(bool visible)
{
    QDialog::setVisible(visible);
    ui_->edtText->end(false);
}

QString TextKeyboard::text() const
{
    return ui_->edtText->text();
}

QWidget *TextKeyboard::makeLayer(int layer)
{
    auto *page = new QWidget;
    auto *rows = new QGridLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(6);
    for (int row = 0; row < kRows; ++row) {
        const QString letters = QString::fromUtf16(kLayers[layer].rows[row]);
        for (int column = 0; column < letters.size(); ++column) {
            auto *key = new QPushButton;
            const QString letter = letters.mid(column, 1);
            styleKey(key,
                     QStringLiteral("key%1_%2_%3").arg(QLatin1String(kLayers[layer].id)).arg(row).arg(column),
                     letter);
            connect(key, &QPushButton::clicked, this, [this, letter] { press(letter); });
            rows->addWidget(key, row, column);
            letters_.append(key);
        }
    }
    return page;
}

void TextKeyboard::addLayerKeys()
{
    auto *group = new QButtonGroup(this);
    for (int layer = 0; layer < int(std::size(kLayers)); ++layer) {
        ui_->stkKeys->addWidget(makeLayer(layer));
        auto *key = new QPushButton(QString::fromUtf16(kLayers[layer].title));
        styleKey(key, QStringLiteral("layer%1").arg(QLatin1String(kLayers[layer].id)), key->text());
        key->setCheckable(true);
        group->addButton(key, layer);
        ui_->rowLayers->addWidget(key);
    }
    connect(group, &QButtonGroup::idClicked, ui_->stkKeys, &QStackedWidget::setCurrentIndex);
    const int first = layerFor(ui_->edtText->text());
    group->button(first)->setChecked(true);
    ui_->stkKeys->setCurrentIndex(first);
    showLetters();
}

/// `insert` replaces what is selected and keeps to the validator.
void TextKeyboard::press(const QString &letter)
{
    ui_->edtText->insert(shifted(letter, shift_ != Shift::Off));
    if (shift_ == Shift::Once)
        setShift(Shift::Off);
}

void TextKeyboard::setShift(Shift shift)
{
    shift_ = shift;
    ui_->btnShift->setChecked(shift != Shift::Off);
    ui_->btnShift->setText(shift == Shift::Held ? QStringLiteral("⇪") : QStringLiteral("⇧"));
    showLetters();
}

void TextKeyboard::showLetters()
{
    for (QPushButton *key : std::as_const(letters_)) {
        QString shown = shifted(key->accessibleName(), shift_ != Shift::Off);
        key->setText(shown.replace(QLatin1Char('&'), QStringLiteral("&&"))); // alone it marks a shortcut
    }
}

TextKeyboardOpener::TextKeyboardOpener(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool TextKeyboardOpener::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    auto *field = qobject_cast<QLineEdit *>(watched);
    const bool isWanted = field && field->isEnabled() && !field->isReadOnly() &&
                          !qobject_cast<QAbstractSpinBox *>(field->parent()) &&
                          !field->property("ownKeys").toBool() &&
                          static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton &&
                          field->rect().contains(static_cast<QMouseEvent *>(event)->pos());
    if (isWanted && nexo::SettingManager::instance()->getBool(QStringLiteral("touch")))
        open(field);
    return false;
}

void TextKeyboardOpener::open(QLineEdit *field)
{
    auto *keyboard = new TextKeyboard(*field, field->window());
    keyboard->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<QLineEdit> target(field);
    connect(keyboard, &QDialog::accepted, field, [keyboard, target] {
        target->selectAll();
        target->insert(keyboard->text());
        Q_EMIT target->editingFinished();
    });
    keyboard->open();
}

} // namespace panel
