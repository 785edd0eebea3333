#pragma once

#include "controller/stepped_carrier.h"
#include "core/controller_link.h"
#include "core/global_nodes.h"
#include "support/test_support.h"
#include "ui/movetodialog.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

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
