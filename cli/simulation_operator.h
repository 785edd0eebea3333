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

    static constexpr double kLook = 0.5; ///< between two looks [s]

    /// Called every kLook. False when the program does not run any more and cannot be started again; why.
    bool look(QString *why);

private:
    /// Looks from a fault, or a program that stands, to the repair: 5 s. Simulated time is no measure, it stands while nothing
    /// in the cell moves.
    static constexpr int kReaction = 10;

    void bring(const PlannedFault &fault);

    controller::Station *station_;
    CellOperator person_;
    QVector<PlannedFault> faults_; ///< still to come
    bool hasFault_ = false;        ///< one that was asked for is to be mended
    bool hadFault_ = false;        ///< something may be lost: the count is watched
    int looksLeft_ = -1;           ///< until it is mended; negative: nothing is to be mended
};

} // namespace cli
