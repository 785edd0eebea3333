#pragma once

#include "controller/cell/trace.h"
#include "controller/cell/world.h"
#include "controller/pallet_store.h"
#include "controller/program_variables.h"
#include "controller/script/executor.h"

#include <map>

namespace controller::cell {

/// The cell as programs see it: the world behind the narrow interface, with the recipes and the variables of the project.
class Cell : public script::Machine, private WorldListener
{
public:
    /// `recipes` must outlive this.
    Cell(const PalletStore *recipes, std::uint64_t seed);

    World &world() { return world_; }
    const World &world() const { return world_; }
    /// Null: nothing is written down.
    void setTrace(TraceSink *trace) { trace_ = trace; }
    void note(const std::string &text);
    /// The variables of the project that runs. They must outlive the programs; null when none runs.
    void setVariables(ProgramVariables *variables) { variables_ = variables; }
    /// Whose turn it is, for the trace; null outside turns.
    void setTurn(const script::Executor *task) { turn_ = task; }
    /// The shared tool, for recipes without one of their own.
    void setSharedTool(const Pose &tool) { sharedTool_ = tool; }

    /// Whether programs run: neither paused nor stopped.
    void setRelax(bool relax);
    /// One move at a time: none is handed over ahead.
    void setStepping(bool stepping) { isStepping_ = stepping; }
    /// A program asked for a pause since the last call; where.
    bool takePause(script::Location *where);
    /// Reads of what changes without notice (time, the robot's place) since the last call.
    bool takeRestless() const;

    /// The recipe as the cell uses it; null when there is none of that name.
    std::shared_ptr<const RecipePlan> plan(const QString &name) const;
    /// Name of a recipe: of that index among those of a side (0 left, else right), or among all without a side.
    script::Refusal palletName(std::int64_t index, std::optional<std::int64_t> side,
                               std::string *name) const override;

    double now() const override;
    script::MoveAnswer move(const script::Move &move) override;
    script::MoveState moveState() const override;
    script::Fault moveFault() const override
    {
        return {};
    } ///< a way that was taken is always gone to its end
    script::Target currentTarget() const override;
    bool input(int index) const override { return world_.signals().input(index); }
    bool output(int index) const override { return world_.signals().output(index); }
    void setOutput(int index, bool on) override { world_.signals().setOutput(index, on); }
    void pulseOutput(int index, double seconds) override;
    bool state(script::State state) const override;
    script::Refusal readRegister(const std::string &name, std::int64_t *value) const override;
    script::Refusal writeRegister(const std::string &name, std::int64_t value) override;
    const script::Value &variable(int id) const override { return variables_->value(id); }
    void setVariable(int id, const script::Value &value) override;
    script::Refusal palletUpdate(const std::string &name, std::int64_t layer, std::int64_t piece) override;
    script::Refusal palletLayerCount(const std::string &name, std::int64_t *count) const override;
    script::Refusal palletPieceCount(const std::string &name, std::int64_t layer,
                                     std::int64_t *count) const override;
    script::Refusal palletPoint(script::PalletPoint point, script::Target *target) const override;
    void pause(const script::Location &where) override;

private:
    void signalChanged(bool isOutput, int index, bool on) override;
    void violated(const Violation &violation) override;
    void happened(const std::string &what) override;
    Pose toolOf(const RecipePlan *plan) const;
    script::Refusal usablePlan(const std::string &name, std::shared_ptr<const RecipePlan> *plan) const;
    /// The recipe, when it has the layer.
    script::Refusal usableLayer(const std::string &name, std::int64_t layer,
                                std::shared_ptr<const RecipePlan> *plan) const;

    const PalletStore *recipes_;
    World world_;
    mutable std::map<QString, std::shared_ptr<const RecipePlan>> plans_;
    ProgramVariables *variables_ = nullptr;
    Pose sharedTool_ = Pose::Identity();
    bool relax_ = false;
    bool isStepping_ = false;
    std::optional<script::Location> pause_;
    mutable bool isRestless_ = false;
    TraceSink *trace_ = nullptr;
    const script::Executor *turn_ = nullptr;
};

script::Target targetOf(const Pose &pose);
Pose poseOf(const script::Target &target);

} // namespace controller::cell
