#include "panel/controller_look.h"

#include "orba/module_object.h"

#include <QCoreApplication>

namespace panel {

using ix::xtheme::Glyph;
using ix::xtheme::State;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(panel::StatusStrip)
};

} // namespace

ControllerLook controllerLook()
{
    const orba::ModuleObject *controller = m("nexo.r");
    const QString state = controller->getString("state");
    if (controller->getBool("connected")) {
        if (!controller->getString("faults").isEmpty())
            return {Texts::tr("Check controller"), State::Attention, Glyph::Warning};
        return {Texts::tr("Controller %1").arg(controller->getString("version")), State::Running,
                Glyph::Check};
    }
    if (state == QLatin1String("refused"))
        return {Texts::tr("Controller refuses"), State::Fault, Glyph::Close};
    if (state == QLatin1String("connecting") || state == QLatin1String("greeting"))
        return {Texts::tr("No controller"), State::Attention, Glyph::Warning};
    return {Texts::tr("No controller"), State::Stopped, Glyph::Info};
}

QStringList controllerTexts()
{
    const orba::ModuleObject *controller = m("nexo.r");
    const QString link = controller->getString("link");
    QStringList texts(link.isEmpty() ? Texts::tr("This panel has no link to a controller.") : link);
    if (!controller->getBool("connected"))
        texts.append(Texts::tr("Editing goes on; the recipes stay in the panel."));
    const QString faults = controller->getString("faults");
    if (!faults.isEmpty())
        texts.append(faults);
    return texts;
}

void followNodes(const QStringList &paths, QObject *context, const std::function<void()> &told)
{
    for (const QString &path : paths)
        QObject::connect(m(path), &orba::ModuleObject::changed, context, told);
}

QStringList controllerPaths()
{
    QStringList paths;
    for (const char *key : {"connected", "state", "link", "faults", "version"})
        paths.append(QStringLiteral("nexo.r.") + QLatin1String(key));
    return paths;
}

} // namespace panel
