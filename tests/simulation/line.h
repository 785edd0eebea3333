#pragma once

#include "controller/station.h"
#include "support/test_support.h"

#include <QTemporaryDir>

/// What a palletizing line is like.
struct LineSetup
{
    int scheme = 0; ///< 0 left, 1 right, 2 both
    bool hasLift = false;
    int towards = 0; ///< of both work objects; 1: the whole cell is turned about the robot's foot
    int layers = 2;
    std::uint64_t seed = 1;
};

/// A simulated controller with recipes and a project of the program templates, without a panel. Recipes are those of the
/// cell with shared tool and work objects in the examples, with as many layers as asked for.
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
    void set(const char *variable, int value);
    /// Of the violations, one a line.
    QString violations();
    /// Saves and starts the controller anew.
    void restart();

private:
    void open();
    void writePrograms();
    void declareVariables();
    void sendRecipes();

    LineSetup setup_;
    QTemporaryDir folder_;
    std::unique_ptr<controller::Station> station_;
    orba::Node home_; ///< point record
};
