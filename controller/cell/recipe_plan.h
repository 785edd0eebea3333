#pragma once

#include "controller/cell/bodies.h"
#include "controller/script/machine.h"
#include "orba/node.h"

#include <memory>
#include <optional>

namespace controller::cell {

/// A recipe as the cell needs it: where its pallet stands and how large everything is, worked out once; points on demand.
/// Poses are in the robot's base (with the lift column down), metres.
///
/// The frame of the put points: the robot's base when the recipe uses the shared work objects ("use_global_wobj"), because
/// their one-point calibration gives points in the base. Else the recipe's own calibration: with "calibration_method" 1 the
/// place of "p1", axes as those of the base; otherwise the frame of "p1", "p2" (on x), "p3" (in the plane); both with their
/// origin shifted by "wobj_x" and "wobj_y" [mm] along their axes. Without calibration points the reference frame of its
/// "toolset".
class RecipePlan
{
public:
    /// Never fails: what is missing reads 0. `pallet` may name a place where no pallet can be found, see problem().
    explicit RecipePlan(std::shared_ptr<const orba::Node> recipe);

    /// Why programs cannot use it: no layers, calibration points that give no frame. Empty when they can.
    const QString &problem() const { return problem_; }
    const orba::Node *recipe() const { return recipe_.get(); }
    QString name() const;
    int side() const { return side_; } ///< 0 left, 1 right
    int layers() const;
    /// Products of a layer, from 1; 0 for a separator sheet.
    int pieces(int layer) const;
    bool isSheet(int layer) const;
    int productCount() const;

    /// A pallet point; `layer` and `piece` from 1 must be there. False with a reason.
    bool point(script::PalletPoint point, int layer, int piece, Pose *pose, QString *why) const;
    /// The tool's point seen from the flange; none when the recipe uses the shared tool.
    const std::optional<Pose> &tool() const { return tool_; }

    /// A product whose middle of the top face is at the tool's point.
    Block productAt(const Pose &tool) const;
    /// The sheet that is put there.
    Block sheetAt(const Pose &tool) const;
    /// The pallet where it stands.
    const Block &pallet() const { return pallet_; }
    /// The floor that the pallet stands on [m].
    double floor() const { return pallet_.bottom(); }

private:
    const orba::Node *product(int layer, int piece) const;
    Pose palletPoint(QStringView key, int layer, int piece) const;
    QString findFrame();
    void findTool();
    void findPallet();
    Vector palletCentre(int layer) const;
    Vector size(QStringView path) const;

    std::shared_ptr<const orba::Node> recipe_;
    QString problem_;
    int side_ = 0;
    Pose frame_ = Pose::Identity();
    std::optional<Pose> tool_;
    Vector product_; ///< length, width, height
    Vector sheet_;
    Block pallet_;
};

} // namespace controller::cell
