#include "controller/cell/recipe_plan.h"

#include "controller/texts.h"
#include "ix/calc.h"

namespace controller::cell {

using orba::Node;
using script::PalletPoint;

namespace {

constexpr double kMmPerM = 1000;
constexpr int kOnePoint = 1; ///< "calibration_method"

/// The tool's point looks down on a product that is put: this turns its axes into the product's.
const Eigen::Matrix3d &downToUp()
{
    static const Eigen::Matrix3d turn = Eigen::Vector3d(1, -1, -1).asDiagonal();
    return turn;
}

struct PointPlace
{
    PalletPoint point;
    const char16_t *key;
    bool isPut; ///< of the product, else of the pick side
};
constexpr PointPlace kPlaces[] = {
    {PalletPoint::Home, u"get.enter_p", false},  {PalletPoint::GetApproach, u"get.approach_p", false},
    {PalletPoint::GetWobj, u"get.get_p", false}, {PalletPoint::Enter, u"enter_p", true},
    {PalletPoint::Ready, u"ready_p", true},      {PalletPoint::Approach, u"approach_p", true},
    {PalletPoint::Wobj, u"put_p", true},         {PalletPoint::Exit, u"exit_p", true},
};

/// Whether `key` below `node` is a taught point.
bool isTaught(const Node &node, const char16_t *key)
{
    Pose pose;
    QString why;
    const Node *point = node.find(key);
    return point && readPose(*point, &pose, &why);
}

Block blockBelow(const Pose &tool, const Vector &size)
{
    Block block;
    block.half = size / 2;
    block.pose.linear() = tool.linear() * downToUp();
    block.pose.translation() = tool.translation() - block.pose.linear().col(2) * block.half.z();
    return block;
}

} // namespace

RecipePlan::RecipePlan(std::shared_ptr<const Node> recipe)
    : recipe_(std::move(recipe)), side_(recipe_->getInt(u"pallet_position") == 0 ? 0 : 1),
      product_(size(u"product_cfg.product")), sheet_(size(u"product_cfg.clapboard"))
{
    problem_ = findFrame();
    if (problem_.isEmpty() && layers() == 0)
        problem_ = Texts::tr("it has no points");
    findTool();
    findPallet();
}

QString RecipePlan::name() const
{
    return recipe_->getString(u"name");
}

Vector RecipePlan::size(QStringView path) const
{
    const Node *node = recipe_->find(path);
    if (!node)
        return Vector::Zero();
    return Vector(node->getDouble(u"length"), node->getDouble(u"width"), node->getDouble(u"height")) /
           kMmPerM;
}

// ---------------------------------------------------------------- layers

int RecipePlan::layers() const
{
    const Node *put = recipe_->find(u"points.put");
    return put ? put->size() : 0;
}

bool RecipePlan::isSheet(int layer) const
{
    const Node *layers = recipe_->child(QStringView(u"layers"));
    const Node *record = layers ? layers->at(layer - 1) : nullptr;
    return record && record->getString(u"pattern") == QLatin1String("clapboard");
}

int RecipePlan::pieces(int layer) const
{
    const Node *put = recipe_->find(u"points.put");
    const Node *products = put ? put->at(layer - 1) : nullptr;
    return products && !isSheet(layer) ? products->size() : 0;
}

int RecipePlan::productCount() const
{
    int count = 0;
    for (int layer = 1; layer <= layers(); ++layer)
        count += pieces(layer);
    return count;
}

// ---------------------------------------------------------------- points

const Node *RecipePlan::product(int layer, int piece) const
{
    const Node *put = recipe_->find(u"points.put");
    const Node *products = put ? put->at(layer - 1) : nullptr;
    return products ? products->at(piece - 1) : nullptr;
}

bool RecipePlan::point(PalletPoint point, int layer, int piece, Pose *pose, QString *why) const
{
    for (const PointPlace &place : kPlaces) {
        if (place.point != point)
            continue;
        const Node *record = place.isPut ? product(layer, piece) : recipe_.get();
        record = record ? record->find(place.key) : nullptr;
        if (!record) {
            *why = Texts::tr("the recipe \"%1\" has no point \"%2\" for layer %3, piece %4")
                       .arg(name(), QString::fromUtf16(place.key))
                       .arg(layer)
                       .arg(piece);
            return false;
        }
        if (!readPose(*record, pose, why)) {
            *why = Texts::tr("in \"%1\" of the recipe \"%2\": %3")
                       .arg(QString::fromUtf16(place.key), name(), *why);
            return false;
        }
        *pose = place.isPut ? frame_ * *pose : *pose;
        return true;
    }
    return false;
}

Block RecipePlan::productAt(const Pose &tool) const
{
    return blockBelow(tool, product_);
}

/// A sheet's point is reckoned like a product's, whose top stands on the height of the product above the layer.
Block RecipePlan::sheetAt(const Pose &tool) const
{
    Pose top = tool;
    top.translation().z() += sheet_.z() - product_.z();
    return blockBelow(top, sheet_);
}

// ---------------------------------------------------------------- frame, tool, pallet

QString RecipePlan::findFrame()
{
    if (recipe_->getBool(u"use_global_wobj"))
        return {};
    const Node *own = recipe_->child(QStringView(u"calibrate"));
    if (!own || !isTaught(*own, u"p1")) {
        if (const Node *reference = recipe_->find(u"toolset.ref"))
            frame_ = ix::calc::toPose(*reference);
        return {};
    }
    const Pose origin = ix::calc::toPose(*own->find(u"p1"));
    frame_ = ix::calc::calibrateOXYParallel(origin.translation(), Pose::Identity());
    if (own->getInt(u"calibration_method") != kOnePoint) {
        if (!isTaught(*own, u"p2") || !isTaught(*own, u"p3"))
            return Texts::tr("its work object needs three calibration points");
        const auto calibration =
            ix::calc::calibrateOXY(origin.translation(), ix::calc::toPose(*own->find(u"p2")).translation(),
                                   ix::calc::toPose(*own->find(u"p3")).translation());
        if (!calibration.ok())
            return calibration.error;
        frame_ = calibration.frame;
    }
    const Vector shift(own->getDouble(u"wobj_x"), own->getDouble(u"wobj_y"), 0);
    frame_.translation() += frame_.linear() * shift / kMmPerM;
    return {};
}

void RecipePlan::findTool()
{
    const Node *end = recipe_->find(u"toolset.end");
    Pose pose;
    QString why;
    if (!recipe_->getBool(u"use_global_tool") && end && readPose(*end, &pose, &why))
        tool_ = pose;
}

/// The lowest layer's points stand on the pallet's top, so they tell where it is; the pattern tells where in the pallet
/// they are.
void RecipePlan::findPallet()
{
    const Vector size = this->size(u"product_cfg.pallet");
    int layer = 1;
    while (layer < layers() && pieces(layer) == 0)
        ++layer;
    const Node *lowest = product(1, 1);
    if (!problem_.isEmpty() || !lowest || pieces(layer) == 0)
        return;
    const Node *lift = recipe_->find(u"layers.#0");
    Vector centre = palletCentre(layer);
    centre.z() = ix::calc::toPose(*lowest->child(QStringView(u"put_p"))).translation().z() - product_.z() -
                 (lift ? lift->getDouble(u"h_offset") : 0) / kMmPerM - size.z() / 2;
    pallet_.half = size / 2;
    pallet_.pose = frame_;
    pallet_.pose.translation() = frame_ * centre;
}

/// A pattern's item at (x across, y along) lies at the pallet's centre plus or minus (y - length / 2, x - width / 2): points
/// of the shared work objects may look the other way. Which way it is shows in two items that are apart.
Vector RecipePlan::palletCentre(int layer) const
{
    const Vector size = this->size(u"product_cfg.pallet") * kMmPerM;
    const Node *patterns = recipe_->child(QStringView(u"patterns"));
    const Node *record = recipe_->find(QStringLiteral("layers.#%1").arg(layer - 1));
    const Node *pattern = patterns && record ? patterns->child(record->getString(u"pattern")) : nullptr;
    const Node *put = recipe_->find(u"points.put")->at(layer - 1);
    const auto placed = [put](int i) -> Vector {
        return ix::calc::toPose(*put->at(i)->child(QStringView(u"put_p"))).translation();
    };
    const auto inPattern = [&](int i) -> Vector {
        const Node &item = *pattern->at(i);
        return Vector(item.getDouble(u"y") - size.x() / 2, item.getDouble(u"x") - size.y() / 2, 0) / kMmPerM;
    };
    if (!pattern ||
        pattern->size() != put->size()) { // points from elsewhere: as if the layer lay in the middle
        Vector sum = Vector::Zero();
        for (int i = 0; i < put->size(); ++i)
            sum += placed(i);
        return sum / put->size();
    }
    const int last = put->size() - 1;
    const double sign =
        (placed(last) - placed(0)).head<2>().dot((inPattern(last) - inPattern(0)).head<2>()) < 0 ? -1 : 1;
    return placed(0) - sign * inPattern(0);
}

} // namespace controller::cell
