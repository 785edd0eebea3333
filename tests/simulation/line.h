#pragma once

#include "made_project.h"

#include "controller/station.h"
#include "support/test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A simulated controller with the recipes and the project that a panel made for it, without that panel.
class Line
{
public:
    explicit Line(const LineSetup &setup);

    controller::Station &station() { return *station_; }
    controller::Runner &runner() { return station_->desk().runner(); }
    controller::cell::World &world() { return runner().cell().world(); }
    const controller::cell::PalletPlace &pallet(int side) { return world().pallet(side); }

    /// Why a request was refused; empty when it was done.
    QString ask(const char *request, const char *payload = "null");
    /// The robot goes to where it waits, and the programs are started.
    void start();
    void run(double seconds);
    /// False when that takes longer.
    bool runUntil(const std::function<bool()> &condition, double bound = 3000);
    /// Both sides of the scheme are full and the robot stands.
    bool isFull();
    /// A new pallet for a full one, confirmed at the panel of the cell.
    void exchangePallet(int side);

    qint64 number(const char *variable);
    double real(const char *variable);
    void set(const char *variable, int value);
    /// Of the violations, one a line.
    QString violations();
    /// Saves and starts the controller anew.
    void restart();

private:
    void open();

    LineSetup setup_;
    QTemporaryDir folder_;
    std::unique_ptr<controller::Station> station_;
    const MadeProject &made_;
};
