#include "controller/cell/pallets.h"

#include <algorithm>
#include <set>

namespace controller::cell {

using orba::Node;

namespace {

// Layer, piece, position [m], quaternion without its real part, errorMm, errorDeg, half of the size [m]. A recipe may be edited
// while its products lie there, which does not change them; without a size, as it was kept once, it is the recipe's.
constexpr int kNumbersOfBox = 13;
constexpr int kNumbersWithoutSize = 10;

/// The numbers by which a resting box is kept.
std::array<double, kNumbersOfBox> numbersOf(const Resting &box)
{
    const Pose &pose = box.body.block.pose;
    Eigen::Quaterniond turn(pose.linear());
    if (turn.w() < 0)
        turn.coeffs() = -turn.coeffs();
    return {static_cast<double>(box.body.layer),
            static_cast<double>(box.body.piece),
            pose.translation().x(),
            pose.translation().y(),
            pose.translation().z(),
            turn.x(),
            turn.y(),
            turn.z(),
            box.errorMm,
            box.errorDeg,
            box.body.block.half.x(),
            box.body.block.half.y(),
            box.body.block.half.z()};
}

Pose poseFrom(const Node &numbers)
{
    const Vector axis(numbers.number(5), numbers.number(6), numbers.number(7));
    const double real = std::sqrt(std::max(0.0, 1 - axis.squaredNorm()));
    Pose pose = Pose::Identity();
    pose.translation() = Vector(numbers.number(2), numbers.number(3), numbers.number(4));
    pose.linear() = Eigen::Quaterniond(real, axis.x(), axis.y(), axis.z()).normalized().toRotationMatrix();
    return pose;
}

} // namespace

void PalletPlace::clear()
{
    sheets_.clear();
    boxes_.clear();
    tops_.clear();
    sheetsBelow_ = 1;
    top_ = plan_ ? pallet_.block.top() : 0;
}

void PalletPlace::follow(std::shared_ptr<const RecipePlan> plan)
{
    if (plan == plan_)
        return;
    const bool isOther = plan_ && plan_->name() != plan->name();
    plan_ = std::move(plan);
    pallet_ = {Body::Kind::Pallet, side_, 0, 0, plan_->pallet()};
    if (isOther && boxes_.empty())
        clear(); // another empty pallet
    top_ = std::max(top_, pallet_.block.top());
    if (boxes_.empty() && sheets_.empty())
        top_ = pallet_.block.top();
}

void PalletPlace::addBox(const Resting &box)
{
    boxes_.push_back(box);
    tops_.push_back(box.body.block.top());
    top_ = std::max(top_, tops_.back());
}

void PalletPlace::laySheetsBelow(int layer)
{
    for (; sheetsBelow_ < layer; ++sheetsBelow_) {
        Pose point;
        QString why;
        if (!plan_->isSheet(sheetsBelow_) ||
            !plan_->point(script::PalletPoint::Wobj, sheetsBelow_, 1, &point, &why))
            continue;
        sheets_.push_back({Body::Kind::Sheet, side_, sheetsBelow_, 0, plan_->sheetAt(point)});
        top_ = std::max(top_, sheets_.back().block.top());
    }
}

void PalletPlace::put(const Body &box, const Pose &putPoint)
{
    const Block wished = plan_->productAt(putPoint);
    Resting resting{box, 0, 0};
    resting.errorMm = (box.block.pose.translation() - wished.pose.translation()).norm() * 1000;
    resting.errorDeg = degrees(angleBetween(box.block.pose.linear(), wished.pose.linear()));
    addBox(resting);
}

void PalletPlace::nextPiece(int *layer, int *piece) const
{
    std::set<std::pair<int, int>> there;
    for (const Resting &box : boxes_)
        there.insert({box.body.layer, box.body.piece});
    *piece = 1;
    for (*layer = 1; plan_ && *layer <= plan_->layers(); ++*layer)
        for (*piece = 1; *piece <= plan_->pieces(*layer); ++*piece)
            if (!there.count({*layer, *piece}))
                return;
    *piece = 1;
}

bool PalletPlace::isFull() const
{
    return plan_ && static_cast<int>(boxes_.size()) >= plan_->productCount();
}

Node PalletPlace::saved() const
{
    Node kept;
    kept.ensure(u"recipe")->setString(plan_ ? plan_->name() : QString());
    kept.ensure(u"in_place")->setBool(isInPlace_);
    kept.ensure(u"sheets_below")->setInt(sheetsBelow_);
    Node *boxes = kept.ensure(u"boxes");
    boxes->reset(Node::Kind::List);
    for (const Resting &box : boxes_)
        boxes->add()->setDoubles(numbersOf(box).data(), kNumbersOfBox);
    return kept;
}

void PalletPlace::restore(const Node &kept, std::shared_ptr<const RecipePlan> plan)
{
    isInPlace_ = kept.getBool(u"in_place", true);
    if (!plan)
        return;
    follow(std::move(plan));
    clear();
    laySheetsBelow(static_cast<int>(std::min<qint64>(kept.getInt(u"sheets_below"), plan_->layers() + 1)));
    const Node *boxes = kept.child(QStringView(u"boxes"));
    for (int i = 0; boxes && i < boxes->size(); ++i) {
        const Node *numbers = boxes->at(i);
        const int count = numbers ? numbers->size() : 0;
        if (count != kNumbersOfBox && count != kNumbersWithoutSize)
            continue; // edited by hand
        Body box{Body::Kind::Box, side_, static_cast<int>(numbers->number(0)),
                 static_cast<int>(numbers->number(1)), plan_->productAt(Pose::Identity())};
        box.block.pose = poseFrom(*numbers);
        if (count == kNumbersOfBox)
            box.block.half = Vector(numbers->number(10), numbers->number(11), numbers->number(12));
        addBox({box, numbers->number(8), numbers->number(9)});
    }
}

} // namespace controller::cell
