#include "ix/xtheme.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QWidget>

namespace ix {
namespace xtheme {

namespace {

constexpr QRgb kGround = 0xffe4e6e8;
constexpr QRgb kCard = 0xfff4f5f6;
constexpr QRgb kField = 0xffffffff;
constexpr QRgb kButton = 0xffd3d6d9;
constexpr QRgb kBorder = 0xff8d939a;
constexpr QRgb kText = 0xff1f2326;
constexpr QRgb kQuietText = 0xff4a5056;
constexpr QRgb kSelection = 0xff4a5560;
constexpr QRgb kDisabledText = 0xff7d8389;

struct StateLook
{
    State state;
    const char *name;
    QRgb ground;
    QRgb text;
};

// Each pair keeps a contrast of at least 4.5 : 1.
constexpr StateLook kStates[] = {{State::None, "", kButton, kText},
                                 {State::Running, "running", 0xff1e7d34, 0xffffffff},
                                 {State::Attention, "attention", 0xfff2b01e, kText},
                                 {State::Fault, "fault", 0xffb3261e, 0xffffffff},
                                 {State::Manual, "manual", 0xff1c5fb0, 0xffffffff},
                                 {State::Stopped, "stopped", 0xff5f656b, 0xffffffff}};

const StateLook &look(State state)
{
    for (const StateLook &candidate : kStates)
        if (candidate.state == state)
            return candidate;
    return kStates[0];
}

QString hex(QRgb colour)
{
    return QColor(colour).name();
}

void setLook(QWidget *widget, const char *property, const QString &value)
{
    if (!widget || widget->property(property).toString() == value)
        return;
    widget->setProperty(property, value);
    QWidgetList looks{widget};
    looks += widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly); // texts on its ground
    for (QWidget *each : std::as_const(looks)) {
        each->style()->unpolish(each); // rules with [property="..."] are matched while polishing
        each->style()->polish(each);
    }
    widget->update();
}

QString stateRules()
{
    QString rules;
    for (const StateLook &state : kStates)
        if (state.state != State::None)
            rules +=
                QStringLiteral("*[state=\"%1\"] { background-color: %2; color: %3; border: 1px solid %2; "
                               "border-radius: 6px; }\n"
                               "QFrame[state=\"%1\"] > QLabel { color: %3; }\n")
                    .arg(QLatin1String(state.name), hex(state.ground), hex(state.text));
    return rules;
}

// Sizes are given without the 1 px borders, which the box model adds.
QString sizeRules()
{
    return QStringLiteral("QPushButton, QToolButton, QComboBox, QLineEdit, QAbstractSpinBox, QTabBar::tab "
                          "{ min-height: %1px; }\n"
                          "QPushButton { padding: 0px 16px; }\n"
                          "QComboBox QAbstractItemView::item { min-height: %1px; }\n"
                          "QCheckBox, QRadioButton { min-height: %3px; spacing: 10px; }\n"
                          "QCheckBox::indicator, QRadioButton::indicator, QTableView::indicator { width: "
                          "28px; height: 28px; }\n"
                          "QListView::item { min-height: %1px; }\n"
                          "QMenu::item { min-height: %1px; padding: 0px 24px; }\n"
                          "QMenu::item:selected { background: palette(highlight); color: #ffffff; }\n"
                          "QHeaderView::section { min-height: 40px; padding: 0px 6px; }\n"
                          "QScrollBar:vertical { width: 24px; }\n"
                          "QScrollBar:horizontal { height: 24px; }\n"
                          "QPushButton[role=\"run\"] { min-height: %2px; font-size: 22px; }\n")
        .arg(kEditHeight - 2)
        .arg(kRunButtonHeight - 2)
        .arg(kEditHeight); // has no border
}

QString roleRules()
{
    return QStringLiteral(
               "QPushButton, QToolButton { background-color: %1; color: %2; border: 1px solid %3; "
               "border-radius: 6px; }\n"
               "QPushButton:pressed, QToolButton:pressed, QPushButton:checked, QToolButton:checked "
               "{ background-color: %4; color: #ffffff; }\n"
               "QPushButton:disabled, QToolButton:disabled { background-color: %5; color: %6; }\n"
               "QPushButton:checked:disabled { background-color: %6; color: #ffffff; }\n"
               "QPushButton[role=\"primary\"] { background-color: %4; color: #ffffff; }\n"
               "QPushButton[role=\"primary\"]:disabled { background-color: %5; color: %6; }\n"
               "QPushButton[role=\"nav\"] { text-align: left; padding: 0px 12px; }\n"
               "QPushButton[role=\"tab\"] { padding: 0px 8px; }\n")
        .arg(hex(kButton), hex(kText), hex(kBorder), hex(kSelection), hex(kGround), hex(kDisabledText));
}

/// A groove with a handle that a finger can take.
QString sliderRules()
{
    return QStringLiteral(
               "QSlider::groove:horizontal { height: 12px; background: %1; border-radius: 6px; margin: 0px "
               "4px; }\n"
               "QSlider::sub-page:horizontal { background: %2; border-radius: 6px; }\n"
               "QSlider::handle:horizontal { width: 36px; background: %2; border: 1px solid %3; "
               "border-radius: 6px; "
               "margin: -17px 0px; }\n"
               "QSlider::handle:horizontal:disabled { background: %4; }\n")
        .arg(hex(kBorder), hex(kSelection), hex(kText), hex(kDisabledText));
}

QString textRules()
{
    return QStringLiteral(
               "*[role=\"title\"] { font-size: %1px; font-weight: bold; }\n"
               "*[role=\"section\"] { font-size: 18px; font-weight: bold; }\n"
               "*[role=\"hint\"] { color: %2; }\n"
               "QFrame[role=\"card\"] { background-color: %3; border: 1px solid %4; border-radius: 8px; }\n"
               "QFrame[role=\"card\"] QLabel { border: none; }\n")
        .arg(kTitlePixels)
        .arg(hex(kQuietText), hex(kCard), hex(kBorder));
}

QPalette palette()
{
    QPalette colours;
    colours.setColor(QPalette::Window, QColor(kGround));
    colours.setColor(QPalette::Base, QColor(kField));
    colours.setColor(QPalette::AlternateBase, QColor(kCard));
    colours.setColor(QPalette::Button, QColor(kButton));
    colours.setColor(QPalette::ToolTipBase, QColor(kCard));
    colours.setColor(QPalette::Highlight, QColor(kSelection));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        colours.setColor(role, QColor(kText));
        colours.setColor(QPalette::Disabled, role, QColor(kDisabledText));
    }
    return colours;
}

/// The lists of combo boxes draw their rows by themselves and would not take the height that the sheet gives them.
class RoomForFingers : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Polish)
            if (auto *combo = qobject_cast<QComboBox *>(object))
                combo->setItemDelegate(new QStyledItemDelegate(combo));
        return false;
    }
};

} // namespace

QColor color(State state)
{
    return QColor(look(state).ground);
}

QColor textColor(State state)
{
    return QColor(look(state).text);
}

QString stateName(State state)
{
    return QLatin1String(look(state).name);
}

void setState(QWidget *widget, State state)
{
    setLook(widget, "state", stateName(state));
}

void setRole(QWidget *widget, const QString &role)
{
    setLook(widget, "role", role);
}

QString styleSheet()
{
    return sizeRules() + roleRules() + sliderRules() + textRules() +
           stateRules(); // states last: they win over roles
}

void apply(QApplication *application)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("WenQuanYi Micro Hei")});
    font.setPixelSize(kTextPixels);
    QApplication::setFont(font);
    application->setStyleSheet(styleSheet());
    const QString once = QStringLiteral("room_for_fingers");
    if (application->findChild<QObject *>(once, Qt::FindDirectChildrenOnly))
        return;
    auto *room = new RoomForFingers(application);
    room->setObjectName(once);
    application->installEventFilter(room);
}

QPixmap tinted(const QPixmap &picture, const QColor &color)
{
    if (picture.isNull())
        return picture;
    QPixmap result(picture.size());
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawPixmap(0, 0, picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), color);
    return result;
}

QPixmap tinted(const QString &file, const QColor &color)
{
    return tinted(QPixmap(file), color);
}

} // namespace xtheme
} // namespace ix
