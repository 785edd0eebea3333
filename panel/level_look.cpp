#include "panel/level_look.h"

namespace panel {

using namespace ix::xtheme;

State levelState(const QString &level)
{
    if (level == QLatin1String("error"))
        return State::Fault;
    return level == QLatin1String("warning") ? State::Attention : State::None;
}

QIcon levelIcon(const QString &level, bool onStateGround)
{
    const State state = levelState(level);
    if (state == State::None)
        return icon(Glyph::Info);
    const QColor ink = onStateGround ? textColor(state) : color(state).darker(120);
    return icon(state == State::Fault ? Glyph::Close : Glyph::Warning, ink);
}

} // namespace panel
