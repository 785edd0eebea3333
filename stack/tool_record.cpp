#include "stack/tool_record.h"

#include <QCoreApplication>

#include <Eigen/SVD>

namespace palx {

using ix::calc::Pose;
using ix::calc::Vector;
using orba::Node;

namespace {

constexpr double kMm = 1000.0;
constexpr double kDeg = 57.29577951308232;
constexpr double kLeastTurnDeg = 60.0; ///< where a touch that is off by a millimetre makes a tool that is
constexpr double kMostMissM = 0.005;   ///< a tip is touched to about a millimetre

struct ToolText
{
    Q_DECLARE_TR_FUNCTIONS(ToolText)
};

const ToolNumber kNumbers[][kToolNumbers] = {
    {{"end.trans.#0", kMm},
     {"end.trans.#1", kMm},
     {"end.trans.#2", kMm},
     {"end.rot.#0", kDeg},
     {"end.rot.#1", kDeg},
     {"end.rot.#2", kDeg},
     {"load.cog.#0", kMm},
     {"load.cog.#1", kMm},
     {"load.cog.#2", kMm},
     {"load.mass", 1}},
    {{"frame.pos.x", kMm},
     {"frame.pos.y", kMm},
     {"frame.pos.z", kMm},
     {"load.pose.ori.euler.a", kDeg},
     {"load.pose.ori.euler.b", kDeg},
     {"load.pose.ori.euler.c", kDeg},
     {"load.pose.pos.x", kMm},
     {"load.pose.pos.y", kMm},
     {"load.pose.pos.z", kMm},
     {"load.mass", 1}},
};

} // namespace

const ToolNumber &toolNumber(ToolKeeper keeper, int i)
{
    return kNumbers[static_cast<int>(keeper)][i];
}

Pose toolPose(const Node &tool, ToolKeeper keeper)
{
    const auto number = [&](int i) { return tool.getDouble(orba::Path(toolNumber(keeper, i).path)); };
    return ix::calc::toPose(Vector(number(0), number(1), number(2)), Vector(number(3), number(4), number(5)));
}

bool isMeasured(const Node &tool, ToolKeeper keeper)
{
    for (int i = 0; i < 6; ++i)
        if (tool.getDouble(orba::Path(toolNumber(keeper, i).path)) != 0)
            return true;
    return false;
}

/// first * e = turned * e for the tool's point e, least squares in its x and y.
ToolMeasure measureTool(const Pose &first, const Pose &turned, double z)
{
    const Eigen::Matrix3d change = first.linear() - turned.linear();
    const Vector apart = turned.translation() - first.translation();
    const Eigen::Matrix<double, 3, 2> across = change.leftCols<2>();
    const Eigen::JacobiSVD<Eigen::Matrix<double, 3, 2>, Eigen::FullPivHouseholderQRPreconditioner> solver(
        across, Eigen::ComputeFullU | Eigen::ComputeFullV);
    ToolMeasure found;
    if (solver.singularValues()(1) < 2 * std::sin(kLeastTurnDeg / kDeg / 2)) { // a turn by that angle about z
        found.error =
            ToolText::tr("Turn the hand by at least %1 degrees about its own axis between the two touches.")
                .arg(kLeastTurnDeg);
        return found;
    }
    const Vector wanted = apart - change.col(2) * z;
    const Eigen::Vector2d xy = solver.solve(wanted);
    found.x = xy.x();
    found.y = xy.y();
    found.missM = (across * xy - wanted).norm();
    if (found.missM > kMostMissM)
        found.error =
            ToolText::tr("The two touches are %1 mm apart in the direction of the hand: the tip moved or was not met.")
                .arg(found.missM * kMm, 0, 'f', 1);
    return found;
}

} // namespace palx
