#pragma once

#include "simulation_project.h"

namespace cli {

/// What came of a run.
struct SimulationResult
{
    int pallets = 0;  ///< that were filled
    int boxes = 0;    ///< that lie on their pallets
    int expected = 0; ///< that the recipes ask for
    double maxErrorMm = 0;
    double maxErrorDeg = 0;
    double seconds = 0;     ///< simulated
    double wallSeconds = 0; ///< real
    QVector<controller::cell::Violation> violations;
    orba::Node counters; ///< variables of the project by name

    double boxesPerHour() const { return seconds > 0 ? boxes * 3600 / seconds : 0; }
    bool isGood() const { return violations.isEmpty() && boxes == expected; }
};

/// Runs the project until its pallets are full, with somebody at hand who repairs what the faults bring about. False when
/// the programs do not run; the reason has been said.
bool runSimulation(const SimulationProject &project, const SimulateRequest &request,
                   SimulationResult *result);

} // namespace cli
