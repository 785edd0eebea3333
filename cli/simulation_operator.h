#pragma once

#include "cell_operator.h"
#include "simulation_project.h"

namespace cli {

/// Brings about the faults that are asked for, and has them mended a while after they came.
class SimulationOperator
{
public:
    SimulationOperator(controller::Station *station, const QVector<StackedSide> &sides,
                       QVector<PlannedFault> faults);

    /// Called every now and then. False when the program does not run any more and cannot be started again; why.
    bool look(QString *why);
    /// Faults are still to come, or to be mended.
    bool isBusy() const { return !faults_.isEmpty() || mendAt_ >= 0; }

private:
    static constexpr double kReaction = 5; ///< from a fault, or a program that stands, to the repair [s]

    void bring(const PlannedFault &fault);

    controller::Station *station_;
    CellOperator person_;
    QVector<PlannedFault> faults_; ///< still to come
    bool hasFault_ = false;        ///< one that was asked for is to be mended
    double mendAt_ = -1;           ///< [s]; negative: nothing is to be mended
};

} // namespace cli
