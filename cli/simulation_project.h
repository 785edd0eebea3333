#pragma once

#include "controller/station.h"
#include "simulate.h"

namespace cli {

/// A side of the cell that is to be stacked.
struct StackedSide
{
    int side = 0; ///< 0 left, 1 right
    QString recipe;
};

/// A controller, not yet running, that knows the recipes of a file and a project that stacks them; made the way a panel
/// makes it.
class SimulationProject
{
public:
    /// False when the reason has been said.
    bool make(const SimulateRequest &request);

    /// How to start the controller.
    const controller::StationOptions &options() const { return options_; }
    const QVector<StackedSide> &sides() const { return sides_; }

private:
    bool chooseSides(const SimulateRequest &request, const RecipeList &stacks);
    bool fill(Session &session, const SimulateRequest &request);

    QTemporaryDir folder_;
    controller::StationOptions options_;
    QVector<StackedSide> sides_;
};

} // namespace cli
