#pragma once

#include "controller/station.h"
#include "project/rules/run_recovery.h"

#include <QVector>

#include <memory>
#include <vector>

namespace cli {

/// The person beside a simulated cell: mends what went wrong and gets the programs going again, with what panel and cell
/// offer for it. Used by `palx simulate` and by tests.
class CellOperator
{
public:
    /// `sides` are those that are to be stacked. `station` must outlive this.
    CellOperator(controller::Station *station, QVector<int> sides);

    /// Whatever stands, or counts wrong, is mended and started: faults are taken back; a paused program goes on, unless its product or its
    /// pallet is gone; else the program is stopped, the gripper cleared, layer and piece of every side confirmed, and the
    /// program started anew. Some simulated seconds pass. Why not; empty when the program runs.
    QString recover();

    /// The program that runs counts on a product that was lost. To be recovered from at once.
    bool seesMiscount();
    /// Takes back every fault that is there, a collision included.
    void mend();
    /// Why a request was refused; empty when it was done.
    QString ask(const char *request, const orba::Node &payload = orba::Node());

private:
    const orba::Node &stacks();
    palx::RunRecovery look();
    QString goOn(palx::GoOn how);
    QString startAnew();
    QString prepare(int side);
    QString enable(int side, bool on);
    void press(const char *input);

    controller::Station *station_;
    QVector<int> sides_;
    std::vector<std::shared_ptr<const orba::Node>> recipes_; ///< that `stacks_` was copied from
    orba::Node stacks_;
};

} // namespace cli
