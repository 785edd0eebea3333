#pragma once

#include "controller/cell/conveyor.h"
#include "controller/cell/drive.h"
#include "controller/cell/faults.h"
#include "controller/cell/gripper.h"
#include "controller/cell/pallets.h"
#include "controller/cell/signals.h"
#include "controller/cell/way.h"

#include <bitset>
#include <memory>

namespace controller::cell {

/// Something that must not happen in a cell.
struct Violation
{
    double time = 0; ///< [s]
    script::Location where;
    int layer = 0; ///< of the product that was carried; from 1
    int piece = 0;
    std::string what;
    std::string bodies[2]; ///< the two that meet, if two do
};

/// Told what happens, when it happens.
class WorldListener
{
public:
    virtual ~WorldListener() = default;
    virtual void signalChanged(bool isOutput, int index, bool on) = 0;
    virtual void violated(const Violation &violation) = 0;
    /// For the trace: "box 3 of layer 2 on the left pallet rests", "no vacuum on".
    virtual void happened(const std::string &what) = 0;
};

/// The things of the cell and how they move: robot, lift column, gripper, conveyor, pallets, signals. Time goes on in ticks.
/// Nothing here knows programs. The same calls give the same course of things.
class World
{
public:
    static constexpr int kTicksPerSecond = 100;
    static constexpr double kTick = 1.0 / kTicksPerSecond; ///< [s]
    /// Half of the square that the lift column and the robot's foot fill [m].
    static constexpr double kColumnHalf = 0.25;
    /// How high the robot's foot stands above its base [m].
    static constexpr double kFootHeight = 0.40;
    /// Deeper than this blocks do not reach into each other [m].
    static constexpr double kTouch = 1e-4;
    /// A product falls no further when it is let go [m].
    static constexpr double kMaxFall = 0.010;
    /// So much of a product's bottom is carried.
    static constexpr double kMinSupport = 1.0 / 3;

    World(std::uint64_t seed, WorldListener *listener);

    double now() const { return static_cast<double>(ticks_) / kTicksPerSecond; }
    void tick();
    /// Whether a tick changes anything.
    bool needsTime() const;
    /// Grows with each change of what programs can see.
    std::uint64_t version() const { return version_; }
    void touch() { ++version_; }

    Signals &signals() { return signals_; }
    const Signals &signals() const { return signals_; }
    Way &way() { return way_; }
    const Way &way() const { return way_; }
    Drive &drive() { return drive_; }
    const Drive &drive() const { return drive_; }
    const Conveyor &conveyor() const { return conveyor_; }
    const Gripper &gripper() const { return gripper_; }
    PalletPlace &pallet(int side) { return pallets_[static_cast<std::size_t>(side)]; }
    const PalletPlace &pallet(int side) const { return pallets_[static_cast<std::size_t>(side)]; }

    /// The product at the conveyor's stop; false when there is none or no recipe says which.
    bool waitingBox(Body *box) const;
    /// The product in the gripper; false when there is none.
    bool carriedBox(Body *box) const;
    /// Grows with each change of what a restart finds again.
    std::uint64_t keptVersion() const { return keptVersion_; }

    /// The recipe that is stacked, and the piece that comes next. Its side's pallet follows it, the sheets below its layer
    /// are laid, and the conveyor brings its product.
    void aim(std::shared_ptr<const RecipePlan> plan, int layer, int piece);
    const RecipePlan *plan() const { return plan_.get(); }
    int layer() const { return layer_; }
    int piece() const { return piece_; }

    void setInput(int index, bool on);
    /// An empty pallet is brought, or the pallet is taken away with all that lies on it.
    void bringPallet(int side);
    void takePallet(int side);

    /// Somebody takes what the gripper holds off by hand and switches suction off. Returns whether it held something.
    bool clearGripper();

    void setFault(Fault fault, bool on);
    bool hasFault(Fault fault) const { return faults_.test(static_cast<std::size_t>(fault)); }
    /// All drives lose their power: what is carried falls, outputs go off.
    void cutPower();
    int lostBoxes() const { return lost_; }
    const std::vector<Violation> &violations() const { return violations_; }
    /// Of a move that a program asked for and the robot cannot make.
    void violate(const script::Location &where, std::string what, std::string first = {},
                 std::string second = {});

    orba::Node saved() const;
    template <class Find> void restore(const orba::Node &kept, Find find)
    {
        for (PalletPlace &pallet : pallets_)
            if (const orba::Node *own =
                    kept.find(QStringLiteral("pallets.#%1").arg(&pallet - pallets_.data())))
                pallet.restore(*own, find);
        restoreRest(kept);
    }

private:
    void restoreRest(const orba::Node &kept);
    Pose raised(const Pose &inBase) const;
    void moveRobot();
    bool hasLeftStop(const Block &carried) const;
    void watchWay(const Block &from, const Pose &to);
    void hit(const Body &body);
    void moveGripper();
    void grip();
    void letGo();
    void settle(Body box);
    void lose(const char *how);
    void moveConveyor();
    void pullPallets(bool away);
    Body column() const;
    double floor() const;
    void showSensors();

    WorldListener *listener_;
    std::int64_t ticks_ = 0;
    std::uint64_t version_ = 0;
    std::uint64_t keptVersion_ = 0;
    Signals signals_;
    Way way_;
    Drive drive_;
    Conveyor conveyor_;
    Gripper gripper_;
    std::array<PalletPlace, 2> pallets_{PalletPlace(0), PalletPlace(1)};
    std::shared_ptr<const RecipePlan> plan_;
    int layer_ = 0;
    int piece_ = 0;
    std::shared_ptr<const RecipePlan> carriedPlan_; ///< of the product in the gripper
    double carriedFor_ = 0;                         ///< [s]
    bool liftedOff_ = true;                         ///< the product in the gripper has left the stop
    Block waiting_;                                 ///< that product while it lay there
    Pose tool_ = Pose::Identity();                  ///< of the tool's point in the cell
    std::bitset<kFaults> faults_;
    int pulledSide_ = 0;
    int lost_ = 0;
    std::vector<Violation> violations_;
    std::vector<std::string> hitNow_; ///< bodies that the carried product met on its way
    bool wasReached_ = true, hadRoom_ = true, wasMoving_ = false;
};

} // namespace controller::cell
