#pragma once

#include "simulation_project.h"

namespace cli {

/// The person beside the cell: takes faults back a while after they came, and gets the program going again.
class SimulationOperator
{
public:
    SimulationOperator(controller::Station *station, QVector<StackedSide> sides,
                       QVector<PlannedFault> faults);

    /// Called every now and then. False when the program does not run any more and cannot be started again; why.
    bool look(QString *why);

private:
    static constexpr double kReaction = 5; ///< from a fault, or a program that stands, to the repair [s]

    QString ask(const char *request, const orba::Node &payload = orba::Node());
    void bring(const PlannedFault &fault);
    void repair();
    void countWhatLies();
    QString startAgain();
    controller::Runner &runner() const { return station_->desk().runner(); }

    controller::Station *station_;
    QVector<StackedSide> sides_;
    QVector<PlannedFault> faults_; ///< still to come
    QString active_;               ///< fault to be repaired
    double repairAt_ = -1;         ///< [s]; negative: nothing is to be repaired
};

} // namespace cli
