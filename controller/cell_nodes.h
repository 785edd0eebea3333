#pragma once

#include "controller/runner.h"

namespace controller {

/// Writes into "nexo.cell" what the panel shows of the cell: program, tasks, signals, column, gripper, conveyor, pallets,
/// faults, violations; see docs/controller-link.md. Lengths are millimetres and angles degrees, places in the cell's frame.
void publishCell(const Runner &runner, orba::Node *node);

/// Violations that are told; older ones are only counted.
constexpr int kShownViolations = 20;

} // namespace controller
