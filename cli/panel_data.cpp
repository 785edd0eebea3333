#include "panel_data.h"

#include "core/controller_link.h"
#include "orba/module_object.h"
#include "panel/controller_choice.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <functional>

namespace cli {
namespace {

constexpr int kBoundMs = 10000;

bool waitFor(const std::function<bool()> &condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < kBoundMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return condition();
}

bool sayNot(const QString &reason)
{
    say(reason);
    return false;
}

} // namespace

std::unique_ptr<Session> openPanel(const PanelPlaces &places)
{
    panel::ControllerChoice choice;
    if (!panel::ControllerChoice::parse(places.controller, &choice)) {
        say(QStringLiteral("\"%1\" is no controller").arg(places.controller));
        return nullptr;
    }
    host::SessionOptions options;
    options.dataFolder = QDir(places.dataFolder).absolutePath();
    if (!places.workspaceFolder.isEmpty())
        options.workspaceFolder = QDir(places.workspaceFolder).absolutePath();
    options.carrier =
        panel::carrierFactory(choice, options.dataFolder, QCoreApplication::applicationDirPath());
    options.pages = false;
    auto session = std::make_unique<Session>(options);
    session->presenter().setAccepting(true);
    const bool hasRobot = session->start() && (!host::ControllerLink::current() || waitFor([] {
                              return !m("nexo.r.id")->getString().isEmpty();
                          }) || sayNot(QStringLiteral("the controller does not answer")));
    return hasRobot ? std::move(session) : nullptr;
}

bool settlePanel(Session *session)
{
    QCoreApplication::processEvents();
    const auto *link = host::ControllerLink::current();
    const bool isTaken = !link || waitFor([link] { return link->unsettledEdits() == 0; }) ||
                         sayNot(QStringLiteral("the controller did not take what was changed"));
    return isTaken && session->host().save();
}

} // namespace cli
