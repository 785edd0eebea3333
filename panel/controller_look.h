#pragma once

#include "ix/xtheme.h"

#include <QObject>
#include <QStringList>

#include <functional>

namespace panel {

/// How the state of the link to the controller looks, read from "nexo.r": text, colour and symbol together.
struct ControllerLook
{
    QString text; ///< short, for the status strip
    ix::xtheme::State state = ix::xtheme::State::Stopped;
    ix::xtheme::Glyph glyph = ix::xtheme::Glyph::Info;
};
ControllerLook controllerLook();

/// The state in whole sentences: what, why, the way out, and what went wrong lately.
QStringList controllerTexts();

/// Calls `told` when one of these nodes becomes another, as long as `context` lives.
void followNodes(const QStringList &paths, QObject *context, const std::function<void()> &told);
/// The nodes that the look and the texts are made of.
QStringList controllerPaths();

} // namespace panel
