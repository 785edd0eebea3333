#pragma once

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "support/test_support.h"
#include "ui/movetodialog.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

inline controller::StationOptions stationIn(const QTemporaryDir &folder)
{
    controller::StationOptions options;
    options.workspaceFolder = folder.path();
    return options;
}

/// A panel's host nodes and its link to a simulated controller, whose time the test turns.
class RobotCell
{
public:
    explicit RobotCell(const controller::StationOptions &options = {})
        : RobotCell(std::make_unique<controller::SteppedCarrier>(options))
    {
    }
    ~RobotCell()
    {
        link.reset();
        host::removeGlobalNodes();
    }
    RobotCell(const RobotCell &) = delete;
    RobotCell &operator=(const RobotCell &) = delete;

    void settle()
    {
        do
            QCoreApplication::processEvents();
        while (link && !link->isIdle());
    }
    /// Time passes without a sign from a button.
    void pass(double seconds)
    {
        carrier->pass(seconds);
        settle();
    }
    /// Time passes while the button is held.
    void hold(palx::HeldMove *move, double seconds)
    {
        for (double t = 0; t < seconds - 1e-9; t += 0.1) {
            move->giveSign();
            pass(0.1);
        }
    }
    /// A scalar of the current project; -1 when it has none of that name.
    static qint64 variable(const QString &name)
    {
        for (const orba::ModuleObject *each : m("quill.project.var._list")->cmobjs())
            if (each->getString("name") == name)
                return each->r("value.#0")->getString() == QLatin1String("true")
                           ? 1
                           : each->r("value.#0")->getInt();
        return -1;
    }
    const orba::Node &robot() { return *carrier->core().station().tree().find(u"nexo.robot"); }
    bool isMoving() { return robot().getBool(u"moving"); }

    ScriptedPresenter presenter;
    controller::SteppedCarrier *carrier;
    std::unique_ptr<host::ControllerLink> link;

private:
    explicit RobotCell(std::unique_ptr<controller::SteppedCarrier> made) : carrier(made.get())
    {
        EXPECT_TRUE(host::buildGlobalNodes());
        link = std::make_unique<host::ControllerLink>(std::move(made));
        link->open();
        settle();
        EXPECT_TRUE(link->isConnected());
    }
};
