#pragma once

#include "orba/export.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

class QApplication;
class QWidget;

/// The panel's looks: grey ground, colour only for state, sizes for fingers. Widgets choose their looks
/// through dynamic properties, so that no page carries a style sheet of its own:
///
///     "state"  "running", "attention", "fault", "manual", "stopped": coloured ground
///     "role"   "run" (run-time button, 96 px high), "primary" (the page's chief button),
///              "nav" (navigator button), "tab" (chooses a part of a page), "title" (page title), "section" (group title),
///              "hint" (quiet text), "card" (raised frame)
///
/// Set them with `setState` and `setRole`, which also restyle a widget that is shown already.
namespace ix {
namespace xtheme {

enum class State { None, Running, Attention, Fault, Manual, Stopped };
enum class Glyph {
    Add,
    Copy,
    Delete,
    Open,
    Save,
    Back,
    Forward,
    Up,
    Down,
    Check,
    Close,
    Warning,
    Info,
    Home,
    Settings,
    Log,
    Pallet,
    Robot,
    Remove,
    TurnLeft,
    TurnRight
};

constexpr int kTextPixels = 16; ///< smallest text, readable from 0.7 m
constexpr int kTitlePixels = 24;
constexpr int kEditHeight = 56;      ///< edit controls [px]
constexpr int kRunButtonHeight = 96; ///< run-time buttons [px]
constexpr int kGap = 8;              ///< between controls [px]

/// Ground colour of a state; grey for None.
PALX_API QColor color(State state);
/// Text on that ground, dark or light for contrast.
PALX_API QColor textColor(State state);
PALX_API QString stateName(State state);
PALX_API void setState(QWidget *widget, State state);
PALX_API void setRole(QWidget *widget, const QString &role);

/// The style sheet of the whole panel.
PALX_API QString styleSheet();
/// Style Fusion, palette, pixel-sized font and style sheet.
PALX_API void apply(QApplication *application);

/// A painted symbol, `size` pixels square.
PALX_API QPixmap pixmap(Glyph glyph, int size, const QColor &color = QColor());
/// Without a colour the symbol is dark, and light on a checked button.
PALX_API QIcon icon(Glyph glyph, const QColor &color = QColor());
/// The picture with all its colour replaced and its transparency kept; null stays null.
PALX_API QPixmap tinted(const QPixmap &picture, const QColor &color);
PALX_API QPixmap tinted(const QString &file, const QColor &color);

} // namespace xtheme
} // namespace ix
