#include "example_cell.h"

#include "controller/in_process_carrier.h"
#include "core/global_nodes.h"
#include "workstation/controller_recipes.h"
#include "workstation/controller_sync.h"
#include "workstation/plugin_node.h"
#include "xservice.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWidget>

namespace cli {

namespace {

constexpr int kBoundMs = 10000;

orba::Node recipesOnController()
{
    orba::Node recipes(palx::stacksNode()->node());
    orba::Node old;
    if (recipes.size() > 2) {
        old = *recipes.at(0);
        recipes.set(u"#1.points.put.#0.#0.put_p.trans.#2", 0.5);
        recipes.removeAt(recipes.size() - 1);
    }
    old.ensure(u"name")->setString(QStringLiteral("Old line"));
    recipes.add()->take(old);
    return recipes;
}

} // namespace

ExampleCell::ExampleCell()
    : link_(std::make_unique<controller::InProcessCarrier>(
          std::make_shared<controller::Controller>(controller::StationOptions())))
{
}

bool ExampleCell::show(const QWidget *window)
{
    link_.open();
    if (!link_.waitForState(kBoundMs) ||
        !xservice()->set(nullptr, QStringLiteral("pallet.data"), recipesOnController()).isOk())
        return false;
    palx::switchToTool();
    host::publishRecord(QStringLiteral("info"), QStringLiteral("The recipe \"Cell left\" was opened."));
    host::publishRecord(QStringLiteral("warning"),
                        QStringLiteral("The margins left no room for a product and were set to 0."));
    host::publishRecord(QStringLiteral("error"),
                        QStringLiteral("/media/usb/recipes.xml cannot be written: No space left on device"));
    const auto *recipes = window->findChild<palx::ControllerRecipes *>();
    const auto isKnown = [recipes] { return recipes->state() == palx::ControllerRecipes::State::Known; };
    QElapsedTimer clock;
    clock.start();
    while (recipes && !isKnown() && clock.elapsed() < kBoundMs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    return recipes && isKnown();
}

} // namespace cli
